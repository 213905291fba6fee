// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelDelete.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "logedit/deletion.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr int openingColumns = 50; // room for the contact shown
} // namespace

frmVantrelDelete::frmVantrelDelete(const FormContext& context)
    : frmLogPage(context, "frmVantrelDelete", "DELETE AN ENTRY FROM THE CABRILLO FILE") {
    createControls();
    layOut();
}

void frmVantrelDelete::createControls() {
    FormBuilder build(this);
    createSearch(build.text("Text1"), "SEARCH FOR ADDITIONAL ENTRIES");
    createChange("&DELETE", "REMOVE THE ENTRY DISPLAYED ", "QUIT THIS ROUTINE");
    m_callLabel = build.label("Label2");
    m_detailLabel = build.label("Label3");
    createMessage("Label4");
}

void frmVantrelDelete::load() {
    say("ENTER A CALLSIGN ");
}

void frmVantrelDelete::showFound(const std::string& /*key*/) {
    say("");
}

std::string frmVantrelDelete::notFoundText(const std::string& /*key*/) const {
    return "THIS CALL NOT FOUND ";
}

void frmVantrelDelete::change() {
    if (made(log().removeLine()))
        finish("Deleted...Click EXIT");
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
    auto* page = new QVBoxLayout(this);
    page->addWidget(heading("DELETE AN ENTRY"));
    page->addLayout(searchRow("HIS CALL"));
    for (QLabel* label : {m_callLabel, m_detailLabel}) {
        label->setFont(fixedWidthFont());
        label->setMinimumWidth(QFontMetrics(label->font()).averageCharWidth() * openingColumns);
        page->addWidget(label);
    }
    page->addWidget(messageLabel());
    page->addStretch();
    page->addLayout(changeButtons());
    messageLabel()->setAlignment(Qt::AlignCenter);
}

} // namespace vantrel
