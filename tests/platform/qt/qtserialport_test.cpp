// SPDX-License-Identifier: MIT
// The real serial port against radios on pseudo-terminals: bytes, line settings, keying lines
// and an end at once when the radio or the program goes.
#include "fakes/qt/ptyradio.h"
#include "platform/files.h"
#include "platform/qt/qtdevices.h"
#include "platform/systemcalls.h"
#include "rig/catlink.h"
#include "support/testing.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdarg>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
// A pseudo-terminal has no keying lines. Here it seems to have them, and what is done with them
// is written down.
std::string keyingLines;
} // namespace

extern "C" int ioctl(int file, unsigned long request, ...) noexcept {
    va_list arguments;
    va_start(arguments, request);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    if (request != TIOCMBIS && request != TIOCMBIC)
        return static_cast<int>(::syscall(SYS_ioctl, file, request, argument));
    const int bits = *static_cast<int*>(argument);
    keyingLines += request == TIOCMBIS ? '+' : '-';
    keyingLines += bits == TIOCM_DTR ? "DTR " : bits == TIOCM_RTS ? "RTS " : "other ";
    return 0;
}

namespace vantrel::test {
namespace {

// A program folder whose "com1" is the radio's terminal.
struct RealPort : ::testing::TestWithParam<Radio> {
    explicit RealPort(const Radio& ofRadio = radioNamed("TenTecAscii"))
        : radio(ofRadio), settings(settingsFor(ofRadio)) {
        std::filesystem::create_symlink(radio.device(), folder.path() / "com1");
        clock.start();
    }

    void expectRefusal(const std::string& name, bool notThere, const char* words) {
        try {
            port->open(name, usual);
            ADD_FAILURE() << name << " opened";
        } catch (const SerialPortError& error) {
            EXPECT_EQ(error.notThere(), notThere) << error.what();
            EXPECT_THAT(error.what(), HasSubstr(words));
        }
    }

    PtyRadio radio;
    TempFolder folder;
    SystemCalls calls;
    Files files{folder.string(), calls};
    std::unique_ptr<SerialPort> port = makeSerialPort(files);
    OperatingSettings settings;
    PortSettings usual{9600, 1};
    QElapsedTimer clock;
};

struct EachRadio : RealPort {
    EachRadio() : RealPort(GetParam()) {}
};

TEST_P(EachRadio, IsAskedItsBytesOnItsLineWithItsModemLinesAndReadLate) {
    // Kenwood and Yaesu send nothing while RTS is low.
    const bool needsRts =
        GetParam().name.starts_with("Kenwood") || GetParam().name.starts_with("Yaesu");
    const std::map<std::string, speed_t> speeds{
        {"1200", B1200}, {"4800", B4800}, {"38400", B38400}, {"57600", B57600}};
    const std::string& line = GetParam().lineSettings;
    radio.answer = [&, answer = radio.answer](std::string_view query) {
        const termios asked = radio.line();
        EXPECT_EQ(cfgetospeed(&asked), speeds.at(line.substr(0, line.find(','))));
        const tcflag_t stopBits = line.ends_with("8,2") ? CSTOPB : 0;
        EXPECT_EQ(asked.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS), CS8 | stopBits);
        EXPECT_EQ(keyingLines, needsRts ? "-DTR +RTS " : "-DTR -RTS ");
        return answer(query);
    };
    radio.send(GetParam().reply(7'025'000)); // the late answer to an earlier query
    radio.delay = 150;                       // several polls; the shortest time-out is 360
    keyingLines.clear();
    EXPECT_EQ(readFrequency(settings, *port).frequency, "14.025");
    EXPECT_EQ(radio.received(), GetParam().query);
    // What could move the lines at closing: hanging up, and the flow control of whoever had
    // the port before.
    EXPECT_EQ(keyingLines, needsRts ? "-DTR +RTS -RTS " : "-DTR -RTS ");
    EXPECT_EQ(radio.line().c_cflag & (HUPCL | CRTSCTS), 0u);
}

INSTANTIATE_TEST_SUITE_P(Radios, EachRadio, ::testing::ValuesIn(radios()),
                         [](const auto& row) { return row.param.name; });

TEST_F(RealPort, UnpluggedMidReplyIsToldAtOnceAndNothingHangsAfterwards) {
    radio.answer = [this](std::string_view) {
        radio.send("@AF");
        QTimer::singleShot(5, &radio, &PtyRadio::vanish);
        return "";
    };
    const ReadResult result = readFrequency(settings, *port);
    EXPECT_THAT(result.message.informative, HasSubstr("unplugged"));
    EXPECT_EQ(readFrequency(settings, *port).outcome, ReadOutcome::failed);
    EXPECT_LT(clock.elapsed(), 3000);
}

TEST_F(RealPort, PortsThatCannotBeUsedSayWhy) {
    folder.write("com3", "no port");
    std::filesystem::create_symlink("/dev/vantrel-no-such-device", folder.path() / "com4");
    expectRefusal("com3", true, "no serial port");
    expectRefusal("com4", true, "com4 leads to /dev/vantrel-no-such-device, which is not there.");
    expectRefusal("None", true, "None");

    const auto other = makeSerialPort(files);
    other->open("com1", usual);
    expectRefusal("com1", false, "another program");
    other->close();
    port->open("com1", usual);
    expectRefusal("com1", false, "already");
    port->close();
    if (::geteuid() != 0) { // the superuser may open every port
        std::filesystem::permissions(radio.device(), std::filesystem::perms::none);
        expectRefusal("com1", false, "group \"");
    }
}

TEST_F(RealPort, ClosingItOrQuittingTheProgramEndsARead) {
    QTimer::singleShot(50, qApp, [this] { port->close(); });
    radio.answer = nullptr;
    EXPECT_EQ(readFrequency(settings, *port).outcome, ReadOutcome::cancelled);
    QTimer::singleShot(50, qApp, [] { QCoreApplication::exit(0); });
    QTimer::singleShot(0, qApp, [this] {
        EXPECT_EQ(readFrequency(settings, *port).outcome, ReadOutcome::cancelled);
    });
    QCoreApplication::exec();
    EXPECT_LT(clock.elapsed(), 1000);
}

} // namespace
} // namespace vantrel::test
