// SPDX-License-Identifier: MIT
#include "fakes/fakemessages.h"

#include <gtest/gtest.h>

namespace vantrel::test {

FakeMessages::~FakeMessages() {
    for (const Expected& missing : m_expected)
        ADD_FAILURE() << "expected message box never shown: " << missing.text;
}

void FakeMessages::show(const Message& message) {
    answer(message);
}

bool FakeMessages::ask(const Message& message) {
    return answer(message);
}

void FakeMessages::expect(const std::string& text, bool yes) {
    m_expected.push_back({text, yes});
}

void FakeMessages::forget() {
    shown.clear();
    m_expected.clear();
}

bool FakeMessages::answer(const Message& message) {
    shown.push_back(message);
    if (whileShown)
        whileShown();
    if (m_expected.empty()) {
        ADD_FAILURE() << "unexpected message box: " << message.text << " / " << message.informative;
        return false;
    }
    const Expected expected = m_expected.front();
    m_expected.pop_front();
    EXPECT_EQ(message.text, expected.text) << message.informative;
    return expected.yes;
}

} // namespace vantrel::test
