// SPDX-License-Identifier: MIT
#include "screens/start/frmVantrelStart.h"

#include "forms/colours.h"
#include "forms/visiblestyle.h"
#include "log/logfile.h"
#include "platform/files.h"
#include "screens/start/startnotes.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace vantrel {

namespace {

struct Contest {
    const char* option;
    const char* caption;
    std::string_view code;
};
constexpr std::array<Contest, 4> contests{{
    {"Option1", "SELECT THE SKS SPRINT", contestSks},
    {"Option2", "SELECT THE SKS EUROPE SPRINT", contestSkse},
    {"Option3", "SELECT THE WES SPRINT", contestWes},
    {"Option4", "SELECT THE K3Y EVENT", contestK3y},
}};

void showNote(QLabel* label, const StatusNote& note) {
    put(label, note.text);
    label->setToolTip(toQt(note.tip));
    setTextColour(label, note.caution ? cautionColour : nullptr);
}

// As wide as the longest text it takes, in capitals.
QLineEdit* fitted(QLineEdit* box) {
    const QFontMetrics metrics(box->font());
    box->setFixedWidth(metrics.horizontalAdvance(QString(box->maxLength(), QLatin1Char('N'))) +
                       3 * metrics.averageCharWidth());
    return box;
}

} // namespace

frmVantrelStart::frmVantrelStart(const FormContext& context)
    : Form(context, "frmVantrelStart", "Vantrel - Start"),
      m_hold(this, [this] { platform().serialPort.close(); }) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    FormBuilder build(this);
    auto* parts = new QGridLayout;
    parts->addLayout(build.section("CONTEST", contestPart()), 0, 0);
    parts->addLayout(build.section("OPERATOR", operatorPart()), 0, 1);
    parts->addLayout(build.section("LOG FILE", filePart()), 1, 0);
    parts->addLayout(build.section("RADIO", radioPart()), 1, 1);
    parts->setColumnStretch(0, 1);
    parts->setColumnStretch(1, 1);
    QPushButton* startButton = build.command(
        "Command2", "&START", "ACCEPTS ALL ITEMS THIS PAGE AND STARTS PGM", [this] { start(); });
    startButton->setFont(enlargedFont(this, 1.3));
    page(this,
         {{parts, 1},
          row({build.command("Command5", "UPDATE THE DATABASE",
                             "UPDATES THE VANTREL DATABASE USING SKCCDATA.TXT OR SKCCLIST.TXT",
                             [this] { screens().open(Screen::updateList); }),
               m_membersLabel = build.label("Label16"), Item::room(), startButton,
               Item::gap(2 * fontMetrics().height()),
               build.command("Command1", "E&XIT", "QUIT THE ENTIRE PROGRAM",
                             [this] { screens().quit(); })})});
    eachSecond([this] { secondPassed(); });
}

QLayout* frmVantrelStart::contestPart() {
    FormBuilder build(this);
    std::vector<Item> items;
    for (const Contest& contest : contests) {
        m_contestOptions.push_back(
            build.option(contest.option, contest.caption, "", [this] { contestClicked(); }));
        items.emplace_back(m_contestOptions.back());
    }
    auto* form = new QFormLayout;
    m_contestBox = build.row(form, "CONTEST NAME:",
                             build.text("Text1", 0, "CONTEST NAME CAN BE CHANGED TO YOUR CHOICE"));
    m_typed.emplace_back(&OperatingSettings::contestText, m_contestBox);
    connectHandler(m_contestBox, &QLineEdit::textChanged, [this] { showLogNote(); });
    items.insert(items.end(), {form, Item::room()});
    return column(items);
}

QLayout* frmVantrelStart::operatorPart() {
    FormBuilder build(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    const auto box = [&](std::string OperatingSettings::*setting, const char* caption,
                         const char* name, int width, const char* toolTip) {
        m_typed.emplace_back(
            setting, build.row(form, caption, required(fitted(build.text(name, width, toolTip)))));
    };
    using Settings = OperatingSettings;
    box(&Settings::myCall, "YOUR CALL:", "Text2", qso::myCall.width, "ENTER YOUR OWN CALL HERE");
    m_callBox = focusFirst(m_typed.back().second);
    box(&Settings::myName, "YOUR NAME:", "Text6", qso::myName.width, "ENTER YOUR OWN NAME");
    box(&Settings::myState, "YOUR STATE:", "Text7", qso::myState.width, "ENTER YOUR OWN STATE");
    box(&Settings::myNumber, "YOUR SKCC#:", "Text8", qso::myNumber.width, "ENTER YOUR OWN SKCC#");
    m_offsetBox = build.row(
        form, "DIFF IN COMPUTER TIME TO GMT:",
        filled(build.combo("Combo5", "HOURS TO ADD TO THE COMPUTER'S TIME"), offsetList()));
    connectHandler(m_offsetBox, &QComboBox::currentIndexChanged, [this] { showUtc(); });
    m_utcLabel = build.row(form, "UTC:", build.label("Label12"));
    return form;
}

QLayout* frmVantrelStart::filePart() {
    FormBuilder build(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_fileBox = build.row(
        form, "FILE NAME:",
        build.text("Text9", 0,
                   "FILE NAME CAN BE CHANGED TO YOUR CHOICE  +  .CBR-->THEN CLICK START A NEW "
                   "FILE -YES-"));
    m_typed.emplace_back(&OperatingSettings::logFileName, m_fileBox);
    connectHandler(m_fileBox, &QLineEdit::textEdited, [this] { m_oldLogLabel->clear(); });
    connectHandler(m_fileBox, &QLineEdit::textChanged, [this] { showLogNote(); });
    form->addRow(QString(), m_logLabel = build.label("Label15"));
    form->addRow(QString(),
                 row({{build.command("Command4", "USE DEFAULT FILE NAME",
                                     "THE DEFAULT NAME  = SPRINT NAME + TODAY'S DATE",
                                     [this] { takeDefaultName(); }),
                       1},
                      build.command("Command3", "&BROWSE", "CLICK TO FIND AN EXISTING FILE",
                                    [this] { screens().openFinder(Screen::start); })}));
    m_newFileBox =
        filled(build.combo("Combo7", "YES STARTS A NEW FILE WITH THE NAME ABOVE"), dupeModeList());
    connectHandler(m_newFileBox, &QComboBox::currentIndexChanged, [this] { newFileChosen(); });
    m_dupeModeBox =
        filled(build.combo("Combo6", "YES = DUPES ARE LOGGED AND MARKED"), dupeModeList());
    form->addRow(build.caption("START A NEW", m_newFileBox),
                 row({m_newFileBox, Item::room(), build.caption("LOG DUPES:", m_dupeModeBox),
                      m_dupeModeBox}));
    form->addRow(m_oldLogLabel = wrapped(build.label("Label14")));
    m_bonusBox = fitted(
        build.text("Text10", qso::hisCall.width, "ENTER THE CALL OF THE BONUS STATION HERE"));
    m_typed.emplace_back(&OperatingSettings::bonusStation, m_bonusBox);
    form->addRow(build.caption("BONUS STATION:", m_bonusBox),
                 row({m_bonusBox,
                      {build.command("Command6", "CLEAR  BONUS STATION",
                                     "CLEARS THE BONUS STATION BOX-->LEAVE BLANK IF NO BONUS STN",
                                     [this] { put(m_bonusBox, blanks(qso::hisCall.width)); }),
                       1}}));
    return form;
}

QLayout* frmVantrelStart::radioPart() {
    m_radio = std::make_unique<RadioSection>(this, platform().files, [this] { testRadio(); });
    connectHandler(m_radio->rig, &QComboBox::currentIndexChanged, [this] { m_radio->rigChosen(); });
    for (const QComboBox* box : {m_radio->port, m_radio->baud, m_radio->civ})
        connectHandler(box, &QComboBox::currentIndexChanged, [this] { m_radio->lineChosen(); });
    return m_radio->layout();
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelStart::load() {
    OperatingSettings settings = shared().settings;
    settings.gmtOffset = offsetByValue(settings.gmtOffset);
    std::vector<std::string> unknown; // saved values that no list has
    if (!chooseContest(upper(trim(settings.contestCode))))
        unknown.push_back("CONTEST: " + settings.contestCode);
    for (const auto& [setting, box] : chosenSettings())
        if (!chooseValue(box, settings.*setting)) {
            chooseValue(box, OperatingSettings{}.*setting);
            unknown.push_back(fromQt(box->accessibleName()) + ' ' + settings.*setting);
        }
    for (const auto& [setting, box] : m_typed)
        put(box, trim(settings.*setting));
    m_radio->loaded();
    m_oldLogLabel->clear();
    if (!unknown.empty())
        showNote(m_oldLogLabel, {unknownSettingsText(unknown), true});
}

// Chooses the first contest and returns false when none has that code.
bool frmVantrelStart::chooseContest(std::string_view code) {
    std::size_t contest = 0;
    while (contest < contests.size() && contests[contest].code != code)
        ++contest;
    const bool known = contest < contests.size();
    m_contestOptions[known ? contest : 0]->setChecked(true);
    return known;
}

// The notes are made anew each time, since log and roster may have changed behind another page. At
// the first opening they come after the paint: reading log, roster and ports takes as long again.
void frmVantrelStart::bringToFront() {
    Form::bringToFront();
    runHandler([this] {
        showUtc();
        if (std::exchange(m_wasInFront, true))
            showNotes();
        else
            afterPaint([this] { showNotes(); });
    });
}

void frmVantrelStart::showNotes() {
    m_radio->showDevice();
    showLogNote();
    showNote(m_membersLabel, rosterNote(platform().files));
}

// The start page is the only page until START has opened the main page.
void frmVantrelStart::closeEvent(QCloseEvent* event) {
    Form::closeEvent(event);
    if (screens().mainPage() == nullptr)
        screens().quit();
}

// Enter in a box goes on to the next one.
void frmVantrelStart::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        focusNextChild();
    else
        Form::keyPressEvent(event);
}

void frmVantrelStart::showUtc() {
    showNote(m_utcLabel, utcNote(platform().clock, chosenValue(m_offsetBox)));
}

void frmVantrelStart::secondPassed() {
    const QString before = m_utcLabel->text();
    showUtc();
    m_radio->showDevice();
    if (m_utcLabel->text() != before) // a contact may have been logged behind the page
        showNotes();
}

// --- Contest and log file --------------------------------------------------------------------

void frmVantrelStart::contestClicked() {
    put(m_contestBox, contestCode());
    if (contestCode() == contestK3y)
        screens().open(Screen::callArea);
}

void frmVantrelStart::takeDefaultName() {
    const std::string code = contestCode();
    if (code == contestK3y) // the event's name comes from the call area
        return;
    setLogFileName(defaultLogName(code, platform().clock.now()));
    put(m_contestBox, code);
}

void frmVantrelStart::newFileChosen() {
    if (m_newFileBox->currentIndex() != 1)
        return;
    const bool yes =
        messages().ask({std::string(newFileQuestion), BoxIcon::exclamation,
                        newFileWarning(platform().files, textOf(m_fileBox)), "WARNING"});
    m_newFileBox->setCurrentIndex(0);
    if (yes)
        startNewFile();
    else
        m_contestOptions.front()->setFocus();
}

void frmVantrelStart::startNewFile() {
    const OperatingSettings settings = storedSettings(pageSettings());
    // The file gets its name in the case as typed; START looks it up without regard to case.
    const std::string name(trim(withoutSeparatorsAndQuotes(textOf(m_fileBox))));
    m_oldLogLabel->clear();
    refuseOwnFile(platform().files, name);
    const std::string kept =
        startNewLog(platform().files, name,
                    logHeader(settings.contestText, settings.myCall, settings.myNumber));
    showNote(m_oldLogLabel, {kept.empty() ? "NEW FILE STARTED" : "THE OLD LOG IS KEPT AS " + kept});
    showLogNote();
    // A main page behind this one has that log open: it must see that it is empty now.
    Log& log = shared().log;
    if (!log.name().empty() && platform().files.areSame(log.name(), name))
        log.reread();
}

void frmVantrelStart::showLogNote() {
    if (isVisible()) // otherwise the notes come after the first paint
        showNote(m_logLabel, logNote(platform().files, textOf(m_fileBox), textOf(m_contestBox)));
}

// --- Radio -----------------------------------------------------------------------------------

void frmVantrelStart::testRadio() {
    const InputHold::Scope hold(m_hold);
    m_radio->showReading();
    const ReadResult result = readFrequency(pageSettings(), platform().serialPort);
    if (result.outcome == ReadOutcome::cancelled)
        return;
    m_radio->showRead(result);
    if (result.outcome == ReadOutcome::failed)
        messages().show(result.message);
}

// --- START -----------------------------------------------------------------------------------

void frmVantrelStart::start() {
    for (const auto& [setting, box] : m_typed)
        if (box != m_bonusBox)
            put(box, upper(textOf(box)));
    const OperatingSettings settings = storedSettings(pageSettings());
    saveSettings(platform().files, settings);
    const std::string missing(notThereText(platform().files, settings.logFileName));
    if (!missing.empty()) {
        messages().show({missing, BoxIcon::critical, platform().files.path(settings.logFileName)});
        return;
    }
    // Not earlier: a main page behind this one uses the old settings until START succeeds.
    shared().settings = settings;
    shared().settings.portDevice = platform().serialPort.device(settings.comPort);
    m_radio->started();
    // A main page that is there already is loaded afresh: the log may be another one now.
    if (MainPage* page = screens().mainPage())
        page->loadAfresh();
    screens().open(Screen::main);
    hide();
}

auto frmVantrelStart::chosenSettings() const -> std::vector<BoxOfSetting<QComboBox>> {
    using Settings = OperatingSettings;
    return {{&Settings::rig, m_radio->rig},      {&Settings::comPort, m_radio->port},
            {&Settings::baud, m_radio->baud},    {&Settings::civAddress, m_radio->civ},
            {&Settings::gmtOffset, m_offsetBox}, {&Settings::dupeMode, m_dupeModeBox}};
}

OperatingSettings frmVantrelStart::pageSettings() const {
    OperatingSettings settings;
    settings.contestCode = contestCode();
    for (const auto& [setting, box] : m_typed)
        settings.*setting = textOf(box);
    for (const auto& [setting, box] : chosenSettings())
        settings.*setting = chosenValue(box);
    return settings;
}

std::string frmVantrelStart::contestCode() const {
    for (std::size_t i = 0; i < contests.size(); ++i)
        if (m_contestOptions[i]->isChecked())
            return std::string(contests[i].code);
    return std::string(contestSks);
}

// --- What other screens do here --------------------------------------------------------------

void frmVantrelStart::setLogFileName(const std::string& name) {
    put(m_fileBox, name);
    m_oldLogLabel->clear(); // it was about the name before
}

void frmVantrelStart::receivePath(const std::string& path) {
    setLogFileName(path);
    m_fileBox->setFocus();
}

} // namespace vantrel
