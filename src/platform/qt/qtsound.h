// SPDX-License-Identifier: MIT
// The duplicate alarm through the system's sound device, if there is one.
#pragma once

#include "platform/sound.h"

#include <memory>

class QSoundEffect;

namespace vantrel {

class QtSound : public Sound {
public:
    QtSound();
    ~QtSound() override;
    void playDupeAlarm() override;

private:
    std::unique_ptr<QSoundEffect> m_alarm; // made at the first alarm: most logs never need it
};

} // namespace vantrel
