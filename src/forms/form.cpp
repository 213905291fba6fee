// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include "forms/accessible.h"
#include "forms/readingorder.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace vantrel {

Form::Form(const FormContext& context, const char* name, const char* caption) : m_context(context) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(QString::fromLatin1(caption));
    setAttribute(Qt::WA_DeleteOnClose);
    describePage(this);
}

void Form::open(QWidget* opener) {
    if (opener != this)
        m_opener = opener;
    const QPointer<Form> self(this);
    runHandler([this] { load(); });
    if (!self)
        return;
    if (!isVisible()) {
        letReaderReach(this);
        tabInReadingOrder(this);
        placeOver(opener);
    }
    show();
    bringToFront();
}

// Where the operator looks: over the page that opened it, wholly on that page's screen.
void Form::placeOver(QWidget* below) {
    if (!testAttribute(Qt::WA_Resized))
        resize(sizeHint());
    const auto* page = qobject_cast<Form*>(below);
    if (page == nullptr || page == this || windowType() == Qt::ToolTip)
        return;
    if (!isOwnPage())
        stayAbove(page);
    // The frame that the window manager will put around it is like that of the page.
    const QRect inside = page->geometry();
    // A window that was just opened has no frame yet.
    const QRect frame = page->frameGeometry().united(inside);
    QPoint corner = frame.center() - rect().center();
    if (m_isSmall)
        corner.setY(std::max(corner.y(), page->mapToGlobal(QPoint(0, page->freeTop())).y()));
    const QRect room = page->screen()->availableGeometry().adjusted(
        inside.left() - frame.left(), inside.top() - frame.top(), inside.right() - frame.right(),
        inside.bottom() - frame.bottom());
    resize(size().boundedTo(room.size()));
    // Where the least size is more than there is, its beginning is seen.
    corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - width() + 1)));
    corner.setY(std::max(room.top(), std::min(corner.y(), room.bottom() - height() + 1)));
    move(corner);
}

// A click on the page below must not put it in front of this one.
void Form::stayAbove(const QWidget* page) {
    // The one kind of window that is tied to another on every platform.
    setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    winId(); // makes the window
    windowHandle()->setTransientParent(page->windowHandle());
}

void Form::bringToFront() {
    raise();
    activateWindow();
    QWidget* first = firstFocus();
    if (first != nullptr)
        first->setFocus();
    if (auto* list = qobject_cast<QListView*>(first))
        tellCurrent(list);
    // Where the focus is shows at once, not only after the first Tab.
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        runHandler([this] { escapePressed(); });
    else if (event->key() == Qt::Key_F1)
        runHandler([this] { screens().openHelp(objectName().toStdString()); });
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
        runHandler([form] { form->bringToFront(); }); // shows its files as they are by now
    else
        m_opener->activateWindow();
}

} // namespace vantrel
