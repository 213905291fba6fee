// SPDX-License-Identifier: MIT
// From names without case and with backslashes to what is really on the disk.
#include "platform/filenames.h"
#include "shared/fixedtext.h"
#include "support/errors.h"
#include "support/tempfolder.h"

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;

class FileNames : public ::testing::Test {
protected:
    std::string resolved(std::string_view name) const {
        return resolveName(m_folder.string(), name);
    }
    std::string inFolder(const std::string& relative) const {
        return (m_folder.path() / relative).string();
    }

    TempFolder m_folder;
};

TEST_F(FileNames, CaseDoesNotMatterButAnExactMatchWins) {
    m_folder.write("Sks061611.cbr", "");
    EXPECT_EQ(resolved("SKS061611.CBR"), inFolder("Sks061611.cbr"));
    m_folder.write("SKS061611.CBR", "");
    EXPECT_EQ(resolved("SKS061611.CBR"), inFolder("SKS061611.CBR"));
    EXPECT_EQ(resolved("Sks061611.cbr"), inFolder("Sks061611.cbr"));
}

TEST_F(FileNames, TwoCandidatesAreRefusedNamingBoth) {
    m_folder.write("Log.cbr", "");
    m_folder.write("LOG.cbr", "");
    EXPECT_RUNTIME_ERROR(resolved("LOG.CBR"), ErrorCode::pathFileAccess,
                         AllOf(HasSubstr(inFolder("Log.cbr")), HasSubstr(inFolder("LOG.cbr"))));

    fs::create_directory(m_folder.path() / "logs");
    fs::create_directory(m_folder.path() / "Logs");
    EXPECT_RUNTIME_ERROR(resolved("LOGS\\NEW.CBR"), ErrorCode::pathFileAccess,
                         AllOf(HasSubstr(inFolder("logs")), HasSubstr(inFolder("Logs"))));
}

TEST_F(FileNames, WhatDoesNotExistStaysAsGiven) {
    fs::create_directory(m_folder.path() / "Logs");
    m_folder.write("a.txt", "");
    EXPECT_EQ(resolved("New.CBR"), inFolder("New.CBR"));
    EXPECT_EQ(resolved("LOGS\\New.CBR"), inFolder("Logs/New.CBR"));
    EXPECT_EQ(resolved("Gone\\New.CBR"), inFolder("Gone/New.CBR"));
    EXPECT_EQ(resolved("A.TXT\\New.CBR"), inFolder("a.txt/New.CBR"));
}

TEST_F(FileNames, BothSeparatorsCountAndDoubledOnesOnce) {
    fs::create_directory(m_folder.path() / "Logs");
    m_folder.write("Logs/x.cbr", "");
    for (const char* name : {"LOGS\\X.CBR", "LOGS/X.CBR", "LOGS\\\\X.CBR", "LOGS\\//\\X.CBR",
                             "\\LOGS\\X.CBR", "LOGS\\..\\LOGS\\X.CBR"})
        EXPECT_TRUE(fs::equivalent(resolved(name), m_folder.path() / "Logs/x.cbr")) << name;
    EXPECT_EQ(resolved("LOGS\\\\X.CBR"), inFolder("Logs/x.cbr"));
}

TEST_F(FileNames, AbsoluteNameStandsForItselfInAnyCase) {
    TempFolder other;
    other.write("Picked.cbr", "");
    const std::string picked = (other.path() / "Picked.cbr").string();
    EXPECT_EQ(resolved(picked), picked);
    EXPECT_EQ(resolved("/" + picked), picked);
    EXPECT_EQ(resolved(upper(picked)), picked) << "as the finder hands it back";
}

TEST_F(FileNames, AccentedNameFindsTheFileAndNamesTheNewOne) {
    m_folder.write("Ren\xC3\xA9.cbr", ""); // e acute in UTF-8
    EXPECT_EQ(resolved("REN\xC9.CBR"), inFolder("Ren\xC3\xA9.cbr"));
    EXPECT_EQ(resolved("Ren\xE9.cbr"), inFolder("Ren\xC3\xA9.cbr"));
    EXPECT_EQ(resolved("\xC9T\xC9.CBR"), inFolder("\xC3\x89T\xC3\x89.CBR"));
}

TEST_F(FileNames, EntriesOutsideLatin1AreNoCandidates) {
    m_folder.write("\xC5\x81.cbr", ""); // L with stroke
    m_folder.write("\xE9.cbr", "");     // no UTF-8 at all
    m_folder.write("l.cbr", "");
    EXPECT_EQ(resolved("L.CBR"), inFolder("l.cbr"));
    EXPECT_EQ(resolved("\xC9.CBR"), inFolder("\xC3\x89.CBR"));
}

TEST_F(FileNames, DanglingLinkIsAnEntry) {
    fs::create_symlink("gone", m_folder.path() / "Log.cbr");
    EXPECT_EQ(resolved("LOG.CBR"), inFolder("Log.cbr"));
}

TEST(NativeText, EveryLatin1CharacterComesBack) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(latin1Text(nativeText(all)), all);
}

TEST(NativeText, WhatIsNoLatin1IsShownAsOneQuestionMarkACharacter) {
    const struct {
        const char* native;
        const char* shown;
    } rows[] = {
        {"\xC5\x81", "?"},           // L with stroke
        {"a\xE2\x82\xAC z", "a? z"}, // euro sign
        {"\xF0\x9F\x93\xBB", "?"},   // four bytes
        {"\xC3", "?"},               // cut off
        {"\xE9t\xC3\xA9", "?t\xE9"}, // a bare Latin-1 byte, then UTF-8
        {"\xC0\xAF", "?"},           // an overlong slash
    };
    for (const auto& row : rows) {
        EXPECT_EQ(latin1Text(row.native), std::nullopt) << row.shown;
        EXPECT_EQ(shownText(row.native), row.shown);
    }
}

} // namespace
} // namespace vantrel::test
