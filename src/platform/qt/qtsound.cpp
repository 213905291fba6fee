// SPDX-License-Identifier: MIT
#include "platform/qt/qtsound.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace vantrel {

namespace {
// Where the operators' own alarm has always been kept.
const QString alarmPath = QStringLiteral("C:/Program Files/Quillmoor/Dupe.wav");
const QString builtInAlarm = QStringLiteral("qrc:/Dupe.wav");
} // namespace

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
