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
    void download();

    QRadioButton* m_lastRun; // has the focus; at first the job to begin with
};

} // namespace vantrel
