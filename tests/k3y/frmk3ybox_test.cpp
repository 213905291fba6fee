// SPDX-License-Identifier: MIT
#include "k3y/k3ylines.h"
#include "support/qt/formharness.h"

#include <QRadioButton>

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* box = "frmK3Ybox";
constexpr const char* mainPage = "frmVantrelMain";

class K3yBox : public ::testing::Test, protected FormHarness {
protected:
    K3yBox() {
        module.settings.logFileName = "K3Y.CBR";
        folder.write("K3Y.CBR", k3yLog({}));
        screens.open(Screen::main);
        openBox();
    }

    void openBox() {
        click(mainPage, "Option1");
        ASSERT_TRUE(isOpen(box));
    }
};

TEST_F(K3yBox, EachChoiceHoldsAtOnceAndShowsOnTheMainPage) {
    struct Choice {
        const char* option;
        const char* marker;
        const char* label;
    };
    for (const Choice& choice :
         {Choice{"Option1", "K3Y/EU", "-- K3Y/EU --"}, Choice{"Option2", "K3Y/AF", "-- K3Y/AF --"},
          Choice{"Option3", "K3Y/AS", "-- K3Y/AS --"}, Choice{"Option4", "K3Y/OC", "-- K3Y/OC --"},
          Choice{"Option5", "K3Y/NA", "-- K3Y/NA --"}, Choice{"Option6", "K3Y/SA", "-- K3Y/SA --"},
          Choice{"Option7", "      ", "   None     "}}) {
        click(box, choice.option);
        EXPECT_EQ(module.marker, choice.marker) << choice.option;
        EXPECT_EQ(shown(mainPage, "Label23"), choice.label) << choice.option;
    }
}

TEST_F(K3yBox, OpeningItAgainClearsTheChoiceButNotTheTag) {
    click(box, "Option1");
    click(box, "Command1");
    settle();
    EXPECT_FALSE(isOpen(box));
    openBox();
    for (const QRadioButton* option : form(box)->findChildren<QRadioButton*>())
        EXPECT_FALSE(option->isChecked()) << option->objectName().toStdString();
    EXPECT_EQ(module.marker, "K3Y/EU");
    EXPECT_EQ(shown(mainPage, "Label23"), "-- K3Y/EU --");
}

} // namespace
} // namespace vantrel::test
