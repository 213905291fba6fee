// SPDX-License-Identifier: MIT
// The key sheet of the page from which F1 opened it.
#pragma once

#include "forms/page.h"

class QPlainTextEdit;

namespace vantrel {

class frmVantrelHelp : public Form {
public:
    explicit frmVantrelHelp(const FormContext& context);

    bool loadsAgain() const override { return true; }
    // Whose sheet is shown when it opens.
    void choose(std::string page) { m_page = std::move(page); }

    QSize sizeHint() const override;

protected:
    void load() override;
    void closeEvent(QCloseEvent* event) override;

private:
    QSize textSize() const;

    QPlainTextEdit* m_sheet;
    std::string m_page;
};

} // namespace vantrel
