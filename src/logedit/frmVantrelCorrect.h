// SPDX-License-Identifier: MIT
// The correction page: finds a contact by its call, changes any of its fields.
#pragma once

#include "logedit/frmLogPage.h"

namespace vantrel {

class frmVantrelCorrect : public frmLogPage {
public:
    explicit frmVantrelCorrect(const FormContext& context);

protected:
    void searchStarts(const std::string& key) override;
    void showFound(const std::string& key) override {
        showBoxes(correctionBoxes(key, log().line()));
    }
    std::string notFoundText(const std::string&) const override { return "THIS CALL IS NOT FOUND"; }
    void change() override;
    // The call as well, of which the call box may hold only the beginning.
    std::string placeText(int place, int count) const override;

private:
    // Rewrites the log while the message label tells so.
    ChangeResult rewritten(const std::string& line);
};

} // namespace vantrel
