// SPDX-License-Identifier: MIT
// A whole program around one form test: a fake machine, and the real screens.
#pragma once

#include "app/appscreens.h"
#include "support/fakemachine.h"
#include "support/qt/hands.h"

#include <QApplication>
#include <QTest>

namespace vantrel::test {

class FormHarness : public Hands, public FakeMachine {
public:
    // Clicks what brings up a box with this message.
    void clickFor(const std::string& message, const char* formName, const char* name) {
        messages.expect(message);
        click(formName, name);
    }

    AppScreens screens{module, platform};
};

} // namespace vantrel::test
