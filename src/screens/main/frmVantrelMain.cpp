// SPDX-License-Identifier: MIT
#include "screens/main/frmVantrelMain.h"

#include "base/fixedtext.h"
#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/markedlabel.h"
#include "k3y/k3ystation.h"
#include "k3y/standings.h"
#include "output/score/scoregain.h"
#include "output/score/scorereport.h"
#include "platform/files.h"
#include "platform/serialport.h"
#include "rig/catlink.h"
#include "screens/main/bandring.h"
#include "screens/main/dupecheck.h"
#include "screens/main/frequency.h"
#include "screens/main/frmContestPanel.h"
#include "screens/main/frmSuggestionList.h"
#include "screens/main/frmWorkedList.h"
#include "screens/main/workedbefore.h"
#include "shared/utctime.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

namespace vantrel {

namespace {

constexpr double entryEnlargement = 1.5;
constexpr double hintEnlargement = 1.1;
constexpr double statusEnlargement = 1.4;
constexpr int workedBeforeColumns = 80;
constexpr std::size_t mostMembers = 12;
constexpr std::string_view startFrequency = "14.050";

} // namespace

frmVantrelMain::frmVantrelMain(const FormContext& context)
    : Form(context, "frmVantrelMain", "Vantrel"),
      m_boxes(this),
      m_hold(this, [this] { platform().serialPort.close(); }),
      m_roster(context.platform.files) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    createControls();
    layOut();
    connectHandlers();
    m_logWatch = shared().log.watch([this] { showLog(); });
    qApp->installEventFilter(this);
    openAtPageSize();
}

void frmVantrelMain::createControls() {
    FormBuilder build(this);
    m_frequencyButton = build.command("Command15", "Enter",
                                      "WITH AUTO READ OFF , ENTER FREQ AND CLICK ENTER BUTTON");
    m_searchButton = build.command("Command2", "&SEARCH", "ENTER A CALL THEN CLICK HERE");
    m_logButton = build.command("Command3", "&LOG", "SAVES THE QSO TO CABRILLO FILE");
    m_noLogButton = build.command("Command4", "&NO LOG", "DOES NOT SAVE QSO TO FILE");
    m_readButton = build.command("Command5", "&FREQ", "READS FREQ FROM RADIO");
    m_upButton = build.command("Command13", "&Up", "TOGGELS BAND UP ONE");
    m_downButton = build.command("Command14", "&Down", "TOGGLES BAND DOWN ONE");
    m_stationOption = build.jobOption(
        "Option1", "ADD K3Y/xx", "CLICK TO ADD K3Y/xx  TO FILE - BEFORE LOGGING DX K3Y STATIONS");
    m_audioButton = build.command("Command12", "AUDIO ON", "TOGGLES DUPE AUDIO ");
    m_pageCommands = pageCommands();
    m_countBox = build.output("Text1");
    m_workedList = new WorkedList(this);
    m_bandLabel = build.label("Label10");
    m_autoReadLabel = build.label("Label11");
    m_fileLabel = build.label("Label12");
    m_dupeModeLabel = build.label("Label13");
    m_stationLabel = build.label("Label23");
    m_markerLabel = build.label("Label25");
    m_hintLabel = build.label("Label26");
    m_workedBeforeLabel = new MarkedLabel(this);
    m_workedBeforeLabel->setObjectName(QStringLiteral("Label24"));
    m_workedBeforeLabel->setTextFormat(Qt::PlainText);
    m_clockLabel = build.label("Label27");
    m_whoLabel = build.label("Label28");
    m_suggestions = new SuggestionList(this);
    m_autoReadButton =
        build.command("Command17", "&AUTO READ", "TURNS THE READING OF THE RADIO OFF AND ON");
    m_readDot = build.caption("");
    m_panel = new ContestPanel(this);
}

// The commands that lead to other pages.
QHBoxLayout* frmVantrelMain::pageCommands() {
    using Action = std::function<void()>;
    const auto opens = [this](Screen screen) -> Action {
        return [this, screen] { screens().open(screen); };
    };
    const auto opensOnContact = [this](Screen page, bool shown) -> Action {
        return [this, page, shown] { openOnContact(page, chosenContact(), shown); };
    };
    const struct {
        const char* name;
        const char* caption;
        const char* toolTip;
        Action action;
    } commands[] = {
        {"Command7", "CO&RRECT", "CORRECT ANY ENTRY IN CABRILLO FILE",
         opensOnContact(Screen::correct, true)},
        {"Command8", "DELET&E", "REMOVES ENTRY FROM CABRILLO FILE",
         opensOnContact(Screen::deletion, false)},
        {"Command6", "LIS&T", "DISPLAYS OF FULL CABRILLO FILE",
         [this] { screens().openList(ListedFile::log); }},
        {"Command9", "F&ILES", "FILE MAINTENANCE PAGE", opens(Screen::files)},
        {"Command10", "&BACKUP", "SAVES CABRILLO FILE TO BACKUP DISK", opens(Screen::backup)},
        // In the event month the standings take the place of the score.
        {"Command11", "S&CORE", "CALCULATES CURRENT SCORE ",
         [this] { screens().open(shared().settings.isK3y() ? Screen::standings : Screen::score); }},
        {"Command16", "B&ONUS", "COUNTS BONUS POINTS IN THE NAME FIELD", opens(Screen::bonus)},
        {"Command1", "E&XIT", "QUIT THE ENTIRE PROGRAM", [this] { screens().quit(); }},
    };
    FormBuilder build(this);
    auto* row = new QHBoxLayout;
    for (const auto& [name, caption, toolTip, action] : commands) {
        if (name == std::string_view("Command6") || name == std::string_view("Command11"))
            row->addSpacing(fontMetrics().averageCharWidth() * 2);
        if (name == std::string_view("Command1"))
            row->addStretch();
        QPushButton* button = build.command(name, caption, toolTip);
        connect(button, &QPushButton::clicked, this,
                [this, action = action] { runHandler(action); });
        row->addWidget(button);
    }
    return row;
}

void frmVantrelMain::connectHandlers() {
    connectEntryBoxes();
    using Main = frmVantrelMain;
    const auto onClick = [this](QPushButton* button, void (Main::*handler)()) {
        connectHandler(button, &QPushButton::clicked, this, handler);
    };
    onClick(m_searchButton, &Main::searchClicked);
    onClick(m_logButton, &Main::logClicked);
    onClick(m_noLogButton, &Main::noLogClicked);
    onClick(m_readButton, &Main::readClicked);
    onClick(m_audioButton, &Main::audioClicked);
    onClick(m_upButton, &Main::upClicked);
    onClick(m_downButton, &Main::downClicked);
    onClick(m_frequencyButton, &Main::frequencyClicked);
    onClick(m_autoReadButton, &Main::autoReadClicked);
    connectHandler(m_stationOption, &QRadioButton::clicked, this, &Main::stationClicked);
}

void frmVantrelMain::connectEntryBoxes() {
    using Main = frmVantrelMain;
    connectHandler(m_boxes.call, &QLineEdit::textEdited, this, &Main::callEdited);
    connectHandler(m_suggestions, &SuggestionList::chosen, this, &Main::memberChosen);
    connectHandler(m_suggestions, &SuggestionList::left, this, &Main::toCallBox);
    connectHandler(m_workedList, &QListView::doubleClicked, this, &Main::contactChosen);
    connectHandler(new QShortcut(QKeySequence(QStringLiteral("Alt+K")), this),
                   &QShortcut::activated, this, &Main::stationClicked);
    for (QLineEdit* box : {m_boxes.name, m_boxes.state, m_boxes.number})
        connect(box, &QLineEdit::textEdited, box, [box] { setTinted(box, false); });
    m_second = new QTimer(this);
    m_second->setInterval(1000);
    connectHandler(m_second, &QTimer::timeout, this, &Main::secondPassed);
    connectHandler(m_boxes.call, &QLineEdit::returnPressed, this, &Main::searchClicked);
    connectHandler(m_boxes.number, &QLineEdit::returnPressed, this, &Main::logClicked);
    connectHandler(m_boxes.frequency, &QLineEdit::returnPressed, this, &Main::frequencyClicked);
    connectHandler(m_boxes.frequency, &QLineEdit::editingFinished, this, &Main::frequencyEntered);
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelMain::load() {
    const OperatingSettings& settings = shared().settings;
    put(m_fileLabel, "FILE NAME:  " + settings.logFileName);
    setWindowTitle(toQt(settings.myCall + " " + settings.contestCode + " " + settings.logFileName +
                        " - Vantrel"));
    put(m_whoLabel, settings.myCall + "  " + settings.contestCode);
    put(m_dupeModeLabel, settings.logsDupes() ? "Dupes Are Logged" : "Dupes Not Logged");
    showFrequency(std::string(startFrequency));
    m_autoReads = true;
    showRead(settings.hasRadio() ? ReadOutcome::read : ReadOutcome::noRadio);
    m_readDot->clear(); // nothing was read yet
    setMarker(noMarker);
    showHint(Hint());
    clearEntry(Left::nothing);
    m_cleared.reset();
    showStation(std::string(noStationLabel));
    shared().audioOn = true;
    put(m_audioButton, "AUDIO ON");
    runHandler([this] { shared().log.open(shared().settings.logFileName); });
    m_radioReadDue = settings.hasRadio();
    m_second->start();
    secondPassed();
    update();
}

void frmVantrelMain::paintEvent(QPaintEvent* event) {
    Form::paintEvent(event);
    if (!m_radioReadDue)
        return;
    m_radioReadDue = false;
    QTimer::singleShot(0, this, [this] { runHandler([this] { readClicked(); }); });
}

QWidget* frmVantrelMain::firstFocus() {
    return m_boxes.call;
}

// A key goes to the contact being entered, wherever the focus is: letters that a button or the
// list has no use for are the next call.
bool frmVantrelMain::eventFilter(QObject* receiver, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(receiver);
    if (event->type() != QEvent::KeyPress || widget == nullptr || widget->window() != this)
        return Form::eventFilter(receiver, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (m_refusalShown)
        showHint(Hint());
    if (receiver == m_boxes.call && key->matches(QKeySequence::Undo) &&
        m_boxes.call->text().isEmpty()) {
        runHandler([this] { bringBack(); });
        return true;
    }
    if (isForCallBox(*widget, *key)) {
        m_boxes.call->setFocus();
        QCoreApplication::sendEvent(m_boxes.call, event);
        return true;
    }
    bool taken = false;
    if (receiver == m_boxes.call)
        runHandler([&] { taken = callBoxTakes(*key); });
    else if (receiver == m_workedList)
        runHandler([&] { taken = workedListTakes(*key); });
    return taken || Form::eventFilter(receiver, event);
}

// Keys that lead from the call box to what stands below it.
bool frmVantrelMain::callBoxTakes(const QKeyEvent& key) {
    if (key.modifiers().testFlag(Qt::AltModifier))
        return false;
    switch (key.key()) {
    case Qt::Key_Down:
        return m_suggestions->takeFocus();
    case Qt::Key_Up:
        if (!m_boxes.call->text().isEmpty() || m_workedList->model()->rowCount() == 0)
            return false;
        m_workedList->setCurrentIndex(
            m_workedList->model()->index(m_workedList->model()->rowCount() - 1, 0));
        m_workedList->setFocus();
        return true;
    case Qt::Key_Space:
        return toFirstEmptyBox();
    default:
        return false;
    }
}

bool frmVantrelMain::workedListTakes(const QKeyEvent& key) {
    const QModelIndex chosen = m_workedList->currentIndex();
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (key.key() == Qt::Key_Escape)
        toCallBox();
    else if (enter && chosen.isValid())
        contactChosen(chosen);
    else if (key.key() == Qt::Key_Delete && chosen.isValid())
        openOnContact(Screen::deletion, chosen.row() + 1, true);
    else
        return false;
    return true;
}

// Space after a search that left the name empty: what is missing is typed next.
bool frmVantrelMain::toFirstEmptyBox() {
    if (!m_searched || textOf(m_boxes.call) != m_searched->call ||
        !trim(textOf(m_boxes.name)).empty())
        return false;
    for (QLineEdit* box : {m_boxes.name, m_boxes.state, m_boxes.number})
        if (trim(textOf(box)).empty()) {
            box->setFocus(Qt::TabFocusReason);
            break;
        }
    return true;
}

bool frmVantrelMain::isForCallBox(const QWidget& widget, const QKeyEvent& key) {
    const bool typed = key.text().size() == 1 && key.text().front().isPrint() &&
                       key.key() != Qt::Key_Space &&
                       (key.modifiers() & ~Qt::KeypadModifier & ~Qt::ShiftModifier) == 0;
    return typed && (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                     qobject_cast<const QListView*>(&widget) != nullptr);
}

// Small boxes leave the boxes of the exchange free.
int frmVantrelMain::freeTop() const {
    return m_hintLabel->geometry().bottom();
}

void frmVantrelMain::closeEvent(QCloseEvent* event) {
    Form::closeEvent(event);
    screens().quit();
}

// --- SEARCH ----------------------------------------------------------------------------------

// What a lookup filled in belongs to the call it was looked up for, and so does a mark.
void frmVantrelMain::callEdited() {
    resetDupeMarker();
    m_searched.reset();
    showWhoIsIt();
    showMembers();
    if (!m_lookedUp)
        return;
    Entry typed = m_boxes.entry();
    forgetLookup(typed, *m_lookedUp);
    m_lookedUp.reset();
    const int cursor = m_boxes.call->cursorPosition();
    showEntry(typed);
    m_boxes.call->setCursorPosition(cursor);
}

// Who that may be, while he is being typed: calls worked (in red where SEARCH would find a
// duplicate on the present band), members, bands.
void frmVantrelMain::showWhoIsIt() {
    const std::string typed = textOf(m_boxes.call);
    const std::string bandTag = presentBandTag();
    const Contacts& contacts = shared().log.contacts();
    const std::vector<WorkedCall> worked =
        workedBefore(contacts, typed, bandTag, workedBeforeColumns);
    std::vector<MarkedLabel::Run> runs;
    for (const WorkedCall& call : worked) {
        const bool first = runs.empty() || call.text == "...";
        runs.push_back({toQt((first ? "" : "  ") + call.text), call.dupe});
    }
    m_workedBeforeLabel->setRuns(std::move(runs));
    m_panel->showBands(bandTable(contacts, typed, bandTag, shared().settings.isK3y()));
}

void frmVantrelMain::showMembers() {
    const std::string typed(trim(textOf(m_boxes.call)));
    std::vector<SuggestionList::Line> shown;
    if (length(typed) > 1)
        for (const Member& member : m_roster.membersLike(typed, mostMembers)) {
            const std::string call(trim(member.call));
            const bool dupe =
                !duplicateOf(shared().log.contacts(), call + ' ', presentBandTag()).empty();
            shown.push_back({call,
                             call + ' ' + std::string(trim(member.name)) + ' ' +
                                 std::string(trim(member.state)) + ' ' +
                                 std::string(trim(member.number)),
                             dupe});
        }
    m_suggestions->setLines(std::move(shown));
}

std::string frmVantrelMain::presentBandTag() const {
    return bandTagOf(completedFrequency(frequencyAsEntered(textOf(m_boxes.frequency))));
}

// As if it had been typed: the next Enter is SEARCH.
void frmVantrelMain::memberChosen(const QString& call) {
    m_boxes.call->setText(call);
    callEdited();
    toCallBox();
}

void frmVantrelMain::searchClicked() {
    const InputHold::Scope hold(m_hold);
    frequencyEntered();
    Entry typed = m_boxes.entry();
    if (isComplete(typed) && !m_broughtBack) {
        logClicked();
        return;
    }
    m_broughtBack = false;
    m_searched.reset();
    typed.call = callAsEntered(typed.call);
    put(m_boxes.call, typed.call);
    if (!lookUpAndShow(typed)) {
        toCallBox();
        return;
    }
    if (!readRadio(typed))
        return;
    if (trim(typed.frequency).empty()) {
        messages().show({std::string(frequencyMissingText), BoxIcon::exclamation});
        m_boxes.call->clear();
        toCallBox();
        return;
    }
    typed.frequency = completedFrequency(typed.frequency);
    showFrequency(typed.frequency);
    const std::string marker = shared().marker;
    setMarker(noMarker);
    showStation(std::string(noStationLabel));
    m_searched = Searched{typed.call, typed.number, bandTagOf(typed.frequency)};
    if (refusesDupe())
        return;
    if (m_lookedUp)
        tellGain(typed);
    if (marker != noMarker && marker != dupeMarker)
        showHint(takenBackHint(marker));
    toCallBox();
}

// Looks the call up and shows what it gave; false when the check ends here.
bool frmVantrelMain::lookUpAndShow(Entry& typed) {
    if (!canLookUp(typed.call))
        return false;
    const std::string call = typed.call;
    const LookupOutcome outcome = lookUp(typed, m_roster);
    showEntry(typed);
    showHint(lookupHint(outcome, call, m_roster.hasMembers()));
    if (outcome == LookupOutcome::found) {
        m_lookedUp = typed;
        for (QLineEdit* box : {m_boxes.name, m_boxes.state, m_boxes.number})
            setTinted(box, true);
    }
    return outcome != LookupOutcome::nobody;
}

// The test for the call and the band searched for. In a sprint a duplicate is marked and logged,
// or refused (true); in the event a K3Y duplicate is told besides.
bool frmVantrelMain::refusesDupe() {
    const OperatingSettings& settings = shared().settings;
    const Contacts& contacts = shared().log.contacts();
    const Searched searched = *m_searched;
    const std::string_view logged = duplicateOf(contacts, searched.call, searched.bandTag);
    const bool k3yDupe =
        settings.isK3y() && isK3yDupe(contacts, searched.call, searched.number, searched.bandTag);
    if (!logged.empty()) {
        const bool refused = !settings.logsDupes();
        if (refused) {
            clearEntry(Left::nothing);
            showHint(refusedHint(logged));
        } else {
            setMarker(dupeMarker);
        }
        screens().open(Screen::dupe);
        if (refused)
            return true;
    }
    if (k3yDupe)
        messages().show({std::string(duplicateQsoText), BoxIcon::exclamation});
    return false;
}

// After a hit the hint line adds what this contact would bring. What cannot be logged brings
// nothing: LOG says why.
void frmVantrelMain::tellGain(Entry typed) {
    const OperatingSettings& settings = shared().settings;
    if (settings.isK3y())
        return;
    std::string line;
    try {
        ContactFields contact = contactFrom(typed, settings, shared().marker,
                                            utcTime(platform().clock.now(), settings.gmtOffset));
        if (enterFrequency(contact, typed.frequency, settings) != FrequencyCheck::good)
            return;
        line = assembleLine(contact);
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::invalidCall)
            throw;
        return;
    }
    const std::string gain = scoreGain(shared().log.contacts(), m_score, line, settings);
    if (!gain.empty())
        showHint({textOf(m_hintLabel) + "   " + gain});
}

// A mark belongs to the band it was found on: on another one the test is made again. False when
// the contact is refused there.
bool frmVantrelMain::recheckOn(const std::string& bandTag) {
    if (!m_searched || m_searched->bandTag == bandTag)
        return true;
    m_searched->bandTag = bandTag;
    resetDupeMarker();
    return !refusesDupe();
}

// --- LOG -------------------------------------------------------------------------------------

void frmVantrelMain::logClicked() {
    const InputHold::Scope hold(m_hold);
    frequencyEntered();
    Entry typed = m_boxes.entry();
    if (!canBeLogged(typed)) {
        toCallBox();
        return;
    }
    std::optional<std::string> line;
    try {
        line = assembledLine(typed);
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::invalidCall)
            throw;
        messages().show({std::string(invalidEntryText), BoxIcon::exclamation, error.detail()});
        clearEntry(Left::nothing);
        return;
    }
    if (!line)
        return;
    if (shared().settings.isK3y() && isK3yDupe(shared().log.contacts(), *line)) {
        screens().askAboutDupe({[this, dupe = asDupe(*line)] { logLine(dupe); },
                                [this] { clearEntry(Left::oneBlank); }});
        return;
    }
    logLine(*line);
    showStation(std::string(noStationLabel));
}

// The contact line; nothing, after saying why, when it cannot be logged.
std::optional<std::string> frmVantrelMain::assembledLine(Entry& typed) {
    const OperatingSettings& settings = shared().settings;
    ContactFields contact = contactFrom(typed, settings, shared().marker,
                                        utcTime(platform().clock.now(), settings.gmtOffset));
    if (!readRadio(typed))
        return std::nullopt;
    const FrequencyCheck check = enterFrequency(contact, typed.frequency, settings);
    if (!showFrequency(typed.frequency))
        return std::nullopt; // a duplicate on the band that the radio is on by now
    contact.marker = shared().marker;
    switch (check) {
    case FrequencyCheck::outsideSprintBands:
        messages().show({typed.frequency + std::string(wrongBandText), BoxIcon::critical});
        clearEntry(Left::nothing);
        return std::nullopt;
    case FrequencyCheck::unloggable:
        messages().show(
            {std::string(frequencyMissingText), BoxIcon::exclamation, khzFault(contact.frequency)});
        toCallBox();
        return std::nullopt;
    case FrequencyCheck::good:
        break;
    }
    return assembleLine(contact);
}

// The contact is in the log once its line is on the disk: whatever fails from then on is told,
// but the boxes are cleared first, so that nobody logs it twice.
void frmVantrelMain::logLine(const std::string& line) {
    Log& log = shared().log;
    // Searched for, it was told already.
    const std::string repeated(
        m_searched ? std::string_view()
                   : duplicateOf(log.contacts(), qso::hisCall.of(line), qso::bandTag.of(line)));
    const bool logWasThere = platform().files.present(log.name());
    log.append(line);
    std::optional<Message> failure;
    try {
        log.reread();
    } catch (const RuntimeError& error) {
        failure = failureOnceLogged(error);
    }
    clearEntry(Left::nothing);
    m_cleared.reset(); // it is in the log
    showHint(loggedHint(line, repeated));
    if (failure)
        messages().show(*failure);
    if (!logWasThere)
        messages().show({std::string(logStartedAgainText), BoxIcon::exclamation,
                         platform().files.path(log.name())});
}

void frmVantrelMain::noLogClicked() {
    clearEntry(Left::nothing);
    showStation(std::string(noStationLabel));
}

// --- Frequency and band ----------------------------------------------------------------------

void frmVantrelMain::frequencyClicked() {
    frequencyEntered();
    toCallBox();
}

void frmVantrelMain::frequencyEntered() {
    showFrequency(frequencyAsEntered(textOf(m_boxes.frequency)));
}

// Shows the frequency and the band that follows from it; false when the contact is a duplicate
// there and refused.
bool frmVantrelMain::showFrequency(const std::string& mhz) {
    if (textOf(m_boxes.frequency) != mhz)
        put(m_boxes.frequency, mhz);
    // Outside the six bands the label stays as it was, and says so by its colour.
    const bool isShown = !bandTextOf(mhz, "").empty();
    put(m_bandLabel, bandTextOf(mhz, textOf(m_bandLabel)));
    setTextColour(m_bandLabel, isShown ? QColor() : cautionColour(palette()));
    showWhoIsIt();
    return recheckOn(bandTagOf(completedFrequency(mhz)));
}

void frmVantrelMain::readClicked() {
    const InputHold::Scope hold(m_hold);
    m_autoReads = true;
    Entry typed = m_boxes.entry();
    if (readRadio(typed))
        toCallBox();
}

// Reads the radio's frequency, if there is a radio, into the box and the entry. A radio that
// does not answer is reported and the frequency in the box stands. False when the program is
// being closed: the handler then ends at once.
bool frmVantrelMain::readRadio(Entry& typed) {
    const ReadResult result = m_autoReads ? readFrequency(shared().settings, platform().serialPort)
                                          : ReadResult{ReadOutcome::noRadio};
    if (result.outcome == ReadOutcome::cancelled)
        return false;
    showRead(result.outcome);
    if (result.outcome == ReadOutcome::read) {
        typed.frequency = result.frequency;
        showFrequency(typed.frequency);
    }
    if (result.outcome == ReadOutcome::failed)
        messages().show(result.message);
    return true;
}

// Off, a dead radio costs no more boxes; FREQ then turns the reading on again.
void frmVantrelMain::autoReadClicked() {
    m_autoReads = !m_autoReads;
    showRead(m_autoReads && shared().settings.hasRadio() ? ReadOutcome::noReader
                                                         : ReadOutcome::noRadio);
    toCallBox();
}

// A dot before the label: green after a good read, red after a failed one, none when off.
void frmVantrelMain::showRead(ReadOutcome outcome) {
    put(m_autoReadLabel, autoReadText(outcome));
    const bool read = outcome == ReadOutcome::read;
    m_readDot->setText(read || outcome == ReadOutcome::failed ? QString(QChar(0x25CF)) : QString());
    setTextColour(m_readDot, read ? goodColour(palette()) : warningColour(palette()));
}

void frmVantrelMain::upClicked() {
    frequencyEntered();
    stepTo(bandUp(textOf(m_bandLabel)));
}

void frmVantrelMain::downClicked() {
    frequencyEntered();
    stepTo(bandDown(textOf(m_bandLabel)));
}

void frmVantrelMain::stepTo(const Band& band) {
    showFrequency(std::string(band.defaultFrequency));
    toCallBox();
}

// --- The other commands ----------------------------------------------------------------------

void frmVantrelMain::audioClicked() {
    shared().audioOn = !shared().audioOn;
    put(m_audioButton, shared().audioOn ? "AUDIO ON" : "AUDIO OFF");
    toCallBox();
}

void frmVantrelMain::stationClicked() {
    screens().open(Screen::k3yBox);
    m_stationOption->setChecked(textOf(m_stationLabel) !=
                                noStationLabel); // opened, nothing is chosen yet
}

// --- Boxes -----------------------------------------------------------------------------------

void frmVantrelMain::showEntry(const Entry& entry) {
    m_boxes.show(entry);
    showWhoIsIt();
}

// What is cleared can be brought back until something else is.
void frmVantrelMain::clearEntry(Left left) {
    if (const Entry typed = m_boxes.entry(); !trim(typed.call).empty())
        m_cleared = Cleared{typed, m_lookedUp};
    m_boxes.clear(left == Left::oneBlank ? " " : "");
    for (QLineEdit* box : {m_boxes.name, m_boxes.state, m_boxes.number})
        setTinted(box, false);
    showWhoIsIt();
    showMembers();
    m_lookedUp.reset();
    m_searched.reset();
    resetDupeMarker();
    toCallBox();
}

// A contact that was refused is checked again before it is logged.
void frmVantrelMain::bringBack() {
    if (!m_cleared)
        return;
    m_boxes.showAll(m_cleared->entry);
    m_lookedUp = m_cleared->lookedUp;
    m_cleared.reset();
    m_broughtBack = true;
    showWhoIsIt();
    showHint(Hint());
}

void frmVantrelMain::showStation(const std::string& text) {
    put(m_stationLabel, text);
    put(m_markerLabel, nextMarkerText(shared().marker));
    m_stationOption->setChecked(text != noStationLabel);
}

void frmVantrelMain::showLog() {
    const Log& log = shared().log;
    put(m_countBox, countText(log.count()));
    m_workedList->setLines(log.worked());
    m_moments = momentsOf(log.contacts());
    m_paceShownAt.reset();
    showScore();
    secondPassed();
    showWhoIsIt();
}

void frmVantrelMain::showScore() {
    const Contacts& contacts = shared().log.contacts();
    if (shared().settings.isK3y()) {
        const Integer16 areas = areaStandings(contacts).total();
        const Integer16 regions = regionStandings(contacts).total();
        m_panel->showScore((areas + regions).text(),
                           "AREAS " + areas.text() + ", REGIONS " + regions.text());
        return;
    }
    m_score = computeScore(contacts, shared().settings);
    m_panel->showScore(figureText(m_score.total), scoreSum(m_score));
}

// The one tick: changes what changed, clock and pace once a minute.
void frmVantrelMain::secondPassed() {
    const UtcTime utc = utcTime(platform().clock.now(), shared().settings.gmtOffset);
    put(m_clockLabel, utc.time.substr(0, 2) + ':' + utc.time.substr(2));
    const std::optional<Moment> now = momentOf(utc);
    if (!now || m_paceShownAt == now)
        return;
    m_paceShownAt = now;
    m_panel->showPace(paceOf(m_moments, *now));
}

// The contact of the line that is selected in the list; otherwise the last one.
int frmVantrelMain::chosenContact() const {
    const QModelIndex selected = m_workedList->currentIndex();
    return selected.isValid() ? selected.row() + 1 : shared().log.count().value();
}

void frmVantrelMain::openOnContact(Screen page, int contact, bool shown) {
    if (contact == 0)
        screens().open(page);
    else
        screens().openContact(page, contact, shown);
}

void frmVantrelMain::contactChosen(const QModelIndex& index) {
    openOnContact(Screen::correct, index.row() + 1, true);
}

void frmVantrelMain::setMarker(std::string_view marker) {
    shared().marker = marker;
    put(m_markerLabel, nextMarkerText(marker));
}

// After a contact is logged or dropped: a "DUPE" marker goes back to six blanks, a K3Y tag
// stays.
void frmVantrelMain::resetDupeMarker() {
    if (shared().marker == dupeMarker)
        setMarker(noMarker);
}

void frmVantrelMain::showHint(const Hint& hint) {
    put(m_hintLabel, hint.text);
    QPalette colours(palette());
    if (hint.tone != HintTone::plain)
        colours.setColor(QPalette::WindowText, hint.tone == HintTone::alarm
                                                   ? warningColour(colours)
                                                   : cautionColour(colours));
    m_hintLabel->setPalette(colours);
    m_refusalShown = hint.tone == HintTone::alarm;
}

void frmVantrelMain::toCallBox() {
    m_workedList->setCurrentIndex({});
    activateWindow();
    m_boxes.call->setFocus();
}

// --- Layout ----------------------------------------------------------------------------------

void frmVantrelMain::layOut() {
    // Long texts are cut at the window's edge; they must not widen it.
    for (QLabel* label : {m_fileLabel, m_hintLabel})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_hintLabel->setFont(enlargedFont(this, hintEnlargement));
    m_hintLabel->setFixedHeight(m_hintLabel->sizeHint().height()); // the page must not jump
    auto* page = new QVBoxLayout(this);
    page->addLayout(statusRow());
    page->addLayout(m_boxes.exchangeRow(this));
    page->addLayout(whoIsItRow());
    page->addWidget(m_hintLabel);
    page->addLayout(frequencyRow());
    auto* commands = rowOf({m_searchButton, m_logButton, m_noLogButton, m_readButton, m_audioButton,
                            m_stationOption, m_stationLabel, m_markerLabel});
    commands->addStretch();
    page->addLayout(commands);
    page->addLayout(contestRow(), 1);
    page->addLayout(m_pageCommands);
    for (QPushButton* button : {m_searchButton, m_logButton})
        button->setFont(enlargedFont(this, 1));
}

QHBoxLayout* frmVantrelMain::rowOf(std::initializer_list<QWidget*> controls) {
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls)
        row->addWidget(control);
    return row;
}

QHBoxLayout* frmVantrelMain::statusRow() {
    FormBuilder build(this);
    m_whoLabel->setFont(enlargedFont(this, statusEnlargement));
    m_clockLabel->setFont(enlargedFont(this, statusEnlargement));
    QHBoxLayout* row = rowOf({m_whoLabel, m_fileLabel, m_dupeModeLabel, m_readDot, m_autoReadLabel,
                              m_autoReadButton, m_clockLabel, build.caption("UTC", m_clockLabel)});
    row->setStretch(1, 1);
    return row;
}

// Calls worked on the left, members on the right, in one line that keeps its height.
QHBoxLayout* frmVantrelMain::whoIsItRow() {
    m_workedBeforeLabel->setFont(enlargedFont(this, hintEnlargement, false));
    m_workedBeforeLabel->setFixedHeight(m_suggestions->height());
    QHBoxLayout* row = rowOf({m_workedBeforeLabel, m_suggestions});
    row->setStretch(1, 1);
    return row;
}

QHBoxLayout* frmVantrelMain::frequencyRow() {
    FormBuilder build(this);
    for (QWidget* control : {static_cast<QWidget*>(m_boxes.frequency),
                             static_cast<QWidget*>(m_countBox), static_cast<QWidget*>(m_bandLabel)})
        control->setFont(enlargedFont(this, entryEnlargement));
    m_boxes.frequency->setFixedWidth(QFontMetrics(m_boxes.frequency->font()).averageCharWidth() *
                                     9);
    m_countBox->setFixedWidth(QFontMetrics(m_countBox->font()).averageCharWidth() * 7);
    QHBoxLayout* row = rowOf({build.caption("FREQ &MHz", m_boxes.frequency), m_boxes.frequency,
                              m_frequencyButton, m_upButton, m_downButton, m_bandLabel});
    row->addStretch();
    row->addWidget(build.caption("QSOs", m_countBox));
    row->addWidget(m_countBox);
    return row;
}

// The list keeps its width and the panel follows it.
QHBoxLayout* frmVantrelMain::contestRow() {
    auto* worked = new QVBoxLayout;
    worked->addWidget(m_workedList->headings(this));
    worked->addWidget(m_workedList, 1);
    auto* row = new QHBoxLayout;
    row->addLayout(worked);
    row->addWidget(m_panel);
    row->addStretch();
    return row;
}

} // namespace vantrel
