// SPDX-License-Identifier: MIT
#include "screens/main/frmMainControls.h"

#include "forms/accessible.h"
#include "forms/formbuilder.h"
#include "screens/main/frmContestPanel.h"
#include "screens/main/frmWhoIsIt.h"
#include "screens/main/frmWorkedList.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>

namespace vantrel {

namespace {

constexpr double entryEnlargement = 1.5;
constexpr double hintEnlargement = 1.1;
constexpr double statusEnlargement = 1.4;

QHBoxLayout* rowOf(std::initializer_list<QWidget*> controls) {
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls)
        row->addWidget(control);
    return row;
}

} // namespace

QHBoxLayout* pageCommandRow(QWidget* form, std::span<const PageCommand> commands,
                            const std::function<void(const PageCommand&)>& run) {
    FormBuilder build(form);
    auto* row = new QHBoxLayout;
    for (const PageCommand& command : commands) {
        const std::string_view name = command.name;
        if (name == "Command6" || name == "Command11")
            row->addSpacing(form->fontMetrics().averageCharWidth() * 2);
        if (&command == &commands.back())
            row->addStretch();
        QPushButton* button = build.command(command.name, command.caption, command.toolTip);
        QObject::connect(button, &QPushButton::clicked, form, [run, command] { run(command); });
        row->addWidget(button);
    }
    return row;
}

MainControls::MainControls(QWidget* form, const std::function<QHBoxLayout*()>& makePageCommands)
    : boxes(form) {

    FormBuilder build(form);
    frequencyButton = build.command("Command15", "Enter",
                                    "WITH AUTO READ OFF , ENTER FREQ AND CLICK ENTER BUTTON");
    searchButton = build.command("Command2", "&SEARCH", "ENTER A CALL THEN CLICK HERE");
    logButton = build.command("Command3", "&LOG", "SAVES THE QSO TO CABRILLO FILE");
    noLogButton = build.command("Command4", "&NO LOG", "DOES NOT SAVE QSO TO FILE");
    readButton = build.command("Command5", "&FREQ", "READS FREQ FROM RADIO");
    upButton = build.command("Command13", "&Up", "TOGGELS BAND UP ONE");
    downButton = build.command("Command14", "&Down", "TOGGLES BAND DOWN ONE");
    stationOption = build.jobOption(
        "Option1", "ADD K3Y/xx", "CLICK TO ADD K3Y/xx  TO FILE - BEFORE LOGGING DX K3Y STATIONS");
    audioButton = build.command("Command12", "AUDIO ON", "TOGGLES DUPE AUDIO ");
    QHBoxLayout* pageCommands = makePageCommands();
    countBox = build.output("Text1");
    workedList = FormBuilder::named(new WorkedList(form), "List1");
    bandLabel = build.label("Label10");
    autoReadLabel = build.label("Label11");
    fileLabel = build.label("Label12");
    dupeModeLabel = build.label("Label13");
    stationLabel = build.label("Label23");
    markerLabel = build.label("Label25");
    hintLabel = build.alert("Label26");
    clockLabel = build.label("Label27");
    whoLabel = build.label("Label28");
    whoIsIt = new WhoIsIt(form);
    autoReadButton =
        build.command("Command17", "&AUTO READ", "TURNS THE READING OF THE RADIO OFF AND ON");
    readSign = build.caption("");
    setRole(readSign, QAccessible::Graphic);
    panel = new ContestPanel(form);
    layOut(form, pageCommands);
}

void MainControls::layOut(QWidget* form, QHBoxLayout* pageCommands) {
    // Long texts are cut at the window's edge; they must not widen it.
    for (QLabel* label : {fileLabel, hintLabel})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    hintLabel->setFont(enlargedFont(form, hintEnlargement));
    hintLabel->setFixedHeight(hintLabel->sizeHint().height()); // the page must not jump
    auto* page = new QVBoxLayout(form);
    page->addLayout(statusRow(form));
    page->addLayout(boxes.exchangeRow(form));
    page->addWidget(whoIsIt);
    page->addWidget(hintLabel);
    page->addLayout(frequencyRow(form));
    auto* commands = rowOf({searchButton, logButton, noLogButton, readButton, audioButton,
                            stationOption, stationLabel, markerLabel});
    commands->addStretch();
    page->addLayout(commands);
    page->addLayout(contestRow(form), 1);
    page->addLayout(pageCommands);
    for (QPushButton* button : {searchButton, logButton})
        button->setFont(enlargedFont(form, 1));
}

QHBoxLayout* MainControls::statusRow(QWidget* form) {
    FormBuilder build(form);
    whoLabel->setFont(enlargedFont(form, statusEnlargement));
    clockLabel->setFont(enlargedFont(form, statusEnlargement));
    QHBoxLayout* row = rowOf({whoLabel, fileLabel, dupeModeLabel, readSign, autoReadLabel,
                              autoReadButton, clockLabel, build.caption("UTC", clockLabel)});
    row->setStretch(1, 1);
    return row;
}

QHBoxLayout* MainControls::frequencyRow(QWidget* form) {
    FormBuilder build(form);
    for (QWidget* control : {static_cast<QWidget*>(boxes.frequency),
                             static_cast<QWidget*>(countBox), static_cast<QWidget*>(bandLabel)})
        control->setFont(enlargedFont(form, entryEnlargement));
    boxes.frequency->setFixedWidth(QFontMetrics(boxes.frequency->font()).averageCharWidth() * 9);
    countBox->setFixedWidth(QFontMetrics(countBox->font()).averageCharWidth() * 7);
    QHBoxLayout* row = rowOf({build.caption("FREQ &MHz", boxes.frequency), boxes.frequency,
                              frequencyButton, upButton, downButton, bandLabel});
    row->addStretch();
    row->addWidget(build.caption("QSOs", countBox));
    row->addWidget(countBox);
    return row;
}

// The list keeps its width and the panel follows it.
QHBoxLayout* MainControls::contestRow(QWidget* form) const {
    auto* worked = new QVBoxLayout;
    worked->addWidget(workedList->headings(form));
    worked->addWidget(workedList, 1);
    auto* row = new QHBoxLayout;
    row->addLayout(worked);
    row->addWidget(panel);
    row->addStretch();
    return row;
}

} // namespace vantrel
