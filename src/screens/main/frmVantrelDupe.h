// SPDX-License-Identifier: MIT
// The word "DUPE", large and red, for two seconds; it never takes the keyboard.
#pragma once

#include "forms/form.h"

class QTimer;

namespace vantrel {

class AlertLabel;

class frmVantrelDupe : public Form {
    Q_OBJECT

public:
    explicit frmVantrelDupe(const FormContext& context);

    // A second duplicate while the screen shows starts its two seconds again.
    bool loadsAgain() const override { return true; }
    void bringToFront() override;

protected:
    void load() override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    AlertLabel* m_label;
    QTimer* m_timer;
};

} // namespace vantrel
