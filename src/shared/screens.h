// SPDX-License-Identifier: MIT
// How screens open and call each other. Of each screen there is at most one.
#pragma once

#include <functional>
#include <string>
#include <vector>

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
    list,         // frmVantrelList: openList
    showDb,       // frmVantrelShowDB: openRoster
    backup,       // frmVantrelBackup
    finder,       // frmFileFinder: openFinder
    updateList,   // frmSelectUpdateList
    readData,     // frmReadSKCCDATA
    memberUpdate, // frmVantrelUpdate
    callArea,     // frmVantrelCallArea
    standings,    // frmK3YStandings
    standings2,   // frmK3YStandings2
    checkDupeK3y, // frmCheckDupeK3Y: askAboutDupe
    k3yBox,       // frmK3Ybox
    help,         // frmVantrelHelp: openHelp
};

// What other screens need of the start page.
class StartPage {
public:
    virtual ~StartPage() = default;
    virtual std::string logFileName() const = 0;
    virtual void setLogFileName(const std::string& name) = 0;
    virtual std::string myCall() const = 0;    // as the page shows it, upper-cased
    virtual std::string gmtOffset() const = 0; // as chosen on the page
};

enum class ContactChange { corrected, deleted };

// What other screens need of the main page.
class MainPage {
public:
    virtual ~MainPage() = default;
    // The K3Y tag label.
    virtual void showStation(const std::string& text) = 0;
    // Loads the page as if it had just been opened (START pressed again).
    virtual void loadAfresh() = 0;
    // Another page made this line of a contact of the log, or took that line out of it.
    virtual void contactChanged(ContactChange change, const std::string& line) = 0;
};

// A screen that opens the file finder and takes the path chosen there.
class PathReceiver {
public:
    virtual ~PathReceiver() = default;
    // Puts the path into the screen's box and gives that box the focus.
    virtual void receivePath(const std::string& path) = 0;
};

enum class ListedFile { log, adif };

// The K3Y dupe box's two answers: log the contact as a duplicate, or drop it. When `log` throws,
// the box stays open.
struct DupeQuestion {
    std::function<void()> log;
    std::function<void()> drop;
};

// What a page of log maintenance opens with: the contact in its boxes as if searched for, or
// nothing but the contact's call.
enum class OpenAt { found, callOnly };

class Screens {
public:
    virtual ~Screens() = default;
    // Creates the screen when there is none, shows it and brings it to front.
    virtual void open(Screen screen) = 0;
    // Closes `current` and opens `next` in its place. Closing `next` leads back to the page that
    // opened `current`.
    virtual void replace(Screen current, Screen next) = 0;
    // A page of log maintenance for contact 1 to log.count(); 0: for none.
    virtual void openContact(Screen page, int contact, OpenAt at) = 0;
    // The lines of the log or of its ADIF file.
    virtual void openList(ListedFile file) = 0;
    // The lines of a roster file; path: as text to show.
    virtual void openRoster(std::string path, std::vector<std::string> lines) = 0;
    // The file finder; `receiver` gets the path chosen there.
    virtual void openFinder(Screen receiver) = 0;
    // The key sheet; page: the objectName of the page that it is for.
    virtual void openHelp(const std::string& page) = 0;
    virtual void askAboutDupe(DupeQuestion question) = 0;
    // Gives the path chosen in the finder to the screen that asked for it, if that is still open.
    virtual void handBackPath(Screen receiver, const std::string& path) = 0;
    // nullptr while there is none.
    virtual StartPage* startPage() = 0;
    virtual MainPage* mainPage() = 0;
    // Ends the program.
    virtual void quit() = 0;
};

} // namespace vantrel
