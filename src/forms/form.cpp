// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include "forms/accessible.h"
#include "forms/readingorder.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QListView>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

// Empty until the window manager has put the frame there.
QMargins frameOf(const QWidget* page) {
    const QRect inside = page->geometry();
    const QRect frame = page->frameGeometry();
    return {inside.left() - frame.left(), inside.top() - frame.top(),
            frame.right() - inside.right(), frame.bottom() - inside.bottom()};
}

} // namespace

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
        placeOver(qobject_cast<Form*>(opener));
    }
    show();
    bringToFront();
}

int Form::freeTop() const {
    const auto* below = qobject_cast<const Form*>(m_opener.data());
    return below == nullptr ? screen()->availableGeometry().top() : below->freeTop();
}

// Where the operator looks: over the page that opened it, below what is being entered there.
void Form::placeOver(const Form* page) {
    const QSize asked = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    resize(asked.expandedTo(minimumSizeHint()));
    m_isPlaced = false;
    if (page == nullptr || page == this || windowType() == Qt::ToolTip)
        return;
    if (!isOwnPage())
        stayAbove(page);
    // The window manager will put the same frame around it.
    const QMargins frame = frameOf(page);
    const int top = page->freeTop();
    const int room =
        page->screen()->availableGeometry().bottom() - top - frame.top() - frame.bottom();
    resize(width(), std::clamp(room, minimumSizeHint().height(), height()));
    QRect place = rect().marginsAdded(frame);
    place.moveCenter(page->frameGeometry().center());
    place.moveTop(std::max(place.top(), top));
    moveOnto(page->screen(), place);
}

// Moves and shrinks the page until it is wholly on the screen; of one that cannot be made small
// enough the upper left part is seen. place: the page with its frame.
void Form::moveOnto(const QScreen* screen, QRect place) {
    const QRect room = screen->availableGeometry();
    const QSize frame = place.size() - size();
    resize(size().boundedTo(room.size() - frame));
    place.setSize(size() + frame);
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    move(place.topLeft());
}

// A click on the page below must not put it in front of this one.
void Form::stayAbove(const QWidget* page) {
    // Dialogs alone stay above another window on every platform.
    setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    winId(); // makes the window
    windowHandle()->setTransientParent(page->windowHandle());
}

void Form::bringToFront() {
    raise();
    activateWindow();
    if (m_firstFocus != nullptr)
        m_firstFocus->setFocus();
    if (auto* list = qobject_cast<QListView*>(m_firstFocus))
        announceCurrentRow(list);
    // The focus is shown at once, not only after the first Tab.
    setAttribute(Qt::WA_KeyboardFocusChange);
}

bool Form::event(QEvent* event) {
    // Qt bounds the height as if no label broke its text into lines.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
        if (layout() != nullptr && layout()->hasHeightForWidth())
            setMinimumHeight(std::max(layout()->totalMinimumSize().height(),
                                      layout()->totalMinimumHeightForWidth(width())));
    // The window manager has put its frame around the page by the time that it gets the keys, or
    // moves the page by the frame afterwards.
    const bool mayHaveFrame =
        event->type() == QEvent::WindowActivate || event->type() == QEvent::Move;
    if (mayHaveFrame && !m_isPlaced && !frameOf(this).isNull()) {
        m_isPlaced = true;
        if (!screen()->availableGeometry().contains(frameGeometry()))
            moveOnto(screen(), frameGeometry());
    }
    return QWidget::event(event);
}

void Form::afterPaint(std::function<void()> work) {
    m_afterPaint = std::move(work);
    update();
}

void Form::eachSecond(std::function<void()> tick) {
    auto* second = new QTimer(this);
    connectHandler(second, &QTimer::timeout, [this, tick = std::move(tick)] {
        if (isVisible() && !isMinimized())
            tick();
    });
    second->start(1000);
}

void Form::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (m_afterPaint)
        QTimer::singleShot(
            0, this, [this, work = std::exchange(m_afterPaint, nullptr)] { runHandler(work); });
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
