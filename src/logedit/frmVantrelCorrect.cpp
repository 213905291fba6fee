// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelCorrect.h"

#include "forms/formbuilder.h"
#include "logedit/changereport.h"
#include "platform/qt/latin1.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace vantrel {

namespace {

constexpr std::string_view workingText = "    < WORKING >     ";
constexpr std::string_view doneText = " Done....Click EXIT ";
constexpr std::string_view notFoundText = "THIS CALL IS NOT FOUND";
constexpr std::string_view lastEntryText = "LAST ENTRY";
constexpr std::string_view foundLead = "FOUND: ";
constexpr std::string_view cutLead = "CUT TO WIDTH: ";
constexpr std::string_view shortCallText = "A CALL NEEDS AT LEAST THREE CHARACTERS";
constexpr double headingEnlargement = 1.5;

} // namespace

frmVantrelCorrect::frmVantrelCorrect(const FormContext& context)
    : Form(context, "frmVantrelCorrect", "CORRECTION PAGE"),
      m_log(context.platform.files, context.shared.log) {
    createControls();
    layOut();
    openAtPageSize();
    connectHandlers();
}

void frmVantrelCorrect::createControls() {
    FormBuilder build(this);
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i] = build.text(correctionFields[i].box);
    Option1 = build.jobOption("Option1", "DUPE NOTE");
    Command3 = build.command("Command3", "SEARCH", "ENTER A CALL THEN CLICK HERE");
    Command4 = build.command("Command4", "SEARCH AGAIN", "CLICK HERE TO FIND ADDITIONAL ENTRIES");
    Command2 = build.command("Command2", "&SAVE CHANGES", "SAVE WITH CHANGES");
    Command5 = build.command("Command5", "&UNDO", "UNDOES THE LAST CHANGE MADE HERE, OR REDOES IT");
    Command1 = build.command("Command1", "E&XIT", "EXIT THIS ROUTINE");
    Label11 = build.label("Label11");
    Label12 = build.label("Label12");
    Label13 = build.label("Label13");
    Command2->setEnabled(false);
    Command5->setEnabled(false);
}

void frmVantrelCorrect::connectHandlers() {
    using Page = frmVantrelCorrect;
    connectHandler(m_boxes[0], &QLineEdit::returnPressed, this, &Page::Command3_Click);
    connectHandler(Command3, &QPushButton::clicked, this, &Page::Command3_Click);
    connectHandler(Command4, &QPushButton::clicked, this, &Page::Command4_Click);
    connectHandler(Option1, &QRadioButton::clicked, this, &Page::Option1_Click);
    connectHandler(Command2, &QPushButton::clicked, this, &Page::Command2_Click);
    connectHandler(Command5, &QPushButton::clicked, this, &Page::Command5_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

QWidget* frmVantrelCorrect::firstFocus() {
    return m_boxes[0];
}

void frmVantrelCorrect::Command3_Click() {
    say("");
    const std::string key = takeKey();
    showOutcome(m_log.search(key), key, notFoundText);
}

void frmVantrelCorrect::Command4_Click() {
    say("");
    const std::string key = takeKey();
    showOutcome(m_log.searchNext(key), key, lastEntryText);
}

void frmVantrelCorrect::Option1_Click() {
    m_boxes.back()->setText(toQt(dupeMarker));
    Option1->setChecked(false);
}

void frmVantrelCorrect::Command2_Click() {
    if (!m_log.found())
        return;
    if (!keepsFindable(m_shown, boxes())) {
        messages().show({std::string(shortCallText), BoxIcon::exclamation});
        return;
    }
    const Correction correction = corrected(m_log.line(), m_shown, boxes());
    if (!reportChange(rewriteAtWork(correction.line), m_log, messages()))
        return;
    showBoxes(correction.boxes);
    followLog();
    say(doneText);
    if (!correction.cut.empty())
        Label12->setText(toQt(std::string(cutLead) + correction.cut));
}

void frmVantrelCorrect::Command5_Click() {
    if (!reportChange(m_log.undo(), m_log, messages()))
        return;
    CorrectionBoxes key{};
    key[0] = fromQt(m_boxes[0]->text());
    showBoxes(key);
    followLog();
    say(m_log.undoText());
}

std::string frmVantrelCorrect::takeKey() {
    const std::string key = tidied(fromQt(m_boxes[0]->text()));
    m_boxes[0]->setText(toQt(key));
    return key;
}

void frmVantrelCorrect::showOutcome(SearchResult result, const std::string& key,
                                    std::string_view none) {
    if (result == SearchResult::found) {
        showBoxes(correctionBoxes(key, m_log.line()));
    } else if (result == SearchResult::notFound) {
        m_shown[0] = key; // searched for, so it is no correction of the call that stays
        say(none);
    }
    followLog();
}

ChangeResult frmVantrelCorrect::rewriteAtWork(const std::string& line) {
    say(workingText);
    Label11->repaint();
    const QScopeGuard atWorkNoMore([this] { say(""); });
    return m_log.replaceLine(line);
}

CorrectionBoxes frmVantrelCorrect::boxes() const {
    CorrectionBoxes boxes;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i] = fromQt(m_boxes[i]->text());
    return boxes;
}

void frmVantrelCorrect::showBoxes(const CorrectionBoxes& boxes) {
    m_shown = boxes;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        m_boxes[i]->setText(toQt(boxes[i]));
}

void frmVantrelCorrect::followLog() {
    Command2->setEnabled(m_log.found());
    Command5->setEnabled(m_log.canUndo());
    Label13->clear();
    if (m_log.found()) {
        const std::string_view call = trim(qso::hisCall.of(m_log.line()));
        Label13->setText(toQt(std::string(foundLead) + std::string(call)));
    }
    m_boxes[0]->setFocus();
    m_boxes[0]->selectAll();
}

void frmVantrelCorrect::say(std::string_view message) {
    Label11->setText(toQt(message));
    Label12->clear();
}

void frmVantrelCorrect::layOut() {
    FormBuilder build(this);
    QLabel* heading = build.caption("MAKE CORRECTIONS");
    heading->setFont(enlargedFont(this, headingEnlargement));
    heading->setAlignment(Qt::AlignCenter);
    auto* grid = new QGridLayout;
    int row = 0;
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        // The marker is put in by its option, which stands in place of a caption.
        QWidget* caption = i + 1 == m_boxes.size() ? static_cast<QWidget*>(Option1)
                                                   : build.caption(correctionFields[i].label);
        grid->addWidget(caption, row, 0);
        grid->addWidget(m_boxes[i], row++, 1);
    }
    auto* searching = new QHBoxLayout;
    searching->addWidget(Command3);
    searching->addWidget(Command4);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {Command2, Command5, Command1})
        buttons->addWidget(button);
    auto* page = new QVBoxLayout(this);
    page->addWidget(heading);
    page->addLayout(grid);
    page->addLayout(searching);
    page->addWidget(Label13);
    page->addWidget(Label11);
    page->addWidget(Label12);
    page->addStretch();
    page->addLayout(buttons);
    for (QLabel* label : {Label11, Label13})
        label->setAlignment(Qt::AlignCenter);
    Label12->setWordWrap(true);
}

} // namespace vantrel
