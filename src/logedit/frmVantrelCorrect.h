// SPDX-License-Identifier: MIT
// The correction page: finds a contact by its call, changes any of its fields.
#pragma once

#include "logedit/correction.h"
#include "logedit/frmLogPage.h"

namespace vantrel {

class frmVantrelCorrect : public frmLogPage {
    Q_OBJECT

public:
    explicit frmVantrelCorrect(const FormContext& context);

protected:
    void searchStarts(const std::string& key) override;
    void showFound(const std::string& key) override;
    std::string notFoundText(const std::string& key) const override;
    void change() override;
    void clearBoxes() override;
    std::vector<std::string> unsaved() const override;
    // The call as well, of which the call box may hold only the beginning.
    std::string placeText(int place, int count) const override;

private:
    QLayout* fields();
    void showBoxes(const CorrectionBoxes& boxes);
    // Rewrites the log while the message label tells so.
    ChangeResult rewriteAtWork(const std::string& line);

    std::array<QLineEdit*, correctionFields.size()> m_boxes; // the first one is the call box

    // As they are when nothing of the contact was changed.
    CorrectionBoxes untouched() const;

    CorrectionBoxes m_shown{}; // as the last search or save left them
    bool m_callTyped = false;  // since then: the call box is no longer the key
};

} // namespace vantrel
