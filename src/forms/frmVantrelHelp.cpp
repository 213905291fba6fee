// SPDX-License-Identifier: MIT
#include "forms/frmVantrelHelp.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QScrollBar>

// Without this the linker leaves keys.txt out. Qt's macro works outside namespaces only.
static void takeInText() {
    Q_INIT_RESOURCE(keys);
}

namespace vantrel {

namespace {

// What keys.txt has under this name: a page's objectName or "everywhere".
QString linesUnder(const QString& name) {
    QFile file(QStringLiteral(":/keys.txt"));
    QString lines;
    bool wanted = false;
    if (file.open(QIODevice::ReadOnly))
        for (const QString& line : QString::fromLatin1(file.readAll()).split(u'\n')) {
            if (line.startsWith(u'['))
                wanted = line.contains(name);
            else if (wanted)
                lines += line + u'\n';
        }
    return lines;
}

QString exchangeOf(const OperatingSettings& settings) {
    if (settings.isK3y())
        return QStringLiteral(
            "EXCHANGE: RST, NAME, STATE OR COUNTRY, SKCC#; K3Y STATIONS: THEIR AREA\n\n");
    return QStringLiteral("EXCHANGE: RST, NAME, STATE, PROVINCE OR COUNTRY, SKCC# OR NONE\n\n");
}

// The page's keys and what each does, a line each, then the keys of all pages. page: its
// objectName. The main page's sheet begins with the contest's exchange.
QString keySheet(const QString& page, const OperatingSettings& settings) {
    QString text = linesUnder(page) + linesUnder(QStringLiteral("everywhere"));
    if (page == QLatin1String("frmVantrelMain"))
        text.prepend(exchangeOf(settings));
    const bool told = text.contains(QLatin1String("Esc  "));
    return told || page == QLatin1String("frmVantrelStart")
               ? text
               : text + QStringLiteral("Esc              closes the page\n");
}

} // namespace

frmVantrelHelp::frmVantrelHelp(const FormContext& context)
    : Form(context, "frmVantrelHelp", "Vantrel - Keys") {
    takeInText();
    // The text has the focus: arrow keys scroll it, a screen reader reads it line by line.
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
    m_sheet->setPlainText(keySheet(toQt(m_page), shared().settings).trimmed());
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
            text.height() + around + 1}; // a pixel less, and the last line had to be scrolled to
}

// Looking up a key leads back to the box in which it is to be pressed.
void frmVantrelHelp::closeEvent(QCloseEvent* event) {
    const QPointer<QWidget> box = opener() == nullptr ? nullptr : opener()->focusWidget();
    Form::closeEvent(event);
    if (box)
        box->setFocus();
}

} // namespace vantrel
