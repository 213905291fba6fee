// SPDX-License-Identifier: MIT
// From names without case and with backslashes to what is really on the disk.
#include "base/fixedtext.h"
#include "platform/filenames.h"
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
    fs::create_symlink("gone", m_folder.path() / "Sks061611.cbr"); // an entry all the same
    EXPECT_EQ(resolved("SKS061611.CBR"), inFolder("Sks061611.cbr"));
    m_folder.write("SKS061611.CBR", "");
    EXPECT_EQ(resolved("SKS061611.CBR"), inFolder("SKS061611.CBR"));
    EXPECT_EQ(resolved("Sks061611.cbr"), inFolder("Sks061611.cbr"));
    EXPECT_RUNTIME_ERROR(
        resolved("sks061611.CBR\\NEW.CBR"), ErrorCode::pathFileAccess,
        AllOf(HasSubstr(inFolder("Sks061611.cbr")), HasSubstr(inFolder("SKS061611.CBR"))));
}

TEST_F(FileNames, BothSeparatorsCountAndWhatDoesNotExistStaysAsGiven) {
    fs::create_directory(m_folder.path() / "Logs");
    m_folder.write("Logs/x.cbr", "");
    for (const char* name : {"LOGS\\X.CBR", "LOGS/X.CBR", "LOGS\\//\\X.CBR", "\\LOGS\\X.CBR"})
        EXPECT_EQ(resolved(name), inFolder("Logs/x.cbr")) << name;
    EXPECT_EQ(resolved("LOGS\\New.CBR"), inFolder("Logs/New.CBR"));
    EXPECT_EQ(resolved("Gone\\New.CBR"), inFolder("Gone/New.CBR"));
    EXPECT_EQ(resolved("LOGS\\X.CBR\\New.CBR"), inFolder("Logs/x.cbr/New.CBR"));
}

TEST_F(FileNames, AbsoluteNameStandsForItselfInAnyCase) {
    TempFolder other;
    other.write("Picked.cbr", "");
    const std::string picked = (other.path() / "Picked.cbr").string();
    EXPECT_EQ(resolved(picked), picked);
    EXPECT_EQ(resolved(upper(picked)), picked) << "as the finder hands it back";
}

TEST_F(FileNames, AccentedNameFindsItsFileAndNoOtherAndNamesTheNewOne) {
    m_folder.write("\xE9.cbr", ""); // no UTF-8 at all
    EXPECT_EQ(resolved("\xC9.CBR"), inFolder("\xC3\x89.CBR"));
    m_folder.write("\xC3\xA9.cbr", "");
    EXPECT_EQ(resolved("\xC9.CBR"), inFolder("\xC3\xA9.cbr"));
}

TEST(NativeText, EveryLatin1CharacterComesBackAndOthersAreAQuestionMarkEach) {
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(latin1Text(nativeText(all)), all);

    const std::pair<const char*, const char*> rows[] = {
        {"\xC5\x81", "?"},                     // L with stroke
        {"a\xE2\x82\xAC z", "a? z"},           // euro sign
        {"\xF0\x9F\x93\xBB\xC3\xA9", "?\xE9"}, // four bytes, then two
        {"\xC3", "?"},                         // cut off
        {"\xE9t", "?t"},                       // a bare Latin-1 byte
        {"\xC0\xAF", "?"},                     // an overlong slash
    };
    for (const auto& [native, shown] : rows) {
        EXPECT_EQ(latin1Text(native), std::nullopt) << shown;
        EXPECT_EQ(shownText(native), shown);
    }
}

} // namespace
} // namespace vantrel::test
