// SPDX-License-Identifier: MIT
// The K3Y box: the operator picks the event station the next contacts are with.
#pragma once

#include "forms/form.h"
#include "k3y/k3ystation.h"

#include <array>

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

    std::array<QRadioButton*, k3yStations.size()> m_options; // as k3yStations
    QPushButton* m_okButton;
};

} // namespace vantrel
