// SPDX-License-Identifier: MIT
// The entry boxes of the main page: the exchange in the order in which it is heard, and the
// frequency.
#pragma once

#include "screens/main/qsoentry.h"

#include <QComboBox>
#include <QLineEdit>

class QGridLayout;

namespace vantrel {

struct EntryBoxes {
    // Makes them as children of the form, in tab order.
    explicit EntryBoxes(QWidget* form);

    Entry entry() const;
    // Call, name, state and number; reports and frequency stay.
    void show(const Entry& entry) const;
    // The reports too, but not the frequency.
    void showAll(const Entry& entry) const;
    // `left` in call, name, state and number, the usual report in both report boxes.
    void clear(std::string_view left);
    // The boxes of the exchange, each under its name, large enough to be read from the key.
    QGridLayout* exchangeRow(QWidget* form) const;

    QLineEdit* call; // or his SKCC number
    QComboBox* rstSent;
    QComboBox* rstReceived;
    QLineEdit* name;
    QLineEdit* state;
    QLineEdit* number;
    QLineEdit* frequency; // MHz
};

} // namespace vantrel
