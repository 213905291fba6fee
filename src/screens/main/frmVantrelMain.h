// SPDX-License-Identifier: MIT
// The main page: shows the contact being entered, the log and the contest, and leads to every
// other screen.
#pragma once

#include "forms/inputhold.h"
#include "forms/page.h"
#include "screens/main/contactentry.h"
#include "screens/main/widgets/entryboxes.h"

namespace vantrel {

class ContestPanel;
class SuggestionList;
class WorkedList;

class frmVantrelMain : public Form, public MainPage {
public:
    explicit frmVantrelMain(const FormContext& context);

    void showStation(const std::string& text) override {
        m_entry.tagChosen(text);
        showEntry();
    }
    void contactChanged(ContactChange change, const std::string& line) override {
        m_entry.contactChanged(change, line);
        showEntry();
    }
    void loadAfresh() override {
        runHandler([this] { load(); });
    }

protected:
    void load() override;
    void escapePressed() override { run(&ContactEntry::dropped); }
    bool isOwnPage() const override { return true; }
    int freeTop() const override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QPushButton* command(const char* name, const char* caption, const char* toolTip,
                         Answer (ContactEntry::*happens)());
    QHBoxLayout* statusRow();
    QHBoxLayout* whoRow();
    QHBoxLayout* commandRow();
    QVBoxLayout* stationChoice();
    QHBoxLayout* contestRow();
    QHBoxLayout* pageCommands();
    void connectBoxes();

    // Passes an event on to the contact being entered and does what it answers.
    using Event = Answer (ContactEntry::*)();
    void run(Event happens);
    void carryOut(const Answer& answer);
    void showEntry();

    bool callBoxTakes(const QKeyEvent& key);
    void toCallBox();
    void correct(int contact) { screens().openContact(Screen::correct, contact, OpenAt::found); }
    int chosenContact() const;
    void showLog();
    void secondPassed();
    void audioClicked();

    ContactEntry m_entry;
    EntryBoxes m_boxes;
    QLabel* m_whoLabel; // own call and contest
    QLabel* m_fileLabel;
    QLabel* m_dupeModeLabel;
    QLabel* m_clockLabel;
    SuggestionList* m_suggestions;
    QLineEdit* m_countBox;
    QPushButton* m_audioButton;
    QRadioButton* m_stationOption;
    WorkedList* m_workedList;
    ContestPanel* m_panel;

    BandTable m_bands; // what the panel shows now
    InputHold m_hold;  // keeps what is typed while the radio is read
    Log::Watch m_logWatch;
};

} // namespace vantrel
