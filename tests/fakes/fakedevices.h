// SPDX-License-Identifier: MIT
// Doors to the machine that only record: event loop, sound, printer, launcher.
#pragma once

#include "platform/eventloop.h"
#include "platform/launcher.h"
#include "platform/printer.h"
#include "platform/sound.h"

#include <functional>
#include <string>
#include <vector>

namespace vantrel::test {

class FakeEventLoop : public EventLoop {
public:
    void yield() override {
        ++yields;
        if (onYield)
            onYield();
    }
    int yields = 0;
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
    void start(const std::string& path) override { started.push_back(path); }
    std::vector<std::string> started;
};

} // namespace vantrel::test
