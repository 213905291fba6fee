// SPDX-License-Identifier: MIT
// A machine around a test: a folder of its own with real files, fakes for all else.
#pragma once

#include "fakes/failingcalls.h"
#include "fakes/fakeclock.h"
#include "fakes/fakedevices.h"
#include "fakes/fakeserialport.h"
#include "platform/files.h"
#include "shared/module1.h"
#include "support/testing.h"

namespace vantrel::test {

struct FakeMachine {
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
};

} // namespace vantrel::test
