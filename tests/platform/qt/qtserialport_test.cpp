// SPDX-License-Identifier: MIT
// The real serial port against radios on pseudo-terminals: bytes, line settings, keying lines,
// an end at once when the radio or the program goes, and a witness.
#include "fakes/qt/ptyradio.h"
#include "platform/files.h"
#include "platform/qt/qtserialport.h"
#include "platform/systemcalls.h"
#include "rig/catlink.h"
#include "support/tempfolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <cstdarg>
#include <gmock/gmock.h>
#include <map>
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

using ::testing::HasSubstr;
using Reason = SerialPortError::Reason;

// A program folder whose "com1" is the radio's terminal.
struct RealPort : ::testing::TestWithParam<Radio> {
    explicit RealPort(const Radio& ofRadio = radioNamed("TenTecAscii"))
        : radio(ofRadio), settings(settingsFor(ofRadio)) {
        std::filesystem::create_symlink(radio.device(), folder.path() / "com1");
        clock.start();
    }

    void expectRefusal(const std::string& name, const std::string& line, Reason reason,
                       const char* words) {
        try {
            port.open(name, line, RtsLine::low);
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
    radio.delay = 340;
    keyingLines.clear();
    EXPECT_EQ(readFrequency(settings, port).frequency, "14.025");
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
    const ReadResult result = readFrequency(settings, port);
    EXPECT_THAT(result.message.informative, HasSubstr("unplugged"));
    EXPECT_EQ(readFrequency(settings, port).outcome, ReadOutcome::failed);
    EXPECT_LT(clock.elapsed(), 3000);
}

// Its frames fall before, into and behind each read.
TEST_F(RealPort, IcomIsReadWhileItsDialIsTurned) {
    const Radio& icom = radioNamed("IcomCiv");
    radio.delay = 20;
    radio.answer = [&](std::string_view query) {
        radio.send(query); // the echo
        return query == icom.query ? icom.reply(14'025'000).substr(query.size()) : "";
    };
    QTimer dial;
    QObject::connect(&dial, &QTimer::timeout, [&] { radio.send(straysOf(icom).front()); });
    dial.start(60);
    for (int i = 0; i < 15; ++i)
        EXPECT_EQ(readFrequency(settingsFor(icom), port).frequency, "14.025") << i;
}

TEST_F(RealPort, PortsThatCannotBeUsedSayWhy) {
    const std::string line = "9600,n,8,1";
    folder.write("com3", "no port");
    std::filesystem::create_symlink("/dev/vantrel-no-such-device", folder.path() / "com4");
    expectRefusal("com3", line, Reason::notThere, "no serial port");
    expectRefusal("com4", line, Reason::notThere,
                  "com4 leads to /dev/vantrel-no-such-device, which is not there.");
    expectRefusal("None", line, Reason::notThere, "None");
    expectRefusal("com1", "None,n,8,1", Reason::badSettings, "baud rate");

    QtSerialPort other(files);
    other.open("com1", line, RtsLine::low);
    expectRefusal("com1", line, Reason::inUse, "another program");
    other.close();
    port.open("com1", line, RtsLine::low);
    expectRefusal("com1", line, Reason::inUse, "already");
    port.close();
    if (::geteuid() != 0) { // the superuser may open every port
        std::filesystem::permissions(radio.device(), std::filesystem::perms::none);
        expectRefusal("com1", line, Reason::noPermission, "group \"");
    }
}

// What is heard as a bad reply is kept, so that the attempts after it follow at once.
TEST_F(RealPort, EveryRepeatedQueryReachesTheRadioUntilTheProgramQuits) {
    const std::string& query = radioNamed("TenTecAscii").query;
    radio.answer = [](std::string_view) { return "XAF07025000\r"; };
    EXPECT_EQ(readFrequency(settings, port).outcome, ReadOutcome::failed);
    QTimer::singleShot(50, qApp, [this] { port.close(); });
    radio.answer = nullptr;
    EXPECT_EQ(readFrequency(settings, port).outcome, ReadOutcome::cancelled);
    EXPECT_EQ(radio.received(), query + query + query + query + query + query);
    QTimer::singleShot(50, qApp, [] { QCoreApplication::exit(0); });
    QTimer::singleShot(0, qApp, [this] {
        EXPECT_EQ(readFrequency(settings, port).outcome, ReadOutcome::cancelled);
    });
    QCoreApplication::exec();
    EXPECT_LT(clock.elapsed(), 1000);
}

// --- An independent witness: the radio library's own commands, where they are installed
// -----------

struct Witness {
    const char* radio;
    const char* arguments; // model and line, as rigctl takes them
    // What else it is asked, and says: "|command" and reply.
    std::string said{};
};

const std::string texts = "|FA;FA00007025000;|FB;FB00014025000;|AI;AI0;|MD;MD3;|PS;PS1;"
                          "|IF;IF00007025000     -000000 0003000000 ;";
const std::string tenTec =
    "|?V\rVER 1038-588\r|?M\rM30\r|?BF\r@BF14025000\r|?KV\r@KVAAN\r|?RMM\r@RMM3\r|?RMF\r@RMF2400\r";

const Witness witnesses[] = {
    {"TenTecAscii", "-m 16008 -s 57600", tenTec},
    {"TenTecBinary", "-m 16011 -s 57600", tenTec},
    {"TenTecBinary", "-m 16002 -s 57600", tenTec},
    {"ElecraftK3", "-m 2029 -s 38400",
     texts + "|ID;ID017;|K2;K22;|K3;K31;|OM;OM A-----------;|RVM;RVM05.67;"},
    {"ElecraftK2", "-m 2021 -s 4800", texts + "|ID;ID017;|K2;K22;|FW;FW000000;"},
    {"IcomCiv", "-m 3056 -s 1200 -c 0x6A"},
    {"YaesuAscii", "-m 1028 -s 4800",
     "|FB;FB14025000;|AI;AI0;|IF;IF00107025000+000000300000;|MD0;MD03;|PS;PS1;|ID;ID0310;"
     "|EX027;EX0270;|VS;VS0;|FT;FT0;|SH0;SH016;|NA0;NA00;"},
    {"YaesuBinary", "-m 1024 -s 4800"},
    {"Kenwood", "-m 2014 -s 57600", texts + "|ID;ID019;"},
};

std::string answer(const Witness& row, const Radio& radio, std::string_view heard) {
    const char end = radio.query.back();
    const std::string frequency = radio.reply(7'025'000);
    if (heard.ends_with(radio.query))
        return frequency;
    if (heard.ends_with("\x03\x10")) // the two VFOs of a FT-1000MP
        return frequency + frequency;
    if (radio.name == "IcomCiv" && heard.ends_with(end)) // echo, and "no such command"
        return std::string(heard) + "\xFE\xFE\xE0\x6A\xFA\xFD";
    const auto last = heard.substr(0, heard.size() - 1).rfind(end) + 1;
    const std::string command = '|' + std::string(heard.substr(last));
    const auto at = row.said.find(command);
    if (!heard.ends_with(end) || at == std::string::npos)
        return {};
    const auto reply = at + command.size();
    return row.said.substr(reply, row.said.find('|', reply) - reply);
}

// What it prints; it reads from the simulated radio meanwhile.
std::string outputOf(const QString& program, const QString& arguments) {
    QProcess process;
    process.start(program, arguments.split(u' '));
    EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20'000));
    return process.readAllStandardOutput().trimmed().toStdString();
}

TEST_F(RealPort, WitnessReadsEachFamilyAsTheProgramDoes) {
    const QString rigctl = QStandardPaths::findExecutable(QStringLiteral("rigctl"));
    if (rigctl.isEmpty())
        GTEST_SKIP() << "rigctl (Debian package libhamlib-utils) is not installed";
    for (const Witness& row : witnesses) {
        SCOPED_TRACE(row.arguments);
        const Radio& asked = radioNamed(row.radio);
        radio.answer = [&](std::string_view heard) { return answer(row, asked, heard); };
        const std::string arguments = row.arguments + (" -r " + radio.device()) + " f";
        EXPECT_EQ(outputOf(rigctl, QString::fromStdString(arguments)), "7025000");
        EXPECT_EQ(readFrequency(settingsFor(asked), port).frequency, "7.025");
    }
}

} // namespace
} // namespace vantrel::test
