// SPDX-License-Identifier: MIT
#include "k3y/k3ylines.h"
#include "support/qt/formharness.h"

#include <QRadioButton>

#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

constexpr const char* box = "frmK3Ybox";
constexpr const char* mainPage = "frmVantrelMain";

TEST(K3yBox, EachChoiceHoldsAtOnceAndOpeningTheBoxAgainClearsItButNotTheTag) {
    FormHarness program;
    program.module.settings.logFileName = "K3Y.CBR";
    program.folder.write("K3Y.CBR", k3yLog({}));
    program.screens.open(Screen::main);
    const char* tags[] = {"K3Y/EU", "K3Y/AF", "K3Y/AS", "K3Y/OC", "K3Y/NA", "K3Y/SA", "      "};
    for (int choice = 6; choice >= 0; --choice) {
        const std::string tag = tags[choice];
        const std::string label = choice == 6 ? "   None     " : "-- " + tag + " --";
        program.click(mainPage, "Option1");
        for (const QRadioButton* option : program.form(box)->findChildren<QRadioButton*>())
            EXPECT_FALSE(option->isChecked()) << option->objectName().toStdString();
        program.click(box, ("Option" + std::to_string(choice + 1)).c_str());
        EXPECT_EQ(program.module.marker, tag);
        EXPECT_EQ(program.shown(mainPage, "Label23"), label);
        program.click(box, "Command1");
        FormHarness::settle();
        EXPECT_FALSE(program.isOpen(box));
    }
    program.click(mainPage, "Option1");
    EXPECT_EQ(program.module.marker, "K3Y/EU");
    EXPECT_EQ(program.shown(mainPage, "Label23"), "-- K3Y/EU --");
}

} // namespace
} // namespace vantrel::test
