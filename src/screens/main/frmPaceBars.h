// SPDX-License-Identifier: MIT
// The bars of the last hour: contacts per five minutes.
#pragma once

#include "screens/main/pace.h"

#include <QWidget>

namespace vantrel {

class PaceBars : public QWidget {
    Q_OBJECT

public:
    explicit PaceBars(QWidget* parent);

    void setPace(const Pace& pace);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Pace m_pace;
};

} // namespace vantrel
