// SPDX-License-Identifier: MIT
// The stage of the tour: the real program in a folder of its own, a clock that the tour sets,
// pictures of every screen, and answers to the message boxes that come up.
#pragma once

#include "app/appscreens.h"
#include "fakes/fakeclock.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/qt/latin1.h"
#include "platform/qt/qtdevices.h"
#include "platform/systemcalls.h"
#include "shared/module1.h"
#include "support/qt/hands.h"
#include "support/testing.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <set>

namespace vantrel::test {

class Stage : public Hands {
public:
    // Everything is played in `where`, which is emptied first; pictures go to its "pictures"
    // folder.
    explicit Stage(const std::filesystem::path& where) : folder(emptied(where)) {}

    // Runs `action`, which must bring up a message box with this text; takes a picture of
    // it and presses Yes.
    void confirming(const std::string& text, const std::function<void()>& action) {
        std::string came;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            watch.stop();
            came = fromQt(box->text());
            save(box, "message");
            QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        });
        watch.start(50);
        action();
        EXPECT_EQ(came, text);
    }

    // Saves "NN-name.png" of the form as it looks now.
    void picture(const char* formName, const std::string& name) {
        QTest::qWait(50); // long enough for a real display to paint
        save(form(formName), name);
        checkForm(form(formName));
    }

    Folder folder;
    FakeClock clock;
    SystemCalls calls;
    Files files{folder.string(), calls};
    QtMessages messages;
    QtEventLoop eventLoop;
    std::unique_ptr<SerialPort> serialPort = makeSerialPort(files);
    std::unique_ptr<Sound> sound = makeSound();
    QtPrinter printer;
    QtLauncher launcher;
    Platform platform{files, clock, messages, eventLoop, *serialPort, *sound, printer, launcher};
    Module1 module{files};
    AppScreens screens{module, platform};

private:
    // Anybody else's folder is left alone.
    static std::filesystem::path emptied(const std::filesystem::path& where) {
        namespace fs = std::filesystem;
        const fs::path ownMark = where / ".vantrel-tour";
        if (fs::exists(where) && !fs::is_empty(where) && !fs::exists(ownMark))
            throw std::runtime_error(where.string() + " holds files that are not a tour's");
        fs::remove_all(where);
        fs::create_directories(where / "pictures");
        std::ofstream(ownMark) << "played here\n";
        return fs::canonical(where);
    }

    void save(QWidget* window, const std::string& name) {
        const std::string file = zeroPadded(++m_pictures, 2) + '-' + name + ".png";
        const auto path = folder.path() / "pictures" / file;
        // With its frame, and what lies around it: to look at.
        const bool whole = qEnvironmentVariableIsSet("VANTREL_TOUR_SCREEN");
        const QPixmap seen = whole ? window->screen()->grabWindow(0) : window->grab();
        EXPECT_TRUE(seen.save(QString::fromStdString(path.string()))) << path;
        std::ofstream controls(path.string() + ".txt"); // for scripts/contrast
        for (const QWidget* control : window->findChildren<QWidget*>()) {
            const QPoint corner = control->mapTo(window, QPoint());
            controls << control->metaObject()->className() << ' ' << corner.x() << ' '
                     << corner.y();
            for (const char* figure : {"width", "height", "visible", "enabled", "frame",
                                       "frameShape", "checked", "maximum", "flat"})
                controls << ' ' << control->property(figure).toInt();
            controls << ' ' << control->objectName().toStdString() << '\n';
        }
    }

    // What holds for every screen: Alt keys stand once, text is plain, all is seen.
    static void checkForm(QWidget* form) {
        static const std::set<std::string> alone{"frmVantrelStart", "frmVantrelMain",
                                                 "frmVantrelDupe"};
        EXPECT_TRUE(form->windowHandle()->transientParent() ||
                    alone.count(form->objectName().toStdString()))
            << form->objectName().toStdString() << " does not lie over the page that opened it";
        // The two captions of the backup page share a letter and are known so.
        std::set<QString> keys;
        for (const QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
            const QString key = QKeySequence::mnemonic(button->text()).toString();
            EXPECT_TRUE(key.isEmpty() || keys.insert(key).second ||
                        form->objectName() == u"frmVantrelBackup")
                << form->objectName().toStdString() << ' ' << button->text().toStdString();
        }
        for (const QLabel* label : form->findChildren<QLabel*>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
        const auto onScreen = [form] {
            return QGuiApplication::platformName() == u"offscreen" ||
                   form->screen()->availableGeometry().contains(form->frameGeometry());
        };
        EXPECT_TRUE(QTest::qWaitFor(onScreen)) // the window manager takes its time
            << form->objectName().toStdString() << " is not wholly on the screen";
    }

    int m_pictures = 0;
};

} // namespace vantrel::test
