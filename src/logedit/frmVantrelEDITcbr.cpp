// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelEDITcbr.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {
// Where editorFields comes to my side of the exchange and to his; the marker is the last one.
constexpr std::size_t firstOfMine = 4;
constexpr std::size_t firstOfHis = 9;
} // namespace

frmVantrelEDITcbr::frmVantrelEDITcbr(const FormContext& context)
    : frmLogPage(context, "frmVantrelEDITcbr", "EDIT THE CABRILLO FILE") {
    createControls();
    layOut();
}

void frmVantrelEDITcbr::createControls() {
    FormBuilder build(this);
    createSearch(build.text("Text1", 0, "ENTER A CALL TO SEARCH FOR"),
                 "SEARCH FOR ADDITIONAL ENTRIES");
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i] = build.text(editorFields[i].box);
    m_dupeOption = createDupeOption(m_boxes.back());
    createMatches("Label18");
    createChange("&SAVE CHANGES", "SAVE WITH CHANGES", "QUIT THIS ROUTINE");
    createMessages("Label16", "Label17");
    chainBoxes(m_boxes);
}

void frmVantrelEDITcbr::showFound(const std::string& /*key*/) {
    showBoxes(editorBoxes(log().line()));
    say("MAKE CORRECTIONS AS NECESSARY");
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
    if (!made(result))
        return;
    const std::string besides = changedBesides(before, m_shown, typed, rebuilt);
    m_saved = true;
    showBoxes(tidy);
    finish("                   Done......Click EXIT", result,
           besides.empty() ? Notes{} : Notes{"CHANGED BESIDES: " + besides});
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

void frmVantrelEDITcbr::layOut() {
    FormBuilder build(this);
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        fit(m_boxes[i], editorFields[i].written.width);
    auto* contact = new QHBoxLayout;
    for (std::size_t i = 0; i < firstOfMine; ++i) {
        contact->addWidget(build.caption(editorFields[i].label, m_boxes[i]));
        contact->addWidget(m_boxes[i]);
    }
    contact->addStretch();
    QFormLayout* his = side(firstOfHis, m_boxes.size() - 1);
    his->addRow(m_dupeOption, m_boxes.back());
    auto* sides = new QHBoxLayout;
    sides->addLayout(build.section("MY SIDE", side(firstOfMine, firstOfHis)));
    sides->addLayout(build.section("HIS SIDE", his));
    sides->addLayout(matchesCard(), 1);

    auto* page = new QVBoxLayout(this);
    page->addLayout(searchRow("CALL"));
    page->addLayout(contact);
    page->addLayout(sides, 1);
    page->addLayout(messageRows());
    page->addLayout(changeButtons());
}

} // namespace vantrel
