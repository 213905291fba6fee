// SPDX-License-Identifier: MIT
// The entry boxes of the main page: the exchange in the order in which it is heard, and the
// frequency.
#pragma once

#include "screens/main/entryview.h"

#include <QComboBox>
#include <QLineEdit>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QRadioButton;
class QKeyEvent;

namespace vantrel {

class AlertLabel;
class MarkedLabel;

// A letter or figure, which wherever it is typed belongs into a box.
bool isTyping(const QKeyEvent& key);

// Its boxes and what is said of it, as children of the form.
struct EntryBoxes {
    explicit EntryBoxes(QWidget* form);

    EntryBoxes(const EntryBoxes&) = delete;
    EntryBoxes& operator=(const EntryBoxes&) = delete;

    Entry entry() const;
    // The one place that shows it: what differs; the cursor stays in what does not.
    void show(const EntryView& view) const;
    // The first box behind the call that is empty has the focus.
    void toFirstEmpty() const;
    // The boxes of the exchange, each under its name, large enough to be read from the key, and at
    // the far end the count.
    QGridLayout* exchangeRow(QWidget* form, QLineEdit* count) const;
    // A strip across the page, behind a bar of its tone.
    QHBoxLayout* hintRow() const;

    std::array<QLineEdit*, lookupFields.size()> filledByLookup() const {
        return {name, state, number};
    }

    QLineEdit* call; // or his SKCC number
    QComboBox* rstSent;
    QComboBox* rstReceived;
    QLineEdit* name;
    QLineEdit* state;
    QLineEdit* number;
    QLineEdit* frequency; // MHz
    QLabel* band;
    QLabel* autoRead;
    QLabel* readSign; // before that one: how the last read went
    AlertLabel* hint;
    QWidget* hintBar;
    MarkedLabel* worked; // calls like his
    QLabel* station;
    QLabel* marker; // what the next contact will end in

private:
    void showBoxes(const EntryView& view) const;
    void showFrequency(const EntryView& view) const;
    void showHint(const Hint& shown) const;
};

} // namespace vantrel
