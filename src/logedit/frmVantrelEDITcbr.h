// SPDX-License-Identifier: MIT
// The log file editor: every field of a contact's line in a box of its own.
#pragma once

#include "logedit/editor.h"
#include "logedit/frmLogPage.h"

class QFormLayout;

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
    std::vector<std::string> unsaved() const override;
    std::string standingNote() const override;

private:
    std::string besides() const; // what a save changes that was not edited
    void showBoxes(const EditorBoxes& boxes);
    // The fields from `first` to before `end`, below each other.
    QFormLayout* side(std::size_t first, std::size_t end);

    std::array<QLineEdit*, editorFields.size()> m_boxes;

    EditorBoxes m_shown{}; // as the last search or save left them
    bool m_saved = false;  // at least once
};

} // namespace vantrel
