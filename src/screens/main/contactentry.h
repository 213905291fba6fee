// SPDX-License-Identifier: MIT
// The contact being entered, from the first letter of his call to its line in the log. Each event
// (a key, a command, the radio's answer, a change of the log) is a function here; the page calls it
// and then shows view().
#pragma once

#include "output/score/score.h"
#include "platform/platform.h"
#include "roster/rosterlookup.h"
#include "screens/main/entryview.h"
#include "screens/main/frequency.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

struct Module1;
struct Platform;

// What the page does after an event besides showing view(), in this order.
struct [[nodiscard]] Answer {
    bool dupeScreen = false;
    std::vector<Message> messages{};
    bool toCallBox = true;
    bool asksAboutDupe = false; // logAsDupe() or droppedDupe() comes next
};

class ContactEntry {
public:
    // Both show the page first, and both wait: other events may arrive before they return.
    struct Radio {
        std::function<ReadResult()> read;
        std::function<void(const Message&)> tellFailure;
    };

    // The marker in `shared` is the K3Y tag chosen, six blanks without one.
    ContactEntry(Module1& shared, Platform& platform, Radio radio);

    EntryView view() const;
    const LogTally& score() const { return m_score; }
    // Members like the call; none while the roster cannot be read.
    std::vector<MemberLine> members();
    // Reads the roster before the first key needs it. A file that cannot be read SEARCH reports.
    void readRoster();
    bool autoReads() const { return m_draft.autoReads; }
    // Whether Space in the call box goes to the first empty box: after a search that found no name.
    bool spaceLeadsOn() const { return m_draft.searched && m_draft.searched->nameMissing; }
    // Whether Space fills the boxes from the log instead: he is in it, but in no roster.
    bool spaceFillsIn() const;

    // The page was opened: 20 meters, empty boxes.
    void opened();
    // A key changed the boxes to these. A frequency does not count before it is entered.
    void edited(const Entry& boxes);
    // A member was taken from the list: the same as typing his call, so the next Enter searches.
    void callChosen(std::string_view call);
    // Enter in the frequency box.
    Answer frequencyEntered();
    // Another box got the focus.
    Answer frequencyLeft();
    Answer bandUp() { return stepTo(vantrel::bandUp); }
    Answer bandDown() { return stepTo(vantrel::bandDown); }
    // Reads the radio even while AUTO READ is off.
    Answer radioAsked();
    // Off, a silent radio brings no more message boxes. It lasts until the program ends.
    Answer autoReadToggled();

    // When one of these throws, what was typed is still in the boxes.
    Answer search(); // also Enter in the call box; it logs once the contact is complete
    // Fills the empty boxes from his last contact. An edit of the call clears them again, as it
    // clears what a lookup filled in.
    Answer filledFromLog();
    Answer log();
    Answer logAsDupe();
    Answer droppedDupe();
    Answer dropped();     // NO LOG
    Answer broughtBack(); // what was cleared last
    void tagChosen(std::string_view label);

    // The log was read again, whoever changed it.
    void logChanged();
    // Another page made this line of a contact, or deleted this line; the log is read already.
    void contactChanged(ContactChange change, std::string_view contact);

private:
    enum class Step { on, ended };
    enum class ReadCause { search, log, manual };
    struct Cleared {
        Entry boxes;
        LookedUp lookedUp;
    };

    // Each of these may end the event it is part of: the contact was refused, a message is to be
    // shown, or the program is being closed.
    [[nodiscard]] Step enterFrequencyBox(Answer& answer);
    [[nodiscard]] Step tune(const std::string& mhz, Answer& answer);
    [[nodiscard]] Step testForDupe(Answer& answer);
    [[nodiscard]] Step readRadio(ReadCause cause, Answer& answer);
    [[nodiscard]] Step lookUpCall(Draft::Searched& found);
    ViewContext context() const;
    void setFrequency(const std::string& mhz);
    Answer stepTo(const Band& (*next)(std::string_view bandText));
    void searchEntered(Answer& answer);
    void logEntered(Answer& answer);
    [[nodiscard]] Step completeFrequency(Answer& answer);
    std::optional<std::string> assembledLine(const UtcTime& utc, Answer& answer);
    void append(const std::string& line, Answer& answer);
    void forgetLookup();
    void clear(const std::string& left = "");

    Module1& m_shared;
    Platform& m_platform;
    Radio m_radio;
    Roster m_roster;
    LogTally m_score;
    Draft m_draft;
    std::optional<Cleared> m_cleared;
    std::string m_asked; // the line that the K3Y dupe box asks about
};

} // namespace vantrel
