// SPDX-License-Identifier: MIT
// The one exception the rules throw: a numbered run-time error with one line of detail.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantrel {

// The framework's customary numbers, as far as they are in use here.
enum class ErrorCode {
    invalidCall = 5,
    overflow = 6,
    subscriptOutOfRange = 9,
    fileNotFound = 53,
    diskFull = 61,
    inputPastEnd = 62,
    permissionDenied = 70,
    pathFileAccess = 75,
    pathNotFound = 76,
};

// "File not found" for 53, and so on.
std::string_view errorText(ErrorCode code);

class RuntimeError : public std::runtime_error {
public:
    // detail: which file, which field, which limit; in the operator's words.
    RuntimeError(ErrorCode code, std::string detail);

    ErrorCode code() const { return m_code; }
    const std::string& detail() const { return m_detail; }

    // "Run-time error 53: File not found": what the message box shows as its text.
    std::string headline() const;

private:
    ErrorCode m_code;
    std::string m_detail;
};

// Throws RuntimeError 9 naming the table ("the list of Centurions") when it holds more entries
// than it has room for.
void requireCapacity(const std::string& table, std::size_t entries, int capacity);

} // namespace vantrel
