// SPDX-License-Identifier: MIT
#include "screens/main/frmVantrelMain.h"

#include "base/fixedtext.h"
#include "forms/accessible.h"
#include "forms/colours.h"
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
#include "screens/main/frmWhoIsIt.h"
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

frmVantrelMain::frmVantrelMain(const FormContext& context)
    : Form(context, "frmVantrelMain", "Vantrel"),
      m_page(this, [this] { return pageCommands(); }),
      m_boxes(m_page.boxes),
      m_tuning(context, m_page,
               [this](const std::string& bandTag) {
                   showWhoIsIt();
                   return recheckOn(bandTag);
               }),
      m_keys(this, m_page, keyActions()),
      m_hold(this, [this] { platform().serialPort.close(); }),
      m_roster(context.platform.files) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    connectHandlers();
    m_logWatch = shared().log.watch([this] { showLog(); });
    openAtPageSize();
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
    const PageCommand commands[] = {
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
    return pageCommandRow(this, commands,
                          [this](const PageCommand& command) { runHandler(command.action); });
}

void frmVantrelMain::connectHandlers() {
    connectEntryBoxes();
    using Main = frmVantrelMain;
    const auto onClick = [this](QPushButton* button, void (Main::*handler)()) {
        connectHandler(button, &QPushButton::clicked, this, handler);
    };
    onClick(m_page.searchButton, &Main::searchClicked);
    onClick(m_page.logButton, &Main::logClicked);
    onClick(m_page.noLogButton, &Main::noLogClicked);
    onClick(m_page.readButton, &Main::readClicked);
    onClick(m_page.audioButton, &Main::audioClicked);
    onClick(m_page.upButton, &Main::upClicked);
    onClick(m_page.downButton, &Main::downClicked);
    onClick(m_page.frequencyButton, &Main::frequencyClicked);
    onClick(m_page.autoReadButton, &Main::autoReadClicked);
    connectHandler(m_page.stationOption, &QRadioButton::clicked, this, &Main::stationClicked);
}

void frmVantrelMain::connectEntryBoxes() {
    using Main = frmVantrelMain;
    connectHandler(m_boxes.call, &QLineEdit::textEdited, this, &Main::callEdited);
    connectHandler(m_page.whoIsIt->suggestions(), &SuggestionList::chosen, this,
                   &Main::memberChosen);
    connectHandler(m_page.whoIsIt->suggestions(), &SuggestionList::left, this, &Main::toCallBox);
    connectHandler(m_page.workedList, &QListView::doubleClicked, this, &Main::contactChosen);
    connectHandler(new QShortcut(QKeySequence(QStringLiteral("Alt+K")), this),
                   &QShortcut::activated, this, &Main::stationClicked);
    for (QLineEdit* box : {m_boxes.name, m_boxes.state, m_boxes.number})
        connect(box, &QLineEdit::textEdited, box, [box] { setLookedUp(box, false); });
    m_second = new QTimer(this);
    m_second->setInterval(1000);
    connectHandler(m_second, &QTimer::timeout, this, &Main::secondPassed);
    connectHandler(m_boxes.call, &QLineEdit::returnPressed, this, &Main::searchClicked);
    connectHandler(m_boxes.number, &QLineEdit::returnPressed, this, &Main::logClicked);
    connectHandler(m_boxes.frequency, &QLineEdit::returnPressed, this, &Main::frequencyClicked);
    connect(m_boxes.frequency, &QLineEdit::editingFinished, this,
            [this] { runHandler([this] { m_tuning.enter(); }); });
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelMain::load() {
    const OperatingSettings& settings = shared().settings;
    put(m_page.fileLabel, "FILE NAME:  " + settings.logFileName);
    setWindowTitle(toQt(settings.myCall + " " + settings.contestCode + " " + settings.logFileName +
                        " - Vantrel"));
    put(m_page.whoLabel, settings.myCall + "  " + settings.contestCode);
    put(m_page.dupeModeLabel, settings.logsDupes() ? "Dupes Are Logged" : "Dupes Not Logged");
    m_tuning.start();
    setMarker(noMarker);
    showHint(Hint());
    clearEntry(Left::nothing);
    m_cleared.reset();
    showStation(std::string(noStationLabel));
    shared().audioOn = true;
    put(m_page.audioButton, "AUDIO ON");
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

// What the keys do that belong to no button; see MainKeys.
MainKeys::Actions frmVantrelMain::keyActions() {
    return {
        [this] {
            if (m_refusalShown)
                showHint(Hint());
        },
        [this] { runHandler([this] { bringBack(); }); },
        [this] { toCallBox(); },
        [this](int contact) { runHandler([&] { openOnContact(Screen::correct, contact, true); }); },
        [this](int contact) {
            runHandler([&] { openOnContact(Screen::deletion, contact, true); });
        },
        [this] {
            return m_searched && textOf(m_boxes.call) == m_searched->call &&
                   trim(textOf(m_boxes.name)).empty();
        }};
}

// Small boxes leave the boxes of the exchange free.
int frmVantrelMain::freeTop() const {
    return m_page.hintLabel->geometry().bottom();
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

void frmVantrelMain::showWhoIsIt() {
    const std::string typed = textOf(m_boxes.call);
    const std::string bandTag = m_tuning.bandTag();
    const Contacts& contacts = shared().log.contacts();
    m_page.whoIsIt->showWorked(contacts, typed, bandTag);
    m_page.panel->showBands(bandTable(contacts, typed, bandTag, shared().settings.isK3y()));
}

void frmVantrelMain::showMembers() {
    m_page.whoIsIt->showMembers(m_roster, shared().log.contacts(), trim(textOf(m_boxes.call)),
                                m_tuning.bandTag());
}

// As if it had been typed: the next Enter is SEARCH.
void frmVantrelMain::memberChosen(const QString& call) {
    m_boxes.call->setText(call);
    callEdited();
    toCallBox();
}

void frmVantrelMain::searchClicked() {
    const InputHold::Scope hold(m_hold);
    m_tuning.enter();
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
    if (!m_tuning.read(typed, Tuning::Asks::search))
        return;
    if (trim(typed.frequency).empty()) {
        messages().show({std::string(frequencyMissingText), BoxIcon::exclamation});
        m_boxes.call->clear();
        toCallBox();
        return;
    }
    typed.frequency = completedFrequency(typed.frequency);
    m_tuning.show(typed.frequency);
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
    Hint hint = lookupHint(outcome, call, m_roster.hasMembers());
    hint.filledIn = filledIn(outcome, typed);
    showHint(hint);
    if (outcome == LookupOutcome::found) {
        m_lookedUp = typed;
        for (QLineEdit* box : {m_boxes.name, m_boxes.state, m_boxes.number})
            setLookedUp(box, true);
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
            m_refusalShown = true;
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

// After a hit the hint line adds what this contact would bring.
void frmVantrelMain::tellGain(const Entry& typed) {
    const OperatingSettings& settings = shared().settings;
    const UtcTime utc = utcTime(platform().clock.now(), settings.gmtOffset);
    const std::optional<std::string> line = lineOf(typed, settings, shared().marker, utc);
    if (settings.isK3y() || !line)
        return;
    const std::string gain =
        scoreGain(shared().log.contacts(), m_page.panel->score(), *line, settings);
    if (!gain.empty())
        showHint({textOf(m_page.hintLabel) + "   " + gain, HintTone::plain,
                  filledIn(LookupOutcome::found, typed)});
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
    m_tuning.enter();
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
    if (!m_tuning.read(typed, Tuning::Asks::log))
        return std::nullopt;
    const FrequencyCheck check = enterFrequency(contact, typed.frequency, settings);
    if (!m_tuning.show(typed.frequency))
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
    m_tuning.enter();
    toCallBox();
}

void frmVantrelMain::readClicked() {
    const InputHold::Scope hold(m_hold);
    Entry typed = m_boxes.entry();
    if (m_tuning.read(typed, Tuning::Asks::operatorHimself))
        toCallBox();
}

void frmVantrelMain::autoReadClicked() {
    m_tuning.toggleAutoRead();
    toCallBox();
}

void frmVantrelMain::upClicked() {
    m_tuning.step(bandUp);
    toCallBox();
}

void frmVantrelMain::downClicked() {
    m_tuning.step(bandDown);
    toCallBox();
}

// --- The other commands ----------------------------------------------------------------------

void frmVantrelMain::audioClicked() {
    shared().audioOn = !shared().audioOn;
    put(m_page.audioButton, shared().audioOn ? "AUDIO ON" : "AUDIO OFF");
    toCallBox();
}

void frmVantrelMain::stationClicked() {
    screens().open(Screen::k3yBox);
    m_page.stationOption->setChecked(textOf(m_page.stationLabel) !=
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
        setLookedUp(box, false);
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
    put(m_page.stationLabel, text);
    put(m_page.markerLabel, nextMarkerText(shared().marker));
    m_page.stationOption->setChecked(text != noStationLabel);
}

void frmVantrelMain::showLog() {
    const Log& log = shared().log;
    put(m_page.countBox, countText(log.count()));
    m_page.workedList->setLines(log.worked());
    m_page.panel->followLog(log.contacts(), shared().settings);
    secondPassed();
    showWhoIsIt();
}

// The one tick: changes what changed.
void frmVantrelMain::secondPassed() {
    const UtcTime utc = utcTime(platform().clock.now(), shared().settings.gmtOffset);
    put(m_page.clockLabel, utc.time.substr(0, 2) + ':' + utc.time.substr(2));
    m_page.panel->followClock(utc);
}

// The contact of the line that is selected in the list; otherwise the last one.
int frmVantrelMain::chosenContact() const {
    const QModelIndex selected = m_page.workedList->currentIndex();
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
    put(m_page.markerLabel, nextMarkerText(marker));
}

// After a contact is logged or dropped: a "DUPE" marker goes back to six blanks, a K3Y tag
// stays.
void frmVantrelMain::resetDupeMarker() {
    if (shared().marker == dupeMarker)
        setMarker(noMarker);
}

void frmVantrelMain::showHint(const Hint& hint) {
    announce(m_page.hintLabel, hint.text, spokenHint(hint));
    setTextColour(m_page.hintLabel, hint.tone == HintTone::plain   ? QColor()
                                    : hint.tone == HintTone::alarm ? warningColour(palette())
                                                                   : cautionColour(palette()));
    m_refusalShown = false;
}

void frmVantrelMain::toCallBox() {
    m_page.workedList->setCurrentIndex({});
    activateWindow();
    m_boxes.call->setFocus();
}

} // namespace vantrel
