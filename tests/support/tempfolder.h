// SPDX-License-Identifier: MIT
// A folder, and bytes in and out of its files; one of its own for each test, removed at the end.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::test {

class Folder {
public:
    explicit Folder(std::filesystem::path path) : m_path(std::move(path)) {}

    const std::filesystem::path& path() const { return m_path; }
    std::string string() const { return m_path.string(); }

    void write(const std::string& name, std::string_view bytes) const {
        std::ofstream file(m_path / name, std::ios::binary);
        EXPECT_TRUE(file << bytes << std::flush) << "cannot write " << name;
    }
    // The file's bytes; fails the test and returns "" when it cannot be read.
    std::string read(const std::string& name) const {
        std::ifstream file(m_path / name, std::ios::binary);
        EXPECT_TRUE(file) << "no file " << name;
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    bool has(const std::string& name) const { return std::filesystem::exists(m_path / name); }
    // The names in the folder, sorted.
    std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            result.push_back(entry.path().filename().string());
        std::sort(result.begin(), result.end());
        return result;
    }

private:
    const std::filesystem::path m_path;
};

class TempFolder : public Folder {
public:
    TempFolder() : Folder(made()) {}
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path(), ignored);
    }

private:
    // Its real path: the system's own may be written in short.
    static std::filesystem::path made() {
        const std::filesystem::path folder =
            canonical(std::filesystem::temp_directory_path()) /
            ("vantrel-test-" + std::to_string(std::random_device()()));
        return create_directory(folder) ? folder : made();
    }
};

} // namespace vantrel::test
