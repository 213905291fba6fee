// SPDX-License-Identifier: MIT
// Everything the program needs of the machine, in one place to hand around.
#pragma once

namespace vantrel {

class Clock;
class EventLoop;
class Files;
class Launcher;
class Messages;
class Printer;
class SerialPort;
class Sound;

struct Platform {
    Files& files;
    const Clock& clock;
    Messages& messages;
    EventLoop& eventLoop;
    SerialPort& serialPort;
    Sound& sound;
    Printer& printer;
    Launcher& launcher;
};

} // namespace vantrel
