// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace vantrel {

namespace {

class QtSound : public Sound {
public:
    void playDupeAlarm() override {
        if (!m_alarm) {
            m_alarm = std::make_unique<QSoundEffect>();
            const QFileInfo own(QString::fromLatin1(ownAlarmPath));
            m_alarm->setSource(own.isFile()
                                   ? QUrl::fromLocalFile(own.absoluteFilePath())
                                   : QUrl(QStringLiteral("qrc") + QLatin1String(builtInAlarmPath)));
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
