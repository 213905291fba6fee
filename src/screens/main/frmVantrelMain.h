// SPDX-License-Identifier: MIT
// The main page: entry boxes, SEARCH and LOG, the worked-stations list, and the way to every
// other screen.
#pragma once

#include "platform/qt/form.h"
#include "platform/qt/inputhold.h"
#include "roster/rosterlookup.h"
#include "screens/main/qsoentry.h"

#include <initializer_list>
#include <optional>

class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QRadioButton;

namespace vantrel {

class LineListModel;
struct Band;

class frmVantrelMain : public Form, public MainPage {
    Q_OBJECT

public:
    explicit frmVantrelMain(const FormContext& context);

    void clearEntry(EntryBoxes boxes) override;
    void showTag(const std::string& text) override;
    void showLog() override;
    void loadAfresh() override {
        runHandler([this] { Form_Load(); });
    }

protected:
    void Form_Load() override;
    void Form_Escape() override { Command4_Click(); }
    QWidget* firstFocus() override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void createControls();
    void layOut();
    QHBoxLayout* rowOf(std::initializer_list<QWidget*> controls);
    QHBoxLayout* statusRow();
    QGridLayout* exchangeRow();
    QHBoxLayout* frequencyRow();
    QLabel* workedHeadings();
    void connectHandlers();
    void connectEntryBoxes();

    // In the order in which the operator meets them.
    void Text2_Change();    // his call typed in
    void Command2_Click();  // SEARCH, and Enter in the call box
    void Command3_Click();  // LOG, and Enter in the number box
    void Command4_Click();  // NO LOG
    void Command15_Click(); // band from frequency, and Enter in its box
    void Command5_Click();  // FREQ
    void Command13_Click(); // band up
    void Command14_Click(); // band down
    void Command12_Click(); // audio
    void Option1_Click();   // K3Y box
    void Command6_Click();  // list the log
    void Command11_Click(); // score

    Entry entry() const;
    void showEntry(const Entry& entry);
    void showFrequency(const std::string& mhz);
    void showWorkedBefore();
    void frequencyEntered();
    bool lookedUpAndShown(Entry& now);
    void checkForDupes(const Entry& now);
    bool assembleContact(Entry& now);
    void logContact();
    bool readRadio(Entry& now);
    void stepTo(const Band& band);
    void toCallBox();

    QLineEdit* Text2;       // his call, or his SKCC number
    QComboBox* Combo1;      // RST sent
    QComboBox* Combo2;      // RST received
    QLineEdit* Text3;       // his name
    QLineEdit* Text4;       // his state
    QLineEdit* Text5;       // his SKCC number
    QLineEdit* Text7;       // frequency, MHz
    QLineEdit* Text1;       // QSO counter
    QListView* List1;       // worked stations
    QLabel* Label10;        // band
    QLabel* Label11;        // auto read on or off
    QLabel* Label12;        // log file
    QLabel* Label13;        // dupes logged or not
    QLabel* Label24;        // worked before, as one types
    QLabel* Label23;        // K3Y station tag
    QRadioButton* Option1;  // ADD K3Y/xx
    QPushButton* Command1;  // exit
    QPushButton* Command2;  // SEARCH
    QPushButton* Command3;  // LOG
    QPushButton* Command4;  // NO LOG
    QPushButton* Command5;  // FREQ
    QPushButton* Command6;  // list
    QPushButton* Command7;  // correct
    QPushButton* Command8;  // delete
    QPushButton* Command9;  // files
    QPushButton* Command10; // backup
    QPushButton* Command11; // score
    QPushButton* Command12; // audio
    QPushButton* Command13; // band up
    QPushButton* Command14; // band down
    QPushButton* Command15; // band from frequency
    QPushButton* Command16; // bonus

    InputHold m_hold; // what is typed while the radio is read
    Roster m_roster;
    LineListModel* m_worked;         // behind List1
    std::optional<Entry> m_lookedUp; // what the last lookup filled in
    bool m_radioReadDue = false;     // the radio is read once after the first paint
};

} // namespace vantrel
