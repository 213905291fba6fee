// SPDX-License-Identifier: MIT
// What a screen reader is told of the controls: names, roles and actions beyond those that Qt
// gives them.
#pragma once

#include <QAccessible>

class QComboBox;
class QListView;
class QWidget;

namespace vantrel {

// Once, after the application is made.
void describeControls();

// From now on this window and its controls are described here; all other windows, message boxes
// among them, by Qt.
void describePage(QWidget* page);

// The role of a control whose class does not tell it: a picture, or a label that is a sign.
void setRole(QWidget* control, QAccessible::Role role);

// Boxes and tables that are only read are left out by Tab. While a screen reader runs, Tab leads
// to them too.
void letReaderReach(QWidget* page);

// Readers do not notice a choice by the arrow keys in a closed box. So it is announced to them: as
// text typed into the box, or, where one cannot type, as the current line of its list.
void announceChoices(QComboBox* box);

// Announces the list's current line: Qt does so when another line becomes the current one, but
// not when the list gets the focus.
void announceCurrentRow(QListView* list);

} // namespace vantrel
