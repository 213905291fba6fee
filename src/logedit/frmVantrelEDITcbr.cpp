// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelEDITcbr.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/layouts.h"

namespace vantrel {

namespace {
// Where editorFields comes to my side of the exchange and to his; the marker is the last one.
constexpr std::size_t firstOfMine = 4;
constexpr std::size_t firstOfHis = 9;
} // namespace

frmVantrelEDITcbr::frmVantrelEDITcbr(const FormContext& context)
    : frmLogPage(context, "frmVantrelEDITcbr", "EDIT THE CABRILLO FILE") {
    FormBuilder build(this);
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        m_boxes[i] = build.text(editorFields[i].box);
        fit(m_boxes[i], editorFields[i].written.width);
    }
    std::vector<Item> contact;
    for (std::size_t i = 0; i < firstOfMine; ++i) {
        contact.emplace_back(build.caption(editorFields[i].label, m_boxes[i]));
        contact.emplace_back(m_boxes[i]);
    }
    contact.push_back(Item::room());
    QFormLayout* his = side(firstOfHis, m_boxes.size() - 1);
    his->addRow(dupeOption(m_boxes.back()), m_boxes.back());
    page(this, {searchRow("CALL", build.text("Text1", 0, "ENTER A CALL TO SEARCH FOR"),
                          "SEARCH FOR ADDITIONAL ENTRIES"),
                row(contact),
                {row({build.section("MY SIDE", side(firstOfMine, firstOfHis)),
                      build.section("HIS SIDE", his),
                      {matchesCard("Label18"), 1}}),
                 1},
                messageRows("Label16", "Label17"),
                changeButtons("&SAVE CHANGES", "SAVE WITH CHANGES", "QUIT THIS ROUTINE")});
    chainBoxes(m_boxes);
}

void frmVantrelEDITcbr::showFound(const std::string& /*key*/) {
    showBoxes(editorBoxes(log().line()));
    setStatus("MAKE CORRECTIONS AS NECESSARY");
}

std::string frmVantrelEDITcbr::notFoundText(const std::string& key) const {
    return key + " IS NOT IN THE FILE";
}

std::string frmVantrelEDITcbr::standingNote() const {
    return m_saved ? "" : "A SAVE REBUILDS THE WHOLE LINE. CORRECT KEEPS ALL ELSE.";
}

void frmVantrelEDITcbr::change() {
    const std::string before = log().line();
    const EditorBoxes typed = textsOf(m_boxes);
    const EditorBoxes tidy = tidiedBoxes(typed);
    const std::string rebuilt = rebuiltLine(before, tidy);
    const ChangeResult result = log().replaceLine(rebuilt);
    if (!publish(result))
        return;
    const std::string besides = changedBesides(before, m_shown, typed, rebuilt);
    m_saved = true;
    showBoxes(tidy);
    finish("                   Done......Click EXIT", result,
           besides.empty() ? std::vector<std::string>{}
                           : std::vector<std::string>{"CHANGED BESIDES: " + besides});
}

void frmVantrelEDITcbr::clearBoxes() {
    showBoxes({});
}

void frmVantrelEDITcbr::showBoxes(const EditorBoxes& boxes) {
    m_shown = boxes;
    put(m_boxes, boxes);
}

QFormLayout* frmVantrelEDITcbr::side(std::size_t first, std::size_t end) {
    FormBuilder build(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    for (std::size_t i = first; i < end; ++i)
        build.row(form, editorFields[i].label, m_boxes[i]);
    return form;
}

} // namespace vantrel
