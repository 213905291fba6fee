// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace vantrel {

Form::Form(const FormContext& context, const char* name, const char* caption) : m_context(context) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(QString::fromLatin1(caption));
    setAttribute(Qt::WA_DeleteOnClose);
}

void Form::open(QWidget* opener) {
    if (opener != this)
        m_opener = opener;
    const QPointer<Form> self(this);
    runHandler([this] { load(); });
    if (!self)
        return;
    show();
    bringToFront();
}

void Form::bringToFront() {
    raise();
    activateWindow();
    if (QWidget* first = firstFocus())
        first->setFocus();
    // Where the focus is shows at once, not only after the first Tab.
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        runHandler([this] { escapePressed(); });
    else
        QWidget::keyPressEvent(event);
}

void Form::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    m_gone = event->isAccepted() && testAttribute(Qt::WA_DeleteOnClose);
    if (!event->isAccepted() || !m_opener)
        return;
    // No window is active by itself after one closes on every platform.
    if (auto* form = qobject_cast<Form*>(m_opener.data()))
        form->bringToFront();
    else
        m_opener->activateWindow();
}

} // namespace vantrel
