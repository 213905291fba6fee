// SPDX-License-Identifier: MIT
#include "support/ratiotable.h"

#include "support/table.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <unistd.h>
#include <utility>
#include <vector>

namespace vantrel::bench {

namespace {

// One call each, ours and the bound's in turns; the median is what the table shows.
constexpr int repetitions = 101;

struct Subject {
    std::string name;
    double atMost;
    bool isRatio;
};

std::vector<Subject>& subjects() {
    static std::vector<Subject> list;
    return list;
}

void add(const std::string& name, std::function<void()> body, std::function<void()> prepare) {
    benchmark::RegisterBenchmark(
        name.c_str(),
        [body = std::move(body), prepare = std::move(prepare)](benchmark::State& state) {
            for (auto _ : state) {
                if (prepare)
                    prepare();
                const auto start = std::chrono::steady_clock::now();
                body();
                const std::chrono::duration<double> taken =
                    std::chrono::steady_clock::now() - start;
                state.SetIterationTime(taken.count());
            }
        })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(1)
        ->Repetitions(repetitions);
}

// Keeps the median of each benchmark's repetitions, in milliseconds.
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration)
                m_times[run.run_name.function_name].push_back(run.GetAdjustedRealTime() / 1000);
    }
    double median(const std::string& name) { return bench::median(m_times[name]); }

private:
    std::map<std::string, std::vector<double>> m_times;
};

} // namespace

void pair(const std::string& subject, double atMost, std::function<void()> ours,
          std::function<void()> bound, std::function<void()> prepare) {
    subjects().push_back({subject, atMost, true});
    add(subject + "/ours", std::move(ours), prepare);
    add(subject + "/bound", std::move(bound), prepare);
}

void single(const std::string& subject, double atMostMilliseconds, std::function<void()> ours,
            std::function<void()> prepare) {
    subjects().push_back({subject, atMostMilliseconds, false});
    add(subject + "/ours", std::move(ours), std::move(prepare));
}

int run(int argc, char** argv) {
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argv, argv + argc);
    arguments.push_back(interleave.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);

    printHead();
    for (const Subject& subject : subjects()) {
        const double ours = collector.median(subject.name + "/ours");
        if (ours == 0)
            continue;
        if (subject.isRatio)
            printRatio(subject.name, ours, collector.median(subject.name + "/bound"), "ms",
                       subject.atMost);
        else
            printValue(subject.name, ours, "ms", subject.atMost);
    }
    return 0;
}

BenchFolder::BenchFolder() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "vantrel-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr)
        std::abort();
    path = pattern;
}

BenchFolder::~BenchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

void BenchFolder::write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path / name, std::ios::binary) << bytes;
    // On the disk now, so that no sync that is measured pays for it.
    const int handle = ::open((path / name).c_str(), O_RDONLY);
    ::fsync(handle);
    ::close(handle);
}

void bareRead(const std::filesystem::path& file) {
    static std::vector<char> buffer(1 << 24);
    const int handle = ::open(file.c_str(), O_RDONLY);
    while (::read(handle, buffer.data(), buffer.size()) > 0) {
    }
    ::close(handle);
}

void bareAppend(const std::filesystem::path& file, const std::string& bytes) {
    const int handle = ::open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
    if (::write(handle, bytes.data(), bytes.size()) < 0 || ::fsync(handle) != 0)
        std::abort();
    ::close(handle);
}

void bareDurableWrite(const std::filesystem::path& file, const std::string& bytes) {
    const std::filesystem::path beside = file.string() + ".beside";
    const int handle = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (::write(handle, bytes.data(), bytes.size()) < 0 || ::fsync(handle) != 0)
        std::abort();
    ::close(handle);
    if (::rename(beside.c_str(), file.c_str()) != 0)
        std::abort();
    const int folder = ::open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY);
    ::fsync(folder);
    ::close(folder);
}

} // namespace vantrel::bench
