// SPDX-License-Identifier: MIT
#include "forms/frmVantrelHelp.h"

#include "forms/keysheet.h"

#include <QPlainTextEdit>
#include <QScrollBar>

namespace vantrel {

frmVantrelHelp::frmVantrelHelp(const FormContext& context)
    : Form(context, "frmVantrelHelp", "Vantrel - Keys") {
    // It has the focus to be read line by line, and scrolled.
    m_sheet = focusFirst(FormBuilder::named(new QPlainTextEdit(this), "Text1"));
    m_sheet->setAccessibleName(QStringLiteral("KEYS"));
    m_sheet->setReadOnly(true);
    m_sheet->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_sheet->setTabChangesFocus(true);
    m_sheet->setFont(fixedWidthFont());
    m_sheet->setLineWrapMode(QPlainTextEdit::NoWrap);
    page(this, {{m_sheet, 1}, {FormBuilder(this).exit("CLOSES THE KEY SHEET"), 0, Qt::AlignRight}});
}

void frmVantrelHelp::load() {
    m_sheet->setPlainText(toQt(keySheet(m_page, shared().settings)).trimmed());
    m_sheet->setMinimumWidth(textSize().width());
}

// As large as its text; where the screen is smaller it is scrolled.
QSize frmVantrelHelp::sizeHint() const {
    const int others = Form::sizeHint().height() - m_sheet->sizeHint().height();
    return {Form::sizeHint().width(), others + textSize().height()};
}

QSize frmVantrelHelp::textSize() const {
    const int around =
        2 * (m_sheet->frameWidth() + static_cast<int>(m_sheet->document()->documentMargin()));
    const QSize text = QFontMetrics(m_sheet->font()).size(0, m_sheet->toPlainText());
    return {text.width() + around + m_sheet->verticalScrollBar()->sizeHint().width(),
            text.height() + around + 1}; // without the one the last line had to be scrolled to
}

// Looking up a key leads back to the box in which it is to be pressed.
void frmVantrelHelp::closeEvent(QCloseEvent* event) {
    const QPointer<QWidget> box = opener() == nullptr ? nullptr : opener()->focusWidget();
    Form::closeEvent(event);
    if (box)
        box->setFocus();
}

} // namespace vantrel
