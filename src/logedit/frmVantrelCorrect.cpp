// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelCorrect.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"

#include <QHBoxLayout>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace vantrel {

frmVantrelCorrect::frmVantrelCorrect(const FormContext& context)
    : frmLogPage(context, "frmVantrelCorrect", "CORRECTION PAGE") {
    createControls();
    layOut();
}

void frmVantrelCorrect::createControls() {
    FormBuilder build(this);
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i] = build.text(correctionFields[i].box);
    m_dupeOption = createDupeOption(m_boxes.back());
    createSearch(m_boxes.front(), "CLICK HERE TO FIND ADDITIONAL ENTRIES");
    createChange("&SAVE CHANGES", "SAVE WITH CHANGES", "EXIT THIS ROUTINE");
    createMessage("Label11");
    m_cutLabel = build.label("Label12");
    m_foundLabel = build.label("Label13");
}

void frmVantrelCorrect::showFound(const std::string& key) {
    showBoxes(correctionBoxes(key, log().line()));
}

void frmVantrelCorrect::foundNone(const std::string& key) {
    m_shown.front() = key; // searched for, so it is no correction of the call that stays
}

std::string frmVantrelCorrect::notFoundText(const std::string& /*key*/) const {
    return "THIS CALL IS NOT FOUND";
}

void frmVantrelCorrect::change() {
    const CorrectionBoxes typed = textsOf(m_boxes);
    if (!keepsFindable(m_shown, typed)) {
        messages().show({"A CALL NEEDS AT LEAST THREE CHARACTERS", BoxIcon::exclamation});
        return;
    }
    const Correction correction = corrected(log().line(), m_shown, typed);
    if (!made(rewriteAtWork(correction.line)))
        return;
    showBoxes(correction.boxes);
    finish(" Done....Click EXIT ");
    if (!correction.cut.empty())
        put(m_cutLabel, "CUT TO WIDTH: " + correction.cut);
}

ChangeResult frmVantrelCorrect::rewriteAtWork(const std::string& line) {
    say("    < WORKING >     ");
    messageLabel()->repaint();
    const QScopeGuard atWorkNoMore([this] { say(""); });
    return log().replaceLine(line);
}

void frmVantrelCorrect::clearBoxes() {
    showBoxes({textOf(m_boxes.front())});
}

void frmVantrelCorrect::showBoxes(const CorrectionBoxes& boxes) {
    m_shown = boxes;
    put(m_boxes, boxes);
}

void frmVantrelCorrect::say(std::string_view message) {
    frmLogPage::say(message);
    m_cutLabel->clear();
}

void frmVantrelCorrect::followLog() {
    frmLogPage::followLog();
    m_foundLabel->clear();
    if (log().found())
        put(m_foundLabel, "FOUND: " + std::string(trim(qso::hisCall.of(log().line()))));
}

void frmVantrelCorrect::layOut() {
    FormBuilder build(this);
    auto* fields = new QFormLayout;
    for (std::size_t i = 0; i + 1 < m_boxes.size(); ++i)
        build.row(fields, correctionFields[i].label, m_boxes[i]);
    fields->addRow(m_dupeOption, m_boxes.back());

    auto* page = new QVBoxLayout(this);
    page->addWidget(heading("MAKE CORRECTIONS"));
    page->addLayout(fields);
    page->addLayout(searchButtons());
    for (QLabel* label : {m_foundLabel, messageLabel(), m_cutLabel})
        page->addWidget(label);
    page->addStretch();
    page->addLayout(changeButtons());
    for (QLabel* label : {m_foundLabel, messageLabel()})
        label->setAlignment(Qt::AlignCenter);
    m_cutLabel->setWordWrap(true);
}

} // namespace vantrel
