// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelEDITcbr.h"

#include "forms/formbuilder.h"
#include "logedit/changereport.h"
#include "platform/qt/latin1.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {

constexpr std::string_view foundText = "MAKE CORRECTIONS AS NECESSARY";
constexpr std::string_view notFoundTail = " IS NOT IN THE FILE";
constexpr std::string_view lastEntryText = "LAST ENTRY";
constexpr std::string_view doneText = "                   Done......Click EXIT";
constexpr int rowsInAColumn = 8;

} // namespace

frmVantrelEDITcbr::frmVantrelEDITcbr(const FormContext& context)
    : Form(context, "frmVantrelEDITcbr", "EDIT THE CABRILLO FILE"),
      m_log(context.platform.files, context.shared.log) {
    createControls();
    layOut();
    openAtPageSize();
    connectHandlers();
}

void frmVantrelEDITcbr::createControls() {
    FormBuilder build(this);
    Text1 = build.text("Text1", 0, "ENTER A CALL TO SEARCH FOR");
    Command3 = build.command("Command3", "SEARCH", "ENTER A CALL THEN CLICK HERE");
    Command4 = build.command("Command4", "SEARCH AGAIN", "SEARCH FOR ADDITIONAL ENTRIES");
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i] = build.text(editorFields[i].box);
    Option1 = build.jobOption("Option1", editorFields.back().label);
    Command2 = build.command("Command2", "&SAVE CHANGES", "SAVE WITH CHANGES");
    Command5 = build.command("Command5", "&UNDO", "UNDOES THE LAST CHANGE MADE HERE, OR REDOES IT");
    Command1 = build.command("Command1", "E&XIT", "QUIT THIS ROUTINE");
    Label16 = build.label("Label16");
    Command2->setEnabled(false);
    Command5->setEnabled(false);
}

void frmVantrelEDITcbr::connectHandlers() {
    using Page = frmVantrelEDITcbr;
    connectHandler(Text1, &QLineEdit::returnPressed, this, &Page::Command3_Click);
    connectHandler(Command3, &QPushButton::clicked, this, &Page::Command3_Click);
    connectHandler(Command4, &QPushButton::clicked, this, &Page::Command4_Click);
    connectHandler(Option1, &QRadioButton::clicked, this, &Page::Option1_Click);
    connectHandler(Command2, &QPushButton::clicked, this, &Page::Command2_Click);
    connectHandler(Command5, &QPushButton::clicked, this, &Page::Command5_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

QWidget* frmVantrelEDITcbr::firstFocus() {
    return Text1;
}

void frmVantrelEDITcbr::Command3_Click() {
    const std::string key = tidied(fromQt(Text1->text()));
    Text1->setText(toQt(key));
    showOutcome(m_log.search(key), key + std::string(notFoundTail));
}

void frmVantrelEDITcbr::Command4_Click() {
    showOutcome(m_log.searchNext(tidied(fromQt(Text1->text()))), lastEntryText);
}

void frmVantrelEDITcbr::Option1_Click() {
    m_boxes.back()->setText(toQt(dupeMarker));
    Option1->setChecked(false);
}

void frmVantrelEDITcbr::Command2_Click() {
    if (!m_log.found())
        return;
    const EditorBoxes tidy = tidiedBoxes(boxes());
    const ChangeResult result = m_log.replaceLine(rebuiltLine(m_log.line(), tidy));
    if (!reportChange(result, m_log, messages()))
        return;
    showBoxes(tidy);
    say(doneText);
    followLog();
}

void frmVantrelEDITcbr::Command5_Click() {
    if (!reportChange(m_log.undo(), m_log, messages()))
        return;
    showBoxes({});
    say(m_log.undoText());
    followLog();
}

EditorBoxes frmVantrelEDITcbr::boxes() const {
    EditorBoxes boxes;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i] = fromQt(m_boxes[i]->text());
    return boxes;
}

void frmVantrelEDITcbr::showBoxes(const EditorBoxes& boxes) {
    for (std::size_t i = 0; i < boxes.size(); ++i)
        m_boxes[i]->setText(toQt(boxes[i]));
}

void frmVantrelEDITcbr::showOutcome(SearchResult result, std::string_view none) {
    if (result == SearchResult::found)
        showBoxes(editorBoxes(m_log.line()));
    if (result != SearchResult::keyTooShort)
        say(result == SearchResult::found ? foundText : none);
    followLog();
}

void frmVantrelEDITcbr::followLog() {
    Command2->setEnabled(m_log.found());
    Command5->setEnabled(m_log.canUndo());
    Text1->setFocus();
    Text1->selectAll();
}

void frmVantrelEDITcbr::say(std::string_view message) {
    Label16->setText(toQt(message));
}

void frmVantrelEDITcbr::layOut() {
    FormBuilder build(this);
    auto* searching = new QHBoxLayout;
    searching->addWidget(build.caption("CALL"));
    searching->addWidget(Text1, 1);
    searching->addWidget(Command3);
    searching->addWidget(Command4);

    auto* grid = new QGridLayout;
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        const int row = static_cast<int>(i) % rowsInAColumn;
        const int column = static_cast<int>(i) / rowsInAColumn * 2;
        // The mark is put in by its option, which stands in place of a caption.
        QWidget* caption = i + 1 == m_boxes.size() ? static_cast<QWidget*>(Option1)
                                                   : build.caption(editorFields[i].label);
        grid->addWidget(caption, row, column);
        grid->addWidget(m_boxes[i], row, column + 1);
    }
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {Command2, Command5, Command1})
        buttons->addWidget(button);
    auto* page = new QVBoxLayout(this);
    page->addLayout(searching);
    page->addLayout(grid);
    page->addWidget(Label16);
    page->addStretch();
    page->addLayout(buttons);
}

} // namespace vantrel
