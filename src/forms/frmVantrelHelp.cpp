// SPDX-License-Identifier: MIT
#include "forms/frmVantrelHelp.h"

#include "forms/formbuilder.h"
#include "forms/keysheet.h"
#include "platform/qt/latin1.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr int sheetColumns = 80;
constexpr int sheetLines = 28;
} // namespace

frmVantrelHelp::frmVantrelHelp(const FormContext& context)
    : Form(context, "frmVantrelHelp", "Vantrel - Keys") {
    m_sheet = FormBuilder::named(new QPlainTextEdit(this), "Text1");
    m_sheet->setAccessibleName(QStringLiteral("KEYS"));
    m_sheet->setReadOnly(true);
    m_sheet->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_sheet->setTabChangesFocus(true);
    m_sheet->setFont(fixedWidthFont());
    const QFontMetrics metrics(m_sheet->font());
    m_sheet->setMinimumSize(widthOfColumns(metrics, sheetColumns) +
                                m_sheet->verticalScrollBar()->sizeHint().width(),
                            metrics.lineSpacing() * sheetLines);
    m_exitButton = FormBuilder(this).command("Command1", "E&XIT", "CLOSES THE KEY SHEET");
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
    auto* page = new QVBoxLayout(this);
    page->addWidget(m_sheet, 1);
    page->addWidget(m_exitButton, 0, Qt::AlignRight);
}

void frmVantrelHelp::load() {
    m_sheet->setPlainText(toQt(keySheet(m_page, shared().settings)));
}

QWidget* frmVantrelHelp::firstFocus() {
    return m_sheet; // read line by line, and scrolled
}

} // namespace vantrel
