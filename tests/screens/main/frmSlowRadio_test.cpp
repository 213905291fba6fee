// SPDX-License-Identifier: MIT
// The main page with a real port and a radio that takes its time: the operator types on.
#include "fakes/qt/ptyradio.h"
#include "platform/qt/qtserialport.h"
#include "support/contacts.h"
#include "support/qt/formharness.h"

#include <QTest>
#include <QTimer>
#include <QWindow>

#include <filesystem>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* page = "frmVantrelMain";
const std::string log = "SKS061611.CBR";

class SlowRadio : public ::testing::Test, public FormHarness {
protected:
    SlowRadio() {
        folder.write(log, logHeaderLines);
        folder.write("SKSDB2.TXT", "K1ABC     0123T     JOE       CT \r\n");
        std::filesystem::create_symlink(radio.device(), folder.path() / "com1");
        module.settings = settingsFor(radioNamed("Kenwood"));
        module.settings.myCall = "W1ABC";
        module.settings.myName = "JOHN";
        module.settings.myState = "MA";
        module.settings.myNumber = "1234T";
        module.settings.logFileName = log;
        radio.hertz = 7'025'000;
        realScreens.open(Screen::main);
        // The read after the first paint.
        EXPECT_TRUE(QTest::qWaitFor([this] { return shown(page, "Text7") == "7.025"; }));
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
            else
                QTest::keyClick(window, *keys);
        }
    }

    std::string logged() const { return folder.read(log).substr(logHeaderLines.size()); }

    PtyRadio radio{radioNamed("Kenwood")};
    QtSerialPort realPort{files};
    Platform realPlatform{files, clock, messages, eventLoop, realPort, sound, printer, launcher};
    AppScreens realScreens{module, realPlatform};
};

TEST_F(SlowRadio, CallEnterEnterAndTheNextCallTypedAheadAreTwoContacts) {
    QTimer::singleShot(30, form(page), [this] { typeOn("\nk1abc\n\n"); });
    module.settings.dupeMode = "YES";
    typeOn("k1abc\n");
    const std::string joe = contactLine({.frequency = " 7025",
                                         .hisCall = "K1ABC",
                                         .hisName = "JOE",
                                         .hisState = "CT",
                                         .hisNumber = "0123T"});
    const std::string both = joe + "\r\n" + joe.substr(0, 101) + "DUPE\r\n";
    ASSERT_TRUE(QTest::qWaitFor([&] { return logged().size() >= both.size(); }));
    EXPECT_EQ(logged(), both);
    EXPECT_EQ(radio.received(), "FA;FA;FA;FA;");
}

TEST_F(SlowRadio, ClosingThePageMidReadEndsItAtOnceAndLogsNothing) {
    QTimer::singleShot(30, form(page), [this] {
        typeOn("\n");
        form(page)->close();
    });
    radio.delay = 1500;
    QElapsedTimer clockOfRead;
    clockOfRead.start();
    typeOn("k1abc\n");
    EXPECT_LT(clockOfRead.elapsed(), radio.delay);
    QTest::qWait(50);
    EXPECT_FALSE(isOpen(page));
    EXPECT_EQ(logged(), "");
}

} // namespace
} // namespace vantrel::test
