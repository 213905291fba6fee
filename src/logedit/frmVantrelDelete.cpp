// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelDelete.h"

#include "logedit/contacttext.h"

namespace vantrel {

namespace {
constexpr int entryColumns = 36; // the longer of the two lines that show a contact
} // namespace

frmVantrelDelete::frmVantrelDelete(const FormContext& context)
    : frmLogPage(context, "frmVantrelDelete", "DELETE AN ENTRY FROM THE CABRILLO FILE") {
    FormBuilder build(this);
    m_callLabel = build.label("Label2");
    m_detailLabel = build.label("Label3");
    for (QLabel* label : {m_callLabel, m_detailLabel}) {
        label->setFont(fixedWidthFont());
        label->setMinimumWidth(widthOfColumns(QFontMetrics(label->font()), entryColumns));
    }
    page(
        this,
        {build.heading("", "DELETE AN ENTRY", headingEnlargement),
         searchRow("HIS CALL", build.text("Text1"), "SEARCH FOR ADDITIONAL ENTRIES"),
         {row({build.section("ENTRY TO DELETE", column({m_callLabel, m_detailLabel, Item::room()})),
               {matchesSection("Label6"), 1}}),
          1},
         messageRows("Label4", "Label5"),
         changeButtons("&DELETE", "REMOVE THE ENTRY DISPLAYED ", "QUIT THIS ROUTINE")});
}

void frmVantrelDelete::load() {
    frmLogPage::load();
    setStatus("ENTER A CALLSIGN ");
}

void frmVantrelDelete::change() {
    const ChangeResult result = log().removeLine();
    if (publish(result))
        finish("Deleted...Click EXIT", result);
}

// Nothing is found after a deletion: a second press would remove the contact that moved up,
// unseen.
void frmVantrelDelete::refreshControls() {
    frmLogPage::refreshControls();
    const bool found = log().found();
    put(m_callLabel, found ? deletionCallText(log().line()) : "");
    put(m_detailLabel, found ? deletionDetailText(log().line()) : "");
}

} // namespace vantrel
