// SPDX-License-Identifier: MIT
// The operating settings: as START stores them, as the file holds them, as they come back.
#include "platform/files.h"
#include "platform/systemcalls.h"
#include "shared/settings.h"
#include "support/errors.h"
#include "support/tempfolder.h"

#include <filesystem>

namespace vantrel::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

// What an operator leaves on the start page.
OperatingSettings typedSettings() {
    OperatingSettings typed;
    typed.myCall = " w1abc ";
    typed.contestCode = "SKSE";
    typed.gmtOffset = "-5";
    typed.civAddress = "Hex 6A";
    typed.myName = " John ";
    typed.myState = "ma";
    typed.myNumber = "1234t";
    typed.rig = "K-3";
    typed.comPort = "com1";
    typed.baud = "38400";
    typed.contestText = "sks";
    typed.logFileName = "sks061611.cbr";
    typed.bonusStation = "k9skc";
    typed.dupeMode = "YES";
    return typed;
}

const std::string storedFile = "W1ABC\r\n"
                               "SKSE\r\n"
                               "-5\r\n"
                               "Hex 6A\r\n"
                               "JOHN      \r\n"
                               "MA \r\n"
                               "1234T \r\n"
                               "K-3\r\n"
                               "com1\r\n"
                               "38400\r\n"
                               "SKS\r\n"
                               "SKS061611.CBR\r\n"
                               "K9SKC     \r\n"
                               "YES\r\n";

class Settings : public ::testing::Test {
protected:
    TempFolder m_folder;
    SystemCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
};

TEST_F(Settings, FileHoldsTheFourteenValuesAsTheyStand) {
    saveSettings(m_files, storedSettings(typedSettings()));
    EXPECT_EQ(m_folder.read("Vantrel.CFG"), storedFile);

    OperatingSettings none;
    none.bonusStation = "          ";
    m_folder.write("Vantrel.CFG", storedFile + "a longer file of before\r\n");
    saveSettings(m_files, none);
    EXPECT_EQ(m_folder.read("Vantrel.CFG"),
              "\r\nSKS\r\n0\r\nNone\r\n\r\n\r\n\r\nNone\r\nNone\r\nNone\r\nSKS\r\n\r\n"
              "          \r\nNO\r\n");
}

TEST_F(Settings, ComeBackInTheSameFieldsWithoutTheirPadding) {
    m_folder.write("VANTREL.cfg", storedFile);
    const OperatingSettings settings = loadSettings(m_files);
    EXPECT_EQ(settings.myCall, "W1ABC");
    EXPECT_EQ(settings.contestCode, "SKSE");
    EXPECT_EQ(settings.gmtOffset, "-5");
    EXPECT_EQ(settings.civAddress, "Hex 6A");
    EXPECT_EQ(settings.myName, "JOHN");
    EXPECT_EQ(settings.myState, "MA");
    EXPECT_EQ(settings.myNumber, "1234T");
    EXPECT_EQ(settings.rig, "K-3");
    EXPECT_EQ(settings.comPort, "com1");
    EXPECT_EQ(settings.baud, "38400");
    EXPECT_EQ(settings.contestText, "SKS");
    EXPECT_EQ(settings.logFileName, "SKS061611.CBR");
    EXPECT_EQ(settings.bonusStation, "K9SKC");
    EXPECT_EQ(settings.dupeMode, "YES");

    saveSettings(m_files, storedSettings(settings));
    EXPECT_EQ(m_folder.read("VANTREL.cfg"), storedFile);
}

TEST_F(Settings, EmptyValuesAreValues) {
    m_folder.write("Vantrel.CFG", "W1ABC\nWES\n0\nNone\n\n\n\nNone\nNone\nNone\nWES\n\n   \nYES");
    const OperatingSettings settings = loadSettings(m_files);
    EXPECT_EQ(settings.myName, "");
    EXPECT_EQ(settings.bonusStation, "");
    EXPECT_EQ(settings.dupeMode, "YES") << "the last line needs no line end";
}

TEST_F(Settings, MissingFileGivesTheDefaults) {
    const OperatingSettings settings = loadSettings(m_files);
    EXPECT_EQ(settings.myCall + settings.myName + settings.myState + settings.myNumber +
                  settings.logFileName + settings.bonusStation,
              "");
    EXPECT_EQ(settings.contestCode, "SKS");
    EXPECT_EQ(settings.gmtOffset, "0");
    EXPECT_EQ(settings.civAddress, "None");
    EXPECT_EQ(settings.rig, "None");
    EXPECT_EQ(settings.comPort, "None");
    EXPECT_EQ(settings.baud, "None");
    EXPECT_EQ(settings.dupeMode, "NO");
}

TEST_F(Settings, ShortFileNamesTheMissingLineAndStays) {
    const auto expectMissing = [this](const std::string& bytes, const char* line) {
        m_folder.write("Vantrel.CFG", bytes);
        EXPECT_RUNTIME_ERROR(loadSettings(m_files), ErrorCode::inputPastEnd,
                             AllOf(HasSubstr("Vantrel.CFG"), HasSubstr(line)));
        EXPECT_EQ(m_folder.read("Vantrel.CFG"), bytes);
    };
    expectMissing("", "line 1");
    expectMissing("W1ABC\r\nSKS\r\n", "line 3");
    expectMissing("W1ABC\r\nSKS", "line 3");
    expectMissing(storedFile.substr(0, storedFile.rfind("YES")), "line 14");
}

TEST_F(Settings, FolderInItsPlaceIsAnErrorNotAFreshStart) {
    std::filesystem::create_directory(m_folder.path() / "vantrel.cfg");
    EXPECT_RUNTIME_ERROR(loadSettings(m_files), ErrorCode::pathFileAccess,
                         HasSubstr("vantrel.cfg"));
    EXPECT_RUNTIME_ERROR(saveSettings(m_files, {}), ErrorCode::pathFileAccess,
                         HasSubstr("vantrel.cfg"));
    EXPECT_TRUE(std::filesystem::is_directory(m_folder.path() / "vantrel.cfg"));
}

TEST(StoredSettings, RigPortBaudAndAddressKeepTheirSpelling) {
    OperatingSettings typed;
    typed.rig = "FTdx5000";
    const OperatingSettings stored = storedSettings(typed);
    EXPECT_EQ(stored.rig, "FTdx5000");
    EXPECT_EQ(stored.comPort, "None");
    EXPECT_EQ(stored.baud, "None");
    EXPECT_EQ(stored.civAddress, "None");
}

TEST(StoredSettings, FullFieldsAreNotPaddedAndEmptyOnesAreAllBlank) {
    OperatingSettings typed;
    typed.myName = "BARTHOLOME";
    const OperatingSettings stored = storedSettings(typed);
    EXPECT_EQ(stored.myName, "BARTHOLOME");
    EXPECT_EQ(stored.myState, "   ");
    EXPECT_EQ(stored.myNumber, "      ");
    EXPECT_EQ(stored.bonusStation, "          ");
}

TEST(StoredSettings, NothingTypedCanSplitOrEndALineOfTheFile) {
    OperatingSettings typed = typedSettings();
    typed.myName = "J,O\"H\rN";
    typed.logFileName = "MY,\"LOG\n.CBR";
    typed.contestText = "A,B\r\nC";
    typed.myCall = "W1,A\"BC";
    const OperatingSettings stored = storedSettings(typed);
    EXPECT_EQ(stored.myName, "J O H N   ");
    EXPECT_EQ(stored.logFileName, "MY  LOG .CBR");
    EXPECT_EQ(stored.contestText, "A B  C");
    EXPECT_EQ(stored.myCall, "W1 A BC");
}

TEST(StoredSettings, AccentedLettersTakeOneColumnEach) {
    OperatingSettings typed;
    typed.myName = "ren\xE9";
    EXPECT_EQ(storedSettings(typed).myName, "REN\xC9      ");
}

struct OverWideRow {
    const char* name;
    std::string OperatingSettings::*field;
    std::string value;
    const char* saidAs;
};

class OverWideField : public ::testing::TestWithParam<OverWideRow> {};

TEST_P(OverWideField, IsRefusedByName) {
    OperatingSettings typed;
    typed.*GetParam().field = GetParam().value;
    EXPECT_RUNTIME_ERROR(storedSettings(typed), ErrorCode::invalidCall,
                         HasSubstr(GetParam().saidAs));
    typed.*GetParam().field = " " + GetParam().value.substr(1) + " ";
    EXPECT_NO_THROW(storedSettings(typed)) << "blanks around a value do not count";
}

INSTANTIATE_TEST_SUITE_P(
    StoredSettings, OverWideField,
    ::testing::Values(OverWideRow{"Call", &OperatingSettings::myCall, "W1ABC/QRP/P", "call"},
                      OverWideRow{"Name", &OperatingSettings::myName, "BARTHOLOMEW", "name"},
                      OverWideRow{"State", &OperatingSettings::myState, "MASS", "state"},
                      OverWideRow{"Number", &OperatingSettings::myNumber, "12345SX", "number"},
                      OverWideRow{"BonusStation", &OperatingSettings::bonusStation, "K9SKC/QRP/P",
                                  "bonus"}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace vantrel::test
