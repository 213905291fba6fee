// SPDX-License-Identifier: MIT
// What correction, deletion and editor have in common: they find a contact by its call, change
// the one found, and take the change back.
#pragma once

#include "forms/page.h"
#include "logedit/boxes.h"
#include "logedit/logedit.h"

#include <span>

class QModelIndex;

namespace vantrel {

class frmLogPage : public Form {
public:
    // The contact, 1 to the log's count, that the page opens on; see Screens::openContact.
    void startAt(int contact, OpenAt at);
    bool loadsAgain() const override { return m_start.has_value(); }

protected:
    frmLogPage(const FormContext& context, const char* name, const char* caption);

    void load() override;
    void escapePressed() override;

    static constexpr double headingEnlargement = 1.5;

    // Makes the box of each field, as wide as its columns. The last one is the marker's. Enter in
    // each goes to the next, in the last one to what changes the contact.
    void makeBoxes(std::span<const BoxField> fields);
    const std::vector<QLineEdit*>& boxes() const { return m_boxes; }
    Boxes typed() const;
    void showBoxes(const Boxes& texts);
    // What the boxes hold while nothing of the contact is changed.
    Boxes& unchanged() { return m_unchanged; }
    const Boxes& unchanged() const { return m_unchanged; }

    // The parts of the layout that all pages have, made with their controls.
    QLayout* searchRow(const char* caption, QLineEdit* callBox, const char* searchAgainTip);
    // The boxes from `first` to before `end`, below each other.
    QFormLayout* fieldRows(std::size_t first, std::size_t end);
    QLayout* matchesSection(const char* placeName);
    QLayout* messageRows(const char* messageName, const char* noteName);
    QLayout* changeButtons(const char* caption, const char* toolTip, const char* exitTip);

    // What a page does its own way.
    virtual void searchStarts(const std::string& /*key*/) {}
    virtual void showFound(const std::string& key) = 0; // the contact is log().line()
    virtual std::string notFoundText(const std::string& key) const = 0;
    virtual std::string lastEntryText() const { return "LAST ENTRY"; }
    virtual void change() = 0; // of the contact found
    // A note that is added to all others.
    virtual std::string standingNote() const { return {}; }
    // "2 OF 3".
    virtual std::string placeText(int place, int count) const {
        return std::to_string(place) + " OF " + std::to_string(count);
    }

    // On the screen when this returns.
    void setStatus(std::string_view message);
    // What else the operator should know, a line each and no empty ones, in place of the notes
    // before.
    void setNotes(std::vector<std::string> notes);
    // Shows what is found and what can be done; the next call may be typed.
    virtual void refreshControls();

    // Reads the open log again after a change, and shows the change's notice. False when nothing
    // was changed.
    bool publish(const ChangeResult& result);
    // Shows what became of a change that was made.
    void finish(std::string_view message, const ChangeResult& result,
                std::vector<std::string> notes = {});

    LogEdit& log() { return m_log; }
    const LogEdit& log() const { return m_log; }

private:
    // Where the page opens.
    struct Start {
        ContactPlace place;
        OpenAt at;
    };

    enum class Search { first, next };
    void search(Search search);
    void showMatch(const QModelIndex& index);
    void changeFound();
    void undo();

    // True where the call box is the first of the boxes too.
    bool hasCallAmongBoxes() const { return !m_boxes.empty() && m_boxes.front() == m_callBox; }
    // False, with a note, the first time that these texts of the boxes would be lost unsaved.
    bool mayDrop(const Boxes& texts);
    // The same for a search, which takes what is typed in the call box as its key.
    bool maySearch();
    // Shows the contact found and puts its call into the call box: it need not begin with the key.
    void showWithItsCall();
    void showMatches();
    // All but the call box.
    void clearBoxes();

    std::span<const BoxField> m_fields;
    std::vector<QLineEdit*> m_boxes; // of the fields
    QLineEdit* m_callBox = nullptr;
    QPushButton* m_changeButton = nullptr;
    QPushButton* m_undoButton = nullptr;
    LineList* m_matchList = nullptr;
    QLabel* m_placeLabel = nullptr;
    AlertLabel* m_messageLabel = nullptr;
    AlertLabel* m_noteLabel = nullptr;

    LogEdit m_log;
    std::vector<int> m_matchPositions; // of the lines in the list
    std::optional<Start> m_start;
    Boxes m_unchanged;
    Boxes m_toldUnsaved;
};

} // namespace vantrel
