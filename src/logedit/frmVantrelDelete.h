// SPDX-License-Identifier: MIT
// The deletion page: steps through the contacts with a call and removes the one shown.
#pragma once

#include "logedit/frmLogPage.h"

namespace vantrel {

class frmVantrelDelete : public frmLogPage {
public:
    explicit frmVantrelDelete(const FormContext& context);

protected:
    void load() override;
    void showFound(const std::string&) override { setStatus(""); }
    std::string notFoundText(const std::string&) const override { return "THIS CALL NOT FOUND "; }
    std::string lastEntryText() const override { return "  LAST ENTRY"; }
    void change() override;
    // Shows the contact found as well.
    void refreshControls() override;

private:
    QLabel* m_callLabel;
    QLabel* m_detailLabel;
};

} // namespace vantrel
