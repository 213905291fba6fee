// SPDX-License-Identifier: MIT
// What every test is written with: matchers of texts and run-time errors, contact lines, and a
// folder with the bytes of its files.
#pragma once

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "support/contacts.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace vantrel::test {

using ::testing::AllOf, ::testing::ElementsAre, ::testing::HasSubstr;

using FieldList = std::initializer_list<std::string Fields::*>;

// logOf({&Fields::hisCall, &Fields::marker}, "K1ABC; W1AW K3Y/0_"): a line for each contact,
// its words in this order: "-" is empty, "_" a blank, what is not said is the same in all. What
// begins "QSO" is a line as it stands.
inline std::string logOf(FieldList fields, const std::string& contacts) {
    std::string log;
    std::istringstream all(contacts);
    for (std::string contact; std::getline(all, contact, ';');) {
        Fields line{.hisCall = "K1ABC", .hisName = "TOM", .hisState = "MA", .hisNumber = "1234"};
        std::istringstream words(contact);
        std::string word;
        for (const auto field : fields)
            if (words >> word) {
                std::replace(word.begin(), word.end(), '_', ' ');
                line.*field = word == "-" ? "" : word;
            }
        line.frequency.insert(0, 5 - line.frequency.size(), ' ');
        log += (contact.find("QSO") == contact.npos ? contactLine(line) : contact) + "\r\n";
    }
    return log;
}

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

// EXPECT_RUNTIME_ERROR(statement, ErrorCode::fileNotFound, HasSubstr("SKSDB1.TXT")): the
// statement throws RuntimeError with this code, and its detail matches.
#define EXPECT_RUNTIME_ERROR(statement, expectedCode, detailMatcher)                               \
    do {                                                                                           \
        try {                                                                                      \
            statement;                                                                             \
            ADD_FAILURE() << "no run-time error from " #statement;                                 \
        } catch (const ::vantrel::RuntimeError& caught) {                                          \
            EXPECT_EQ(caught.code(), expectedCode) << caught.what();                               \
            EXPECT_THAT(caught.detail(), detailMatcher);                                           \
        }                                                                                          \
    } while (false)
