// SPDX-License-Identifier: MIT
// The word "DUPE", large and red, for two seconds; it never takes the keyboard.
#pragma once

#include "forms/page.h"

class QTimer;

namespace vantrel {

class frmVantrelDupe : public Form {
public:
    explicit frmVantrelDupe(const FormContext& context);

    // A second duplicate while the screen shows starts its two seconds again.
    bool loadsAgain() const override { return true; }
    void bringToFront() override { raise(); }

protected:
    void load() override;
    // Not Form's, which gives the focus back to the opener: this screen never had it, and by now
    // the operator may be typing the next name or be on another page.
    void closeEvent(QCloseEvent* event) override {
        QWidget::closeEvent(event); // NOLINT(bugprone-parent-virtual-call)
    }
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    AlertLabel* m_label;
    QTimer* m_timer;
};

} // namespace vantrel
