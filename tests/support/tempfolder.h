// SPDX-License-Identifier: MIT
// A folder of its own for one test, removed with all it holds, and bytes in and out of it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::test {

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::string string() const { return m_path.string(); }

    void write(const std::string& name, std::string_view bytes) const;
    // The file's bytes; fails the test and returns "" when it cannot be read.
    std::string read(const std::string& name) const;
    bool has(const std::string& name) const;
    // The names in the folder, sorted.
    std::vector<std::string> names() const;

private:
    std::filesystem::path m_path;
};

} // namespace vantrel::test
