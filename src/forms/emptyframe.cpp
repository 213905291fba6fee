// SPDX-License-Identifier: MIT
#include "forms/emptyframe.h"

#include "forms/colours.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace vantrel {

EmptyFrame::EmptyFrame(QLineEdit* box) : QWidget(box) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const auto follow = [this](const QString& text) { setVisible(text.trimmed().isEmpty()); };
    connect(box, &QLineEdit::textChanged, this, follow);
    follow(box->text());
    box->installEventFilter(this);
}

bool EmptyFrame::eventFilter(QObject* box, QEvent* event) {
    if (event->type() == QEvent::Resize)
        resize(static_cast<QWidget*>(box)->size());
    return QWidget::eventFilter(box, event);
}

void EmptyFrame::paintEvent(QPaintEvent*) {
    constexpr qreal line = 2;
    constexpr qreal inset = 2 + line / 2; // the frame of the focus stays seen around it
    QPainter painter(this);
    painter.setPen(QPen(cautionColour(palette()), line));
    painter.drawRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
}

} // namespace vantrel
