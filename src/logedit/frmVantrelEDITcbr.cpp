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
    for (const QLineEdit* box : m_boxes)
        connectHandler(box, &QLineEdit::textEdited, [this] {
            m_saved = false;
            setNotes({});
        });
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
    m_saved = false;
    showBoxes(editorBoxes(log().line()));
    setStatus("MAKE CORRECTIONS AS NECESSARY");
}

std::string frmVantrelEDITcbr::notFoundText(const std::string& key) const {
    return key + " IS NOT IN THE FILE";
}

std::string frmVantrelEDITcbr::standingNote() const {
    if (m_saved)
        return {};
    const std::string changes = log().found() ? besides() : "";
    return "A SAVE REBUILDS THE WHOLE LINE. CORRECT KEEPS ALL ELSE." +
           (changes.empty() ? "" : "\nIT WOULD CHANGE BESIDES: " + changes);
}

std::string frmVantrelEDITcbr::besides() const {
    const EditorBoxes typed = textsOf(m_boxes);
    return changedBesides(log().line(), m_shown, typed,
                          rebuiltLine(log().line(), tidiedBoxes(typed)));
}

std::vector<std::string> frmVantrelEDITcbr::unsaved() const {
    const EditorBoxes typed = textsOf(m_boxes);
    if (!log().found() || typed == m_shown)
        return {};
    return {typed.begin(), typed.end()};
}

void frmVantrelEDITcbr::change() {
    const EditorBoxes tidy = tidiedBoxes(textsOf(m_boxes));
    const std::string changes = besides();
    const ChangeResult result = log().replaceLine(rebuiltLine(log().line(), tidy));
    if (!publish(result))
        return;
    m_saved = true;
    showBoxes(tidy);
    finish("                   Done......Click EXIT", result,
           changes.empty() ? std::vector<std::string>{}
                           : std::vector<std::string>{"CHANGED BESIDES: " + changes});
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
