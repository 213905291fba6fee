// SPDX-License-Identifier: MIT
#include "logedit/frmLogPage.h"

#include "forms/colours.h"
#include "log/qsoline.h"
#include "logedit/contacttext.h"

#include <QScrollBar>
#include <QStyle>

#include <utility>

namespace vantrel {

namespace {

constexpr int noteLines = 3; // room for what may have to be told at once
constexpr int matchRows = 6;

std::string searchedNote() {
    return "THE FIRST " + std::to_string(LogEdit::lineCapacity) + " LINES WERE SEARCHED";
}

} // namespace

frmLogPage::frmLogPage(const FormContext& context, const char* name, const char* caption)
    : Form(context, name, caption), m_log(context.platform.files, context.shared.log) {}

void frmLogPage::startAt(int contact, OpenAt at) {
    m_start = Start{placeOf(shared().log.contacts(), contact), at};
}

void frmLogPage::load() {
    if (m_start && !mayDrop(typed()))
        return m_start.reset();
    setNotes({});
    if (!m_start)
        return;
    const Start start = *std::exchange(m_start, std::nullopt);
    setStatus("");
    m_log.forget();
    put(m_callBox, trim(qso::hisCall.of(start.place.text)));
    clearBoxes();
    refreshControls();
    if (start.at == OpenAt::callOnly)
        return;
    if (m_log.find(start.place) == SearchResult::found)
        showWithItsCall();
    else
        setNotes({m_log.dropsLines() ? searchedNote() : "THIS CONTACT IS NO LONGER IN THE LOG"});
}

void frmLogPage::escapePressed() {
    if (mayDrop(typed()))
        close();
}

bool frmLogPage::maySearch() {
    Boxes texts = typed();
    if (hasCallAmongBoxes())
        texts.front() = m_unchanged.front();
    return mayDrop(texts);
}

bool frmLogPage::mayDrop(const Boxes& texts) {
    const Boxes unsaved = m_log.found() && texts != m_unchanged ? texts : Boxes();
    if (std::exchange(m_toldUnsaved, unsaved) == unsaved || unsaved.empty())
        return true;
    setNotes({"NOT SAVED: ONCE MORE LEAVES"});
    return false;
}

// --- Controls --------------------------------------------------------------------------------

void frmLogPage::makeBoxes(std::span<const BoxField> fields) {
    m_fields = fields;
    m_unchanged.resize(fields.size());
    for (const BoxField& field : fields) {
        QLineEdit* box = FormBuilder(this).text(field.box);
        setColumns(box, field.written.width);
        m_boxes.push_back(box);
        connectHandler(box, &QLineEdit::returnPressed, [this, box, next = m_boxes.size()] {
            QWidget* target = m_changeButton;
            if (next < m_boxes.size())
                target = m_boxes[next];
            if (box != m_callBox)                     // where Enter searches
                target->setFocus(Qt::TabFocusReason); // as Tab, which selects
        });
    }
}

Boxes frmLogPage::typed() const {
    Boxes texts;
    for (const QLineEdit* box : m_boxes)
        texts.push_back(textOf(box));
    return texts;
}

void frmLogPage::showBoxes(const Boxes& texts) {
    m_unchanged = texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        put(m_boxes[i], texts[i]);
}

void frmLogPage::clearBoxes() {
    Boxes cleared(m_boxes.size());
    if (hasCallAmongBoxes())
        cleared.front() = textOf(m_callBox);
    showBoxes(cleared);
}

QLayout* frmLogPage::searchRow(const char* caption, QLineEdit* callBox,
                               const char* searchAgainTip) {
    FormBuilder build(this);
    m_callBox = focusFirst(callBox);
    setColumns(m_callBox, qso::hisCall.width);
    connectHandler(m_callBox, &QLineEdit::returnPressed, [this] { search(Search::first); });
    QPushButton* again =
        build.command("Command4", "SEARCH AGAIN", searchAgainTip, [this] { search(Search::next); });
    again->setShortcut(Qt::Key_F3);
    return row({build.caption(caption, m_callBox), m_callBox,
                bold(build.command("Command3", "SEARCH", "ENTER A CALL THEN CLICK HERE",
                                   [this] { search(Search::first); })),
                again, Item::room()});
}

QFormLayout* frmLogPage::fieldRows(std::size_t first, std::size_t end) {
    FormBuilder build(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    for (std::size_t i = first; i < end && i + 1 < m_boxes.size(); ++i) {
        // The wrong band is what is corrected most: it has a key of its own.
        const bool isFrequency = m_fields[i].column.first == qso::frequency.first;
        build.row(form, isFrequency ? "&FREQUENCY" : m_fields[i].label, m_boxes[i]);
    }
    if (end < m_boxes.size())
        return form;
    QLineEdit* markerBox = m_boxes.back();
    QRadioButton* option = build.jobOption("Option1", "DUPE NOTE");
    markerBox->setAccessibleName(QStringLiteral("DUPE NOTE AT THE END"));
    connectHandler(option, &QRadioButton::clicked, [option, markerBox] {
        put(markerBox, dupeMarker);
        option->setChecked(false);
    });
    form->addRow(option, markerBox);
    return form;
}

QLayout* frmLogPage::matchesSection(const char* placeName) {
    FormBuilder build(this);
    m_placeLabel = build.label(placeName);
    m_matchList =
        build.list("List1", "CLICK A CONTACT, OR ARROWS AND ENTER, TO GO TO IT", matchWords);
    m_matchList->setAccessibleName(QStringLiteral("CONTACTS WITH THIS CALL"));
    const QFontMetrics metrics(m_matchList->font());
    m_matchList->setMinimumSize(widthOfColumns(metrics, matchColumns + 1) +
                                    m_matchList->verticalScrollBar()->sizeHint().width(),
                                metrics.height() * matchRows);
    const auto choose = [this](const QModelIndex& index) { showMatch(index); };
    // On desktops where one click activates, both signals would come.
    if (style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick) == 0)
        connectHandler(m_matchList, &QListView::clicked, choose);
    connectHandler(m_matchList, &QListView::activated, choose);
    return build.section("CONTACTS WITH THIS CALL", column({m_placeLabel, {m_matchList, 1}}));
}

QLayout* frmLogPage::messageRows(const char* messageName, const char* noteName) {
    FormBuilder build(this);
    m_messageLabel = bold(build.alert(messageName));
    m_messageLabel->setAlignment(Qt::AlignCenter);
    m_noteLabel = build.alert(noteName);
    m_noteLabel->setWordWrap(true);
    m_noteLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    // What comes and goes must not move the buttons.
    m_noteLabel->setMinimumHeight(m_noteLabel->fontMetrics().lineSpacing() * noteLines);
    return column({m_messageLabel, m_noteLabel});
}

QLayout* frmLogPage::changeButtons(const char* caption, const char* toolTip, const char* exitTip) {
    FormBuilder build(this);
    m_changeButton = bold(build.command("Command2", caption, toolTip, [this] { changeFound(); }));
    m_undoButton = build.command(
        "Command5", "&UNDO", "UNDOES THE LAST CHANGE MADE HERE, OR REDOES IT", [this] { undo(); });
    m_changeButton->setEnabled(false);
    m_undoButton->setEnabled(false);
    return row({m_changeButton, m_undoButton, Item::room(), build.exit(exitTip)});
}

// --- Finding ---------------------------------------------------------------------------------

// What is in the call box, tidied, is the key from now on.
void frmLogPage::search(Search search) {
    if (!maySearch())
        return;
    const std::string key = tidied(textOf(m_callBox));
    put(m_callBox, key);
    searchStarts(key);
    const bool first = search == Search::first;
    const SearchResult result = first ? m_log.search(key) : m_log.searchNext(key);
    std::vector<std::string> notes;
    if (result == SearchResult::found) {
        showFound(key);
    } else if (result == SearchResult::notFound) {
        setStatus(first ? notFoundText(key) : lastEntryText());
        if (m_log.dropsLines())
            notes.push_back(searchedNote());
    }
    setNotes(std::move(notes));
    refreshControls();
}

void frmLogPage::showMatch(const QModelIndex& index) {
    if (!index.isValid()) // the second of two clicks: the first one has replaced the lines
        return;
    const int position = m_matchPositions.at(static_cast<std::size_t>(index.row()));
    // What was typed over the contact that is shown already stays.
    if (!m_log.isAt(position)) {
        if (!mayDrop(typed()))
            return;
        m_log.goTo(position);
        showFound(textOf(m_callBox));
        setNotes({});
    }
    refreshControls();
}

void frmLogPage::showWithItsCall() {
    const std::string call(trim(qso::hisCall.of(m_log.line())));
    put(m_callBox, call);
    showFound(call);
    setNotes({});
    refreshControls();
}

// --- Changing --------------------------------------------------------------------------------

void frmLogPage::changeFound() {
    if (!m_log.found())
        return;
    const std::string before = m_log.line();
    change();
    MainPage* main = screens().mainPage();
    if (main != nullptr && !m_log.found())
        main->contactChanged(ContactChange::deleted, before);
    else if (main != nullptr && m_log.line() != before)
        main->contactChanged(ContactChange::corrected, m_log.line());
}

void frmLogPage::undo() {
    if (!mayDrop(typed()))
        return;
    const ChangeResult result = m_log.undo();
    if (!publish(result))
        return;
    if (m_log.found())
        showWithItsCall();
    else
        clearBoxes();
    finish(m_log.undoText(), result);
}

bool frmLogPage::publish(const ChangeResult& result) {
    // A failure here is shown, but the change has been made.
    if (result.made)
        runHandler([this] { shared().log.reread(); });
    if (result.notice)
        messages().show(*result.notice);
    return result.made;
}

void frmLogPage::finish(std::string_view message, const ChangeResult& result,
                        std::vector<std::string> notes) {
    if (result.changedLog) {
        std::vector<std::string> news = m_log.newsOfDuplicates(shared().settings.isK3y());
        std::move(news.begin(), news.end(), std::back_inserter(notes));
    } else {
        notes.insert(notes.begin(), "NOTHING WAS CHANGED");
    }
    setStatus(message);
    setNotes(std::move(notes));
    refreshControls();
}

// --- Showing ---------------------------------------------------------------------------------

void frmLogPage::setStatus(std::string_view message) {
    m_messageLabel->announce(message);
    m_messageLabel->repaint();
}

void frmLogPage::setNotes(std::vector<std::string> notes) {
    if (m_log.found() && m_log.dropsLines())
        notes.push_back("SAVING KEEPS THE FIRST " + std::to_string(LogEdit::lineCapacity) +
                        " LINES, ALL OF THEM IN " + m_log.fullCopyName());
    notes.push_back(standingNote());
    std::string text;
    for (const std::string& note : notes)
        text += (text.empty() || note.empty() ? "" : "\n") + note;
    m_noteLabel->announce(text);
    setTextColour(m_noteLabel, cautionColour);
}

void frmLogPage::refreshControls() {
    m_changeButton->setEnabled(m_log.found());
    m_undoButton->setEnabled(m_log.canUndo());
    showMatches();
    m_callBox->setFocus();
    m_callBox->selectAll();
}

void frmLogPage::showMatches() {
    m_matchPositions = m_log.matches();
    std::vector<std::string> lines;
    int place = 0;
    for (const int position : m_matchPositions) {
        lines.push_back(matchText(m_log.lineAt(position), m_log.isAt(position)));
        if (m_log.isAt(position))
            place = static_cast<int>(lines.size());
    }
    const int count = static_cast<int>(lines.size());
    put(m_placeLabel, place > 0 ? placeText(place, count) : "");
    m_matchList->lines()->setLines(std::move(lines));
    m_matchList->setCurrentIndex(m_matchList->lines()->index(place - 1));
}

} // namespace vantrel
