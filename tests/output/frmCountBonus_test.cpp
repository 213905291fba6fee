// SPDX-License-Identifier: MIT
#include "output/contacts.h"
#include "support/qt/formharness.h"

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* page = "frmCountBonus";

class BonusPage : public ::testing::Test, public FormHarness {
protected:
    BonusPage() { module.settings.logFileName = "SKS.CBR"; }
    void openPage(const std::vector<std::string>& contacts) {
        folder.write("SKS.CBR", logOf(contacts));
        screens.open(Screen::bonus);
    }
};

TEST_F(BonusPage, CountsTheLogAsItIsOnTheDisk) {
    openPage({line({.name = "JOHN/25"}), line({.name = "JOHN/30"})});
    EXPECT_EQ(shown(page, "Label1"), "Total: 25");
    openPage({});
    EXPECT_EQ(shown(page, "Label1"), "Total: 0");
    click(page, "Command1");
    EXPECT_FALSE(isOpen(page));
}

TEST_F(BonusPage, AnErrorLeavesNoTotal) {
    messages.expect("Run-time error 6: Overflow");
    openPage({line({.name = "JOHN/99999"})});
    EXPECT_EQ(shown(page, "Label1"), "");
}

} // namespace
} // namespace vantrel::test
