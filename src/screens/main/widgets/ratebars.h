// SPDX-License-Identifier: MIT
// The bars of the last hour: contacts per five minutes.
#pragma once

#include "screens/main/rate.h"

#include <QWidget>

namespace vantrel {

class RateBars : public QWidget {
    Q_OBJECT

public:
    explicit RateBars(QWidget* parent);

    void setRate(const Rate& rate);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Rate m_rate;
};

} // namespace vantrel
