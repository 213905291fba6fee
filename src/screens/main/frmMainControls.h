// SPDX-License-Identifier: MIT
// The main page's controls and where they stand.
#pragma once

#include "screens/main/frmEntryBoxes.h"

#include <functional>
#include <span>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vantrel {

class ContestPanel;
class WhoIsIt;
class WorkedList;

// A command of the row at the bottom, which leads to another page.
struct PageCommand {
    const char* name;
    const char* caption;
    const char* toolTip;
    std::function<void()> action;
};

// Their row, in three groups and EXIT apart at the right. run: inside the form's guard.
QHBoxLayout* pageCommandRow(QWidget* form, std::span<const PageCommand> commands,
                            const std::function<void(const PageCommand&)>& run);

struct MainControls {
    // Makes them as children of the form, in tab order; makePageCommands adds the row of commands
    // that lead to other pages where its turn comes.
    MainControls(QWidget* form, const std::function<QHBoxLayout*()>& makePageCommands);

    MainControls(const MainControls&) = delete;
    MainControls& operator=(const MainControls&) = delete;

    EntryBoxes boxes;
    QPushButton* frequencyButton;
    QPushButton* searchButton;
    QPushButton* logButton;
    QPushButton* noLogButton;
    QPushButton* readButton;
    QPushButton* upButton;
    QPushButton* downButton;
    QRadioButton* stationOption;
    QPushButton* audioButton;
    QLineEdit* countBox;
    WorkedList* workedList;
    QLabel* bandLabel;
    QLabel* autoReadLabel;
    QLabel* readSign; // before the label: how the last read went
    QLabel* fileLabel;
    QLabel* dupeModeLabel;
    QLabel* stationLabel;
    QLabel* markerLabel; // what the next contact will end in
    QLabel* hintLabel;
    QLabel* clockLabel;
    QLabel* whoLabel; // own call and contest
    WhoIsIt* whoIsIt;
    QPushButton* autoReadButton;
    ContestPanel* panel;

private:
    void layOut(QWidget* form, QHBoxLayout* pageCommands);
    QHBoxLayout* statusRow(QWidget* form);
    QHBoxLayout* frequencyRow(QWidget* form);
    QHBoxLayout* contestRow(QWidget* form) const;
};

} // namespace vantrel
