// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelDelete.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "logedit/contacttext.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr int entryColumns = 36; // the longer of the two lines that show a contact
} // namespace

frmVantrelDelete::frmVantrelDelete(const FormContext& context)
    : frmLogPage(context, "frmVantrelDelete", "DELETE AN ENTRY FROM THE CABRILLO FILE") {
    createControls();
    layOut();
}

void frmVantrelDelete::createControls() {
    FormBuilder build(this);
    createSearch(build.text("Text1"), "SEARCH FOR ADDITIONAL ENTRIES");
    createMatches("Label6");
    createChange("&DELETE", "REMOVE THE ENTRY DISPLAYED ", "QUIT THIS ROUTINE");
    m_callLabel = build.label("Label2");
    m_detailLabel = build.label("Label3");
    createMessages("Label4", "Label5");
}

void frmVantrelDelete::load() {
    frmLogPage::load();
    say("ENTER A CALLSIGN ");
}

void frmVantrelDelete::showFound(const std::string& /*key*/) {
    say("");
}

std::string frmVantrelDelete::notFoundText(const std::string& /*key*/) const {
    return "THIS CALL NOT FOUND ";
}

void frmVantrelDelete::change() {
    const ChangeResult result = log().removeLine();
    if (made(result))
        finish("Deleted...Click EXIT", result);
}

// Nothing is found after a deletion: a second press would remove the contact that moved up,
// unseen.
void frmVantrelDelete::followLog() {
    frmLogPage::followLog();
    const bool found = log().found();
    put(m_callLabel, found ? deletionCallText(log().line()) : "");
    put(m_detailLabel, found ? deletionDetailText(log().line()) : "");
}

void frmVantrelDelete::layOut() {
    auto* entry = new QVBoxLayout;
    for (QLabel* label : {m_callLabel, m_detailLabel}) {
        label->setFont(fixedWidthFont());
        label->setMinimumWidth(widthOfColumns(QFontMetrics(label->font()), entryColumns));
        entry->addWidget(label);
    }
    entry->addStretch();
    auto* columns = new QHBoxLayout;
    columns->addLayout(FormBuilder(this).section("ENTRY TO DELETE", entry));
    columns->addLayout(matchesCard(), 1);

    auto* page = new QVBoxLayout(this);
    page->addWidget(heading("DELETE AN ENTRY"));
    page->addLayout(searchRow("HIS CALL"));
    page->addLayout(columns, 1);
    page->addLayout(messageRows());
    page->addLayout(changeButtons());
}

} // namespace vantrel
