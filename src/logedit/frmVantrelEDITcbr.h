// SPDX-License-Identifier: MIT
// The log file editor: every field of a contact's line in a box of its own.
#pragma once

#include "logedit/frmLogPage.h"

namespace vantrel {

class frmVantrelEDITcbr : public frmLogPage {
public:
    explicit frmVantrelEDITcbr(const FormContext& context);

protected:
    void showFound(const std::string& key) override;
    std::string notFoundText(const std::string& key) const override {
        return key + " IS NOT IN THE FILE";
    }
    void change() override;
    std::string standingNote() const override;

private:
    // What a save changes that was not edited.
    std::string besides() const;

    bool m_saved = false; // at least once
};

} // namespace vantrel
