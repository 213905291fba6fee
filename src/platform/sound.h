// SPDX-License-Identifier: MIT
// Playing a wave file without waiting for its end.
#pragma once

namespace vantrel {

class Sound {
public:
    virtual ~Sound() = default;
    // The duplicate alarm: "C:/Program Files/Quillmoor/Dupe.wav" if that file exists,
    // otherwise the alarm built into the program. Returns at once; no sound device is no
    // error.
    virtual void playDupeAlarm() = 0;
};

} // namespace vantrel
