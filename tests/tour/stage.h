// SPDX-License-Identifier: MIT
// The stage of the tour: the real program in a folder of its own, a clock that the tour sets,
// pictures of every screen, and answers to the message boxes that come up.
#pragma once

#include "app/appscreens.h"
#include "fakes/fakeclock.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/qt/qteventloop.h"
#include "platform/qt/qtlauncher.h"
#include "platform/qt/qtmessages.h"
#include "platform/qt/qtprinter.h"
#include "platform/qt/qtserialport.h"
#include "platform/qt/qtsound.h"
#include "platform/systemcalls.h"
#include "shared/module1.h"
#include "support/qt/hands.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace vantrel::test {

class Stage : public Hands {
public:
    // Everything is played in `folder`, which is emptied first; pictures go to its
    // "pictures" folder.
    explicit Stage(const std::filesystem::path& folder);

    // Runs `action`, which must bring up a message box with this text; takes a picture of
    // it and presses Yes or OK.
    void confirming(const std::string& text, const std::function<void()>& action);

    // Saves "NN-name.png" of the form as it looks now.
    void picture(const char* formName, const std::string& name);

    // Types into a box and presses Enter there.
    void enter(const char* formName, const char* name, std::string_view text);
    // Leaves by the page's EXIT.
    void leave(const char* formName);

    // A file of the folder.
    void write(const std::string& name, const std::string& bytes) const;
    std::string read(const std::string& name) const;

    // Throw with both texts unless they are equal; a file byte for byte.
    void check(const std::string& what, const std::string& got, const std::string& expected) const;
    void checkFile(const std::string& name, const std::string& expected) const;

    std::filesystem::path folder;
    FakeClock clock;
    SystemCalls calls;
    Files files;
    QtMessages messages;
    QtEventLoop eventLoop;
    QtSerialPort serialPort{files};
    QtSound sound;
    QtPrinter printer;
    QtLauncher launcher;
    Platform platform{files, clock, messages, eventLoop, serialPort, sound, printer, launcher};
    Module1 module{files};
    AppScreens screens{module, platform};

private:
    void save(QWidget* window, const std::string& name);

    int m_pictures = 0;
};

} // namespace vantrel::test
