// SPDX-License-Identifier: MIT
// The choice of the call area or region that an event station signs from.
#pragma once

#include "forms/page.h"
#include "k3y/k3ystation.h"

namespace vantrel {

class frmVantrelCallArea : public Form {
public:
    explicit frmVantrelCallArea(const FormContext& context);

protected:
    void load() override;

private:
    void createAreas();
    void choose(const CallArea& area);
    void abort();

    LineList* m_areas;
    QLabel* m_chosenArea;

    std::string m_utcDate;   // when the screen opened
    std::string m_savedName; // of the log, as it stood when the screen opened
};

} // namespace vantrel
