// SPDX-License-Identifier: MIT
// The contact being entered, from the first letter of his call to its line in the log: what each
// thing that happens makes of it. No window: the page shows view() after each of them.
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

// What the page does besides showing, in this order.
struct [[nodiscard]] Answer {
    bool dupeScreen = false;
    std::vector<Message> messages{};
    bool toCallBox = true;
    bool asksAboutDupe = false; // logAsDupe() or droppedDupe() comes next
};

class ContactEntry {
public:
    // Both of them show the page as it is by then; meanwhile events may come in.
    struct Radio {
        std::function<ReadResult()> read;
        std::function<void(const Message&)> tellFailure;
    };

    // shared: its marker is the K3Y tag chosen, six blanks without one.
    ContactEntry(Module1& shared, Platform& platform, Radio radio);

    EntryView view() const;
    const LogTally& score() const { return m_score; }
    // Members like the call. Throws as Roster::partialMatches.
    std::vector<MemberLine> members();
    bool autoReads() const { return m_draft.autoReads; }
    // Space in the call box leads to the first empty box: the search left the name to be typed.
    bool spaceLeadsOn() const { return m_draft.searched && m_draft.searched->nameMissing; }
    // Or fills in what the log says of who is in no roster.
    bool spaceFillsIn() const;

    // As the page opens: 20 meters, nothing in the boxes.
    void opened();
    // The boxes as they stand after a key; the frequency counts once it is entered.
    void edited(const Entry& boxes);
    // A member of the list, as if he had been typed: Enter is SEARCH then.
    void callChosen(std::string_view call);
    // Enter in the frequency box.
    Answer frequencyEntered();
    // And what each command does first.
    Answer frequencyLeft();
    Answer bandUp() { return stepTo(vantrel::bandUp); }
    Answer bandDown() { return stepTo(vantrel::bandDown); }
    // Whether AUTO READ is on or off.
    Answer radioAsked();
    // Off, a dead radio costs no more boxes; a matter of the run.
    Answer autoReadToggled();

    // What these throw leaves what was typed in the boxes.
    Answer search(); // and Enter in the call box: LOG when the contact is complete
    // Into the empty boxes what his last contact says; it belongs to the call as a lookup does.
    Answer filledFromLog();
    Answer log();
    Answer logAsDupe();
    Answer droppedDupe();
    Answer dropped(); // NO LOG
    Answer broughtBack();
    void tagChosen(std::string_view label);

    // The log was read again, whoever changed it.
    void logChanged();
    // On another page, the log being read already. contact: its line as it is now, or was.
    void contactChanged(ContactChange change, std::string_view contact);

private:
    enum class Step { on, ended };
    enum class ReadCause { search, log, manual };
    // What the boxes hold after a contact is dropped: nothing, or a single blank each.
    enum class ClearTo { nothing, oneBlank };
    struct Cleared {
        Entry boxes;
        LookedUp lookedUp;
    };

    // Ended: by a refusal, or because the program is being closed.
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
    void clear(ClearTo left);
    bool isInLog(std::string_view contact) const;

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
