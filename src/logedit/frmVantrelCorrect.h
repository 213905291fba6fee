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
    void searchStarts() override { say(""); }
    void showFound(const std::string& key) override;
    void foundNone(const std::string& key) override;
    std::string notFoundText(const std::string& key) const override;
    void change() override;
    void clearBoxes() override;
    void say(std::string_view message) override;
    // Shows whose contact is found as well.
    void followLog() override;

private:
    void createControls();
    void layOut();

    void showBoxes(const CorrectionBoxes& boxes);
    // Rewrites the log while the message label tells so.
    ChangeResult rewriteAtWork(const std::string& line);

    std::array<QLineEdit*, correctionFields.size()> m_boxes; // the first one is the call box
    QRadioButton* m_dupeOption;
    QLabel* m_cutLabel;
    QLabel* m_foundLabel; // the call found, of which the call box may hold only the beginning

    CorrectionBoxes m_shown{}; // as the last search or save left them
};

} // namespace vantrel
