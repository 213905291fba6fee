// SPDX-License-Identifier: MIT
// What every fuzz target is made of: taking the fuzzer's bytes apart, a folder for readers of
// files, and the one way to say that a property does not hold.
#pragma once

#include "base/runtimeerror.h"
#include "fakes/failingcalls.h"
#include "platform/files.h"
#include "support/tempfolder.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vantrel::test {

// The input as several texts: each ends at a tab, so that inputs can be written by hand.
class Input {
public:
    explicit Input(std::string bytes) : m_rest(std::move(bytes)) {}

    // The next text; empty when there are no more.
    std::string text();
    // The next text as a choice: 0 to count - 1, by its first character.
    std::size_t choice(std::size_t count);
    // All that was not taken yet.
    const std::string& rest() const { return m_rest; }

private:
    std::string m_rest;
};

// The target: called with one input after the other, by the fuzzing engine or to replay the
// corpus. A property that does not hold ends the program.
void fuzz(Input& input);

// Ends the program, telling `what`, unless `holds`.
void require(bool holds, std::string_view what);
// The same, telling both texts.
void requireEqual(std::string_view is, std::string_view mustBe, std::string_view what);

// A program folder; what an input leaves there the next one finds.
struct FuzzFolder {
    TempFolder disk;
    FailingCalls calls;
    Files files{disk.string(), calls};
};
FuzzFolder& fuzzFolder();

// The run-time error that the step ended with, if it did. No other exception may leave it.
template <typename Step>
std::optional<RuntimeError> errorOf(Step step) {
    try {
        step();
    } catch (const RuntimeError& error) {
        return error;
    }
    return std::nullopt;
}

} // namespace vantrel::test
