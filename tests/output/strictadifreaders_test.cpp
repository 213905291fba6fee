// SPDX-License-Identifier: MIT
// The strict ADIF file before two independent readers: one strict about values, one about
// framing. Each must take every contact as the log has it.
#include "output/contacts.h"
#include "output/strictadif.h"
#include "shared/fixedtext.h"
#include "support/tempfolder.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sys/wait.h>

namespace vantrel::test {
namespace {

constexpr int notInstalled = 77;

std::string stripped(std::string text) {
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

// What a reader must find in a contact, from the log's columns alone.
std::string expectedOf(const std::string& text) {
    const std::map<std::string, std::string> bandOf{{" 1", "160M"}, {" 3", "80M"}, {" 7", "40M"},
                                                    {"10", "30M"},  {"14", "20M"}, {"21", "15M"},
                                                    {"28", "10M"}};
    const std::map<std::string, std::string> dateOf{{"2011-06-16", "20110616"},
                                                    {"2012-02-30", "20120301"},
                                                    {"07-01-2011", "20110701"},
                                                    {"01-01-2012", "20120101"}};
    const auto band = bandOf.find(text.substr(5, 2));
    const int khz = std::atoi(text.substr(5, 5).c_str());
    std::string number = stripped(text.substr(95, 6));
    if (number.find_first_of("0123456789") != 0 || number.back() == 'W')
        number.clear();
    return stripped(text.substr(65, 10)) + '|' + (band == bandOf.end() ? "" : band->second) + '|' +
           std::to_string(khz / 1000) + '.' + std::to_string(1000 + khz % 1000).substr(1) + "|CW|" +
           dateOf.at(text.substr(14, 10)) + '|' + text.substr(25, 4) + '|' + number + '\n';
}

class StrictAdifReaders : public ::testing::Test {
protected:
    StrictAdifReaders() {
        folder.write("SKS-STRICT.ADI", strictAdifText(views(lines), "20110616 001230"));
    }

    // Runs the reader on the file: it must print every contact. `reader`: how it is called.
    void mustRead(const std::string& reader) {
        const std::string command = reader + folder.string() + "/SKS-STRICT.ADI 2>&1";
        FILE* pipe = ::popen(command.c_str(), "r");
        std::vector<std::string> printed;
        std::array<char, 4096> buffer{};
        while (std::fgets(buffer.data(), buffer.size(), pipe) != nullptr)
            printed.push_back(upper(buffer.data()));
        const int status = ::pclose(pipe);
        if (WEXITSTATUS(status) == notInstalled)
            GTEST_SKIP() << "not installed (scripts/install-deps adif): " << reader;
        EXPECT_EQ(status, 0);
        for (std::size_t i = 0; i < std::min(lines.size(), printed.size()); ++i)
            ASSERT_EQ(printed[i], expectedOf(lines[i]));
        EXPECT_EQ(printed.size(), lines.size());
    }

    TempFolder folder;
    const std::vector<std::string> lines = randomContacts(42, 500);
    const std::string scripts =
        std::filesystem::path(VANTREL_GOLDEN_FOLDER).replace_filename("output").string();
};

TEST_F(StrictAdifReaders, OneThatIsStrictAboutValuesTakesEveryContact) {
    mustRead("command -v node npm >/dev/null || exit 77; NODE_PATH=$(npm root --global "
             "2>/dev/null) node " +
             scripts + "/readadif.js ");
}

TEST_F(StrictAdifReaders, OneThatIsStrictAboutFramingTakesEveryContact) {
    mustRead("command -v python3 >/dev/null || exit 77; python3 " + scripts + "/readadif.py ");
}

} // namespace
} // namespace vantrel::test
