// SPDX-License-Identifier: MIT
// What every screen has in common: its context, the guard around handlers, opening, Esc.
#pragma once

#include "base/runtimeerror.h"
#include "platform/platform.h"
#include "shared/module1.h"
#include "shared/screens.h"

#include <QPointer>
#include <QWidget>

#include <exception>
#include <functional>
#include <type_traits>

namespace vantrel {

struct FormContext {
    Module1& shared;
    Platform& platform;
    Screens& screens;
};

class Form : public QWidget {
    Q_OBJECT

public:
    // name: the screen's objectName; caption: its window title.
    Form(const FormContext& context, const char* name, const char* caption);

    // Loads and shows the form; closing it returns to `opener`.
    void open(QWidget* opener);
    // Brings the form to the front and puts the focus where its work starts.
    virtual void bringToFront();
    // Whether opening the screen again while it shows loads it again.
    virtual bool loadsAgain() const { return false; }
    // Closed and to be deleted by the event loop: it must not be shown again.
    bool isGone() const { return m_gone; }
    // The window that closing leads back to; nullptr when there is none any more.
    QWidget* opener() const { return m_opener; }

    // The guard: runs the handler and shows what it throws in a critical message box. The form may
    // have been deleted when this returns.
    template <typename Handler>
    void runHandler(Handler&& handler) {
        Messages& messages = m_context.platform.messages;
        try {
            handler();
        } catch (const RuntimeError& error) {
            messages.show({error.headline(), BoxIcon::critical, error.detail()});
        } catch (const std::exception& error) {
            messages.show({"AN ERROR HAS OCCURED", BoxIcon::critical, error.what()});
        }
    }

protected:
    // The screen's load: fills the controls; runs inside the guard.
    virtual void load() {}
    // What Esc does: closes the form unless the screen says otherwise.
    virtual void escapePressed() { close(); }
    // Gives the control, which is handed back, the focus whenever the form comes to the front.
    template <typename Control>
    Control* focusFirst(Control* control) {
        m_firstFocus = control;
        return control;
    }
    QWidget* firstFocus() const { return m_firstFocus; }

    // True for a page that does not stay above the page that opened it.
    virtual bool isOwnPage() const { return false; }
    // Where a page opened over this one has its upper edge, if there is room below: the least y on
    // the screen that covers nothing the operator needs. By default as the page below this one.
    virtual int freeTop() const;

    // Runs the work inside the guard once the page has been painted, for what would take too long
    // before it shows. Work that has not run yet is replaced.
    void afterPaint(std::function<void()> work);
    // Runs inside the guard, each second while the page shows.
    void eachSecond(std::function<void()> tick);

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    // Connects a signal to a handler inside the guard. It takes all of the signal's arguments or
    // none.
    template <typename Sender, typename Signal, typename Handler>
    void connectHandler(Sender* sender, Signal signal, Handler handler) {
        connect(sender, signal, this, [this, handler](const auto&... args) -> void {
            runHandler([&] { callWith(handler, args...); });
        });
    }

    Module1& shared() const { return m_context.shared; }
    Platform& platform() { return m_context.platform; }
    Screens& screens() { return m_context.screens; }
    Messages& messages() { return m_context.platform.messages; }

private:
    // A function of its own, since clang 14 looks into both branches inside a lambda in a lambda.
    template <typename Handler, typename... Args>
    static void callWith(const Handler& handler, const Args&... args) {
        if constexpr (std::is_invocable_v<const Handler&, const Args&...>)
            handler(args...);
        else
            handler();
    }

    void placeOver(const Form* page);
    void moveOnto(const QScreen* screen, QRect place);
    void stayAbove(const QWidget* page);

    FormContext m_context;
    QPointer<QWidget> m_opener;
    QWidget* m_firstFocus = nullptr;
    std::function<void()> m_afterPaint;
    bool m_isPlaced = false; // its frame's size was known when it was last moved
    bool m_gone = false;
};

} // namespace vantrel
