// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace vantrel {

namespace {

// Where the operators' own alarm has always been kept.
const QString alarmPath = QStringLiteral("C:/Program Files/Quillmoor/Dupe.wav");
const QString builtInAlarm = QStringLiteral("qrc:/Dupe.wav");

// The duplicate alarm through the system's sound device, if there is one.
class QtSound : public Sound {
public:
    void playDupeAlarm() override {
        if (!m_alarm) {
            m_alarm = std::make_unique<QSoundEffect>();
            const QFileInfo own(alarmPath);
            m_alarm->setSource(own.isFile() ? QUrl::fromLocalFile(own.absoluteFilePath())
                                            : QUrl(builtInAlarm));
        }
        m_alarm->play();
    }

private:
    std::unique_ptr<QSoundEffect> m_alarm; // made at the first alarm: most logs never need it
};

} // namespace

std::unique_ptr<Sound> makeSound() {
    return std::make_unique<QtSound>();
}

} // namespace vantrel
