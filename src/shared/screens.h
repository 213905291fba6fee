// SPDX-License-Identifier: MIT
// How screens reach each other: one slot per screen, and the few things two of them share.
#pragma once

#include "shared/module1.h"

#include <string>

namespace vantrel {

enum class Screen {
    start,        // frmVantrelStart
    main,         // frmVantrelMain
    dupe,         // frmVantrelDupe
    correct,      // frmVantrelCorrect
    deletion,     // frmVantrelDelete
    editor,       // frmVantrelEDITcbr
    score,        // frmVantrelScore
    bonus,        // frmCountBonus
    files,        // frmVantrelFiles
    list,         // frmVantrelList
    showDb,       // frmVantrelShowDB
    backup,       // frmVantrelBackup
    finder,       // frmFileFinder
    updateList,   // frmSelectUpdateList
    readData,     // frmReadSKCCDATA
    memberUpdate, // frmVantrelUpdate
    callArea,     // frmVantrelCallArea
    standings,    // frmK3YStandings
    standings2,   // frmK3YStandings2
    checkDupeK3y, // frmCheckDupeK3Y
    k3yBox,       // frmK3Ybox
};

// What other screens do to the start page.
class StartPage {
public:
    virtual ~StartPage() = default;
    virtual std::string logFileName() const = 0;
    virtual void setLogFileName(const std::string& name) = 0;
    virtual std::string myCall() const = 0;    // as the page shows it, upper-cased
    virtual std::string gmtOffset() const = 0; // as chosen on the page
};

// What the boxes hold after a contact is dropped: nothing, or a single blank each.
enum class EntryBoxes { empty, oneBlank };

// What other screens do to the main page.
class MainPage {
public:
    virtual ~MainPage() = default;
    // Empties call, name, state and number, resets both RST boxes, focus to the call box.
    virtual void clearEntry(EntryBoxes boxes) = 0;
    // The K3Y tag label.
    virtual void showTag(const std::string& text) = 0;
    // Shows the count and the worked-stations list as Module1 holds them now.
    virtual void showLog() = 0;
    // Loads the page as if it had just been opened (START pressed again).
    virtual void loadAfresh() = 0;
};

// A screen that opens the file finder and takes the path chosen there.
class PathReceiver {
public:
    virtual ~PathReceiver() = default;
    // Puts the path into the screen's box and gives that box the focus.
    virtual void receivePath(const std::string& path) = 0;
};

class Screens {
public:
    virtual ~Screens() = default;
    // Shows the screen's single instance, created when there is none, and brings it to front.
    virtual void open(Screen screen) = 0;
    // Closes `current` and opens `next` in its place: closing that one leads to where closing
    // `current` would have led.
    virtual void replace(Screen current, Screen next) = 0;
    // nullptr while there is none.
    virtual StartPage* startPage() = 0;
    virtual MainPage* mainPage() = 0;
    // Hands the finder's choice to the screen that asked for it, if it is still there.
    virtual void handBackPath(FinderMode mode, const std::string& path) = 0;
    // Ends the program.
    virtual void quit() = 0;
};

} // namespace vantrel
