// SPDX-License-Identifier: MIT
// An independent witness: the radio library's own command, where it is installed, must read
// the same frequency from the simulated radio as the program does.
#include "base/fixedtext.h"
#include "fakes/qt/ptyradio.h"
#include "platform/files.h"
#include "platform/qt/qtserialport.h"
#include "platform/systemcalls.h"
#include "rig/catlink.h"
#include "support/tempfolder.h"

#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace vantrel::test {
namespace {

struct Witness {
    const char* radio;
    QStringList arguments; // model and line, as rigctl takes them
    std::string id;        // how the radio introduces itself; "" for CI-V
};

void PrintTo(const Witness& row, std::ostream* out) {
    *out << row.radio;
}

// The witness asks more than we do before it asks for the frequency.
std::string semicolonAnswer(const Witness& row, const Radio& radio, long hertz,
                            std::string_view heard) {
    const std::map<std::string, std::string> said{
        {"FA;", radio.reply(hertz)},
        {"FB;", "FB00007025000;"},
        {"ID;", row.id},
        {"IF;", "IF" + radio.reply(hertz).substr(2, 11) + "     -000000 0003000000 ;"},
        {"MD;", "MD3;"},
        {"PS;", "PS1;"},
        {"AI;", "AI0;"},
        {"K2;", "K22;"},
        {"K3;", "K31;"},
        {"OM;", "OM A-----------;"},
        {"RVM;", "RVM05.67;"},
    };
    std::string replies;
    while (heard.find(';') != std::string_view::npos) {
        const std::string command(heard.substr(0, heard.find(';') + 1));
        heard.remove_prefix(command.size());
        if (const auto reply = said.find(command); reply != said.end())
            replies += reply->second;
        else if (command.size() == 3)
            replies += "?;";
    }
    return replies;
}

std::string civAnswer(const Radio& radio, long hertz, std::string_view heard) {
    if (!heard.ends_with('\xFD'))
        return {};
    if (heard == radio.query)
        return radio.reply(hertz);
    return std::string(heard) + "\xFE\xFE\xE0\x6A\xFA\xFD"; // echo, and "no such command"
}

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    QEventLoop loop; // the simulated radio answers through it
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(20'000, &loop, &QEventLoop::quit);
    process.start(program, arguments);
    loop.exec();
    return process.readAllStandardOutput().trimmed();
}

struct Rigctl : ::testing::TestWithParam<Witness> {};

TEST_P(Rigctl, ReadsWhatTheProgramReads) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("rigctl"));
    if (program.isEmpty())
        GTEST_SKIP() << "rigctl (Debian package libhamlib-utils) is not installed";
    const Radio& radio = radioNamed(GetParam().radio);
    PtyRadio simulated;
    const TempFolder folder;
    SystemCalls calls;
    const Files files(folder.string(), calls);
    std::filesystem::create_symlink(simulated.device(), folder.path() / "com1");
    QtSerialPort port(files);
    const OperatingSettings settings = settingsFor(radio);

    for (const Reading& reading : {readings.front(), readings.back()}) {
        SCOPED_TRACE(reading.mhz);
        simulated.answer = [&](std::string_view heard) {
            return GetParam().id.empty() ? civAnswer(radio, reading.hertz, heard)
                                         : semicolonAnswer(GetParam(), radio, reading.hertz, heard);
        };
        const QByteArray witnessed = outputOf(
            program, QStringList{QStringLiteral("-r"), QString::fromStdString(simulated.device())} +
                         GetParam().arguments + QStringList{QStringLiteral("f")});
        EXPECT_EQ(witnessed.toLong(), reading.hertz);
        EXPECT_EQ(readFrequency(settings, port).frequency, reading.mhz);
    }
}

QStringList arguments(const char* text) {
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

INSTANTIATE_TEST_SUITE_P(
    Radios, Rigctl,
    ::testing::Values(Witness{"Kenwood", arguments("-m 2014 -s 57600"), "ID019;"},
                      Witness{"ElecraftK3", arguments("-m 2029 -s 38400"), "ID017;"},
                      Witness{"IcomCiv", arguments("-m 3056 -s 1200 -c 0x6A"), ""}),
    [](const auto& row) { return std::string(row.param.radio); });

} // namespace
} // namespace vantrel::test
