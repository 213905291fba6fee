// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelCorrect.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/layouts.h"

#include <QScopeGuard>

namespace vantrel {

frmVantrelCorrect::frmVantrelCorrect(const FormContext& context)
    : frmLogPage(context, "frmVantrelCorrect", "CORRECTION PAGE") {
    FormBuilder build(this);
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i] = build.text(correctionFields[i].box);
    connectHandler(m_boxes.front(), &QLineEdit::textEdited, [this] { m_callTyped = true; });
    page(this, {heading("MAKE CORRECTIONS"),
                searchRow(correctionFields.front().label, m_boxes.front(),
                          "CLICK HERE TO FIND ADDITIONAL ENTRIES"),
                {row({build.section("CONTACT", fields()), {matchesCard("Label13"), 1}}), 1},
                messageRows("Label11", "Label12"),
                changeButtons("&SAVE CHANGES", "SAVE WITH CHANGES", "EXIT THIS ROUTINE")});
    chainBoxes(std::span(m_boxes).subspan<1>());
}

QLayout* frmVantrelCorrect::fields() {
    FormBuilder build(this);
    auto* form = new QFormLayout;
    for (std::size_t i = 1; i < m_boxes.size(); ++i) {
        fit(m_boxes[i], correctionFields[i].column.width);
        // The wrong band is what is corrected most: it has a key of its own.
        const bool isFrequency = correctionFields[i].column.first == qso::frequency.first;
        if (i + 1 < m_boxes.size())
            build.row(form, isFrequency ? "&FREQUENCY" : correctionFields[i].label, m_boxes[i]);
    }
    form->addRow(dupeOption(m_boxes.back()), m_boxes.back());
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    return form;
}

// What is searched for, even in vain, is no correction of the call that is found already.
void frmVantrelCorrect::searchStarts(const std::string& key) {
    m_shown.front() = key;
    m_callTyped = false;
    setStatus("");
}

void frmVantrelCorrect::showFound(const std::string& key) {
    showBoxes(correctionBoxes(key, log().line()));
}

std::string frmVantrelCorrect::notFoundText(const std::string& /*key*/) const {
    return "THIS CALL IS NOT FOUND";
}

void frmVantrelCorrect::change() {
    const CorrectionBoxes shown = untouched();
    const CorrectionBoxes typed = textsOf(m_boxes);
    if (!keepsFindable(shown, typed)) {
        messages().show({"A CALL NEEDS AT LEAST THREE CHARACTERS", BoxIcon::exclamation});
        return;
    }
    const Correction correction = corrected(log().line(), shown, typed);
    const ChangeResult result = rewriteAtWork(correction.line);
    if (!publish(result))
        return;
    showBoxes(correction.boxes);
    std::vector<std::string> notes;
    if (!correction.cut.empty())
        notes.push_back("CUT TO WIDTH: " + correction.cut);
    if (!correction.wrong.empty())
        notes.push_back("LOOKS WRONG: " + correction.wrong);
    finish(" Done....Click EXIT ", result, std::move(notes));
}

CorrectionBoxes frmVantrelCorrect::untouched() const {
    return m_callTyped ? withCallShown(m_shown, log().line()) : m_shown;
}

std::vector<std::string> frmVantrelCorrect::unsaved() const {
    const CorrectionBoxes typed = textsOf(m_boxes);
    if (!log().found() || typed == untouched())
        return {};
    return {typed.begin(), typed.end()};
}

ChangeResult frmVantrelCorrect::rewriteAtWork(const std::string& line) {
    setStatus("    < WORKING >     ");
    messageLabel()->repaint();
    const QScopeGuard atWorkNoMore([this] { setStatus(""); });
    return log().replaceLine(line);
}

void frmVantrelCorrect::clearBoxes() {
    showBoxes({textOf(m_boxes.front())});
}

void frmVantrelCorrect::showBoxes(const CorrectionBoxes& boxes) {
    m_shown = boxes;
    m_callTyped = false;
    put(m_boxes, boxes);
}

std::string frmVantrelCorrect::placeText(int place, int count) const {
    return "FOUND: " + std::string(trim(qso::hisCall.of(log().line()))) + ", " +
           frmLogPage::placeText(place, count);
}

} // namespace vantrel
