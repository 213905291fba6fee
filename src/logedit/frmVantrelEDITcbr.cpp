// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelEDITcbr.h"

namespace vantrel {

namespace {
// Where editorFields comes to my side of the exchange and to his.
constexpr std::size_t firstOfMine = 4;
constexpr std::size_t firstOfHis = 9;
} // namespace

frmVantrelEDITcbr::frmVantrelEDITcbr(const FormContext& context)
    : frmLogPage(context, "frmVantrelEDITcbr", "EDIT THE CABRILLO FILE") {
    FormBuilder build(this);
    makeBoxes(editorFields);
    for (const QLineEdit* box : boxes())
        connectHandler(box, &QLineEdit::textEdited, [this] {
            m_saved = false;
            setNotes({});
        });
    std::vector<Item> contact;
    for (std::size_t i = 0; i < firstOfMine; ++i) {
        contact.emplace_back(build.caption(editorFields[i].label, boxes()[i]));
        contact.emplace_back(boxes()[i]);
    }
    contact.push_back(Item::room());
    page(this, {searchRow("CALL", build.text("Text1", 0, "ENTER A CALL TO SEARCH FOR"),
                          "SEARCH FOR ADDITIONAL ENTRIES"),
                row(contact),
                {row({build.section("MY SIDE", fieldRows(firstOfMine, firstOfHis)),
                      build.section("HIS SIDE", fieldRows(firstOfHis, boxes().size())),
                      {matchesSection("Label18"), 1}}),
                 1},
                messageRows("Label16", "Label17"),
                changeButtons("&SAVE CHANGES", "SAVE WITH CHANGES", "QUIT THIS ROUTINE")});
}

void frmVantrelEDITcbr::showFound(const std::string& /*key*/) {
    m_saved = false;
    showBoxes(editorBoxes(log().line()));
    setStatus("MAKE CORRECTIONS AS NECESSARY");
}

std::string frmVantrelEDITcbr::standingNote() const {
    if (m_saved)
        return {};
    const std::string changes = log().found() ? besides() : "";
    return "A SAVE REBUILDS THE WHOLE LINE. CORRECT KEEPS ALL ELSE." +
           (changes.empty() ? "" : "\nIT WOULD CHANGE BESIDES: " + changes);
}

std::string frmVantrelEDITcbr::besides() const {
    return changedBesides(log().line(), unchanged(), typed(),
                          rebuiltLine(log().line(), tidiedBoxes(typed())));
}

void frmVantrelEDITcbr::change() {
    const Boxes tidy = tidiedBoxes(typed());
    const std::string changes = besides();
    const ChangeResult result = log().replaceLine(rebuiltLine(log().line(), tidy));
    if (!publish(result))
        return;
    m_saved = true;
    showBoxes(tidy);
    finish("                   Done......Click EXIT", result,
           {changes.empty() ? "" : "CHANGED BESIDES: " + changes});
}

} // namespace vantrel
