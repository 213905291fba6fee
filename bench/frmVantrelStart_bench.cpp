// SPDX-License-Identifier: MIT
// Processes of their own, by turns: the program to its painted start page and main page, and a
// window with one text box that links the same libraries; the time each takes and its memory.
#include "forms/accessible.h"
#include "forms/visiblestyle.h"
#include "platform/programfolder.h"
#include "platform/systemcalls.h"
#include "support/program.h"

#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

#include <cstdio>
#include <fstream>

namespace {

using namespace vantrel;

constexpr int starts = 21;
constexpr double mostTimes = 1.3;
constexpr double mostMemory = 1.5;

// Resident memory of this process in kB.
long residentMemory() {
    std::ifstream status("/proc/self/status");
    std::string word;
    long value = 0;
    while (status >> word)
        if (word == "VmRSS:")
            status >> value;
    return value;
}

void tellWhenPainted(QWidget* window) {
    bench::waitUntilPainted(window);
    std::printf("%ld\n", residentMemory());
}

void showWindow() {
    QLineEdit window;
    window.show();
    tellWhenPainted(&window);
}

// What main does; then START, when it is the main page that is wanted.
void showProgram(const std::string& folder, bool mainPage) {
    QApplication::setStyle(new VisibleStyle);
    describeControls();
    SystemCalls calls;
    const FolderLock lock(calls, folder);
    bench::RunningProgram program(folder);
    program.files.recover();
    program.module.settings = loadSettings(program.files);
    program.screens.open(Screen::start);
    QWidget* page = bench::windowNamed("frmVantrelStart");
    if (mainPage) {
        page->findChild<QPushButton*>(QStringLiteral("Command2"))->click();
        page = bench::windowNamed("frmVantrelMain");
    }
    tellWhenPainted(page);
}

struct Costs {
    std::vector<double> milliseconds;
    std::vector<double> megabytes;

    // Starts this program with the arguments and adds what it took until it told.
    void add(const QStringList& arguments) {
        QProcess process;
        milliseconds.push_back(bench::millisecondsOf([&] {
            process.start(QCoreApplication::applicationFilePath(), arguments);
            while (!process.canReadLine())
                if (!process.waitForReadyRead())
                    qFatal("the window was never painted");
        }));
        megabytes.push_back(process.readLine().trimmed().toDouble() / 1024);
        process.waitForFinished();
    }
};

} // namespace

int main(int argc, char** argv) {
    bench::useNoDisplay();
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 2) {
        showWindow();
        return 0;
    }
    if (arguments.size() == 3) {
        showProgram(arguments[2].toStdString(), arguments[1] == QLatin1String("--main"));
        return 0;
    }
    bench::Program program;
    saveSettings(program.files, storedSettings(program.module.settings));
    const QString folder = QString::fromStdString(program.folder.path.string());
    Costs startPage;
    Costs mainPage;
    Costs window;
    for (int i = 0; i < starts; ++i) {
        startPage.add({QStringLiteral("--start"), folder});
        mainPage.add({QStringLiteral("--main"), folder});
        window.add({QStringLiteral("--window")});
    }
    const auto time = [](const Costs& costs) { return bench::median(costs.milliseconds); };
    const auto memory = [](const Costs& costs) { return bench::median(costs.megabytes); };
    bench::printHead();
    bench::printRatio("process start to painted start page", time(startPage), time(window), "ms",
                      mostTimes);
    bench::printValue("process start to painted main page, 12,000 contacts", time(mainPage), "ms",
                      250);
    bench::printRatio("memory of the start page", memory(startPage), memory(window), "MB",
                      mostMemory);
    bench::printRatio("memory with 12,000", memory(mainPage), memory(window), "MB", mostMemory);
    return 0;
}
