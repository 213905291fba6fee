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
    void areaChosen(const QModelIndex& index);
    void areaSelected();
    void abortClicked();

    QListView* m_areas;
    QLabel* m_chosenArea;
    QPushButton* m_okButton;
    QPushButton* m_abortButton;

    std::string m_utcDate;   // when the screen opened
    std::string m_savedName; // of the log, as it stood when the screen opened
};

} // namespace vantrel
