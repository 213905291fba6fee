// SPDX-License-Identifier: MIT
// The five roster files: brought up to date from the club's lists, sorted, and looked up in.
#include "roster/rosterfiles.h"
#include "roster/rosterimport.h"
#include "roster/rosterlookup.h"
#include "support/fakemachine.h"

namespace vantrel::test {
namespace {

using Counts = std::array<int, 3>; // members added and fixed, lines skipped

class RosterFiles : public ::testing::Test, protected FakeMachine {
protected:
    Counts import(MemberList list, const std::string& bytes) {
        folder.write("list.txt", bytes);
        const auto result =
            importMembers(files, list, "list.txt", [](const ImportStep&) { return true; });
        return {result.added, result.fixed, result.skipped};
    }
};

std::string record(const std::string& call, const std::string& number) {
    return leftAligned(call, 10) + leftAligned(number, 10) + "JOHN      MA \r\n";
}

TEST_F(RosterFiles, AListRewritesItsMembersInPlaceAndAddsTheOthersAtTheEnd) {
    // The blanks of K3C cost him his last letters; the record of K1AB is too short for a call's
    // columns; the number of W2OLD was right; K1ABC comes once more, in his place.
    const std::string list =
        "12C|  k1abc|christopher j|Some, Town|mass||1234|291|01 Jan 2010|02 Feb 2011|\r\n"
        " 12345t|K3C|   Maximilian|Some, Town| G||1234|291|01 Jan 2010|02 Feb 2011||\r\n"
        "8|K1AB|Zo\xEB\xDF|Some, Town|MA||1234|291|01 Jan 2010|02 Feb 2011|\n"
        "1|aa1a||Some, Town|ny||1234|291|01 Jan 2010|02 Feb 2011||\r\n"
        "6|W2OLD|Olga|Some, Town|NY||1234|291|01 Jan 2010|02 Feb 2011||\n"
        "12T|K1ABC|Chris|Some, Town|MA||1234|291|01 Jan 2010|02 Feb 2011|\n";
    // Only the lines of this file are padded.
    const std::string longer = "W9LONG    0005      LENNY     IL " + std::string(210, '.') + "\r\n";
    folder.write("SKSDB2.TXT", "K1ABC     0123C     JOHN      MA and more\n\r\n"
                               "K1ABC     0999      DOUBLE    MA \r\nK1AB");
    folder.write("SKSDB4.TXT", "W1\r\n" + longer + "W2OLD     0006      OLD       NY ");
    EXPECT_EQ(import(MemberList::data, list), (Counts{3, 2, 0}));
    EXPECT_EQ(folder.read("SKSDB1.TXT"), "AA1A      0001                NY \r\n");
    EXPECT_EQ(folder.read("SKSDB2.TXT"), "K1ABC     0012T     CHRIS     MA \r\n\r\n"
                                         "K1ABC     0999      DOUBLE    MA \r\nK1AB\r\n"
                                         "K3C       12345T    MAXIMIL   G  \r\n"
                                         "K1AB      0008      ZO\xCB\xDF      MA \r\n");
    EXPECT_EQ(folder.read("SKSDB4.TXT"), leftAligned("W1", 232) + "\r\n" + longer +
                                             leftAligned("W2OLD     0006      OLGA      NY ", 232) +
                                             "\r\n");
}

TEST_F(RosterFiles, HeadersAndBlankLinesAreNobodyAndShortLinesAreCounted) {
    const std::string town(178, 'Q'); // the last separator wanted is in column 200
    const std::string lines =
        "SKCCNR|A|B|C|D|E|F|G|H|I|J|\r\n\r\n  \r\n1|K1SHORT|JOHN|Q|MA|||||\r\n"
        "1|K1A|JOHN|X|MA|||||||more\r\n1| |JOHN|X|MA|||||||\r\nT1|K1A|JOHN|X|MA||||||\r\n"
        "1-2|K1A|JOHN|X|MA||||||\r\n2|K1FAR|JOHN|Q" +
        town + "|MA||||||\r\n3|K1FIT|JOHN|" + town + "|MA||||||";
    EXPECT_EQ(import(MemberList::data, lines), (Counts{1, 0, 6}));
    EXPECT_EQ(import(MemberList::members,
                     "skccnr|call|name|city|state|ccnr\r\n123|K1A|JOHN|X|MA|123T\r\n"
                     "124|K1B|JOHN|X|MA|124C|\r\n125|K1C|JOHN|X|MA|\r\n126|K1D|JOHN|X|MA\r\n"
                     "skccnr|call|name|city|state|date issued|ccnr\r\n"
                     "127|K1E|JOHN|X|MA|2010-01-02\r\n127|K1B|JOHN|X|MA|2010-01-02|5"),
              (Counts{3, 1, 2}));
    EXPECT_EQ(folder.read("SKSDB2.TXT"), record("K1FIT", "0003") + record("K1A", "0123T") +
                                             record("K1B", "0005") + record("K1C", "0125"));
}

TEST_F(RosterFiles, WhatIsNoMemberOfThisListGetsIntoNoFile) {
    folder.write("SKSDB2.TXT", record("K1A", "0123T"));
    folder.write("SKSDB1.TXT.BAK", "of an import before"); // when that file was there
    // The other list, whatever of it is filled in; then one that says so.
    const std::string other =
        "12|K1A|JOHN|X|MA||12|291|01 Jan 2006||\r\n13|K1A|JOHN|X|MA||||||\r\n";
    EXPECT_EQ(import(MemberList::members, other), (Counts{0, 0, 2}));
    const std::string header = "\xEF\xBB\xBFSKCCIN|CALL|NAME|QTH|SPC|OLDCALL|X|Y|Z|\r\n";
    EXPECT_EQ(import(MemberList::members, header + "15|K1A|JOHN|X|MA|15"), (Counts{0, 0, 1}));
    // Without a header a separator behind six fields is no seventh field.
    const std::string own = "1|K1A|JOHN|X|MA|1C|\r2|K1,B|JOHN|X|MA|2010-01-02|2T\r"
                            "3|K1C|JOHN|X|MA|2010-01-02|||\r4|K1D|JOHN|X|MA|2010-01-02\r";
    EXPECT_EQ(import(MemberList::members, own), (Counts{2, 1, 1}));
    import(MemberList::members, own); // changes no record, and so no copy of before
    EXPECT_EQ(folder.read("SKSDB1.TXT.BAK") + folder.read("SKSDB2.TXT.BAK"),
              record("K1A", "0123T"));
    EXPECT_EQ(folder.read("SKSDB2.TXT"),
              record("K1A", "0001C") + record("K1 B", "0002T") + record("K1C", "0003"));
}

TEST_F(RosterFiles, AListInAnyEncodingGivesRecordsInEightBitsWithoutControlCharacters) {
    // In this order: marked UTF-8, where the 200 columns are counted once converted; the same
    // without a mark; ISO 8859-1, which is no UTF-8; CP1252, whose quotes are control characters.
    const std::string wide(178, 'Q'), mark = "\xEF\xBB\xBF";
    const std::pair<std::string, const char*> rows[] = {
        {mark + "1|K1A|J\xC3\xB6rg|" + wide + "|MA|1C", "J\xD6RG"},
        {"1|K1A|\xC3\xA9\xC5\x82\xE2\x82\xAC\xF0\x9F\x98\x80|X|MA|1C", "\xC9???"},
        {"1|K1A|J\xF6rg\xC3|X|MA|1C", "J\xD6RG\xC3"},
        {"1|K1A|\xE0\x9F\xBF|X|MA|1C", "\xC0 \xBF"}, // no UTF-8 has so long a form of this
        {"1|K1A|O\x92N\tA\x7F\xFC|X|MA|1C", "O N A \xDC"}};
    for (const auto& [list, name] : rows) {
        import(MemberList::members, list);
        EXPECT_EQ(folder.read("SKSDB2.TXT"),
                  leftAligned("K1A       0001C", 20) + leftAligned(name, 10) + "MA \r\n");
    }
}

TEST_F(RosterFiles, WhatDoesNotFitATableIsErrorNineAndTouchesNoFile) {
    const std::string list(20000, '\n');
    for (const auto& [name, lines] : {std::pair{"SKSDB1.TXT", 5000U},
                                      {"SKSDB2.TXT", 10000U},
                                      {"SKSDB3.TXT", 5000U},
                                      {"SKSDB4.TXT", 7000U},
                                      {"SKSDB5.TXT", 5000U}}) {
        folder.write(name, list.substr(0, lines));
        EXPECT_EQ(import(MemberList::data, list), (Counts{0, 0, 0}));
        folder.write(name, list.substr(0, lines + 1U));
        EXPECT_RUNTIME_ERROR(import(MemberList::data, ""), ErrorCode::subscriptOutOfRange,
                             AllOf(HasSubstr(name), HasSubstr(std::to_string(lines))));
        EXPECT_EQ(folder.read(name), list.substr(0, lines + 1U));
        folder.write(name, "");
    }
    EXPECT_RUNTIME_ERROR(import(MemberList::data, list + "\n"), ErrorCode::subscriptOutOfRange,
                         AllOf(HasSubstr("list.txt"), HasSubstr("20000")));
}

TEST_F(RosterFiles, AreSortedByTheNumberWhateverItsLetterEqualOnesInPlace) {
    import(MemberList::data, ""); // makes all five
    const std::string wide = leftAligned("W1A       0001", 232);
    const std::string equal = record("K1", "0123T") + record("K3", "0123") + record("K4", "0123C");
    folder.write("SKSDB1.TXT", record("K9", "12345S") + equal + record("ABCDEFGHI1", "0002") +
                                   wide + "\n" + record("K5", "X9") + "K6        0002");
    folder.write("SKSDB5.TXT", std::string(8000, '\n'));
    sortRosterFiles(files);
    // A call of ten characters lends its last one to the key.
    EXPECT_EQ(folder.read("SKSDB1.TXT"), record("K5", "X9") + wide + "\r\nK6        0002\r\n" +
                                             equal + record("ABCDEFGHI1", "0002") +
                                             record("K9", "12345S"));
    folder.write("SKSDB5.TXT", std::string(8001, '\n'));
    EXPECT_RUNTIME_ERROR(sortRosterFiles(files), ErrorCode::subscriptOutOfRange, HasSubstr("8000"));
}

TEST_F(RosterFiles, AreLookedUpByCallAndByNumberAsTheyAreNow) {
    Roster roster(files);
    // What a comma ends is a record, and a call is looked for in 8,000 of them.
    folder.write("SKSDB2.TXT", "K1LONG    01234     FIVE      MA \r\n" + record("K1ABC", "0123T") +
                                   record("K1ABC", "9999") + "K1CCC\r\n" + std::string(7995, '\n') +
                                   "K1HALF    9001      A,B\r\nK1OVER    0777      OVER      MA ");
    folder.write("SKSDB5.TXT", record("VE3ABC", "0007C") + "VE3SSS    123S      S  ON \r\n");
    EXPECT_EQ(roster.findByCall("K1ABC")->number, "0123T     ");
    EXPECT_EQ(roster.findByCall("K1HALF")->name, "A");
    EXPECT_FALSE(roster.findByCall("B") || roster.findByCall("K1OVER"));
    std::string found;
    for (const char* typed : {"0123c", " 7t ", "123s", "777", "0123S", "T", "4X1AB"})
        found += roster.callOfNumber(typed).value_or("") + "|";
    EXPECT_EQ(found, "K1LONG    |VE3ABC    |VE3SSS    |K1OVER    ||||");
    for (const char* number : {"0124", "0125"}) { // as long, and at the same moment
        folder.write("SKSDB5.TXT", record("VE3ABC", number));
        EXPECT_EQ(roster.callOfNumber(number), "VE3ABC    ");
    }
}

} // namespace
} // namespace vantrel::test
