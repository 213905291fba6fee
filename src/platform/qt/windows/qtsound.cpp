// SPDX-License-Identifier: MIT
#include "platform/qt/qtdevices.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <mmsystem.h> // knows nothing of windows.h
#include <windows.h>

namespace vantrel {

namespace {

// The duplicate alarm through the system's own player, if there is a sound device.
class SystemSound : public Sound {
public:
    ~SystemSound() override { ::PlaySoundW(nullptr, nullptr, 0); } // it reads m_builtIn meanwhile

    void playDupeAlarm() override {
        const QString own = QString::fromLatin1(ownAlarmPath);
        if (QFileInfo(own).isFile()) {
            play(own.toStdWString().c_str(), SND_FILENAME);
            return;
        }
        if (QFile file(QString::fromLatin1(builtInAlarmPath));
            m_builtIn.isEmpty() && file.open(QIODevice::ReadOnly))
            m_builtIn = file.readAll();
        play(reinterpret_cast<const wchar_t*>(m_builtIn.constData()), SND_MEMORY);
    }

private:
    static void play(const wchar_t* sound, DWORD kind) {
        ::PlaySoundW(sound, nullptr, kind | SND_ASYNC | SND_NODEFAULT);
    }

    QByteArray m_builtIn;
};

} // namespace

std::unique_ptr<Sound> makeSound() {
    return std::make_unique<SystemSound>();
}

} // namespace vantrel
