// SPDX-License-Identifier: MIT
// Message boxes that answer themselves: what was shown is recorded, a box that nobody
// expected fails the test.
#pragma once

#include "platform/messages.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace vantrel::test {

class FakeMessages : public Messages {
public:
    ~FakeMessages() override;
    void show(const Message& message) override;
    bool ask(const Message& message) override;

    // The next box must have exactly this text; a question is answered `yes`.
    void expect(const std::string& text, bool yes = true);
    // Forgets what was shown and expected so far, after a test looked at it.
    void forget();

    std::vector<Message> shown;
    std::function<void()> whileShown; // runs while a box is up, if set

private:
    bool answer(const Message& message);

    struct Expected {
        std::string text;
        bool yes;
    };
    std::deque<Expected> m_expected;
};

} // namespace vantrel::test
