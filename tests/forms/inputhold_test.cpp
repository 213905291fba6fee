// SPDX-License-Identifier: MIT
// What is typed and clicked while a handler waits arrives afterwards, whole and in order,
// whether it comes from the system or straight to a control.
#include "forms/inputhold.h"
#include "platform/qt/latin1.h"

#include <QApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;
using Step = std::function<void()>;

void runOnce(Step& step) {
    if (const Step now = std::exchange(step, nullptr))
        now();
}

using Log = std::vector<std::string>;

// Two boxes and a button; Enter in a box, Alt+G and a click start the handler, which waits.
struct Window : QWidget {
    explicit Window(Log& itsLog) : log(itsLog) {
        setAttribute(Qt::WA_DeleteOnClose); // it may be the only owner of what its handlers use
        auto* layout = new QVBoxLayout(this);
        for (QWidget* control : std::initializer_list<QWidget*>{first, second, go})
            layout->addWidget(control);
        connect(go, &QPushButton::clicked, this, &Window::handle);
        for (QLineEdit* box : {first, second})
            connect(box, &QLineEdit::returnPressed, this, &Window::handle);
        show();
        activateWindow();
        first->setFocus();
        QCoreApplication::processEvents();
    }

    void handle() {
        waitAndLog();
        runOnce(afterHandler);
    }

    void waitAndLog() {
        const InputHold::Scope scope(hold);
        log.push_back("begin " + shown());
        const QPointer<Window> self(this);
        QEventLoop loop;
        waiting = &loop;
        QTimer::singleShot(40, &loop, &QEventLoop::quit);
        QTimer::singleShot(5, this, [this] { runOnce(duringWait); });
        loop.exec();
        waiting = nullptr;
        ASSERT_TRUE(self) << "the window went while its handler was running";
        runOnce(afterWait);
        log.push_back("end " + shown());
    }

    std::string shown() const { return fromQt(first->text()) + '|' + fromQt(second->text()); }

    QLineEdit* first = new QLineEdit(this);
    QLineEdit* second = new QLineEdit(this);
    QPushButton* go = new QPushButton(QStringLiteral("&Go"), this);
    QEventLoop* waiting = nullptr;
    InputHold hold{this, [this] { waiting->quit(); }};
    Step duringWait;   // inside the next wait
    Step afterWait;    // in the scope
    Step afterHandler; // behind it, where errors are shown
    Log& log;
};

// Keys either come from the system to the window, or a test hands them to a control.
enum class Source { system, control };

struct Holding : ::testing::TestWithParam<Source> {
    static void key(QWidget* window, QWidget* control, Qt::Key key,
                    Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        if (GetParam() == Source::system)
            QTest::keyClick(window->windowHandle(), key, modifiers);
        else
            QTest::keyClick(control, key, modifiers);
    }
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        key(window, QApplication::focusWidget(), which, modifiers);
    }
    // Small letters, and "\t" and "\n" for the Tab and Enter keys.
    void type(const char* keys) {
        for (; *keys != '\0'; ++keys)
            key(*keys == '\n'   ? Qt::Key_Return
                : *keys == '\t' ? Qt::Key_Tab
                                : Qt::Key(Qt::Key_A + *keys - 'a'));
    }
    static void settle() { QTest::qWait(150); }

    Log log;
    QPointer<Window> window{new Window(log)};
    ~Holding() override { delete window; }
};

TEST_P(Holding, KeysShortcutsAndClicksComeAfterTheHandlerInOrderAndFollowTheFocus) {
    window->duringWait = [this] {
        type("b\n");
        window->duringWait = [this] { type("f"); }; // while c to e are still kept
        type("c");
        key(Qt::Key_G, Qt::AltModifier);
        type("d\te");
        QTest::mouseClick(window->go, Qt::LeftButton);
    };
    type("a\n");
    settle();
    EXPECT_THAT(log, ElementsAre("begin a|", "end a|", "begin ab|", "end ab|", "begin abc|",
                                 "end abc|", "begin abcd|e", "end abcd|e"));
    EXPECT_EQ(window->shown(), "abcd|ef");
}

// Another handler of the page lets the window live for a while, too.
TEST_P(Holding, KeysTypedWhileKeptOnesAreDeliveredComeBehindThem) {
    window->duringWait = [this] { type("\nb"); };
    window->afterWait = [this] {
        window->afterWait = [this] {
            window->afterHandler = [this] {
                QTimer::singleShot(5, window, [this] { type("c"); });
                QTest::qWait(30);
            };
        };
    };
    type("a\n");
    settle();
    EXPECT_EQ(window->shown(), "abc|");
}

// The handler's own boxes stand inside the scope, an error's box behind it.
TEST_P(Holding, KeptKeysDoNotAnswerMessageBoxesAndTheirOwnKeysDo) {
    for (Step Window::*moment : {&Window::afterWait, &Window::afterHandler}) {
        SCOPED_TRACE(moment == &Window::afterWait ? "inside" : "behind");
        window->first->clear();
        log.clear();
        window->duringWait = [this] {
            key(Qt::Key_Escape);
            type("\nx");
        };
        int answer = -1;
        bool boxStood = false;
        window->*moment = [&] {
            QMessageBox box(QMessageBox::NoIcon, QString(), QStringLiteral("?"),
                            QMessageBox::Yes | QMessageBox::No, window);
            QTimer::singleShot(60, &box, [&] {
                boxStood = box.isVisible();
                key(&box, &box, Qt::Key_Escape);
            });
            answer = box.exec();
            window->activateWindow();
        };
        type("a\n");
        settle();
        EXPECT_TRUE(boxStood);
        EXPECT_EQ(answer, QMessageBox::No);
        EXPECT_THAT(log, ElementsAre("begin a|", "end a|", "begin a|", "end a|"));
        EXPECT_EQ(window->shown(), "ax|");
    }
}

TEST_P(Holding, ClosingTheWindowEndsTheWaitAndHappensAfterTheHandler) {
    window->duringWait = [this] {
        type("b\n");
        window->close();
        EXPECT_FALSE(window->waiting->isRunning());
    };
    type("a\n");
    settle();
    EXPECT_FALSE(window);
    EXPECT_THAT(log, ElementsAre("begin a|", "end a|"));
}

INSTANTIATE_TEST_SUITE_P(Keys, Holding, ::testing::Values(Source::system, Source::control),
                         [](const auto& row) {
                             return row.param == Source::system ? "FromTheSystem" : "ToAControl";
                         });

} // namespace
} // namespace vantrel::test
