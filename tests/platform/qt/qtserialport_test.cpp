// SPDX-License-Identifier: MIT
// The real serial port against radios on pseudo-terminals: bytes, line settings, keying lines,
// times, and a window that stays alive meanwhile.
#include "fakes/qt/ptyradio.h"
#include "fakes/radios.h"
#include "platform/files.h"
#include "platform/qt/qtserialport.h"
#include "platform/systemcalls.h"
#include "rig/catlink.h"
#include "shared/module1.h"
#include "support/tempfolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdarg>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// A pseudo-terminal has no keying lines. While this is set it seems to have them, and what is
// done with them is written down.
std::vector<std::string>* keyingLines = nullptr;

} // namespace

extern "C" int ioctl(int file, unsigned long request, ...) noexcept {
    va_list arguments;
    va_start(arguments, request);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    if (keyingLines != nullptr && (request == TIOCMBIS || request == TIOCMBIC)) {
        const int bits = *static_cast<int*>(argument);
        const std::string verb = request == TIOCMBIS ? "raise" : "drop";
        if ((bits & TIOCM_DTR) != 0)
            keyingLines->push_back(verb + " DTR");
        if ((bits & TIOCM_RTS) != 0)
            keyingLines->push_back(verb + " RTS");
        return 0;
    }
    return static_cast<int>(::syscall(SYS_ioctl, file, request, argument));
}

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Reason = SerialPortError::Reason;

// A program folder whose "com1" is the radio's terminal.
struct RealPort : ::testing::Test {
    void plug(const PtyRadio& radio, const char* name = "com1") const {
        std::filesystem::create_symlink(radio.device(), folder.path() / name);
    }

    ReadResult read() {
        QElapsedTimer clock;
        clock.start();
        const ReadResult result = readFrequency(module, port);
        tookMilliseconds = clock.elapsed();
        return result;
    }

    Reason refusalOf(const std::string& name, const std::string& settings) {
        try {
            port.open(name, settings);
        } catch (const SerialPortError& error) {
            words = error.what();
            return error.reason();
        }
        ADD_FAILURE() << name << " opened";
        port.close();
        return Reason::lost;
    }

    TempFolder folder;
    SystemCalls calls;
    Files files{folder.string(), calls};
    QtSerialPort port{files};
    Module1 module;
    qint64 tookMilliseconds = 0;
    std::string words;
};

// --- Each family -----------------------------------------------------------------------------

struct EachRadio : RealPort, ::testing::WithParamInterface<Radio> {
    EachRadio() {
        plug(radio);
        module.settings = settingsFor(GetParam());
    }
    PtyRadio radio{GetParam()};
};

std::string lineText(const termios& line) {
    const std::map<speed_t, std::string> speeds{
        {B1200, "1200"}, {B4800, "4800"}, {B9600, "9600"}, {B38400, "38400"}, {B57600, "57600"}};
    EXPECT_EQ(cfgetispeed(&line), cfgetospeed(&line));
    const auto speed = speeds.find(cfgetospeed(&line));
    const auto flag = [&](tcflag_t bit) { return (line.c_cflag & bit) != 0; };
    EXPECT_FALSE(flag(CRTSCTS));
    EXPECT_EQ(line.c_iflag & static_cast<tcflag_t>(IXON | IXOFF | ICRNL), 0u);
    EXPECT_EQ(line.c_lflag & static_cast<tcflag_t>(ICANON | ECHO), 0u);
    return (speed == speeds.end() ? "?" : speed->second) + (flag(PARENB) ? ",p," : ",n,") +
           ((line.c_cflag & CSIZE) == CS8 ? "8" : "?") + (flag(CSTOPB) ? ",2" : ",1");
}

TEST_P(EachRadio, IsAskedItsBytesOnItsLineAndReadOnEveryBand) {
    std::string line;
    radio.answer = [&, answer = radio.answer](std::string_view query) {
        line = lineText(radio.line());
        return answer(query);
    };
    for (const Reading& reading : readings) {
        SCOPED_TRACE(reading.mhz);
        radio.hertz = reading.hertz;
        module.bandText = "20 Meters ";
        EXPECT_EQ(read().outcome, ReadOutcome::read);
        EXPECT_EQ(module.frequency, reading.mhz);
        EXPECT_EQ(module.bandText, reading.bandText);
        EXPECT_EQ(radio.received(), GetParam().query);
        EXPECT_EQ(line, GetParam().lineSettings);
        radio.forget();
    }
}

TEST_P(EachRadio, LateReplyInPiecesIsRead) {
    radio.delay = 340;
    radio.pieces = 3;
    radio.pause = 5;
    EXPECT_EQ(read().outcome, ReadOutcome::read);
    EXPECT_EQ(module.frequency, "14.025");
    EXPECT_GE(tookMilliseconds, 340);
}

// The longest the window stands still, measured by a timer that should come every 2 ms.
TEST_P(EachRadio, SilenceEndsWithinTwoSecondsAndTheWindowStaysAlive) {
    radio.answer = nullptr;
    QElapsedTimer sinceTick;
    qint64 longestGap = 0;
    QTimer tick;
    tick.setTimerType(Qt::PreciseTimer);
    QObject::connect(&tick, &QTimer::timeout,
                     [&] { longestGap = std::max(longestGap, sinceTick.restart()); });
    sinceTick.start();
    tick.start(2);
    const ReadResult result = read();
    EXPECT_EQ(result.outcome, ReadOutcome::failed);
    EXPECT_EQ(result.message.text, GetParam().noReplyText);
    // The exact times are the bench's; these bounds hold on a busy machine too.
    EXPECT_LE(tookMilliseconds, 3000);
    EXPECT_LT(longestGap, 500);
    RecordProperty("milliseconds", static_cast<int>(tookMilliseconds));
}

TEST_P(EachRadio, UnpluggedMidReplyIsToldAtOnce) {
    radio.pieces = 3;
    radio.pause = 50;
    radio.vanishesAfterFirstPiece = true;
    const ReadResult result = read();
    EXPECT_EQ(result.outcome, ReadOutcome::failed);
    EXPECT_THAT(result.message.informative, HasSubstr("unplugged"));
    EXPECT_LT(tookMilliseconds, 1500);
    // The next read says that the port is gone, and nothing hangs.
    EXPECT_EQ(read().outcome, ReadOutcome::failed);
    EXPECT_LT(tookMilliseconds, 1500);
}

INSTANTIATE_TEST_SUITE_P(Radios, EachRadio, ::testing::ValuesIn(radios()),
                         [](const auto& row) { return row.param.name; });

// --- The port --------------------------------------------------------------------------------

TEST_F(RealPort, KeyingLinesAreDroppedBeforeAnythingIsSentAndNeverRaised) {
    const Radio& kenwood = radioNamed("Kenwood");
    PtyRadio radio(kenwood);
    plug(radio);
    module.settings = settingsFor(kenwood);
    std::vector<std::string> done;
    std::size_t doneBeforeQuery = 0;
    radio.answer = [&, answer = radio.answer](std::string_view query) {
        doneBeforeQuery = done.size();
        return answer(query);
    };
    keyingLines = &done;
    const ReadResult result = read();
    keyingLines = nullptr;
    EXPECT_EQ(result.outcome, ReadOutcome::read);
    EXPECT_THAT(done, ElementsAre("drop DTR", "drop RTS"));
    EXPECT_EQ(doneBeforeQuery, 2u);
    // What could move the lines at closing: hanging up, and the flow control of whoever had
    // the port before.
    EXPECT_EQ(radio.line().c_cflag & static_cast<tcflag_t>(HUPCL | CRTSCTS), 0u);
}

TEST_F(RealPort, WhatWasWaitingIsNoAnswer) {
    const Radio& kenwood = radioNamed("Kenwood");
    PtyRadio radio(kenwood);
    plug(radio);
    module.settings = settingsFor(kenwood);
    radio.send("FA00007025000;"); // the late answer to an earlier query
    EXPECT_EQ(read().outcome, ReadOutcome::read);
    EXPECT_EQ(module.frequency, "14.025");
}

TEST_F(RealPort, PortsThatCannotBeUsedSayWhy) {
    PtyRadio radio;
    plug(radio);
    folder.write("com3", "no port");
    std::filesystem::create_symlink("/dev/vantrel-no-such-device", folder.path() / "com4");
    EXPECT_EQ(refusalOf("com3", "9600,n,8,1"), Reason::notThere);
    EXPECT_THAT(words, HasSubstr("no serial port"));
    EXPECT_EQ(refusalOf("com4", "9600,n,8,1"), Reason::notThere);
    EXPECT_EQ(refusalOf("None", "9600,n,8,1"), Reason::notThere);
    EXPECT_EQ(refusalOf("com1", "None,n,8,1"), Reason::badSettings);
    EXPECT_THAT(words, HasSubstr("baud rate"));

    QtSerialPort other(files);
    other.open("com1", "9600,n,8,1");
    EXPECT_EQ(refusalOf("com1", "9600,n,8,1"), Reason::inUse);
    other.close();
    port.open("com1", "9600,n,8,1");
    EXPECT_EQ(refusalOf("com1", "9600,n,8,1"), Reason::inUse) << "a read is still running";
}

TEST_F(RealPort, WithoutPermissionTheGroupToJoinIsNamed) {
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser may open every port";
    PtyRadio radio;
    plug(radio);
    std::filesystem::permissions(radio.device(), std::filesystem::perms::none);
    EXPECT_EQ(refusalOf("com1", "9600,n,8,1"), Reason::noPermission);
    EXPECT_THAT(words, HasSubstr("group \""));
}

TEST_F(RealPort, ClosingThePortEndsTheWaitAtOnce) {
    PtyRadio radio;
    plug(radio);
    module.settings = settingsFor(radioNamed("Kenwood"));
    QTimer::singleShot(50, qApp, [this] { port.close(); });
    EXPECT_EQ(read().outcome, ReadOutcome::cancelled);
    EXPECT_LT(tookMilliseconds, 200);
}

TEST_F(RealPort, QuittingTheProgramEndsTheReadAtOnce) {
    PtyRadio radio;
    plug(radio);
    module.settings = settingsFor(radioNamed("TenTecAscii"));
    QTimer::singleShot(50, qApp, [] { QCoreApplication::exit(0); });
    EXPECT_EQ(read().outcome, ReadOutcome::cancelled);
    EXPECT_LT(tookMilliseconds, 200);
}

} // namespace
} // namespace vantrel::test
