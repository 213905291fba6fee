// SPDX-License-Identifier: MIT
// The main page with a real port and a radio that takes its time: the operator types on.
#include "fakes/qt/ptyradio.h"
#include "platform/qt/qtmessages.h"
#include "platform/qt/qtserialport.h"
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* page = "frmVantrelMain";
const std::string log = "SKS061611.CBR";

class SlowRadio : public ::testing::Test, public FormHarness {
protected:
    SlowRadio() {
        folder.write(log, logHeaderLines);
        folder.write("SKSDB2.TXT", "K1ABC     0123T     JOE       CT \r\n"
                                   "K1XYZ     0777S     ANN       NH \r\n");
        std::filesystem::create_symlink(radio.device(), folder.path() / "com1");
        module.settings = settingsFor(radioNamed("Kenwood"));
        module.settings.myCall = "W1ABC";
        module.settings.myName = "JOHN";
        module.settings.myState = "MA";
        module.settings.myNumber = "1234T";
        module.settings.logFileName = log;
        radio.hertz = 7'025'000;
        realScreens.open(Screen::main);
        QTest::qWait(50); // the read after the first paint
        EXPECT_EQ(shown(page, "Text7"), "7.025");
        EXPECT_EQ(shown(page, "Label10"), "40 Meters ");
        radio.forget();
        radio.delay = 300;
    }

    // As they come from the keyboard: to the window, whichever control has the focus by then.
    void typeOn(const char* keys) {
        QWindow* window = form(page)->windowHandle();
        for (; *keys != '\0'; ++keys) {
            if (*keys == '\n')
                QTest::keyClick(window, Qt::Key_Return);
            else if (*keys == '\t')
                QTest::keyClick(window, Qt::Key_Tab);
            else
                QTest::keyClick(window, *keys);
        }
    }

    void typeDuringRead(const char* keys) {
        QTimer::singleShot(30, form(page), [this, keys] { typeOn(keys); });
    }

    bool logHolds(std::size_t contacts) {
        return QTest::qWaitFor(
            [&] { return folder.read(log).size() >= logHeaderLines.size() + 109 * contacts; });
    }

    std::string logged() const { return folder.read(log).substr(logHeaderLines.size()); }

    static std::string contact(const ContactFields& fields) { return contactLine(fields) + "\r\n"; }

    PtyRadio radio{radioNamed("Kenwood")};
    QtSerialPort realPort{files};
    QtMessages realMessages;
    Platform realPlatform{files,    clock, realMessages, eventLoop,
                          realPort, sound, printer,      launcher};
    AppScreens realScreens{module, realPlatform};

    const std::string joe = contact({.frequency = " 7025",
                                     .hisCall = "K1ABC",
                                     .hisName = "JOE",
                                     .hisState = "CT",
                                     .hisNumber = "0123T"});
    const std::string ann = contact({.frequency = " 7025",
                                     .hisCall = "K1XYZ",
                                     .hisName = "ANN",
                                     .hisState = "NH",
                                     .hisNumber = "0777S"});
};

TEST_F(SlowRadio, CallEnterEnterLogsTheContact) {
    typeDuringRead("\n");
    typeOn("k1abc\n");
    ASSERT_TRUE(logHolds(1));
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(radio.received(), "FA;FA;");
}

TEST_F(SlowRadio, TheNextCallTypedAheadIsTheNextContact) {
    typeDuringRead("\nk1xyz\n\n");
    typeOn("k1abc\n");
    ASSERT_TRUE(logHolds(2));
    EXPECT_EQ(logged(), joe + ann);
    QTest::qWait(20);
    EXPECT_EQ(shown(page, "Text2"), "");
}

TEST_F(SlowRadio, AltLAndTheNextCallKeepTheirOrder) {
    QTimer::singleShot(30, form(page), [this] {
        QTest::keyClick(form(page)->windowHandle(), Qt::Key_L, Qt::AltModifier);
        typeOn("k1x");
    });
    typeOn("k1abc\n");
    ASSERT_TRUE(logHolds(1));
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown(page, "Text2") == "K1X"; }));
    EXPECT_EQ(logged(), joe);
}

// The radio is off: the box comes, and the Enter typed before it does not answer it.
TEST_F(SlowRadio, SilenceCostsABoxAndNoKeyAndTheFrequencyInTheBoxIsLogged) {
    radio.answer = nullptr;
    int boxes = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++boxes;
            QTest::keyClick(box->windowHandle(), Qt::Key_Return);
        }
    });
    watch.start(200);
    typeDuringRead("\n");
    typeOn("k1abc\n");
    ASSERT_TRUE(logHolds(1));
    EXPECT_EQ(logged(), joe);
    EXPECT_EQ(boxes, 2) << "one for SEARCH, one for LOG";
}

TEST_F(SlowRadio, ClosingThePageMidReadEndsItAtOnceAndLogsNothing) {
    QTimer::singleShot(30, form(page), [this] {
        typeOn("\n");
        form(page)->close();
    });
    QElapsedTimer clockOfRead;
    clockOfRead.start();
    typeOn("k1abc\n");
    EXPECT_LT(clockOfRead.elapsed(), 200);
    QTest::qWait(50);
    EXPECT_FALSE(isOpen(page));
    EXPECT_EQ(logged(), "");
}

} // namespace
} // namespace vantrel::test
