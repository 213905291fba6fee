// SPDX-License-Identifier: MIT
// The main page: entry boxes, SEARCH and LOG, the worked-stations list, and the way to every
// other screen.
#pragma once

#include "forms/form.h"
#include "forms/inputhold.h"
#include "rig/catlink.h"
#include "roster/rosterlookup.h"
#include "screens/main/frmMainControls.h"
#include "screens/main/frmMainKeys.h"
#include "screens/main/frmTuning.h"
#include "screens/main/hints.h"

#include <initializer_list>
#include <optional>

class QHBoxLayout;
class QLabel;
class QTimer;
class QPushButton;
class QRadioButton;

namespace vantrel {

class ContestPanel;
class MarkedLabel;
class SuggestionList;
class WorkedList;

class frmVantrelMain : public Form, public MainPage {
    Q_OBJECT

public:
    explicit frmVantrelMain(const FormContext& context);

    void showStation(const std::string& text) override;
    void loadAfresh() override {
        runHandler([this] { load(); });
    }

protected:
    void load() override;
    void escapePressed() override { noLogClicked(); }
    QWidget* firstFocus() override;
    bool isOwnPage() const override { return true; }
    int freeTop() const override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // What the boxes hold after a contact is dropped: nothing, or a single blank each.
    enum class Left { nothing, oneBlank };
    // What SEARCH looked for, until another call is typed.
    struct Searched {
        std::string call;
        std::string number;
        std::string bandTag;
    };
    struct Cleared {
        Entry entry;
        std::optional<Entry> lookedUp;
    };

    void connectHandlers();
    void connectEntryBoxes();

    QHBoxLayout* pageCommands();
    MainKeys::Actions keyActions();

    // In the order in which the operator meets them.
    void callEdited();
    void searchClicked(); // and Enter in the call box
    void logClicked();    // and Enter in the number box
    void noLogClicked();
    void frequencyClicked(); // and Enter in its box
    void readClicked();
    void autoReadClicked();
    void upClicked();
    void downClicked();
    void audioClicked();
    void stationClicked();

    void showEntry(const Entry& entry);
    void showWhoIsIt();
    void showMembers();
    void memberChosen(const QString& call);
    void contactChosen(const QModelIndex& index);
    int chosenContact() const;
    void openOnContact(Screen page, int contact, bool shown);
    void tellGain(const Entry& typed);
    void secondPassed();
    bool lookUpAndShow(Entry& typed);
    bool refusesDupe();
    bool recheckOn(const std::string& bandTag);
    std::optional<std::string> assembledLine(Entry& typed);
    void logLine(const std::string& line);
    void clearEntry(Left left);
    void bringBack();
    void setMarker(std::string_view marker);
    void resetDupeMarker();
    void showHint(const Hint& hint);
    void showLog();
    void toCallBox();

    MainControls m_page;
    EntryBoxes& m_boxes; // of them
    QTimer* m_second;
    Tuning m_tuning;
    MainKeys m_keys;

    InputHold m_hold; // what is typed while the radio is read
    Roster m_roster;
    std::optional<Entry> m_lookedUp; // what the last lookup filled in
    std::optional<Searched> m_searched;
    std::optional<Cleared> m_cleared;
    Log::Watch m_logWatch;
    bool m_broughtBack = false;  // what is in the boxes was cleared before
    bool m_refusalShown = false; // in the hint line, until the next key
    bool m_radioReadDue = false; // the radio is read once after the first paint
};

} // namespace vantrel
