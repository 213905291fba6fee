// SPDX-License-Identifier: MIT
// The real serial port against radios on pseudo-terminals: bytes, line settings, keying lines,
// times, and a window that stays alive meanwhile.
#include "fakes/qt/ptyradio.h"
#include "fakes/radios.h"
#include "platform/files.h"
#include "platform/qt/qtserialport.h"
#include "platform/systemcalls.h"
#include "rig/catlink.h"
#include "support/tempfolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
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
    explicit RealPort(const Radio& ofRadio = radioNamed("Kenwood")) : radio(ofRadio) {
        std::filesystem::create_symlink(radio.device(), folder.path() / "com1");
        settings = settingsFor(ofRadio);
    }

    ReadResult read() {
        QElapsedTimer clock;
        clock.start();
        const ReadResult result = readFrequency(settings, port);
        tookMilliseconds = clock.elapsed();
        return result;
    }

    void expectRefusal(const std::string& name, const std::string& line, Reason reason,
                       const char* words) {
        try {
            port.open(name, line);
            ADD_FAILURE() << name << " opened";
        } catch (const SerialPortError& error) {
            EXPECT_EQ(error.reason(), reason) << error.what();
            EXPECT_THAT(error.what(), HasSubstr(words));
        }
    }

    PtyRadio radio;
    TempFolder folder;
    SystemCalls calls;
    Files files{folder.string(), calls};
    QtSerialPort port{files};
    OperatingSettings settings;
    qint64 tookMilliseconds = 0;
};

struct EachRadio : RealPort, ::testing::WithParamInterface<Radio> {
    EachRadio() : RealPort(GetParam()) {}
};

std::string lineText(const termios& line) {
    const std::map<speed_t, std::string> speeds{
        {B1200, "1200"}, {B4800, "4800"}, {B9600, "9600"}, {B38400, "38400"}, {B57600, "57600"}};
    EXPECT_EQ(cfgetispeed(&line), cfgetospeed(&line));
    const auto speed = speeds.find(cfgetospeed(&line));
    const auto flag = [&](tcflag_t bit) { return (line.c_cflag & bit) != 0; };
    return (speed == speeds.end() ? "?" : speed->second) + (flag(PARENB) ? ",p," : ",n,") +
           ((line.c_cflag & CSIZE) == CS8 ? "8" : "?") + (flag(CSTOPB) ? ",2" : ",1");
}

TEST_P(EachRadio, IsAskedItsBytesOnItsLineAndReadLateAndInPieces) {
    std::string line;
    radio.answer = [&, answer = radio.answer](std::string_view query) {
        line = lineText(radio.line());
        return answer(query);
    };
    radio.hertz = 7'025'000;
    radio.delay = 340;
    radio.pieces = 3;
    radio.pause = 5;
    EXPECT_EQ(read().frequency, "7.025");
    EXPECT_GE(tookMilliseconds, 340);
    EXPECT_EQ(radio.received(), GetParam().query);
    EXPECT_EQ(line, GetParam().lineSettings);
}

TEST_P(EachRadio, UnpluggedMidReplyIsToldAtOnceAndNothingHangsAfterwards) {
    radio.pieces = 3;
    radio.pause = 50;
    radio.vanishesAfterFirstPiece = true;
    const ReadResult result = read();
    EXPECT_EQ(result.outcome, ReadOutcome::failed);
    EXPECT_THAT(result.message.informative, HasSubstr("unplugged"));
    EXPECT_LT(tookMilliseconds, 1500);
    EXPECT_EQ(read().outcome, ReadOutcome::failed);
    EXPECT_LT(tookMilliseconds, 1500);
}

INSTANTIATE_TEST_SUITE_P(Radios, EachRadio, ::testing::ValuesIn(radios()),
                         [](const auto& row) { return row.param.name; });

TEST_F(RealPort, KeyingLinesAreDroppedBeforeAnythingIsSentAndNeverRaised) {
    std::vector<std::string> done;
    std::vector<std::string> doneBeforeQuery;
    radio.answer = [&, answer = radio.answer](std::string_view query) {
        doneBeforeQuery = done;
        return answer(query);
    };
    keyingLines = &done;
    const ReadResult result = read();
    keyingLines = nullptr;
    EXPECT_EQ(result.outcome, ReadOutcome::read);
    EXPECT_THAT(doneBeforeQuery, ElementsAre("drop DTR", "drop RTS"));
    EXPECT_EQ(done, doneBeforeQuery);
    // What could move the lines at closing: hanging up, and the flow control of whoever had
    // the port before.
    EXPECT_EQ(radio.line().c_cflag & static_cast<tcflag_t>(HUPCL | CRTSCTS), 0u);
}

TEST_F(RealPort, WhatWasWaitingIsNoAnswer) {
    radio.send("FA00007025000;"); // the late answer to an earlier query
    EXPECT_EQ(read().frequency, "14.025");
}

TEST_F(RealPort, PortsThatCannotBeUsedSayWhy) {
    const std::string line = "9600,n,8,1";
    folder.write("com3", "no port");
    std::filesystem::create_symlink("/dev/vantrel-no-such-device", folder.path() / "com4");
    expectRefusal("com3", line, Reason::notThere, "no serial port");
    expectRefusal("com4", line, Reason::notThere, "com4");
    expectRefusal("None", line, Reason::notThere, "None");
    expectRefusal("com1", "None,n,8,1", Reason::badSettings, "baud rate");

    QtSerialPort other(files);
    other.open("com1", line);
    expectRefusal("com1", line, Reason::inUse, "another program");
    other.close();
    port.open("com1", line);
    expectRefusal("com1", line, Reason::inUse, "already");
    port.close();

    if (::geteuid() != 0) { // the superuser may open every port
        std::filesystem::permissions(radio.device(), std::filesystem::perms::none);
        expectRefusal("com1", line, Reason::noPermission, "group \"");
    }
}

// The longest the window stands still is measured by a timer that should come every 2 ms. The
// exact times are the bench's; these bounds hold on a busy machine too.
TEST_F(RealPort, SilenceEndsWithinTwoSecondsAndTheWindowStaysAlive) {
    radio.answer = nullptr;
    QElapsedTimer sinceTick;
    qint64 longestGap = 0;
    QTimer tick;
    tick.setTimerType(Qt::PreciseTimer);
    QObject::connect(&tick, &QTimer::timeout,
                     [&] { longestGap = std::max(longestGap, sinceTick.restart()); });
    sinceTick.start();
    tick.start(2);
    EXPECT_EQ(read().outcome, ReadOutcome::failed);
    EXPECT_LE(tookMilliseconds, 3000);
    EXPECT_LT(longestGap, 500);
}

// What is heard as a bad reply is kept, so that the attempts after it follow at once.
TEST_F(RealPort, EveryRepeatedQueryReachesTheRadio) {
    const Radio& orion = radioNamed("TenTecAscii");
    settings = settingsFor(orion);
    radio.answer = [](std::string_view) { return std::string("XAF07025000\r"); };
    EXPECT_EQ(read().outcome, ReadOutcome::failed);
    QTest::qWait(50);
    std::string fiveTimes;
    for (int i = 0; i < 5; ++i)
        fiveTimes += orion.query;
    EXPECT_EQ(radio.received(), fiveTimes);
}

TEST_F(RealPort, ClosingThePortOrQuittingTheProgramEndsTheReadAtOnce) {
    settings = settingsFor(radioNamed("TenTecAscii")); // which is asked several times
    for (const bool quits : {false, true}) {
        QTimer::singleShot(50, qApp, [&] { quits ? QCoreApplication::exit(0) : port.close(); });
        radio.answer = nullptr;
        EXPECT_EQ(read().outcome, ReadOutcome::cancelled) << quits;
        EXPECT_LT(tookMilliseconds, 200) << quits;
    }
}

} // namespace
} // namespace vantrel::test
