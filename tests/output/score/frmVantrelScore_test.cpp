// SPDX-License-Identifier: MIT
// The figures of the score and bonus pages by each contest's rules, and the picture of the hours.
#include "forms/stackedbars.h"
#include "output/score/ratesheet.h"
#include "output/score/scoretext.h"
#include "support/qt/formharness.h"

#include <QClipboard>
#include <QTableWidget>

namespace vantrel::test {
namespace {

constexpr const char* page = "frmVantrelScore";
const FieldList scored{&Fields::hisCall, &Fields::hisNumber, &Fields::hisState, &Fields::frequency,
                       &Fields::marker};
const std::string overflow = "Run-time error 6: Overflow";
const std::string tooMany = "Run-time error 9: Subscript out of range";

// numbered("K", 1, 2, " A;") is "K1 A;K2 A;".
std::string numbered(const std::string& before, int first, int last, const std::string& after) {
    std::string result;
    for (int i = first; i <= last; ++i)
        result.append(before).append(std::to_string(i)).append(after);
    return result;
}

class ScorePage : public ::testing::Test, public FormHarness {
protected:
    ScorePage() {
        folder.write("SKS.CBR", "");
        module.log.open("SKS.CBR");
        module.settings.bonusStation = "W4BON";
    }
    // What the page shows: QSOs, S/P/Cs or countries, C, T, S, bonus station, K9SKC or regular
    // members, bonus, total.
    std::string figures() {
        screens.open(Screen::score);
        return texts(page, "Text1 Text2 Text3 Text4 Text9 Text8 Text5 Text6 Text7") +
               (form(page)->findChild<StackedBars*>()->isVisible() ? "" : "no picture");
    }
    std::string opened(const char* contest, const std::string& contacts,
                       FieldList fields = scored) {
        module.settings.contestCode = contest;
        folder.write("SKS.CBR", logOf(fields, contacts));
        return figures();
    }
    std::string printed() {
        clickFor("The File has been sent to the Printer!", page, "Command2");
        return joinLines(printer.jobs.back());
    }
};

TEST_F(ScorePage, ShowsTheFiguresByEachContestsRules) {
    // The rule; contest; call, number, state, kHz and marker of each contact; figures.
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"an empty log gives zeros", "SKS", "", "0|0|0|0|0|0|0|0|0|no picture"},
        {"the club station counts on every band, not as a duplicate", "WES",
         "K9SKC 5S IL; K9SKC 5S IL 7050; K9SKC/9 5S IL; K9SKC 5S IL 3550 DUPE; K9SKC 5S IL 3550 "
         "_DUPE",
         "4|1|0|0|1|0|4|115|119|"},
        {"the bonus station counts by its whole call, not as a duplicate", "SKS",
         "W4BON NONE; W4BONX NONE; W4BON NONE MA 14050 DUPE__", "2|1|0|0|0|1|0|25|27|"},
        {"award numbers count once each, duplicates included", "K3Y",
         "A 1C; A 1C MA 7050; A 1T; A 2S MA 14050 DUPE; A 3S; A 1C__X", "5|1|1|1|2|0|0|45|50|"},
        {"a duplicate adds no region unless the log begins with it", "SKS",
         "A 1 NY 14050 DUPE; A 1 CT 14050 DUPE; A 1 MA; A 1 MA; A 1 _MA", "3|3|0|0|0|0|0|0|9|"},
        {"Europe: USA ALK HAW CAN DL DC YT \" MA\"; one regular member", "SKSE",
         "A 1 MA; A 1 NY; A 1 AK; A 1 HI; A 1 ON; A 1 QC; A 1 DL; A 1 DC; A 1 YT; A 1 USA; "
         "A 1 _MA; A 1 F 14050 DUPE",
         "11|8|0|0|0|0|11|1|89|"},
        {"Europe: a Senator is a regular member as well", "SKSE", "A 89S; W4BON 89S",
         "2|1|0|0|1|1|2|41|43|"},
        {"Europe: regular members shown may fall below zero", "SKSE",
         "A 1C MA 14050 DUPE; A 100W MA 14050 DUPE; A NONE MA 14050 DUPE; A 2T",
         "1|1|1|1|0|0|-3|15|16|"},
        {"Europe: a missing number is one member; NONEX is shown as nobody's", "SKSE",
         "A -; A -; A NONEX", "3|1|0|0|0|0|2|2|5|"},
    };
    for (const auto& [rule, contest, contacts, expected] : rows)
        EXPECT_EQ(opened(contest, contacts), expected) << rule;
    module.settings.bonusStation = "          "; // none: not that of a contact without a call
    for (const char* contest : {"SKS", "SKSE"})
        EXPECT_THAT(opened(contest, "-"), HasSubstr("1|1|0|0|0|0|"));
}

TEST_F(ScorePage, WhatCannotBeReachedStaysEmpty) {
    const std::tuple<const char*, FieldList::value_type, const char*, const char*, const char*>
        rows[] = {{"SKS", &Fields::hisNumber, "C;", "Centurions", "401|1||||||||"},
                  {"SKS", &Fields::hisState, ";", "S/P/Cs", "401|||||||||"},
                  {"SKSE", &Fields::hisNumber, ";", "regular members", "401||0|0|0|||||"}};
    for (const auto& [contest, field, suffix, name, reached] : rows) {
        const std::string contacts = numbered("", 1, 400, suffix);
        if (field == &Fields::hisState)
            messages.expect(overflow); // 400 times 400
        EXPECT_NE(opened(contest, contacts, {field}).substr(3), reached + 3);
        messages.expect(tooMany);
        EXPECT_EQ(opened(contest, contacts + "401" + suffix, {field}), reached);
        EXPECT_THAT(messages.shown.back().informative,
                    HasSubstr(std::string("the list of ") + name + " holds at most 400 entries"));
    }
    messages.expect(overflow);
    EXPECT_EQ(opened("SKS", numbered("K9SKC/", 1, 1310, " NONE;")), "1310|1|0|0|0|0|1310|32750||");
    EXPECT_EQ(messages.shown.back().informative, "THE WHOLE SCORE WOULD BE 34060");
    folder.write("SKS.CBR", numbered("QSO ", 0, Log::capacity, "\r\n"));
    messages.expect(tooMany);
    EXPECT_EQ(figures(), "|||||||||no picture");
    // What the main page says.
    EXPECT_EQ(scoreSum(ScoreTally(module.settings, module.log).score()), "SEE SCORE");
}

TEST_F(ScorePage, PrintsWhatItShows) {
    const char* contacts = "A 1C; A 1T; A 2T; A 1S; A 2S; A 3S; K9SKC NONE; K9SKC NONE; "
                           "K9SKC NONE; K9SKC NONE; W4BON NONE SC";
    EXPECT_EQ(opened("SKS", contacts), "11|2|1|2|3|1|4|195|217|");
    EXPECT_EQ(control<QTableWidget>(page, "Table1")->item(0, 1)->text(), u"11");
    const std::string path = folder.string() + "/SKS.CBR", labels = "Label4 Label7 Label13 Label14";
    EXPECT_EQ(texts(page, "Label1 Label20 " + labels),
              path + "|11 x 2 + 195|S/P/Cs:|K9SKC QSOs:|DUPES ARE NOT LOGGED| |");
    EXPECT_EQ(printed(), "\r\n\r\n" + path +
                             "\r\n\r\n       Number of QSOs: 11\r\n     Number of S/P/Cs: 2\r\n"
                             " Number of Centurions: 1\r\n   Number of Tribumes: 2\r\n"
                             "   Number of Senators: 3\r\nNumber Bonus Stn QSOs: 1\r\n"
                             " Number of K9SKC QSOs: 4\r\n   Total Bonus Points: 195\r\n\r\n"
                             "         TOTAL SCORE: 217\r\n");
    click(page, "Command3");
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("QSOs: 11\n"));
    const std::string half = "/" + std::string(40, 'A');
    EXPECT_EQ(joinLines(wrappedForPaper({half + half})), half + "/\r\n" + half.substr(1) + "\r\n");

    module.settings.dupeMode = "YES";
    EXPECT_EQ(opened("SKSE", contacts), "11|1|1|2|3|1|3|98|109|");
    EXPECT_EQ(texts(page, labels), "  DXCC Countries:|      Regular Members Worked: |"
                                   "DUPES ARE LOGGED|BUT NOT COUNTED|");
    EXPECT_EQ(printed(), "\r\n\r\n" + path +
                             "\r\n\r\n            Number of QSOs: 11\r\n"
                             "  Number of DXCC Countries: 1\r\n      Number of Centurions: 1\r\n"
                             "        Number of Tribumes: 2\r\n        Number of Senators: 3\r\n"
                             "  Number of Bonus Stn QSOs: 1\r\n    Regular Members Worked: 3\r\n"
                             "        Total Bonus Points: 98\r\n\r\n"
                             "               TOTAL SCORE: 109\r\n");
}

TEST_F(ScorePage, TheBonusPageCountsAStationOnceWithTheNumberAfterItsFirstSlash) {
    const FieldList fields{&Fields::hisCall, &Fields::hisName};
    const auto bonus = [this](const std::string& log) {
        folder.write("SKS.CBR", log);
        screens.open(Screen::bonus);
        return shown("frmCountBonus", "Label1");
    };
    const std::pair<const char*, int> rows[] = {
        {"K1A JOHN; K1A /10", 10},        {"K1A JOHN/_25_X; QSO: 14050", 25},
        {"K1A JOHN/-5; K2A AL/7", 2},     {"K1A JOHN/25; K1A JOHN/30", 25},
        {"K1A JOHN/5/6; K1A ALAN/7", 5},  {"K1A ABCDEFGHI/; K1A JOHN/30", 0},
        {"K1AB JOHN/1; K1ABC JOHN/2", 3}, {"K1A A/32767", 32767}};
    for (const auto& [contacts, points] : rows)
        EXPECT_EQ(bonus(logOf(fields, contacts)), "Total: " + std::to_string(points)) << contacts;
    // The column after the call belongs to what tells stations apart, the report does not.
    std::string log = logOf({&Fields::hisName, &Fields::rstReceived}, "A/3 599; A/4 439; A/5");
    log[75] = 'X';
    EXPECT_EQ(bonus(log), "Total: 7");
    const std::string contacts = "K1 A/9;" + numbered("K", 2, 200, " A/1;");
    EXPECT_EQ(bonus(logOf(fields, contacts + "K1 A/1")), "Total: 208");
    messages.expect(tooMany);
    EXPECT_EQ(bonus(logOf(fields, contacts + "K201 A/1")), "");
    messages.expect(overflow);
    EXPECT_EQ(bonus(logOf(fields, "K1 A/32767; K2 A/1")), "");
}

// "00Z 0 0 2 0 0 0 0 0 0 1": contacts by band; a break before it as "... ".
std::string picture(const std::string& contacts) {
    const std::string log =
        logOf({&Fields::date, &Fields::time, &Fields::frequency, &Fields::marker}, contacts);
    std::string result;
    for (const RateSheetBar& bar : rateSheet(contactsIn(log)).bars) {
        result += (bar.afterBreak ? "... " : "") + zeroPadded(bar.minuteOfDay / 60, 2) +
                  (bar.minuteOfDay % 60 == 0 ? "Z" : std::to_string(bar.minuteOfDay % 60));
        for (const int count : bar.contacts)
            result += ' ' + std::to_string(count);
        result += '\n';
    }
    return result;
}

TEST(RateSheet, ContactsByBandInHoursOrForAShortLogInTenMinutes) {
    EXPECT_EQ(picture("07-01-2011 0000; 2011-06-30 2359; 2011-06-30 2300 7040; 2011-06-30 2301;"
                      "2011-06-30 0659 50125; 2011-06-30 2302 14050 DUPE; 2011-13-01;"
                      "0000-01-01; 2011-06-30 2400; 2011-06-30 12_0; QSO: 14050 CW"),
              "06Z 0 0 0 0 0 0 0 0 0 1\n"
              "... 23Z 0 0 1 0 2 0 0 0 0 0\n"
              "00Z 0 0 0 0 1 0 0 0 0 0\n");
    EXPECT_EQ(picture("2011-06-30 2352; 2011-07-01 0011; 2011-07-01 0019 7050"),
              "2350 0 0 0 0 1 0 0 0 0 0\n00Z 0 0 0 0 0 0 0 0 0 0\n0010 0 0 1 0 1 0 0 0 0 0\n");
}

} // namespace
} // namespace vantrel::test
