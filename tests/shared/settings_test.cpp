// SPDX-License-Identifier: MIT
// The operating settings: as START stores them, as the file holds them, as they come back.
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "shared/settings.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

// What an operator leaves on the start page, in the order of the file's lines.
const OperatingSettings typedSettings{" w1abc ", "SKSE",          "-5",       "Hex 6A", " John ",
                                      "ma",      "1234t",         "FTdx5000", "com1",   "38400",
                                      "sks",     "sks061611.cbr", "k9skc",    "YES"};

const std::string storedFile =
    "W1ABC\r\nSKSE\r\n-5\r\nHex 6A\r\nJOHN      \r\nMA \r\n1234T \r\nFTdx5000\r\ncom1\r\n38400\r\n"
    "SKS\r\nSKS061611.CBR\r\nK9SKC     \r\nYES\r\n";
const std::string defaultFile =
    "\r\nSKS\r\n0\r\nNone\r\n\r\n\r\n\r\nNone\r\nNone\r\nNone\r\nSKS\r\n\r\n\r\nNO\r\n";

class Settings : public ::testing::Test {
protected:
    TempFolder m_folder;
    SystemCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
};

TEST_F(Settings, FileHoldsTheFourteenValuesAndTheyComeBackWithoutTheirPadding) {
    m_folder.write("VANTREL.cfg", storedFile + "a longer file of before\r\n");
    saveSettings(m_files, storedSettings(typedSettings));
    EXPECT_EQ(m_folder.read("VANTREL.cfg"), storedFile);

    const OperatingSettings settings = loadSettings(m_files);
    EXPECT_EQ(settings.myName + settings.myState + settings.myNumber + settings.bonusStation,
              "JOHNMA1234TK9SKC");
    saveSettings(m_files, storedSettings(settings));
    EXPECT_EQ(m_folder.read("VANTREL.cfg"), storedFile);
}

TEST_F(Settings, MissingFileGivesTheDefaultsAndEmptyValuesAreValues) {
    saveSettings(m_files, loadSettings(m_files));
    EXPECT_EQ(m_folder.read("Vantrel.CFG"), defaultFile);
    m_folder.write("Vantrel.CFG", std::string(13, '\n') + "YES"); // without a last line end
    const OperatingSettings settings = loadSettings(m_files);
    EXPECT_EQ(settings.rig + settings.contestCode, "");
    EXPECT_EQ(settings.dupeMode, "YES");
}

TEST_F(Settings, ShortFileNamesTheMissingLineAndStays) {
    const std::pair<std::string, const char*> rows[] = {
        {"", "line 1"},
        {"W1ABC\r\nSKS", "line 3"},
        {storedFile.substr(0, storedFile.rfind("YES")), "line 14"}};
    for (const auto& [bytes, line] : rows) {
        m_folder.write("Vantrel.CFG", bytes);
        EXPECT_RUNTIME_ERROR(loadSettings(m_files), ErrorCode::inputPastEnd,
                             AllOf(HasSubstr("Vantrel.CFG"), HasSubstr(line)));
        EXPECT_EQ(m_folder.read("Vantrel.CFG"), bytes);
    }
}

TEST(StoredSettings, NothingTypedCanSplitOrEndALineOfTheFile) {
    OperatingSettings typed;
    typed.myName = "ren\xE9,\"\rX";
    typed.logFileName = "MY,\"LOG\n.CBR";
    typed.contestText = "A,B\r\nC";
    typed.myCall = "W1,A\"BC";
    const OperatingSettings stored = storedSettings(typed);
    EXPECT_EQ(stored.myName, "REN\xC9   X  ") << "an accented letter is one column";
    EXPECT_EQ(stored.logFileName, "MY  LOG .CBR");
    EXPECT_EQ(stored.contestText, "A B  C");
    EXPECT_EQ(stored.myCall, "W1 A BC");
    EXPECT_EQ(stored.bonusStation, "          ") << "an empty field is all blank";
}

TEST(StoredSettings, WhatIsWiderThanItsFieldIsRefusedByName) {
    const struct {
        std::string OperatingSettings::*field;
        std::string value;
        const char* saidAs;
    } rows[] = {{&OperatingSettings::myCall, "W1ABC/QRP/P", "call"},
                {&OperatingSettings::myName, "BARTHOLOMEW", "name"},
                {&OperatingSettings::myState, "MASS", "state"},
                {&OperatingSettings::myNumber, "12345SX", "number"},
                {&OperatingSettings::bonusStation, "K9SKC/QRP/P", "bonus"}};
    for (const auto& row : rows) {
        OperatingSettings typed;
        typed.*row.field = row.value;
        EXPECT_RUNTIME_ERROR(storedSettings(typed), ErrorCode::invalidCall, HasSubstr(row.saidAs));
        typed.*row.field = " " + row.value.substr(1) + " ";
        EXPECT_NO_THROW(storedSettings(typed)) << "blanks around a value do not count";
    }
}

} // namespace
} // namespace vantrel::test
