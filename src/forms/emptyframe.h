// SPDX-License-Identifier: MIT
// An amber frame around a box that should not stay empty.
#pragma once

#include <QWidget>

class QLineEdit;

namespace vantrel {

// Lies over its box, as large as that, and shows while the box holds nothing but blanks. Keys
// and clicks go through it.
class EmptyFrame : public QWidget {
    Q_OBJECT

public:
    explicit EmptyFrame(QLineEdit* box);

protected:
    bool eventFilter(QObject* box, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vantrel
