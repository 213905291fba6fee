// SPDX-License-Identifier: MIT
// The choice of the call area or region that an event station signs from.
#pragma once

#include "forms/form.h"

class QLabel;
class QListView;
class QModelIndex;
class QPushButton;

namespace vantrel {

class frmVantrelCallArea : public Form {
    Q_OBJECT

public:
    explicit frmVantrelCallArea(const FormContext& context);

protected:
    void load() override;
    QWidget* firstFocus() override;

private:
    void layOut();
    void List1_Click(const QModelIndex& index); // click, Enter
    void Command2_Click();                      // abort

    QLabel* Label1;        // heading
    QListView* List1;      // the call areas
    QLabel* Label4;        // what to do
    QLabel* Label2;        // caption of the choice
    QLabel* Label3;        // the choice
    QPushButton* Command1; // OK
    QPushButton* Command2; // abort

    std::string m_utcDate;   // when the screen opened
    std::string m_savedName; // of the log, as it stood when the screen opened
};

} // namespace vantrel
