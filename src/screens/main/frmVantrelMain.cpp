// SPDX-License-Identifier: MIT
#include "screens/main/frmVantrelMain.h"

#include "forms/colours.h"
#include "forms/markedlabel.h"
#include "screens/main/frequency.h"
#include "screens/main/widgets/contestpanel.h"
#include "screens/main/widgets/suggestionlist.h"
#include "screens/main/widgets/workedlist.h"
#include "shared/utctime.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

#include <initializer_list>
#include <utility>

namespace vantrel {

namespace {
constexpr double clockPoints = 12;

QPushButton* flat(QPushButton* button) {
    button->setFlat(true);
    return button;
}
} // namespace

frmVantrelMain::frmVantrelMain(const FormContext& context)
    : Form(context, "frmVantrelMain", "Vantrel"),
      m_entry(shared(), platform(),
              {[this] {
                   showEntry();
                   return readFrequency(shared().settings, platform().serialPort);
               },
               [this](const Message& message) {
                   showEntry();
                   messages().show(message);
               }}),
      m_boxes(this),
      m_hold(this, [this] { platform().serialPort.close(); }) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    m_countBox = FormBuilder(this).output("Text1");
    page(this, {statusRow(), m_boxes.exchangeRow(this, m_countBox), m_boxes.hintRow(), whoRow(),
                commandRow(), Item(contestRow(), 1), pageCommands()});
    connectBoxes();
    eachSecond([this] { secondPassed(); });
    m_logWatch = shared().log.watch([this] { runHandler([this] { showLog(); }); });
}

// --- Controls --------------------------------------------------------------------------------

QPushButton* frmVantrelMain::command(const char* name, const char* caption, const char* toolTip,
                                     Event happens) {
    return FormBuilder(this).command(name, caption, toolTip, [this, happens] { run(happens); });
}

QHBoxLayout* frmVantrelMain::statusRow() {
    FormBuilder build(this);
    m_whoLabel = build.label("Label28");
    m_fileLabel = build.label("Label12");
    m_fileLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // widens nothing
    m_dupeModeLabel = build.label("Label13");
    m_clockLabel = build.label("Label27");
    m_clockLabel->setFont(glanceFont(this, clockPoints));
    for (QLabel* label : {m_fileLabel, m_dupeModeLabel, m_boxes.autoRead})
        setTextColour(label, dimmedColour);
    QPushButton* autoRead =
        flat(command("Command17", "&AUTO READ", "TURNS THE READING OF THE RADIO OFF AND ON",
                     &ContactEntry::autoReadToggled));
    return row({m_whoLabel, Item::gap(fontMetrics().height()), Item(m_fileLabel, 1),
                m_dupeModeLabel, m_boxes.readSign, m_boxes.autoRead, autoRead, m_clockLabel,
                build.caption("UTC", m_clockLabel)});
}

// What the call being typed may become: worked calls on the left, members on the right.
QHBoxLayout* frmVantrelMain::whoRow() {
    m_suggestions = FormBuilder::named(new SuggestionList(this), "List2",
                                       "MEMBERS LIKE THE CALL - DOWN AND ENTER TAKES ONE");
    m_boxes.worked->setFixedHeight(m_suggestions->height());
    connectHandler(m_suggestions, &SuggestionList::chosen, [this](const QString& call) {
        m_entry.callChosen(fromQt(call));
        showEntry();
        toCallBox();
    });
    connectHandler(m_suggestions, &SuggestionList::escaped, [this] { toCallBox(); });
    return row({m_boxes.worked, {m_suggestions, 1}});
}

QHBoxLayout* frmVantrelMain::commandRow() {
    FormBuilder build(this);
    m_audioButton = flat(
        build.command("Command12", "AUDIO ON", "TOGGLES DUPE AUDIO ", [this] { audioClicked(); }));
    QHBoxLayout* commands =
        row({build.caption("FREQ &MHz", m_boxes.frequency), m_boxes.frequency,
             flat(command("Command15", "Enter",
                          "WITH AUTO READ OFF , ENTER FREQ AND CLICK ENTER BUTTON",
                          &ContactEntry::frequencyEntered)),
             flat(command("Command13", "&Up", "TOGGELS BAND UP ONE", &ContactEntry::bandUp)),
             flat(command("Command14", "&Down", "TOGGLES BAND DOWN ONE", &ContactEntry::bandDown)),
             flat(command("Command5", "&FREQ", "READS FREQ FROM RADIO", &ContactEntry::radioAsked)),
             m_boxes.band, Item::room(),
             command("Command2", "&SEARCH", "ENTER A CALL THEN CLICK HERE", &ContactEntry::search),
             command("Command3", "&LOG", "SAVES THE QSO TO CABRILLO FILE", &ContactEntry::log),
             command("Command4", "&NO LOG", "DOES NOT SAVE QSO TO FILE", &ContactEntry::dropped),
             stationChoice(), m_audioButton});
    commands->setSpacing(3);
    return commands;
}

// The event's station and what the next contact will end in, one above the other.
QVBoxLayout* frmVantrelMain::stationChoice() {
    const auto choose = [this] {
        screens().open(Screen::k3yBox);
        showEntry(); // unchecks the option: no tag is chosen yet
    };
    m_stationOption = FormBuilder(this).jobOption(
        "Option1", "ADD K3Y/xx", "CLICK TO ADD K3Y/xx  TO FILE - BEFORE LOGGING DX K3Y STATIONS",
        choose);
    connectHandler(new QShortcut(QKeySequence(QStringLiteral("Alt+K")), this),
                   &QShortcut::activated, choose);
    QVBoxLayout* choice = column({row({m_stationOption, m_boxes.station}), m_boxes.marker});
    choice->setSpacing(0);
    return choice;
}

// The list keeps its width and the panel follows it.
QHBoxLayout* frmVantrelMain::contestRow() {
    m_workedList = FormBuilder::named(new WorkedList(this), "List1");
    m_panel = new ContestPanel(this);
    connectHandler(m_workedList, &WorkedList::chosen, [this](int contact) { correct(contact); });
    connectHandler(m_workedList, &WorkedList::removed, [this](int contact) {
        screens().openContact(Screen::deletion, contact, OpenAt::found);
    });
    connectHandler(m_workedList, &WorkedList::escaped, [this] { toCallBox(); });
    return row({column({m_workedList->headings(this), {m_workedList, 1}}), {m_panel, 1}});
}

// In three groups, and EXIT apart.
QHBoxLayout* frmVantrelMain::pageCommands() {
    FormBuilder build(this);
    const auto leads = [&](const char* name, const char* caption, const char* toolTip,
                           std::function<void()> action) {
        return flat(build.command(name, caption, toolTip, std::move(action)));
    };
    const auto opens = [this](Screen screen) { return [this, screen] { screens().open(screen); }; };
    const Item gap = Item::gap(fontMetrics().averageCharWidth() * 2);
    return row(
        {leads("Command7", "CO&RRECT", "CORRECT ANY ENTRY IN CABRILLO FILE",
               [this] { correct(chosenContact()); }),
         leads("Command8", "DELET&E", "REMOVES ENTRY FROM CABRILLO FILE",
               [this] {
                   screens().openContact(Screen::deletion, chosenContact(), OpenAt::callOnly);
               }),
         gap,
         leads("Command6", "LIS&T", "DISPLAYS OF FULL CABRILLO FILE",
               [this] { screens().openList(ListedFile::log); }),
         leads("Command9", "F&ILES", "FILE MAINTENANCE PAGE", opens(Screen::files)),
         leads("Command10", "&BACKUP", "SAVES CABRILLO FILE TO BACKUP DISK", opens(Screen::backup)),
         gap,
         // In the event month the standings take the place of the score.
         leads("Command11", "S&CORE", "CALCULATES CURRENT SCORE ",
               [this] {
                   screens().open(shared().settings.isK3y() ? Screen::standings : Screen::score);
               }),
         leads("Command16", "B&ONUS", "COUNTS BONUS POINTS IN THE NAME FIELD",
               opens(Screen::bonus)),
         Item::room(),
         leads("Command1", "E&XIT", "QUIT THE ENTIRE PROGRAM", [this] { screens().quit(); })});
}

void frmVantrelMain::connectBoxes() {
    const auto edited = [this] {
        m_entry.edited(m_boxes.entry());
        showEntry();
    };
    for (QLineEdit* box :
         {m_boxes.call, m_boxes.name, m_boxes.state, m_boxes.number, m_boxes.rstSent->lineEdit(),
          m_boxes.rstReceived->lineEdit(), m_boxes.frequency})
        connectHandler(box, &QLineEdit::textEdited, edited);
    for (QComboBox* box : {m_boxes.rstSent, m_boxes.rstReceived})
        connectHandler(box, &QComboBox::activated, edited);
    connectHandler(m_boxes.call, &QLineEdit::returnPressed, [this] { run(&ContactEntry::search); });
    connectHandler(m_boxes.number, &QLineEdit::returnPressed, [this] { run(&ContactEntry::log); });
    connectHandler(m_boxes.frequency, &QLineEdit::returnPressed,
                   [this] { run(&ContactEntry::frequencyEntered); });
    connectHandler(m_boxes.frequency, &QLineEdit::editingFinished,
                   [this] { run(&ContactEntry::frequencyLeft); });
    focusFirst(m_boxes.call)->installEventFilter(this);
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelMain::load() {
    const OperatingSettings& settings = shared().settings;
    put(m_fileLabel, "FILE NAME:  " + settings.logFileName);
    setWindowTitle(toQt(settings.myCall + " " + settings.contestCode + " " + settings.logFileName +
                        " - Vantrel"));
    put(m_whoLabel, settings.myCall + "  " + settings.contestCode);
    put(m_dupeModeLabel, settings.logsDupes() ? "Dupes Are Logged" : "Dupes Not Logged");
    shared().audioOn = true;
    put(m_audioButton, "AUDIO ON");
    m_entry.opened();
    toCallBox();
    runHandler([this] { shared().log.open(shared().settings.logFileName); });
    const bool reads = settings.hasRadio() && m_entry.autoReads();
    afterPaint([this, reads] {
        m_entry.readRoster();
        if (reads)
            run(&ContactEntry::radioAsked);
    });
}

// The boxes of the exchange and the hint stay to be seen.
int frmVantrelMain::freeTop() const {
    return m_boxes.hintBar->mapToGlobal(m_boxes.hintBar->rect().bottomLeft()).y();
}

void frmVantrelMain::closeEvent(QCloseEvent* event) {
    Form::closeEvent(event);
    screens().quit();
}

// --- The contact being entered ---------------------------------------------------------------

void frmVantrelMain::run(Event happens) {
    const InputHold::Scope hold(m_hold);
    m_entry.edited(m_boxes.entry()); // dictation, for one, sends no textEdited
    Answer answer;
    try {
        answer = (m_entry.*happens)();
    } catch (const RuntimeError&) {
        showEntry(); // what was done before the failure
        throw;
    }
    carryOut(answer);
}

void frmVantrelMain::carryOut(const Answer& answer) {
    showEntry();
    if (answer.dupeScreen)
        screens().open(Screen::dupe);
    for (const Message& message : answer.messages)
        messages().show(message);
    if (answer.toCallBox)
        toCallBox();
    if (answer.asksAboutDupe)
        screens().askAboutDupe({[this] { carryOut(m_entry.logAsDupe()); },
                                [this] { carryOut(m_entry.droppedDupe()); }});
}

void frmVantrelMain::showEntry() {
    const EntryView view = m_entry.view();
    m_boxes.show(view);
    m_stationOption->setChecked(view.station != noStationLabel);
    const Colour ofEvent = shared().settings.isK3y() ? nullptr : Colour(dimmedColour);
    setTextColour(m_stationOption, ofEvent);
    setTextColour(m_boxes.station, ofEvent);
    if (std::exchange(m_bands, view.bands) != view.bands)
        m_panel->showBands(view.bands);
    m_suggestions->setLines(m_entry.members());
}

// --- Keys ------------------------------------------------------------------------------------

// A letter typed on a button or in a list goes to the call box.
void frmVantrelMain::keyPressEvent(QKeyEvent* event) {
    if (!isTyping(*event) || m_boxes.call->hasFocus())
        return Form::keyPressEvent(event);
    m_boxes.call->setFocus();
    QCoreApplication::sendEvent(m_boxes.call, event);
}

bool frmVantrelMain::eventFilter(QObject* receiver, QEvent* event) {
    return (receiver == m_boxes.call && event->type() == QEvent::KeyPress &&
            callBoxTakes(*static_cast<QKeyEvent*>(event))) ||
           Form::eventFilter(receiver, event);
}

bool frmVantrelMain::callBoxTakes(const QKeyEvent& key) {
    const bool empty = trim(textOf(m_boxes.call)).empty();
    if (key.matches(QKeySequence::Undo) && empty) {
        runHandler([this] { run(&ContactEntry::broughtBack); });
        return true;
    }
    if (key.modifiers().testFlag(Qt::AltModifier))
        return false;
    if (key.key() == Qt::Key_Space && m_entry.spaceFillsIn()) {
        runHandler([this] { run(&ContactEntry::filledFromLog); });
        return true;
    }
    if (key.key() == Qt::Key_Space && m_entry.spaceLeadsOn()) {
        m_boxes.toFirstEmpty();
        return true;
    }
    if (key.key() == Qt::Key_Up && empty && shared().log.count().value() > Log::workedCapacity) {
        runHandler([this] { correct(chosenContact()); });
        return true; // the list holds the first 1,000 contacts only
    }
    return (key.key() == Qt::Key_Down && m_suggestions->takeFocus()) ||
           (key.key() == Qt::Key_Up && empty && m_workedList->takeFocus());
}

void frmVantrelMain::toCallBox() {
    m_workedList->setCurrentIndex({});
    activateWindow();
    m_boxes.call->setFocus();
}

// --- The log and the other commands ----------------------------------------------------------

void frmVantrelMain::showLog() {
    const Log& log = shared().log;
    put(m_countBox, zeroPadded(log.count().value(), 2));
    m_workedList->setLines(log.worked());
    m_panel->followLog(log, shared().settings, m_entry.score());
    secondPassed();
    m_entry.logChanged();
    showEntry();
}

// Also called when the log changes: clock and rate.
void frmVantrelMain::secondPassed() {
    const UtcTime utc = utcTime(platform().clock.now(), shared().settings.gmtOffset);
    put(m_clockLabel, utc.time.substr(0, 2) + ':' + utc.time.substr(2));
    m_panel->followClock(utc);
}

// The contact selected in the list, otherwise the last one. 0: the log is empty.
int frmVantrelMain::chosenContact() const {
    const int selected = m_workedList->chosenContact();
    return selected > 0 ? selected : shared().log.count().value();
}

void frmVantrelMain::audioClicked() {
    shared().audioOn = !shared().audioOn;
    put(m_audioButton, shared().audioOn ? "AUDIO ON" : "AUDIO OFF");
    toCallBox();
}

} // namespace vantrel
