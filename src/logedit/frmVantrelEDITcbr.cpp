// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelEDITcbr.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr std::size_t rowsInAColumn = 8;
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
    createChange("&SAVE CHANGES", "SAVE WITH CHANGES", "QUIT THIS ROUTINE");
    createMessage("Label16");
}

void frmVantrelEDITcbr::showFound(const std::string& /*key*/) {
    put(m_boxes, editorBoxes(log().line()));
    say("MAKE CORRECTIONS AS NECESSARY");
}

std::string frmVantrelEDITcbr::notFoundText(const std::string& key) const {
    return key + " IS NOT IN THE FILE";
}

void frmVantrelEDITcbr::change() {
    const EditorBoxes tidy = tidiedBoxes(textsOf(m_boxes));
    if (!made(log().replaceLine(rebuiltLine(log().line(), tidy))))
        return;
    put(m_boxes, tidy);
    finish("                   Done......Click EXIT");
}

void frmVantrelEDITcbr::clearBoxes() {
    put(m_boxes, EditorBoxes{});
}

void frmVantrelEDITcbr::layOut() {
    FormBuilder build(this);
    QFormLayout* const columns[] = {new QFormLayout, new QFormLayout};
    for (std::size_t i = 0; i + 1 < m_boxes.size(); ++i)
        build.row(columns[i / rowsInAColumn], editorFields[i].label, m_boxes[i]);
    columns[1]->addRow(m_dupeOption, m_boxes.back());
    auto* fields = new QHBoxLayout;
    for (QFormLayout* column : columns)
        fields->addLayout(column);

    auto* page = new QVBoxLayout(this);
    page->addLayout(searchRow("CALL"));
    page->addLayout(fields);
    page->addWidget(messageLabel());
    page->addStretch();
    page->addLayout(changeButtons());
}

} // namespace vantrel
