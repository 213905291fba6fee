// SPDX-License-Identifier: MIT
// What is typed and clicked arrives: whole and in order after a handler that waits, a held key
// once, and in place of padding.
#include "forms/formbuilder.h"
#include "forms/inputhold.h"
#include "forms/keyguard.h"
#include "platform/qt/latin1.h"
#include "support/testing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace vantrel::test {
namespace {

using Step = std::function<void()>;

// Two boxes and a button; Enter in a box, Alt+G and a click start the handler, which waits.
struct Page : QWidget {
    explicit Page(std::string& itsStory) : story(itsStory) {
        auto* layout = new QVBoxLayout(this);
        for (QWidget* control : std::initializer_list<QWidget*>{first, second, go})
            layout->addWidget(control);
        connect(go, &QPushButton::clicked, this, &Page::handle);
        for (QLineEdit* box : {first, second})
            connect(box, &QLineEdit::returnPressed, this, &Page::handle);
        show();
        activateWindow();
        first->setFocus();
        QCoreApplication::processEvents();
    }

    void handle() {
        {
            const InputHold::Scope scope(hold);
            story += '<' + shown();
            run(&Page::whileWaiting);
            QCoreApplication::processEvents();
            run(&Page::afterWait);
            story += ' ' + shown() + '>';
        }
        run(&Page::afterHandler);
    }
    void run(Step Page::*step) {
        if (const Step now = std::exchange(this->*step, nullptr))
            now();
    }
    std::string shown() const { return fromQt(first->text()) + '|' + fromQt(second->text()); }

    QLineEdit* first = new QLineEdit(this);
    QLineEdit* second = new QLineEdit(this);
    QPushButton* go = new QPushButton(QStringLiteral("&Go"), this);
    InputHold hold{this, [] {}};
    Step whileWaiting; // in the next handler
    Step afterWait;    // in the scope, where the handler's own boxes stand
    Step afterHandler; // behind it, where an error's box stands
    std::string& story;
};

// Keys come from the system to the window.
struct Holding : ::testing::Test {
    static void key(QWidget* window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window->windowHandle(), key, modifiers);
    }
    // Small letters, and "\t", "\n" and "!" for Tab, Enter and Alt+G.
    void type(std::string_view keys) const {
        for (const char character : keys)
            if (character == '!')
                key(page.get(), Qt::Key_G, Qt::AltModifier);
            else
                key(page.get(), character == '\n'   ? Qt::Key_Return
                                : character == '\t' ? Qt::Key_Tab
                                                    : Qt::Key(Qt::Key_A + character - 'a'));
    }

    std::string story;
    const std::unique_ptr<Page> page = std::make_unique<Page>(story);
};

TEST_F(Holding, KeysShortcutsAndClicksComeAfterTheHandlerInOrderAndFollowTheFocus) {
    page->whileWaiting = [this] {
        type("b\nc!d\te");
        QTest::mouseClick(page->go, Qt::LeftButton);
        page->whileWaiting = [this] { type("f"); }; // while c to e are still kept
        page->afterHandler = [this] {
            page->afterHandler = [this] { // and while they are being delivered
                type("g");
                QCoreApplication::processEvents();
            };
        };
    };
    type("a\n");
    QTest::qWait(50);
    EXPECT_EQ(story, "<a| a|><ab| ab|><abc| abc|><abcd|e abcd|e>");
    EXPECT_EQ(page->shown(), "abcd|efg");
}

TEST_F(Holding, KeptKeysDoNotAnswerMessageBoxesAndTheirOwnKeysDo) {
    for (Step Page::*moment : {&Page::afterWait, &Page::afterHandler}) {
        page->first->clear();
        story.clear();
        page->whileWaiting = [this] {
            key(page.get(), Qt::Key_Escape);
            type("\nx");
        };
        int answer = -1;
        page.get()->*moment = [this, &answer] {
            QMessageBox box(QMessageBox::NoIcon, {}, QStringLiteral("?"),
                            QMessageBox::Yes | QMessageBox::No, page.get());
            QTimer whenActive(&box); // on a slow machine later than its first picture
            QObject::connect(&whenActive, &QTimer::timeout, &box, [&] {
                if (QApplication::focusWidget()->window() != &box)
                    return;
                whenActive.stop();
                story += " box";
                key(&box, Qt::Key_Escape);
            });
            whenActive.start(60);
            answer = box.exec();
            page->activateWindow();
        };
        type("a\n");
        QTest::qWait(50);
        const bool inside = moment == &Page::afterWait;
        EXPECT_EQ(story, inside ? "<a| box a|><a| a|>" : "<a| a|> box<a| a|>");
        EXPECT_EQ(answer, QMessageBox::No);
        EXPECT_EQ(page->shown(), "ax|");
    }
}

// A held Enter counts once, also where the X server's repeats come without their mark: as a release
// and a press at one moment. Enter pressed twice in one moment, and never long, is typed.
TEST(KeyGuard, TakesTheRepeatsOfAHeldEnterAndNoneThatIsTyped) {
    const KeyGuard guard;
    QLineEdit box;
    int entered = 0;
    QObject::connect(&box, &QLineEdit::returnPressed, [&entered] { ++entered; });
    for (const auto& [moments, times] :
         {std::pair{std::vector{1000, 1500, 1500, 1533, 1533, 1566}, 1},
          {std::vector{2000, 2009, 2009, 2018, 2018, 2018}, 3},
          {std::vector{3000, 3400, 3401, 3500}, 2}}) {
        entered = 0;
        for (std::size_t i = 0; i < moments.size(); ++i) {
            QKeyEvent key(i % 2 == 0 ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_Return, {});
            key.setTimestamp(static_cast<quint64>(moments[i]));
            QApplication::sendEvent(&box, &key);
        }
        EXPECT_EQ(entered, times) << moments.front();
    }
}

TEST(Controls, TakeTheOperatorsKeysAndClicks) {
    QWidget form;
    FormBuilder build(&form);
    QLineEdit* box = build.text("Text1", 6);
    QRadioButton* option = build.option("Option1", "SKS");
    option->setGeometry(0, 40, 400, 20);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));

    // What is typed stands in place of the padding.
    box->setFocus();
    const std::tuple<const char*, int, const char*, const char*> rows[] = {
        {"JO    ", 6, "HN", "JOHN"},  {"JO    ", 1, "X", "JXO"},   {"      ", 6, "K9SKC", "K9SKC"},
        {" ", 1, "K1ABCD", "K1ABCD"}, {"AL ", 3, "B C", "AL B C"}, // a blank between words
        {"K1ABCD", 6, "E", "K1ABCD"}};
    for (const auto& [before, cursor, typed, after] : rows) {
        box->setText(QString::fromLatin1(before));
        box->setCursorPosition(cursor);
        QTest::keyClicks(box, QString::fromLatin1(typed));
        EXPECT_EQ(box->text().toStdString(), after) << '"' << before << '"';
    }

    // Behind its text, too.
    QTest::mouseClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(350, 10));
    EXPECT_TRUE(option->isChecked());
}

} // namespace
} // namespace vantrel::test
