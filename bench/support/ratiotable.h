// SPDX-License-Identifier: MIT
// Benches in pairs: "subject/ours" against "subject/bound" in one run, printed as a table of
// ratios; "subject/ours" alone is printed with its time.
#pragma once

#include <benchmark/benchmark.h>
#include <filesystem>
#include <functional>
#include <string>

namespace vantrel::bench {

// Registers both halves of a pair. Each is called once per iteration; `prepare`, if given,
// runs before each without being timed. atMost: the ratio that is aimed at.
void pair(const std::string& subject, double atMost, std::function<void()> ours,
          std::function<void()> bound, std::function<void()> prepare = {});

// Registers a subject that is measured by its time alone, in milliseconds.
void single(const std::string& subject, double atMostMilliseconds, std::function<void()> ours,
            std::function<void()> prepare = {});

// Runs what is registered, interleaved, and prints the table. Returns 0.
int run(int argc, char** argv);

// A folder of its own, removed at the end.
class BenchFolder {
public:
    BenchFolder();
    ~BenchFolder();
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;
    std::filesystem::path path;
    void write(const std::string& name, const std::string& bytes) const;
};

// Bare system calls, as the bounds use them: nothing checked, nothing kept.
void bareRead(const std::filesystem::path& file);
void bareAppend(const std::filesystem::path& file, const std::string& bytes);
// Writes beside, syncs, renames, syncs the folder.
void bareDurableWrite(const std::filesystem::path& file, const std::string& bytes);

} // namespace vantrel::bench
