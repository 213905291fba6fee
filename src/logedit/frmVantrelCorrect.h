// SPDX-License-Identifier: MIT
// The correction page: finds a contact by its call, changes any of its fields.
#pragma once

#include "forms/form.h"
#include "logedit/correction.h"
#include "logedit/logedit.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vantrel {

class frmVantrelCorrect : public Form {
    Q_OBJECT

public:
    explicit frmVantrelCorrect(const FormContext& context);

protected:
    QWidget* firstFocus() override;

private:
    void createControls();
    void layOut();
    void connectHandlers();

    void Command3_Click(); // SEARCH, and Enter in the call box
    void Command4_Click(); // SEARCH AGAIN
    void Option1_Click();  // DUPE NOTE
    void Command2_Click(); // SAVE CHANGES
    void Command5_Click(); // UNDO

    CorrectionBoxes boxes() const;
    void showBoxes(const CorrectionBoxes& boxes);
    // The call box's text tidied, put back into it.
    std::string takeKey();
    // The contact that a search found, or that there is `none`.
    void showOutcome(SearchResult result, const std::string& key, std::string_view none);
    // Rewrites the log while the message label tells so.
    ChangeResult rewriteAtWork(const std::string& line);
    // Shows what can be done and to whom; the next call may be typed.
    void followLog();
    void say(std::string_view message);

    std::array<QLineEdit*, correctionFields.size()> m_boxes; // Text1 .. Text10
    QPushButton* Command1;                                   // exit
    QPushButton* Command2;                                   // save changes
    QPushButton* Command3;                                   // search
    QPushButton* Command4;                                   // search again
    QPushButton* Command5;                                   // undo
    QRadioButton* Option1;                                   // dupe note
    QLabel* Label11;                                         // message
    QLabel* Label12;                                         // what was cut to width
    QLabel* Label13; // the call found, of which the call box may hold only the beginning

    LogEdit m_log;
    CorrectionBoxes m_shown{}; // as the last search or save left them
};

} // namespace vantrel
