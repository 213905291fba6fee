// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"

#include "base/runtimeerror.h"
#include "platform/filenames.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QSoundEffect>
#include <QUrl>

namespace vantrel {

namespace {

// Where the operators' own alarm has always been kept.
const QString alarmPath = QStringLiteral("C:/Program Files/Quillmoor/Dupe.wav");
const QString builtInAlarm = QStringLiteral("qrc:/Dupe.wav");

} // namespace

void QtEventLoop::yield() {
    if (m_sinceLast.isValid() && m_sinceLast.elapsed() < frameMilliseconds)
        return;
    QCoreApplication::processEvents();
    m_sinceLast.start();
}

void QtLauncher::start(const std::string& path) {
    const QFileInfo program(QString::fromStdString(path));
    if (!program.exists())
        throw RuntimeError(ErrorCode::fileNotFound, shownText(path));
    if (!program.isFile() || !program.isExecutable())
        throw RuntimeError(ErrorCode::permissionDenied,
                           shownText(path) + " is not a program that can be started");
    if (!QProcess::startDetached(program.absoluteFilePath(), {}, program.absolutePath()))
        throw RuntimeError(ErrorCode::pathFileAccess, shownText(path) + " could not be started");
}

QtSound::QtSound() = default;
QtSound::~QtSound() = default;

void QtSound::playDupeAlarm() {
    if (!m_alarm) {
        m_alarm = std::make_unique<QSoundEffect>();
        const QFileInfo own(alarmPath);
        m_alarm->setSource(own.isFile() ? QUrl::fromLocalFile(own.absoluteFilePath())
                                        : QUrl(builtInAlarm));
    }
    m_alarm->play();
}

} // namespace vantrel
