// SPDX-License-Identifier: MIT
// A whole program around one form test: a folder of its own, real files and screens, fakes
// for the rest of the machine.
#pragma once

#include "app/appscreens.h"
#include "fakes/failingcalls.h"
#include "fakes/fakeclock.h"
#include "fakes/fakedevices.h"
#include "fakes/fakeserialport.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "support/qt/hands.h"
#include "support/tempfolder.h"

#include <QApplication>
#include <QTest>

#include <cerrno>
#include <gmock/gmock.h>

namespace vantrel::test {

class FormHarness : public Hands {
public:
    // Clicks what brings up a box with this message.
    void clickFor(const std::string& message, const char* formName, const char* name) {
        messages.expect(message);
        click(formName, name);
    }

    TempFolder folder;
    FailingCalls calls;
    Files files{folder.string(), calls};
    FakeClock clock;
    FakeMessages messages;
    FakeEventLoop eventLoop;
    FakeSerialPort serialPort;
    FakeSound sound;
    FakePrinter printer;
    FakeLauncher launcher;
    Platform platform{files, clock, messages, eventLoop, serialPort, sound, printer, launcher};
    Module1 module{files};
    AppScreens screens{module, platform};
};

} // namespace vantrel::test
