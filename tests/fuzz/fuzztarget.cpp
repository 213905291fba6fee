// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What the fuzzing engine calls.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vantrel::test::Input input(std::string(data, data + size));
    vantrel::test::fuzz(input);
    return 0;
}

namespace vantrel::test {

std::string Input::text() {
    const std::size_t end = m_rest.find('\t');
    std::string text = m_rest.substr(0, end);
    m_rest.erase(0, end == std::string::npos ? end : end + 1);
    return text;
}

std::size_t Input::choice(std::size_t count) {
    const std::string word = text();
    return word.empty() ? 0 : static_cast<unsigned char>(word.front()) % count;
}

void require(bool holds, std::string_view what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

void requireEqual(std::string_view is, std::string_view mustBe, std::string_view what) {
    if (is == mustBe)
        return;
    std::fprintf(stderr, "is:      \"%.*s\"\nmust be: \"%.*s\"\n", static_cast<int>(is.size()),
                 is.data(), static_cast<int>(mustBe.size()), mustBe.data());
    require(false, what);
}

FuzzFolder& fuzzFolder() {
    static FuzzFolder folder;
    return folder;
}

} // namespace vantrel::test
