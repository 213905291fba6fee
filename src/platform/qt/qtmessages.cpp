// SPDX-License-Identifier: MIT
#include "platform/qt/qtmessages.h"

#include "platform/qt/latin1.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>

namespace vantrel {

namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::exclamation:
        return QMessageBox::Warning;
    case BoxIcon::critical:
        return QMessageBox::Critical;
    case BoxIcon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

// Wide enough for a usual line of text, and that a path is not broken in its middle.
void widen(QMessageBox& box) {
    constexpr int widestShare = 80; // per cent of the screen
    constexpr int usualCharacters = 64;
    const QFontMetrics metrics = box.fontMetrics();
    const QString shown = box.text() + QLatin1Char('\n') + box.informativeText();
    int width = 0;
    for (const QString& line : shown.split(QLatin1Char('\n')))
        width = std::max(width, std::min(metrics.horizontalAdvance(line),
                                         metrics.averageCharWidth() * usualCharacters));
    for (const QString& word : shown.split(QRegularExpression(QStringLiteral("\\s+"))))
        width = std::max(width, metrics.horizontalAdvance(word));
    const int widest = box.screen()->availableGeometry().width() * widestShare / 100;
    for (const char* name : {"qt_msgbox_label", "qt_msgbox_informativelabel"})
        if (auto* label = box.findChild<QLabel*>(QLatin1String(name)))
            label->setMinimumWidth(std::min(width + 2 * metrics.averageCharWidth(), widest));
}

int showBox(const Message& message, QMessageBox::StandardButtons buttons,
            QMessageBox::StandardButton escapeButton) {
    const QPointer<QWidget> parent(QApplication::activeWindow());
    const QPointer<QWidget> focus(QApplication::focusWidget());
    QMessageBox box(parent);
    box.setTextFormat(Qt::PlainText);
    box.setIcon(iconOf(message.icon));
    box.setWindowTitle(message.title.empty() ? QStringLiteral("Vantrel") : toQt(message.title));
    box.setText(toQt(message.text));
    box.setInformativeText(toQt(message.informative));
    box.setStandardButtons(buttons);
    box.setEscapeButton(escapeButton);
    box.setDefaultButton(escapeButton); // Enter by accident changes nothing
    widen(box);
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
