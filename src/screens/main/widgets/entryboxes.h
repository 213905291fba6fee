// SPDX-License-Identifier: MIT
// The entry boxes of the main page: the exchange in the order in which it is heard, and the
// frequency.
#pragma once

#include "screens/main/entryview.h"

#include <QComboBox>
#include <QLineEdit>

class QGridLayout;
class QKeyEvent;

namespace vantrel {

// A letter or figure, which wherever it is typed belongs into a box.
bool isTyping(const QKeyEvent& key);

struct EntryBoxes {
    // Makes them as children of the form.
    explicit EntryBoxes(QWidget* form);

    Entry entry() const;
    // What differs; the cursor stays in what does not. lookedUp: of name, state and number.
    void show(const Entry& entry, const LookupBoxes& lookedUp) const;
    // The first box behind the call that is empty has the focus.
    void toFirstEmpty() const;
    // The boxes of the exchange, each under its name, large enough to be read from the key.
    QGridLayout* exchangeRow(QWidget* form) const;

    std::array<QLineEdit*, lookupBoxes.size()> filledByLookup() const {
        return {name, state, number};
    }

    QLineEdit* call; // or his SKCC number
    QComboBox* rstSent;
    QComboBox* rstReceived;
    QLineEdit* name;
    QLineEdit* state;
    QLineEdit* number;
    QLineEdit* frequency; // MHz
};

} // namespace vantrel
