// SPDX-License-Identifier: MIT
#include "platform/qt/qtmessages.h"

#include "platform/qt/latin1.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

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
