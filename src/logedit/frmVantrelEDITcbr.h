// SPDX-License-Identifier: MIT
// The log file editor: every field of a contact's line in a box of its own.
#pragma once

#include "forms/form.h"
#include "logedit/editor.h"
#include "logedit/logedit.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vantrel {

class frmVantrelEDITcbr : public Form {
    Q_OBJECT

public:
    explicit frmVantrelEDITcbr(const FormContext& context);

protected:
    QWidget* firstFocus() override;

private:
    void createControls();
    void layOut();
    void connectHandlers();

    void Command3_Click(); // find, and Enter in the call box
    void Command4_Click(); // next
    void Option1_Click();  // dupe mark
    void Command2_Click(); // save
    void Command5_Click(); // undo

    EditorBoxes boxes() const;
    void showBoxes(const EditorBoxes& boxes);
    // The contact that a search found, or that there is `none`.
    void showOutcome(SearchResult result, std::string_view none);
    // Shows what can be done; the next call may be typed.
    void followLog();
    void say(std::string_view message);

    QLineEdit* Text1;                                    // the call searched for
    std::array<QLineEdit*, editorFields.size()> m_boxes; // Text2 .. Text16
    QPushButton* Command1;                               // exit
    QPushButton* Command2;                               // save
    QPushButton* Command3;                               // find
    QPushButton* Command4;                               // next
    QPushButton* Command5;                               // undo
    QRadioButton* Option1;                               // dupe mark
    QLabel* Label16;                                     // status

    LogEdit m_log;
};

} // namespace vantrel
