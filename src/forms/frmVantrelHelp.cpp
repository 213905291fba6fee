// SPDX-License-Identifier: MIT
#include "forms/frmVantrelHelp.h"

#include <QPlainTextEdit>
#include <QScrollBar>

namespace vantrel {

namespace {

struct PageKeys {
    std::string_view page;
    std::string_view keys;
};

constexpr std::string_view mainKeys =
    "Enter            in the call box: SEARCH; once more: LOG\n"
    "                 in a box of the exchange: the next box; in SKCC#: LOG\n"
    "Space            after a search without a name: the first empty box; what the\n"
    "                 log knows of who is in no roster it fills in first\n"
    "Esc              NO LOG; Ctrl+Z brings back what was cleared\n"
    "Down             the members like the call: Enter takes one, Esc goes back\n"
    "Up               with an empty call box: the last contact; Enter corrects it,\n"
    "                 Del deletes it, Esc goes back\n"
    "Alt+S Alt+L      SEARCH, LOG\n"
    "Alt+M            frequency: 7040, 7.04, 14050 or 14; Enter\n"
    "Alt+U Alt+D      band up, band down\n"
    "Alt+F Alt+A      read the radio now; reading it off and on\n"
    "Alt+K            K3Y station: E F A O N S, X for none\n"
    "                 (call, Enter, then the tag: SEARCH takes a tag back)\n"
    "Alt+R Alt+E      correct, delete\n"
    "Alt+T Alt+I      list, files\n"
    "Alt+B Alt+C      backup, score\n"
    "Alt+O Alt+X      bonus, exit\n";

constexpr std::string_view logPageKeys = "Enter            in the call box: SEARCH\n"
                                         "F3               SEARCH AGAIN\n"
                                         "Alt+S Alt+D      SAVE CHANGES, DELETE\n"
                                         "Alt+F            the frequency, on the correction page\n"
                                         "Alt+U            UNDO; once more: redo\n"
                                         "Esc              closes the page; twice when something\n"
                                         "                 is typed and not saved\n";

constexpr std::string_view viewerKeys =
    "Ctrl+F F3        find, find the next\n"
    "Ctrl+C           copy the selected lines\n"
    "Esc              in FIND back to the lines, there it closes the page\n";

constexpr PageKeys pages[] = {
    {"frmVantrelStart", "1 choose the contest, fill in your call, name, state and SKCC#\n"
                        "2 set the hours to UTC until the time shown is right\n"
                        "3 USE DEFAULT FILE NAME, then START A NEW: YES\n"
                        "4 LOG DUPES, bonus station, rig, port and rate as they are\n"
                        "5 START; the settings are kept for the next time\n\n"
                        "Enter            the next box\n"
                        "Alt+S            START\n"
                        "Alt+B            BROWSE for a log\n"
                        "Alt+T            TEST the radio\n"},
    {"frmVantrelMain", mainKeys},
    {"frmVantrelCorrect", logPageKeys},
    {"frmVantrelDelete", logPageKeys},
    {"frmVantrelEDITcbr", logPageKeys},
    {"frmVantrelList", viewerKeys},
    {"frmVantrelShowDB", viewerKeys},
    {"frmK3Ybox", "E F A O N S      the continent, and OK\n"
                  "X                no tag, and OK\n"
                  "Enter            OK\n"},
    {"frmCheckDupeK3Y", "Esc              NO LOG\n"},
    {"frmFileFinder", "Enter            opens a folder, selects a file\n"
                      "Alt+R            RETURN with what is selected\n"},
    {"frmVantrelFiles", "Alt+letter       runs the job of that letter, each time\n"},
    {"frmVantrelScore", "Alt+P Alt+C      print, copy the report\n"},
    {"frmVantrelBackup", "Enter Alt+B      BACKUP\n"},
};

constexpr std::string_view everywhere = "Tab Shift+Tab    the next box or button, the one before\n"
                                        "Enter Space      press the button that has the focus\n"
                                        "Alt+letter       the button or box with that letter\n"
                                        "F1               this sheet\n";

std::string_view exchangeOf(const OperatingSettings& settings) {
    if (settings.isK3y())
        return "EXCHANGE: RST, NAME, STATE OR COUNTRY, SKCC#; K3Y STATIONS: THEIR AREA\n\n";
    return "EXCHANGE: RST, NAME, STATE, PROVINCE OR COUNTRY, SKCC# OR NONE\n\n";
}

// The page's keys and what each does, a line each, then the keys of all pages. page: its
// objectName. The main page's sheet begins with the contest's exchange.
std::string keySheet(std::string_view page, const OperatingSettings& settings) {
    std::string text;
    for (const PageKeys& keys : pages) {
        if (keys.page != page)
            continue;
        if (keys.keys == mainKeys)
            text += exchangeOf(settings);
        text += std::string(keys.keys) + '\n';
    }
    text += everywhere;
    const bool told = text.find("Esc  ") != std::string::npos;
    return text + (told || page == "frmVantrelStart" ? "" : "Esc              closes the page\n");
}

} // namespace

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
