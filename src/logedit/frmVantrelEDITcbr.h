// SPDX-License-Identifier: MIT
// The log file editor: every field of a contact's line in a box of its own.
#pragma once

#include "logedit/editor.h"
#include "logedit/frmLogPage.h"

namespace vantrel {

class frmVantrelEDITcbr : public frmLogPage {
    Q_OBJECT

public:
    explicit frmVantrelEDITcbr(const FormContext& context);

protected:
    void showFound(const std::string& key) override;
    std::string notFoundText(const std::string& key) const override;
    void change() override;
    void clearBoxes() override;

private:
    void createControls();
    void layOut();

    std::array<QLineEdit*, editorFields.size()> m_boxes;
    QRadioButton* m_dupeOption;
};

} // namespace vantrel
