// SPDX-License-Identifier: MIT
// Doors to the machine that only record: event loop, sound, printer, launcher; and message
// boxes that answer themselves.
#pragma once

#include "platform/platform.h"
#include "support/testing.h"

#include <deque>

namespace vantrel::test {

class FakeEventLoop : public EventLoop {
public:
    void yield() override {
        if (onYield)
            onYield();
    }
    std::function<void()> onYield;
};

class FakeSound : public Sound {
public:
    void playDupeAlarm() override { ++alarms; }
    int alarms = 0;
};

class FakePrinter : public Printer {
public:
    bool print(const std::vector<std::string>& lines) override {
        jobs.push_back(lines);
        return hasPrinter;
    }
    std::string pdf(const std::vector<std::string>&) override { return "a PDF"; }
    bool hasPrinter = true;
    std::vector<std::vector<std::string>> jobs;
};

class FakeLauncher : public Launcher {
public:
    void start(const std::string& path) override {
        started.push_back(path);
        if (missing)
            throw RuntimeError(ErrorCode::fileNotFound, path);
    }
    bool missing = false;
    std::vector<std::string> started;
};

// A box that nobody expected fails the test, and so does one that never came.
class FakeMessages : public Messages {
public:
    ~FakeMessages() override {
        EXPECT_TRUE(m_expected.empty()) << "never shown: " << m_expected.front().first;
    }
    void show(const Message& message) override { answer(message); }
    bool ask(const Message& message) override { return answer(message); }
    // The next box must have exactly this text; a question is answered `yes`.
    void expect(const std::string& text, bool yes = true) { m_expected.emplace_back(text, yes); }

    std::vector<Message> shown;
    std::function<void()> whileShown; // runs while a box is up, if set

private:
    bool answer(const Message& message) {
        shown.push_back(message);
        if (whileShown)
            whileShown();
        if (m_expected.empty()) {
            ADD_FAILURE() << "unexpected: " << message.text << " / " << message.informative;
            return false;
        }
        const auto [text, yes] = m_expected.front();
        m_expected.pop_front();
        EXPECT_EQ(message.text, text) << message.informative;
        return yes;
    }

    std::deque<std::pair<std::string, bool>> m_expected;
};

} // namespace vantrel::test
