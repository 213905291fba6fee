// SPDX-License-Identifier: MIT
// What is typed and clicked while a handler waits arrives afterwards, whole and in order,
// whether it comes from the system or straight to a control.
#include "platform/qt/inputhold.h"
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
#include <vector>

namespace vantrel::test {
namespace {

using ::testing::ElementsAre;

// Two boxes and a button; Enter in a box, Alt+G and a click start the handler, which waits.
struct Window : QWidget {
    Window() : first(new QLineEdit(this)), second(new QLineEdit(this)) {
        go = new QPushButton(QStringLiteral("&Go"), this);
        auto* layout = new QVBoxLayout(this);
        for (QWidget* control : {static_cast<QWidget*>(first), static_cast<QWidget*>(second),
                                 static_cast<QWidget*>(go)})
            layout->addWidget(control);
        connect(go, &QPushButton::clicked, this, [this] { handle(); });
        for (QLineEdit* box : {first, second})
            connect(box, &QLineEdit::returnPressed, this, [this] { handle(); });
    }

    void handle() {
        waitAndLog();
        if (const auto next = std::exchange(afterHandler, nullptr))
            next();
    }

    void waitAndLog() {
        const InputHold::Scope scope(hold);
        log.push_back("begin " + shown());
        const QPointer<Window> self(this);
        QEventLoop loop;
        waiting = &loop;
        QTimer::singleShot(40, &loop, &QEventLoop::quit);
        if (!pending.empty()) {
            QTimer::singleShot(5, this, pending.front());
            pending.erase(pending.begin());
        }
        loop.exec();
        waiting = nullptr;
        ASSERT_TRUE(self) << "the window went while its handler was running";
        if (const auto next = std::exchange(afterWait, nullptr))
            next();
        log.push_back("end " + shown());
    }

    std::string shown() const { return fromQt(first->text()) + '|' + fromQt(second->text()); }

    QLineEdit* first;
    QLineEdit* second;
    QPushButton* go;
    QEventLoop* waiting = nullptr;
    int givenUp = 0;
    InputHold hold{this, [this] {
                       ++givenUp;
                       waiting->quit();
                   }};
    std::vector<std::function<void()>> pending; // run inside the first, second ... wait
    std::function<void()> afterWait;            // in the scope
    std::function<void()> afterHandler;         // behind it, where errors are shown
    std::vector<std::string> log;
};

// Keys either come from the system to the window, or a test hands them to a control.
enum class Source { system, control };

struct Holding : ::testing::TestWithParam<Source> {
    Holding() {
        window.show();
        window.activateWindow();
        window.first->setFocus();
        QCoreApplication::processEvents();
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        if (GetParam() == Source::system)
            QTest::keyClick(window.windowHandle(), key, modifiers);
        else
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void keys(const char* text) {
        for (const char* character = text; *character != '\0'; ++character) {
            if (GetParam() == Source::system)
                QTest::keyClick(window.windowHandle(), *character);
            else
                QTest::keyClick(QApplication::focusWidget(), *character);
        }
    }
    static void click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    static void settle() { QTest::qWait(150); }

    Window window;
};

TEST_P(Holding, KeysTypedDuringTheWaitComeAfterTheHandlerAndFollowTheFocus) {
    window.pending = {[this] {
        keys("cd");
        key(Qt::Key_Tab);
        keys("ef");
    }};
    keys("ab");
    key(Qt::Key_Return);
    settle();
    EXPECT_THAT(window.log, ElementsAre("begin ab|", "end ab|"));
    EXPECT_EQ(window.shown(), "abcd|ef");
}

TEST_P(Holding, EachKeptEnterRunsItsHandlerBeforeTheNextKeyArrives) {
    window.pending = {[this] {
                          key(Qt::Key_Return);
                          keys("b");
                      },
                      [this] {
                          keys("c"); // while b is still kept
                          key(Qt::Key_Return);
                      }};
    keys("a");
    key(Qt::Key_Return);
    settle();
    EXPECT_THAT(window.log,
                ElementsAre("begin a|", "end a|", "begin a|", "end a|", "begin abc|", "end abc|"));
}

// Another handler of the page lets the window live for a while, too.
TEST_P(Holding, KeysTypedWhileKeptOnesAreDeliveredComeBehindThem) {
    window.pending = {[this] {
        key(Qt::Key_Return);
        keys("b");
    }};
    keys("a");
    window.afterWait = [this] {
        window.afterWait = [this] {
            window.afterHandler = [this] {
                QTimer::singleShot(5, &window, [this] { keys("c"); });
                QTest::qWait(30);
            };
        };
    };
    key(Qt::Key_Return);
    settle();
    EXPECT_EQ(window.shown(), "abc|");
}

TEST_P(Holding, ShortcutsAndClicksKeepTheirPlace) {
    window.pending = {[this] {
        keys("b");
        key(Qt::Key_G, Qt::AltModifier);
        keys("c");
        click(window.go);
        keys("d");
    }};
    keys("a");
    key(Qt::Key_Return);
    settle();
    EXPECT_THAT(window.log, ElementsAre("begin a|", "end a|", "begin ab|", "end ab|", "begin abc|",
                                        "end abc|"));
    EXPECT_EQ(window.shown(), "abcd|");
}

// The handler's own boxes stand inside the scope, an error's box behind it.
TEST_P(Holding, KeptKeysDoNotAnswerMessageBoxesAndTheirOwnKeysDo) {
    for (std::function<void()> Window::*moment : {&Window::afterWait, &Window::afterHandler}) {
        SCOPED_TRACE(moment == &Window::afterWait ? "inside" : "behind");
        window.first->clear();
        window.log.clear();
        window.pending = {[this] {
            key(Qt::Key_Escape);
            key(Qt::Key_Return);
            keys("x");
        }};
        int answer = -1;
        bool boxStood = false;
        window.*moment = [&] {
            QMessageBox box(QMessageBox::NoIcon, QString(), QStringLiteral("?"),
                            QMessageBox::Yes | QMessageBox::No, &window);
            QTimer::singleShot(60, &box, [&] {
                boxStood = box.isVisible();
                if (GetParam() == Source::system)
                    QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
                else
                    QTest::keyClick(&box, Qt::Key_Escape);
            });
            answer = box.exec();
            window.activateWindow();
        };
        keys("a");
        key(Qt::Key_Return);
        settle();
        EXPECT_TRUE(boxStood);
        EXPECT_EQ(answer, QMessageBox::No);
        EXPECT_THAT(window.log, ElementsAre("begin a|", "end a|", "begin a|", "end a|"));
        EXPECT_EQ(window.shown(), "ax|");
    }
}

TEST_P(Holding, ClosingTheWindowEndsTheWaitAndHappensAfterTheHandler) {
    window.pending = {[this] {
        keys("b");
        key(Qt::Key_Return);
        window.close();
        EXPECT_TRUE(window.isVisible());
    }};
    keys("a");
    key(Qt::Key_Return);
    EXPECT_EQ(window.givenUp, 1);
    settle();
    EXPECT_FALSE(window.isVisible());
    EXPECT_THAT(window.log, ElementsAre("begin a|", "end a|"));
}

TEST_P(Holding, WithoutAWaitNothingIsHeldBack) {
    keys("a");
    key(Qt::Key_Return);
    keys("b");
    EXPECT_EQ(window.shown(), "ab|");
}

INSTANTIATE_TEST_SUITE_P(Keys, Holding, ::testing::Values(Source::system, Source::control),
                         [](const auto& row) {
                             return row.param == Source::system ? "FromTheSystem" : "ToAControl";
                         });

// The window may be the only owner of what its handlers use, and be deleted by its closing.
TEST(HoldingAWindow, ThatIsDeletedOnCloseLeavesNothingBehind) {
    const QPointer<Window> window(new Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    window->first->setFocus();
    window->pending = {[window] {
        QTest::keyClick(window->first, Qt::Key_Return);
        window->close();
    }};
    QTest::keyClick(window->first, Qt::Key_Return);
    EXPECT_TRUE(window);
    QTest::qWait(100);
    EXPECT_FALSE(window);
}

} // namespace
} // namespace vantrel::test
