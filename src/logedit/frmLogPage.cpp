// SPDX-License-Identifier: MIT
#include "logedit/frmLogPage.h"

#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/linelistmodel.h"
#include "log/qsoline.h"
#include "logedit/contacttext.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace vantrel {

namespace {

constexpr double headingEnlargement = 1.5;
constexpr int noteLines = 3; // room for what may have to be told at once
constexpr int matchRows = 6;

std::string searchedNote() {
    return "THE FIRST " + std::to_string(LogEdit::lineCapacity) + " LINES WERE SEARCHED";
}

void makeBold(QWidget* widget) {
    widget->setFont(enlargedFont(widget, 1));
}

} // namespace

frmLogPage::frmLogPage(const FormContext& context, const char* name, const char* caption)
    : Form(context, name, caption), m_log(context.platform.files, context.shared.log) {}

void frmLogPage::startAt(int contact, bool shown) {
    m_start = Start{placeOf(shared().log.contacts(), contact), shown};
}

void frmLogPage::load() {
    tell({});
    if (!m_start)
        return;
    const Start start = *std::exchange(m_start, std::nullopt);
    say("");
    m_log.forget();
    put(m_callBox, trim(qso::hisCall.of(start.place.text)));
    clearBoxes();
    followLog();
    if (!start.shown)
        return;
    if (m_log.find(start.place) == SearchResult::found)
        showWithItsCall();
    else
        tell({m_log.dropsLines() ? searchedNote() : "THIS CONTACT IS NO LONGER IN THE LOG"});
}

QWidget* frmLogPage::firstFocus() {
    return m_callBox;
}

// --- Controls --------------------------------------------------------------------------------

void frmLogPage::createSearch(QLineEdit* callBox, const char* searchAgainTip) {
    FormBuilder build(this);
    m_callBox = callBox;
    m_searchButton = build.command("Command3", "SEARCH", "ENTER A CALL THEN CLICK HERE");
    m_searchAgainButton = build.command("Command4", "SEARCH AGAIN", searchAgainTip);
    m_searchAgainButton->setShortcut(Qt::Key_F3);
    connectHandler(m_callBox, &QLineEdit::returnPressed, this, &frmLogPage::searchClicked);
    connectHandler(m_searchButton, &QPushButton::clicked, this, &frmLogPage::searchClicked);
    connectHandler(m_searchAgainButton, &QPushButton::clicked, this,
                   &frmLogPage::searchAgainClicked);
}

QRadioButton* frmLogPage::createDupeOption(QLineEdit* markerBox) {
    QRadioButton* option = FormBuilder(this).jobOption("Option1", "DUPE NOTE");
    markerBox->setAccessibleName(QStringLiteral("DUPE NOTE AT THE END"));
    connect(option, &QRadioButton::clicked, this, [option, markerBox] {
        put(markerBox, dupeMarker);
        option->setChecked(false);
    });
    return option;
}

void frmLogPage::createMatches(const char* placeName) {
    FormBuilder build(this);
    m_placeLabel = build.label(placeName);
    m_matchList = build.list("List1", "CLICK A CONTACT, OR ARROWS AND ENTER, TO GO TO IT");
    m_matchList->setAccessibleName(QStringLiteral("CONTACTS WITH THIS CALL"));
    m_matchLines = new LineListModel(m_matchList, matchWords);
    m_matchList->setModel(m_matchLines);
    connectHandler(m_matchList, &QListView::clicked, this, &frmLogPage::matchChosen);
    connectHandler(m_matchList, &QListView::activated, this, &frmLogPage::matchChosen);
}

void frmLogPage::createChange(const char* caption, const char* toolTip, const char* exitTip) {
    FormBuilder build(this);
    m_changeButton = build.command("Command2", caption, toolTip);
    m_undoButton =
        build.command("Command5", "&UNDO", "UNDOES THE LAST CHANGE MADE HERE, OR REDOES IT");
    m_exitButton = build.command("Command1", "E&XIT", exitTip);
    m_changeButton->setEnabled(false);
    m_undoButton->setEnabled(false);
    connectHandler(m_changeButton, &QPushButton::clicked, this, &frmLogPage::changeClicked);
    connectHandler(m_undoButton, &QPushButton::clicked, this, &frmLogPage::undoClicked);
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
}

void frmLogPage::createMessages(const char* messageName, const char* noteName) {
    m_messageLabel = FormBuilder(this).alert(messageName);
    m_noteLabel = FormBuilder(this).alert(noteName);
}

void frmLogPage::chainBoxes(std::span<QLineEdit* const> boxes) {
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const bool last = i + 1 == boxes.size();
        QWidget* next = last ? static_cast<QWidget*>(m_changeButton) : boxes[i + 1];
        connect(boxes[i], &QLineEdit::returnPressed, next,
                [next] { next->setFocus(Qt::TabFocusReason); }); // as Tab, which selects
    }
}

QLabel* frmLogPage::heading(const char* text) {
    QLabel* heading = FormBuilder(this).caption(text);
    heading->setFont(enlargedFont(this, headingEnlargement));
    heading->setAlignment(Qt::AlignCenter);
    return heading;
}

void frmLogPage::fit(QLineEdit* box, int columns) {
    setColumns(box, columns);
    box->setMaximumWidth(box->minimumWidth());
}

QHBoxLayout* frmLogPage::searchRow(const char* caption) {
    fit(m_callBox, qso::hisCall.width);
    makeBold(m_searchButton);
    auto* row = new QHBoxLayout;
    row->addWidget(FormBuilder(this).caption(caption, m_callBox));
    row->addWidget(m_callBox);
    row->addWidget(m_searchButton);
    row->addWidget(m_searchAgainButton);
    row->addStretch();
    return row;
}

QLayout* frmLogPage::matchesCard() {
    const QFontMetrics metrics(m_matchList->font());
    m_matchList->setMinimumSize(widthOfColumns(metrics, matchColumns + 1) +
                                    m_matchList->verticalScrollBar()->sizeHint().width(),
                                metrics.height() * matchRows);
    auto* rows = new QVBoxLayout;
    rows->addWidget(m_placeLabel);
    rows->addWidget(m_matchList, 1);
    return FormBuilder(this).section("CONTACTS WITH THIS CALL", rows);
}

QLayout* frmLogPage::messageRows() {
    makeBold(m_messageLabel);
    m_messageLabel->setAlignment(Qt::AlignCenter);
    m_noteLabel->setWordWrap(true);
    m_noteLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    // What comes and goes must not move the buttons.
    m_noteLabel->setMinimumHeight(m_noteLabel->fontMetrics().lineSpacing() * noteLines);
    auto* rows = new QVBoxLayout;
    rows->addWidget(m_messageLabel);
    rows->addWidget(m_noteLabel);
    return rows;
}

QHBoxLayout* frmLogPage::changeButtons() {
    makeBold(m_changeButton);
    auto* row = new QHBoxLayout;
    row->addWidget(m_changeButton);
    row->addWidget(m_undoButton);
    row->addStretch();
    row->addWidget(m_exitButton);
    return row;
}

// --- Finding ---------------------------------------------------------------------------------

void frmLogPage::searchClicked() {
    const std::string key = takeKey();
    showOutcome(m_log.search(key), key, notFoundText(key));
}

void frmLogPage::searchAgainClicked() {
    const std::string key = takeKey();
    showOutcome(m_log.searchNext(key), key, lastEntryText());
}

std::string frmLogPage::takeKey() {
    const std::string key = tidied(textOf(m_callBox));
    put(m_callBox, key);
    searchStarts(key);
    return key;
}

void frmLogPage::showOutcome(SearchResult result, const std::string& key, std::string_view none) {
    Notes notes;
    if (result == SearchResult::found) {
        showFound(key);
    } else if (result == SearchResult::notFound) {
        say(none);
        if (m_log.dropsLines())
            notes.push_back(searchedNote());
    }
    tell(std::move(notes));
    followLog();
}

void frmLogPage::matchChosen(const QModelIndex& index) {
    if (!index.isValid()) // where one click both chooses and activates
        return;
    const int position = m_matchPositions.at(static_cast<std::size_t>(index.row()));
    // What was typed over the contact that is shown already stays.
    if (!m_log.isAt(position)) {
        m_log.goTo(position);
        showFound(textOf(m_callBox));
        tell({});
    }
    followLog();
}

void frmLogPage::showWithItsCall() {
    const std::string call(trim(qso::hisCall.of(m_log.line())));
    put(m_callBox, call);
    showFound(call);
    tell({});
    followLog();
}

// --- Changing --------------------------------------------------------------------------------

void frmLogPage::changeClicked() {
    if (!m_log.found())
        return;
    const std::string before = m_log.line();
    change();
    MainPage* main = screens().mainPage();
    if (main != nullptr && !m_log.found())
        main->contactDeleted(before);
    else if (main != nullptr && m_log.line() != before)
        main->contactCorrected(m_log.line());
}

void frmLogPage::undoClicked() {
    const ChangeResult result = m_log.undo();
    if (!made(result))
        return;
    if (m_log.found())
        showWithItsCall();
    else
        clearBoxes();
    finish(m_log.undoText(), result);
}

bool frmLogPage::made(const ChangeResult& result) {
    // What fails here is told, but the change is made all the same.
    if (result.made)
        runHandler([this] { shared().log.reread(); });
    if (result.notice)
        messages().show(*result.notice);
    return result.made;
}

void frmLogPage::finish(std::string_view message, const ChangeResult& result, Notes notes) {
    if (result.changedLog) {
        Notes news = m_log.newsOfDuplicates(shared().settings.isK3y());
        std::move(news.begin(), news.end(), std::back_inserter(notes));
    } else {
        notes.insert(notes.begin(), "NOTHING WAS CHANGED");
    }
    say(message);
    tell(std::move(notes));
    followLog();
}

// --- Showing ---------------------------------------------------------------------------------

void frmLogPage::say(std::string_view message) {
    announce(m_messageLabel, message);
}

void frmLogPage::tell(Notes notes) {
    if (m_log.found() && m_log.dropsLines())
        notes.push_back("SAVING KEEPS THE FIRST " + std::to_string(LogEdit::lineCapacity) +
                        " LINES, ALL OF THEM IN " + m_log.fullCopyName());
    if (const std::string standing = standingNote(); !standing.empty())
        notes.push_back(standing);
    std::string text;
    for (const std::string& note : notes)
        text += (text.empty() ? "" : "\n") + note;
    announce(m_noteLabel, text);
    setTextColour(m_noteLabel, cautionColour(palette()));
}

std::string frmLogPage::placeText(int place, int count) const {
    return std::to_string(place) + " OF " + std::to_string(count);
}

void frmLogPage::followLog() {
    m_changeButton->setEnabled(m_log.found());
    m_undoButton->setEnabled(m_log.canUndo());
    showMatches();
    m_callBox->setFocus();
    m_callBox->selectAll();
}

void frmLogPage::showMatches() {
    std::vector<std::string> lines;
    int place = 0;
    m_matchPositions.clear();
    for (const Match& match : m_log.matches()) {
        lines.push_back(matchText(match.line, match.current));
        m_matchPositions.push_back(match.position);
        if (match.current)
            place = static_cast<int>(lines.size());
    }
    const int count = static_cast<int>(lines.size());
    put(m_placeLabel, place > 0 ? placeText(place, count) : "");
    m_matchLines->setLines(std::move(lines));
    m_matchList->setCurrentIndex(m_matchLines->index(place - 1));
}

} // namespace vantrel
