// SPDX-License-Identifier: MIT
// The choice of how to bring the roster up to date.
#pragma once

#include "forms/form.h"

class QRadioButton;

namespace vantrel {

class frmSelectUpdateList : public Form {
    Q_OBJECT

public:
    explicit frmSelectUpdateList(const FormContext& context);

protected:
    QWidget* firstFocus() override;

private:
    void run(QRadioButton* option);
    void importDataClicked();
    void importMembersClicked();
    void downloadClicked();

    QRadioButton* m_downloadOption;
    QRadioButton* m_dataOption;
    QRadioButton* m_membersOption;
    QRadioButton* m_lastRun; // and the first to offer
};

} // namespace vantrel
