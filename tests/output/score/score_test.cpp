// SPDX-License-Identifier: MIT
#include "base/fixedtext.h"
#include "log/shortlog.h"
#include "output/score/bonuscount.h"
#include "output/score/contestpicture.h"
#include "output/score/score.h"
#include "output/score/scorereport.h"
#include "shared/settings.h"
#include "support/errors.h"

namespace vantrel::test {
namespace {

using ::testing::HasSubstr;

Score scoreOf(const char* contest, const std::string& log, const char* bonusStation = "W4BON") {
    OperatingSettings settings;
    settings.contestCode = contest;
    settings.bonusStation = bonusStation;
    return computeScore(contactsIn(log), settings);
}

// The report's figures: QSOs, S/P/Cs or countries, C, T, S, bonus station, K9SKC or regular
// members, bonus, total.
std::string figures(const Score& score) {
    std::string result;
    for (const std::string& line : scoreReport(score, ""))
        result += line.empty() ? "" : line.substr(line.rfind(' ') + 1) + '/';
    return result;
}

TEST(Score, GivesTheFiguresByEachContestsRules) {
    const struct {
        const char* rule;
        const char* contest;
        const char* contacts; // call, number, state, kHz, marker
        const char* figures;
    } rows[] = {
        {"an empty log gives zeros", "SKS", "", "0/0/0/0/0/0/0/0/0/"},
        {"the club station counts on every band, not as a duplicate", "WES",
         "K9SKC 5S IL; K9SKC 5S IL 7050; K9SKC/9 5S IL; K9SKC 5S IL 3550 DUPE",
         "3/1/0/0/1/0/3/90/93/"},
        {"the bonus station counts by its whole call, not as a duplicate", "SKS",
         "W4BON NONE; W4BONX NONE; W4BON NONE MA 14050 DUPE__", "2/1/0/0/0/1/0/25/27/"},
        {"award numbers count once each, duplicates included", "K3Y",
         "A 1C; A 1C MA 7050; A 1T; A 2S MA 14050 DUPE; A 3S; A 1C__X", "5/1/1/1/2/0/0/45/50/"},
        {"a duplicate adds no region unless the log begins with it", "SKS",
         "A 1 NY 14050 DUPE; A 1 CT 14050 DUPE; A 1 MA; A 1 MA; A 1 _MA", "3/3/0/0/0/0/0/0/9/"},
        {"Europe: USA ALK HAW CAN DL DC YT \" MA\"; one regular member", "SKSE",
         "A 1 MA; A 1 NY; A 1 AK; A 1 HI; A 1 ON; A 1 QC; A 1 DL; A 1 DC; A 1 YT; A 1 USA; "
         "A 1 _MA; A 1 F 14050 DUPE",
         "11/8/0/0/0/0/11/1/89/"},
        {"Europe: a Senator is a regular member as well", "SKSE", "A 89S; W4BON 89S",
         "2/1/0/0/1/1/2/41/43/"},
        {"Europe: regular members shown may fall below zero", "SKSE",
         "A 1C MA 14050 DUPE; A 100W MA 14050 DUPE; A NONE MA 14050 DUPE; A 2T",
         "1/1/1/1/0/0/-3/15/16/"},
        {"Europe: a missing number is one member; NONEX is shown as nobody's", "SKSE",
         "A -; A -; A NONEX", "3/1/0/0/0/0/2/2/5/"},
        {"lines cut short have empty fields", "SKSE", "QSO;QSO: 14050 CW", "2/1/0/0/0/0/2/1/3/"},
    };
    const FieldList fields{&Fields::hisCall, &Fields::hisNumber, &Fields::hisState,
                           &Fields::frequency, &Fields::marker};
    for (const auto& [rule, contest, contacts, expected] : rows)
        EXPECT_EQ(figures(scoreOf(contest, logOf(fields, contacts))), expected) << rule;
    for (const char* contest : {"SKS", "SKSE"}) // no bonus station is not a contact without a call
        EXPECT_EQ(*scoreOf(contest, logOf(fields, "-"), "").bonusStationQsos, 0);
    for (const char* country : {"USA;AL;AR;AZ;CA;CO;CT;DE;FL;GA;IA;ID;IL;IN;KS;KY;LA;MA;MD;ME;MI;"
                                "MN;MO;MS;MT;NC;ND;NE;NH;NJ;NM;NV;NY;OH;OK;OR;PA;RI;SC;SD;TN;TX;UT;"
                                "VA;VT;WA;WI;WV;WY",
                                "CAN;NL;NS;QC;PE;ON;MB;AB;SK;BC;NB;NT;NU"})
        EXPECT_EQ(*scoreOf("SKSE", logOf({&Fields::hisState}, country)).multipliers, 1);
}

TEST(Score, AListTakesFourHundredValuesAndStopsBehindWhatWasReached) {
    const std::tuple<const char*, FieldList::value_type, const char*, const char*, const char*>
        rows[] = {{"SKS", &Fields::hisNumber, "C;", "Centurions", "401/1////////"},
                  {"SKS", &Fields::hisNumber, "T;", "Tribunes", "401/1////////"},
                  {"SKS", &Fields::hisNumber, "S;", "Senators", "401/1////////"},
                  {"SKS", &Fields::hisState, ";", "S/P/Cs", "401/////////"},
                  {"SKSE", &Fields::hisNumber, ";", "regular members", "401//0/0/0/////"}};
    for (const auto& [contest, field, suffix, list, reached] : rows) {
        std::string contacts;
        for (int i = 1; i <= 400; ++i)
            contacts += std::to_string(i) + suffix;
        EXPECT_NE(figures(scoreOf(contest, logOf({field}, contacts))).substr(3), reached + 3);
        const Score score = scoreOf(contest, logOf({field}, contacts + "401" + suffix));
        EXPECT_EQ(figures(score), reached);
        EXPECT_RUNTIME_ERROR(throw RuntimeError(score.stoppedBy.value()),
                             ErrorCode::subscriptOutOfRange,
                             std::string("the list of ") + list + " holds at most 400 entries");
    }
}

int bonus(const std::string& contacts) {
    return countBonusPoints(contactsIn(logOf({&Fields::hisCall, &Fields::hisName}, contacts)))
        .value();
}

TEST(BonusCount, AStationCountsOnceWithTheNumberAfterItsFirstSlash) {
    const std::pair<const char*, int> rows[] = {
        {"K1A JOHN; K1A /10", 10},        {"K1A JOHN/_25_X; QSO: 14050", 25},
        {"K1A JOHN/-5; K2A AL/7", 2},     {"K1A JOHN/25; K1A JOHN/30", 25},
        {"K1A JOHN/5/6; K1A ALAN/7", 5},  {"K1A ABCDEFGHI/; K1A JOHN/30", 0},
        {"K1AB JOHN/1; K1ABC JOHN/2", 3}, {"K1A A/32767", 32767}};
    for (const auto& [contacts, points] : rows)
        EXPECT_EQ(bonus(contacts), points) << contacts;
    // The column after the call belongs to what tells stations apart, the report does not.
    std::string log = logOf({&Fields::hisName, &Fields::rstReceived}, "A/3 599; A/4 439; A/5");
    log[75] = 'X';
    EXPECT_EQ(countBonusPoints(contactsIn(log)).value(), 7);
}

TEST(BonusCount, LimitsAreRunTimeErrors) {
    std::string contacts = "K1 A/9";
    for (int i = 2; i <= 200; ++i)
        contacts += "; K" + std::to_string(i) + " A/1";
    EXPECT_EQ(bonus(contacts + "; K1 A/1"), 208);
    EXPECT_RUNTIME_ERROR(bonus(contacts + "; K201 A/1"), ErrorCode::subscriptOutOfRange,
                         "the list of bonus stations holds at most 200 entries");
    for (const char* tooMuch : {"K1 A/32768", "K1 A/32767; K2 A/1"})
        EXPECT_RUNTIME_ERROR(bonus(tooMuch), ErrorCode::overflow, HasSubstr("32768"));
}

// "00Z 0 0 2 0 0 0 0 0 0 1": contacts by band; a break before it as "... ".
std::string picture(const std::string& contacts) {
    const std::string log =
        logOf({&Fields::date, &Fields::time, &Fields::frequency, &Fields::marker}, contacts);
    std::string result;
    for (const PictureHour& hour : contactsPerHour(contactsIn(log))) {
        result += (hour.afterBreak ? "... " : "") + zeroPadded(hour.hour, 2) + 'Z';
        for (const int count : hour.contacts)
            result += ' ' + std::to_string(count);
        result += '\n';
    }
    return result;
}

TEST(ContestPicture, ContactsPerHourAndBandOfTheLastFortyEightHours) {
    EXPECT_EQ(picture("07-01-2011 0000; 2011-06-30 2359; 2011-06-30 2300 7040; 2011-06-30 2301;"
                      "2011-06-30 0659 50125; 2011-06-30 2302 14050 DUPE; 2011-13-01;"
                      "0000-01-01; 2011-06-30 2400; 2011-06-30 12_0; QSO: 14050 CW"),
              "06Z 0 0 0 0 0 0 0 0 0 1\n"
              "... 23Z 0 0 1 0 2 0 0 0 0 0\n"
              "00Z 0 0 0 0 1 0 0 0 0 0\n");
    std::string contacts;
    for (int i = 0; i < 49; ++i)
        contacts += "2011-06-" + std::to_string(10 + i / 24) + ' ' + zeroPadded(i % 24, 2) + "00;";
    const std::string hours = picture(contacts);
    EXPECT_EQ(std::count(hours.begin(), hours.end(), 'Z'), 48);
    EXPECT_EQ(hours.substr(0, 2), "01");
}

} // namespace
} // namespace vantrel::test
