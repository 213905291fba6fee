// SPDX-License-Identifier: MIT
// The deletion page: steps through the contacts with a call and removes the one shown.
#pragma once

#include "forms/form.h"
#include "logedit/logedit.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace vantrel {

class frmVantrelDelete : public Form {
    Q_OBJECT

public:
    explicit frmVantrelDelete(const FormContext& context);

protected:
    void load() override;
    QWidget* firstFocus() override;

private:
    void createControls();
    void layOut();
    void connectHandlers();

    void Command3_Click(); // SEARCH, and Enter in the call box
    void Command4_Click(); // SEARCH AGAIN
    void Command2_Click(); // DELETE
    void Command5_Click(); // UNDO

    // The contact that a search found, or that there is `none`.
    void showOutcome(SearchResult result, std::string_view none);
    void say(std::string_view message);
    // Shows the contact found and what can be done; the next call may be typed.
    void followLog();

    QLineEdit* Text1;      // his call
    QPushButton* Command1; // exit
    QPushButton* Command2; // delete
    QPushButton* Command3; // search
    QPushButton* Command4; // search again
    QPushButton* Command5; // undo
    QLabel* Label2;        // the contact shown: call, name, state, number
    QLabel* Label3;        // the contact shown: frequency, mode, date, time, marker
    QLabel* Label4;        // message

    LogEdit m_log;
};

} // namespace vantrel
