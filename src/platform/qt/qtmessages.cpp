// SPDX-License-Identifier: MIT
#include "platform/qt/latin1.h"
#include "platform/qt/qtdevices.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>

namespace vantrel {

namespace {

// Of BoxIcon, in its order.
constexpr QMessageBox::Icon icons[] = {QMessageBox::NoIcon, QMessageBox::Warning,
                                       QMessageBox::Critical};

// The text as it is painted: its lines break at blanks and behind the "/" of a path, not at a
// hyphen.
QString breakable(QString text) {
    static const QRegularExpression hyphen(QStringLiteral("-(?=\\S)"));
    return text.replace(hyphen, QStringLiteral("-") + QChar(0x2060)); // no break here
}

// Shows a label's text in the room that it needs: QMessageBox itself cuts what it takes for short.
// The text, which is read aloud and copied, stays as it is.
class WrappedText : public QObject {
public:
    explicit WrappedText(QLabel* label)
        : QObject(label), m_label(label), m_shown(breakable(label->text())) {
        constexpr int usualCharacters = 80;
        const QFontMetrics metrics = label->fontMetrics();
        const int widest = label->screen()->availableGeometry().width() / 2;
        int width = std::min(metrics.averageCharWidth() * usualCharacters, widest);
        for (const QString& piece : m_shown.split(QRegularExpression(QStringLiteral("\\s|(?<=/)"))))
            width = std::max(width, metrics.horizontalAdvance(piece));
        if (width > widest)
            m_flags |= Qt::TextWrapAnywhere;
        const QRect room(0, 0, std::min(width, widest), QWIDGETSIZE_MAX);
        const QSize needed = metrics.boundingRect(room, m_flags, m_shown).size();
        label->setContentsMargins({});
        label->setFixedSize(needed.width() + 1, needed.height());
        label->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint)
            return QObject::eventFilter(watched, event);
        QPainter painter(m_label);
        painter.setPen(m_label->palette().color(QPalette::WindowText));
        painter.drawText(m_label->rect(), m_flags, m_shown);
        return true;
    }

private:
    QLabel* m_label;
    QString m_shown;
    int m_flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
};

int showBox(const Message& message, QMessageBox::StandardButtons buttons,
            QMessageBox::StandardButton escapeButton) {
    const QPointer<QWidget> parent(QApplication::activeWindow());
    const QPointer<QWidget> focus(QApplication::focusWidget());
    QMessageBox box(parent);
    box.setTextFormat(Qt::PlainText);
    box.setIcon(icons[static_cast<std::size_t>(message.icon)]);
    box.setWindowTitle(message.title.empty() ? QStringLiteral("Vantrel") : toQt(message.title));
    box.setText(toQt(message.text));
    box.setInformativeText(toQt(message.informative));
    box.setStandardButtons(buttons);
    box.setEscapeButton(escapeButton);
    box.setDefaultButton(escapeButton); // Enter by accident changes nothing
    int width = 0;
    for (const char* name : {"qt_msgbox_label", "qt_msgbox_informativelabel"})
        if (auto* label = box.findChild<QLabel*>(QLatin1String(name))) {
            new WrappedText(label);
            width = std::max(width, label->width());
        }
    // The box goes by the width of its text alone, not of what we add.
    if (auto* text = box.findChild<QLabel*>(QLatin1String("qt_msgbox_label")))
        text->setFixedWidth(width);
    const int button = box.exec();
    // No window is active by itself after a box closes on every platform.
    if (parent)
        parent->activateWindow();
    if (focus)
        focus->setFocus();
    return button;
}

} // namespace

void QtMessages::show(const Message& message) {
    showBox(message, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtMessages::ask(const Message& message) {
    return showBox(message, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

} // namespace vantrel
