// SPDX-License-Identifier: MIT
// The deletion page: steps through the contacts with a call and removes the one shown.
#pragma once

#include "logedit/frmLogPage.h"

namespace vantrel {

class frmVantrelDelete : public frmLogPage {
    Q_OBJECT

public:
    explicit frmVantrelDelete(const FormContext& context);

protected:
    void load() override;
    void showFound(const std::string& key) override;
    std::string notFoundText(const std::string& key) const override;
    std::string_view lastEntryText() const override { return "  LAST ENTRY"; }
    void change() override;
    // Shows the contact found as well.
    void refreshControls() override;

private:
    QLabel* m_callLabel;
    QLabel* m_detailLabel;
};

} // namespace vantrel
