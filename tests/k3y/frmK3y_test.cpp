// SPDX-License-Identifier: MIT
// The event's screens: dupe question, tag, call area and standings.
#include "log/shortlog.h"
#include "support/qt/formharness.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
        const char* typed[][2] = {
            {"Text2", "GB0SKC"}, {"Text3", "TOM"}, {"Text4", "MA"}, {"Text5", "77T"}};
        for (const auto& [box, text] : typed)
            type(mainPage, box, text);
        pressButton(mainPage, "Command3");
        EXPECT_TRUE(form(dupeBox)->isModal());
    }
    std::string boxes() const {
        return shown(mainPage, "Text2") + shown(mainPage, "Text3") + shown(mainPage, "Text4") +
               shown(mainPage, "Text5");
    }
    // The objectNames of a page's filled cells and what they show, and the total.
    std::string filled(const char* page) const {
        std::string result;
        for (const QLineEdit* cell : form(page)->findChildren<QLineEdit*>())
            if (cell->palette().color(QPalette::Base) == QColor(Qt::blue) &&
                cell->palette().color(QPalette::Text) == QColor(Qt::white))
                result +=
                    cell->objectName().toStdString() + " " + cell->text().toStdString() + "; ";
        return result + shown(page, "Label2");
    }
};

TEST_F(K3yEvent, ADupeIsLoggedOrDroppedAtTheOperatorsWord) {
    const std::string worked = "GB0SKC 14060 77T K3Y/EU";
    openMainPage(worked);
    for (const std::string number : {"78T", "77T"}) { // only the same operator is a dupe
        folder.write("SKSDB5.TXT", "GB0SKC    " + number + "       TOM       MA \r\n");
        type(mainPage, "Text2", "GB0SKC");
        if (number == "77T")
            messages.expect(" <<<<<< THIS IS A DUPLICATE QSO >>>>>> ");
        press(mainPage, "Text2", Qt::Key_Return);
    }
    sound.alarms = 0;
    module.marker = "K3Y/EU";
    const std::function<void()> ways[] = {[&] { click(dupeBox, "Command1"); },
                                          [&] { press(dupeBox, "Command1", Qt::Key_Escape); },
                                          [&] { form(dupeBox)->close(); }};
    for (const auto& leave : ways) {
        logAgain();
        leave();
        settle();
        EXPECT_FALSE(isOpen(dupeBox));
        EXPECT_EQ(folder.read("K3Y.CBR"), eventLog(worked));
        EXPECT_EQ(boxes(), "    ");
        EXPECT_EQ(QApplication::focusWidget(), control(mainPage, "Text2"));
    }
    EXPECT_EQ(sound.alarms, 3);
    click(mainPage, "Command12"); // AUDIO OFF
    logAgain();
    EXPECT_EQ(sound.alarms, 3);
    // The box stays until the line is on the disk.
    calls.failAt(Call::sync, 1, ENOSPC);
    messages.expect("Run-time error 61: Disk full");
    pressButton(dupeBox, "Command2");
    calls.heal();
    EXPECT_EQ(folder.read("K3Y.CBR"), eventLog(worked));
    calls.failAt(Call::write, 2, ENOSPC); // the worked stations
    messages.expect("Run-time error 61: Disk full");
    pressButton(dupeBox, "Command2");
    EXPECT_FALSE(isOpen(dupeBox));
    EXPECT_EQ(folder.read("K3Y.CBR"), eventLog(worked + ";GB0SKC 14050 77T DUPE"));
    EXPECT_EQ(boxes(), "");
    EXPECT_EQ(module.marker, "K3Y/EU"); // for the next contact
}

TEST_F(K3yEvent, EachTagHoldsAtOnceAndOpeningTheBoxAgainClearsItButNotTheTag) {
    openMainPage("");
    const char* tags[] = {"K3Y/EU", "K3Y/AF", "K3Y/AS", "K3Y/OC", "K3Y/NA", "K3Y/SA", "      "};
    for (int choice = 6; choice >= 0; --choice) {
        click(mainPage, "Option1");
        for (const QRadioButton* option : form(tagBox)->findChildren<QRadioButton*>())
            EXPECT_FALSE(option->isChecked());
        click(tagBox, ("Option" + std::to_string(choice + 1)).c_str());
        const std::string tag = tags[choice];
        EXPECT_EQ(module.marker, tag);
        EXPECT_EQ(shown(mainPage, "Label23"), choice == 6 ? "   None     " : "-- " + tag + " --");
        pressButton(tagBox, "Command1");
        EXPECT_FALSE(isOpen(tagBox));
    }
}

TEST_F(K3yEvent, ACallAreaGivesTheLogsNameUntilItIsAborted) {
    clock.time = {2010, 1, 5, 20, 0, 0};
    screens.open(Screen::start);
    type(startPage, "Text2", "w1a/4");
    type(startPage, "Text9", "MINE.CBR");
    choose(startPage, "Combo5", "5"); // not saved yet: 01:00 UTC the next day
    click(startPage, "Option4");
    auto* list = control<QAbstractItemView>(areaPage, "List1");
    std::istringstream codes("01 02 03 04 05 06 07 08 09 00 KH KL KP NA SA EU AF AS OC");
    std::string code;
    for (int row = 0; codes >> code; ++row) {
        list->scrollTo(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualRect(list->model()->index(row, 0)).center());
        EXPECT_TRUE(shown(areaPage, "Label3").ends_with(code)) << code;
        EXPECT_EQ(shown(startPage, "Text9"), "2010-01-06-K3Y-" + code + "-W1A-4.CBR");
    }
    EXPECT_EQ(shown(areaPage, "Label3"), "Oceania\t   OC");
    pressButton(areaPage, "Command2");
    EXPECT_FALSE(isOpen(areaPage));
    EXPECT_EQ(shown(startPage, "Text9"), "MINE.CBR");
}

TEST_F(K3yEvent, StandingsAreTwoPagesThatReadTheLogAnewAndTakeEachOthersPlace) {
    openMainPage("K3Y/1 1820 1T; K3Y/1 28050 2T; K3Y/2 1820 3T; K3Y/0 28050 4T; K3Y/KH6 1820 5T;"
                 "K3Y/KL7 14050 6T; VK2SKC 28040 7T K3Y/OC");
    pressButton(mainPage, "Command11");
    EXPECT_EQ(filled(areas), "Text1 1T    ; Text9 2T    ; Text10 3T    ; Text90 4T    ; TOTAL:  4");
    pressButton(areas, "Command2");
    EXPECT_FALSE(isOpen(areas));
    EXPECT_EQ(filled(regions), "Text111 5T    ; Text225 6T    ; Text999 VK2SKC; TOTAL:  3");
    folder.write("K3Y.CBR", eventLog("K3Y/1 1820 1T"));
    pressButton(regions, "Command2");
    EXPECT_FALSE(isOpen(regions));
    EXPECT_EQ(filled(areas), "Text1 1T    ; TOTAL:  1");
    pressButton(areas, "Command1");
    EXPECT_FALSE(isOpen(areas));
    EXPECT_EQ(QApplication::focusWidget(), control(mainPage, "Text2"));
    std::filesystem::remove(folder.path() / "K3Y.CBR");
    messages.expect("Run-time error 53: File not found");
    pressButton(mainPage, "Command11");
    EXPECT_EQ(filled(areas), "");
}

} // namespace
} // namespace vantrel::test
