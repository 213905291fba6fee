// SPDX-License-Identifier: MIT
// What every fuzz target is made of: taking the fuzzer's bytes apart, and the one way to say
// that a property does not hold.
#pragma once

#include "shared/runtimeerror.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// A target: called with one input after the other. A property that does not hold ends the
// program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vantrel::test {

// Ends the program, telling `what`, unless `holds`.
void require(bool holds, std::string_view what);
// The same, telling both texts.
void requireEqual(std::string_view is, std::string_view mustBe, std::string_view what);

// The input as several texts: each ends at a tab, so that inputs can be written by hand.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size);

    // The next text; empty when there are no more.
    std::string text();
    // The next text as a choice: 0 to count - 1, by its first character.
    std::size_t choice(std::size_t count);
    // All that was not taken yet.
    std::string rest() const { return m_rest; }

private:
    std::string m_rest;
};

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
