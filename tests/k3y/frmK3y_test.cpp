// SPDX-License-Identifier: MIT
// The event's screens: dupe question, tag, call area and standings.
#include "support/qt/formharness.h"

#include <QLineEdit>

namespace vantrel::test {
namespace {

constexpr const char* mainPage = "frmVantrelMain";
constexpr const char* startPage = "frmVantrelStart";
constexpr const char* dupeBox = "frmCheckDupeK3Y";
constexpr const char* tagBox = "frmK3Ybox";
constexpr const char* areaPage = "frmVantrelCallArea";
constexpr const char* areas = "frmK3YStandings";
constexpr const char* regions = "frmK3YStandings2";

std::string eventLog(const std::string& contacts) {
    return logOf({&Fields::hisCall, &Fields::frequency, &Fields::hisNumber, &Fields::marker},
                 contacts);
}

class K3yEvent : public ::testing::Test, protected FormHarness {
protected:
    K3yEvent() {
        module.settings = {"W1ABC", "K3Y",  "0",    "None", "JOHN",    "MA", "1234T",
                           "None",  "None", "None", "K3Y",  "K3Y.CBR", "",   "YES"};
    }
    void openMainPage(const std::string& contacts) {
        folder.write("K3Y.CBR", eventLog(contacts));
        screens.open(Screen::main);
        settle();
    }
    void pressButton(const char* page, const char* button) {
        click(page, button);
        settle();
    }
    void logAgain() {
        work(mainPage, "Text2=GB0SKC Text3=TOM Text4=MA Text5=77T Command3");
        settle();
        EXPECT_TRUE(form(dupeBox)->isModal());
    }
    std::string boxes() const { return texts(mainPage, "Text2 Text3 Text4 Text5"); }
    // A page's filled cells and what they show, and the total.
    std::string filled(const char* page) const {
        std::string texts;
        for (const QLineEdit* cell : form(page)->findChildren<QLineEdit*>())
            if (cell->palette().color(QPalette::Base) == QColor(Qt::blue) &&
                cell->palette().color(QPalette::Text) == QColor(Qt::white))
                texts += cell->objectName().toStdString() + '=' + cell->text().toStdString() + "; ";
        return texts + shown(page, "Label2");
    }
};

TEST_F(K3yEvent, ADupeIsLoggedOrDroppedAtTheOperatorsWord) {
    const std::string worked = "GB0SKC 14060 77T K3Y/EU";
    openMainPage(worked);
    logAgain();
    form(dupeBox)->close();
    settle();
    EXPECT_EQ(boxes(), " | | | |");
    EXPECT_EQ(QApplication::focusWidget(), control(mainPage, "Text2"));
    click(mainPage, "Command12"); // AUDIO OFF
    logAgain();
    EXPECT_EQ(sound.alarms, 1);
    // The box stays until the line is on the disk.
    calls.failAt(Call::sync, 1, ENOSPC);
    clickFor("Run-time error 61: Disk full", dupeBox, "Command2");
    EXPECT_EQ(folder.read("K3Y.CBR"), eventLog(worked));
    calls.failAt(Call::write, 2, ENOSPC); // the worked stations
    clickFor("Run-time error 61: Disk full", dupeBox, "Command2");
    EXPECT_FALSE(isOpen(dupeBox));
    EXPECT_EQ(folder.read("K3Y.CBR"), eventLog(worked + ";GB0SKC 14050 77T DUPE"));
    EXPECT_EQ(boxes(), "||||");
}

TEST_F(K3yEvent, AKeyChoosesATagAndIsOkAndEnterAloneIsOkOnly) {
    openMainPage("");
    std::string chosen;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_E, Qt::Key_F, Qt::Key_A, Qt::Key_O, Qt::Key_N,
                              Qt::Key_X, Qt::Key_S, Qt::Key_Enter}) {
        for (int i = 0; i < 2; ++i) // loads again while it shows
            screens.open(Screen::k3yBox);
        settle();
        QTest::keyClick(QApplication::focusWidget(), key);
        settle();
        EXPECT_FALSE(isOpen(tagBox));
        chosen += module.marker;
    }
    EXPECT_EQ(chosen, "      K3Y/EUK3Y/AFK3Y/ASK3Y/OCK3Y/NA      K3Y/SAK3Y/SA");
}

TEST_F(K3yEvent, ACallAreaGivesTheLogsNameUntilItIsAborted) {
    clock.time = {2010, 1, 5, 20, 0, 0};
    screens.open(Screen::start);
    work(startPage, "Text2=kh6/w1a/4 Text9=MINE.CBR");
    choose(startPage, "Combo5", "5"); // not saved yet: 01:00 UTC the next day
    click(startPage, "Option4");
    for (int i = 0; i < 2; ++i)
        press(areaPage, "List1", Qt::Key_End); // chooses as a click does
    EXPECT_EQ(shown(startPage, "Text9"), "2010-01-06-K3Y-OC-KH6-W1A-4.CBR");
    pressButton(areaPage, "Command2");
    EXPECT_FALSE(isOpen(areaPage));
    EXPECT_EQ(shown(startPage, "Text9"), "MINE.CBR");
}

// The first contact stays in its cell, be it a dupe; other bands and other calls fill nothing.
// Area 5 on 15M counts until 20M is worked, and never afterwards.
TEST_F(K3yEvent, StandingsOfTheAreasFillACellOnEachBand) {
    openMainPage("K3Y/1 1820; K3Y/2 3550; K3Y/3 7030 3T; K3Y/3 7045 33T; K3Y/4 10120 44 DUPE;"
                 "K3Y/5 21050 1T; K3Y/5 21051 2T; K3Y/5 14050 3T; K3Y/5 21052 4T; K3Y/6 18080;"
                 "K3Y/7 21050; K3Y/8 24910; K3Y/9 28050; K3Y/0 28050 NONE; QSO: 7030;"
                 "K3Y/1 50100; K3Y/1 5332; K3Y/1 -; K3Y/EU; K3Y; K3Y/1/P; W1AB1; K3Y/X; k3y/1");
    pressButton(mainPage, "Command11");
    EXPECT_EQ(filled(areas),
              "Text1=1234  ; "
              "Text11=1234  ; Text21=3T    ; Text31=44    ; Text41=3T    ; Text43=2T    ; "
              "Text51=1234  ; Text61=1234  ; Text71=1234  ; Text81=1234  ; Text90=NONE  ; "
              "TOTAL:  12");
    // Each reads the log anew, and asked for while one shows they do so again.
    folder.write("K3Y.CBR", eventLog("K3Y/1 1820 1T"));
    pressButton(areas, "Command2");
    EXPECT_FALSE(isOpen(areas));
    pressButton(regions, "Command2");
    EXPECT_EQ(filled(areas), "Text1=1T    ; TOTAL:  1");
    std::ignore = module.log.append(contactLine({.frequency = " 3550", .hisCall = "K3Y/KL7"}));
    module.log.reread();
    EXPECT_EQ(texts(areas, "Label22 Label101 Label102 Label201"), "BOTH PAGES:  2|1|-|1|");
}

// Outlying areas are told by their calls and count once, then for a continent; continents are
// told by the tag, and a call that ends in one takes the line's end for it. Alaska on 160M counts
// until 80M is worked.
TEST_F(K3yEvent, StandingsOfTheRegionsAreOutlyingAreasAndContinents) {
    openMainPage("K3Y/KH6 14050 1T K3Y/OC; K3Y/KH6 14051 2T K3Y/OC; K3Y/KH6 14052 3T K3Y/OC;"
                 "K3Y/KL7 1820 1T; K3Y/KL7 1821 2T; K3Y/KL7 3550 3T; K3Y/KL7 1822 4T;"
                 "K3Y/KP4 21040 4T; K3Y/KH 28040 5T; K3Y/1; K3Y/K; K3Y/KX; W1ABC/KH; W1A/KH;"
                 "K3Y/KH 50100; VK2SKC 28040 1T K3Y/OC; GB0SKC 7030 1T K3Y/EU;"
                 "K3Y/SA 14050 1T K3Y/SA; K3Y/AF 1820 1T K3Y/AS; EA8ABC 3550 1T K3Y/AF;"
                 "VE3SKC 10110 1T K3Y/NA; G3ABC/EU 21050 1T XXXXSA; G3ABC 7030 1T XXXXSA;"
                 "K3Y/EU; K3Y/EU 14050 1T DUPE; GB0SKC 14050 1T DUPE; QSOEU");
    screens.open(Screen::standings2);
    EXPECT_EQ(filled(regions),
              "Text115=1T    ; "
              "Text119=5T    ; Text221=2T    ; Text222=3T    ; Text337=4T    ; Text444=VE3SKC; "
              "Text555=K3Y/SA; Text557=G3ABC/EU; Text663=GB0SKC; Text772=EA8ABC; Text881=K3Y/AF; "
              "Text995=K3Y/KH6; Text999=VK2SKC; TOTAL:  14");
}

} // namespace
} // namespace vantrel::test
