// SPDX-License-Identifier: MIT
#include "support/qt/formharness.h"

#include <QTimer>

namespace vantrel::test {
namespace {

constexpr const char* choice = "frmSelectUpdateList";
constexpr const char* dataPage = "frmReadSKCCDATA";
constexpr const char* listPage = "frmVantrelUpdate";

class ImportPages : public ::testing::Test, public FormHarness {
protected:
    ImportPages() {
        screens.open(Screen::updateList);
        folder.write("skccdata.txt", "1T|N1AA|NED|TOWN|ME||||||\r\nbroken|line\r\n");
    }
};

TEST_F(ImportPages, DataListIsReadAndAMissingOneLeavesNothingOfAnEarlierImport) {
    click(choice, "Option1");
    eventLoop.onYield = [&] {
        for (const char* button : {"Command1", "Command2"})
            EXPECT_FALSE(control(dataPage, button)->isEnabled()) << button;
    };
    click(dataPage, "Command2");
    EXPECT_EQ(texts(dataPage, "Label2 Label3 Label7 Label6 Label5"),
              "2                        |DONE. . . . 1 MBRS ADDED. Click EXIT|2 LINES READ|"
              "0 NUMBERS CHANGED|1 LINE SKIPPED|");
    type(dataPage, "Text1", "nosuch.txt");
    clickFor("Run-time error 53: File not found", dataPage, "Command2");
    EXPECT_THAT(messages.shown.back().informative,
                HasSubstr("nosuch.txt\nDOWNLOAD IT FROM https://www.skccgroup.com"));
    EXPECT_EQ(texts(dataPage, "Label1 Label3"), "||");
    click(dataPage, "Command1"); // enabled again
}

TEST_F(ImportPages, OneWaitsForTheOtherSoThatBothBringTheirMembers) {
    click(choice, "Option1");
    click(choice, "Option2");
    clickFor("SKCCLIST.TXT IS NOT FOUND", listPage, "Command2");
    folder.write("SKSDB2.TXT", "K1ABC     0123C     JOE       CT \r\n");
    folder.write("SKCCLIST.TXT", "123|K1ABC|Joe|Town|CT|123T|\r\n");
    eventLoop.onYield = [&, told = false]() mutable {
        if (!std::exchange(told, true))
            clickFor("AN IMPORT IS RUNNING: WAIT FOR ITS END", listPage, "Command2");
    };
    click(dataPage, "Command2");
    click(listPage, "Command2");
    EXPECT_TRUE(folder.has("SKSDB3.TXT"));
    EXPECT_EQ(texts(listPage, "Label3 Label4 Label5"),
              "DONE...0 Mbrs Added...Click EXIT|1 SKCC#'s Fixed||");
    folder.write("SKCCLIST.TXT", "12|K1A|JOHN|X|MA||12|291|01 Jan 2006||\r\n");
    click(listPage, "Command2");
    EXPECT_EQ(shown(listPage, "Label5"),
              "1 LINE SKIPPED. THIS IS THE OTHER LIST: TAKE THE FIRST CHOICE");
}

TEST_F(ImportPages, TheListIsFetchedByItsProgram) {
    folder.write("rostfetch.exe", "");
    click(choice, "Option3");
    EXPECT_THAT(launcher.started, ElementsAre(files.path("rostfetch.exe")));
    launcher.missing = true;
    clickFor("Run-time error 53: File not found", choice, "Option3");
}

TEST_F(ImportPages, ClosedAtAnyStepItGivesUpButWhatIsBeingSavedIsSaved) {
    folder.write("skccdata.txt", "1T|N1AA|NED|" + std::string(130, 'Q') + "|ME||||||\r\n");
    for (const int last : {1, 2, 3, 4, 5}) {
        click(choice, "Option1");
        eventLoop.onYield = [&, turn = 0]() mutable {
            if (!isOpen(dataPage))
                return;
            if (++turn == last) // as with the real one, where the window may come to its end
                QTimer::singleShot(0, form(dataPage), &QWidget::close);
            QCoreApplication::processEvents();
        };
        click(dataPage, "Command2");
        settle();
        EXPECT_FALSE(isOpen(dataPage));
        EXPECT_EQ(folder.has("SKSDB3.TXT"), last == 5); // too late
    }
}

} // namespace
} // namespace vantrel::test
