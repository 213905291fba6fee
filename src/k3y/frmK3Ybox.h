// SPDX-License-Identifier: MIT
// The K3Y box: the operator picks the event station the next contacts are with.
#pragma once

#include "forms/form.h"
#include "screens/main/k3ystation.h"

#include <array>

class QButtonGroup;
class QLabel;
class QPushButton;
class QRadioButton;

namespace vantrel {

class frmK3Ybox : public Form {
    Q_OBJECT

public:
    explicit frmK3Ybox(const FormContext& context);

protected:
    QWidget* firstFocus() override;

private:
    void createControls();
    void connectHandlers();

    void choose(const K3yStation& station);
    void Command1_Click();

    std::array<QRadioButton*, k3yStations.size()> m_options; // Option1 to Option7
    QLabel* Label1;                                          // headline
    QLabel* Label2;                                          // its second line
    QPushButton* Command1;                                   // OK
};

} // namespace vantrel
