// SPDX-License-Identifier: MIT
// The bonus points noted in the name fields of the log, added up.
#pragma once

#include "forms/page.h"

namespace vantrel {

class frmCountBonus : public Form {
public:
    explicit frmCountBonus(const FormContext& context);

    // Opened again it counts again.
    bool loadsAgain() const override { return true; }

protected:
    void load() override;

private:
    QLabel* m_total;
};

} // namespace vantrel
