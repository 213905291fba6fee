// SPDX-License-Identifier: MIT
// The choice of how to bring the roster up to date.
#pragma once

#include "forms/form.h"

class QPushButton;
class QRadioButton;

namespace vantrel {

class frmSelectUpdateList : public Form {
    Q_OBJECT

public:
    explicit frmSelectUpdateList(const FormContext& context);

protected:
    QWidget* firstFocus() override;

private:
    void Option1_Click(); // import the club's data file
    void Option2_Click(); // import the older list
    void Option3_Click(); // download both

    QRadioButton* Option1;
    QRadioButton* Option2;
    QRadioButton* Option3;
    QPushButton* Command1; // exit
};

} // namespace vantrel
