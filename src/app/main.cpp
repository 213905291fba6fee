// SPDX-License-Identifier: MIT
// Makes the platform, the shared state and the screens, and shows the start page.
#include "app/appscreens.h"
#include "base/version.h"
#include "forms/accessible.h"
#include "forms/visiblestyle.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/programfolder.h"
#include "platform/qt/qtdevices.h"
#include "platform/systemcalls.h"
#include "shared/settings.h"

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>

namespace {

using namespace vantrel;

std::string programFolder() {
    return chooseProgramFolder(
        executableFolder(),
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString());
}

// Throws RuntimeError when the program cannot start, for example with a broken settings file.
int runProgram(QtMessages& messages) {
    const std::string folder = programFolder();
    SystemCalls calls;
    const FolderLock lock(calls, folder);
    if (!lock.held()) {
        messages.show(
            {"VANTREL IS ALREADY RUNNING IN THIS FOLDER", BoxIcon::critical, shownText(folder)});
        return 1;
    }
    Files files(folder, calls);
    files.recover();

    const SystemClock clock;
    QtEventLoop eventLoop;
    const std::unique_ptr<SerialPort> serialPort = makeSerialPort(files);
    const std::unique_ptr<Sound> sound = makeSound();
    QtPrinter printer;
    QtLauncher launcher;
    Platform platform{files, clock, messages, eventLoop, *serialPort, *sound, printer, launcher};

    Module1 shared(files);
    shared.settings = loadSettings(files);
    AppScreens screens(shared, platform);
    screens.open(Screen::start);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setStyle(new VisibleStyle);
    describeControls();
    QApplication::setApplicationName(QStringLiteral("Vantrel"));
    QApplication::setApplicationVersion(QString::fromLatin1(version));
    QApplication::setDesktopFileName(QString::fromLatin1(desktopEntry));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/vantrel.png")));
    QtMessages messages;
    try {
        return runProgram(messages);
    } catch (const RuntimeError& error) {
        messages.show({error.headline(), BoxIcon::critical, error.detail()});
    }
    return 1;
}
