// SPDX-License-Identifier: MIT
// What a screen reader is told of the controls: names, roles and actions beyond those that Qt
// gives them, and what is said at once because the operator waits for it.
#pragma once

#include <QAccessible>

#include <string_view>

class QComboBox;
class QLabel;
class QListView;
class QWidget;

namespace vantrel {

// Once, after the application is made.
void describeControls();

// From now on this window and its controls are described here; all other windows, message boxes
// among them, by Qt.
void describePage(QWidget* page);

// What a control is that does not show it by its kind: a picture, or a label with a sign.
void setRole(QWidget* control, QAccessible::Role role);

// What can only be read has no place in the tab order, but a screen reader has to come to it.
void letReaderReach(QWidget* page);

// What is chosen by the arrow keys in the closed box is told, as if it were typed there, or as the
// line of the list that has come to the front: readers follow no other sign.
void tellChoice(QComboBox* box);

// Which line of the list is the current one: a list tells it when that changes, but not when it
// gets the focus.
void tellCurrent(QListView* list);

// The label is an alert: what it shows is told at once.
void makeAlert(QLabel* label);
// Shows the text. When the present event is over a screen reader speaks the words (nothing when
// they are empty); of several texts only the last one.
void announce(QLabel* alert, std::string_view text, std::string_view words);
inline void announce(QLabel* alert, std::string_view text) {
    announce(alert, text, text);
}

} // namespace vantrel
