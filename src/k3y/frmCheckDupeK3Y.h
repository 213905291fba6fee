// SPDX-License-Identifier: MIT
// The K3Y dupe box: the contact is in the log already, and the operator says whether it is
// logged once more.
#pragma once

#include "forms/form.h"

class QLabel;
class QPushButton;
class QTimer;

namespace vantrel {

class frmCheckDupeK3Y : public Form {
    Q_OBJECT

public:
    explicit frmCheckDupeK3Y(const FormContext& context);

    void ask(DupeQuestion question);

protected:
    void load() override;
    QWidget* firstFocus() override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createControls();
    void stayAbove(QWidget* page);

    void Command2_Click();
    void Command1_Click();

    QLabel* Label1;        // "DUPE"
    QLabel* Label2;        // why
    QPushButton* Command2; // LOG THE DUPE
    QPushButton* Command1; // NO LOG
    QTimer* Timer1;        // runs, and closes nothing

    DupeQuestion m_question;
    bool m_logged = false;
};

} // namespace vantrel
