// SPDX-License-Identifier: MIT
// The K3Y box: the operator picks the event station the next contacts are with.
#pragma once

#include "forms/page.h"
#include "k3y/k3ystation.h"

#include <array>

namespace vantrel {

class frmK3Ybox : public Form {
public:
    explicit frmK3Ybox(const FormContext& context);

    // Asked for while it shows it forgets the choice, as one that opens does.
    bool loadsAgain() const override { return true; }

protected:
    void load() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void choose(std::size_t index);
    void okPressed();

    std::array<QRadioButton*, k3yStations.size()> m_options; // as k3yStations
};

} // namespace vantrel
