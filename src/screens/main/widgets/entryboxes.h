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

// True for a letter or figure: wherever the focus is, it belongs into a box.
bool isTyping(const QKeyEvent& key);

// The boxes and the labels about the contact, as children of the form.
struct EntryBoxes {
    explicit EntryBoxes(QWidget* form);

    EntryBoxes(const EntryBoxes&) = delete;
    EntryBoxes& operator=(const EntryBoxes&) = delete;

    Entry entry() const;
    // The only function that writes to them. A box that is right already keeps its cursor.
    void show(const EntryView& view) const;
    // Gives the focus to the first empty box behind the call.
    void toFirstEmpty() const;
    // The boxes of the exchange under their captions, in a font that can be read from the key, and
    // the count at the far end.
    QGridLayout* exchangeRow(QWidget* form, QLineEdit* count) const;
    // The hint across the page, with a bar in the colour of its tone before it.
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
    QLabel* readSign; // in front of autoRead: how the last read went
    AlertLabel* hint;
    QWidget* hintBar;
    MarkedLabel* worked; // worked calls that begin with what is typed
    QLabel* station;
    QLabel* marker; // what the next contact will end in

private:
    void showBoxes(const EntryView& view) const;
    void showFrequency(const EntryView& view) const;
    void showHint(const Hint& shown) const;
};

} // namespace vantrel
