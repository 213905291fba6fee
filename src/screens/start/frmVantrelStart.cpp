// SPDX-License-Identifier: MIT
#include "screens/start/frmVantrelStart.h"

#include "base/fixedtext.h"
#include "forms/formbuilder.h"
#include "log/logfile.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/qt/latin1.h"
#include "platform/serialnames.h"
#include "screens/start/startlists.h"
#include "screens/start/startlog.h"
#include "shared/utctime.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {

void fill(QComboBox* combo, const std::vector<ListEntry>& list) {
    for (const ListEntry& entry : list)
        combo->addItem(toQt(entry.shown), toQt(entry.stored));
}

std::string stored(const QComboBox* combo) {
    return fromQt(combo->currentData().toString());
}

void showTrimmed(QLineEdit* box, std::string_view text) {
    box->setText(toQt(trim(text)));
}

} // namespace

frmVantrelStart::frmVantrelStart(const FormContext& context)
    : Form(context, "frmVantrelStart", "Vantrel") {
    setAttribute(Qt::WA_DeleteOnClose, false);
    createControls();
    layOut();
    connectHandlers();
    openAtPageSize();
}

void frmVantrelStart::createControls() {
    FormBuilder build(this);
    Option1 = build.option("Option1", "SELECT THE SKS SPRINT");
    Option2 = build.option("Option2", "SELECT THE SKS EUROPE SPRINT");
    Option3 = build.option("Option3", "SELECT THE WES SPRINT");
    Option4 = build.option("Option4", "SELECT THE K3Y EVENT");
    Text1 = build.text("Text1", 0, "CONTEST NAME CAN BE CHANGED TO YOUR CHOICE");
    Text2 = build.text("Text2", callWidth, "ENTER YOUR OWN CALL HERE");
    Text6 = build.text("Text6", nameWidth, "ENTER YOUR OWN NAME");
    Text7 = build.text("Text7", stateWidth, "ENTER YOUR OWN STATE");
    Text8 = build.text("Text8", numberWidth, "ENTER YOUR OWN SKCC#");
    Combo5 = build.combo("Combo5", "HOURS TO ADD TO THE COMPUTER'S TIME");
    Text9 = build.text("Text9", 0,
                       "FILE NAME CAN BE CHANGED TO YOUR CHOICE  +  .CBR-->THEN CLICK START A NEW "
                       "FILE -YES-");
    Command4 = build.command("Command4", "USE DEFAULT FILE NAME",
                             "THE DEFAULT NAME  = SPRINT NAME + TODAY'S DATE");
    Command3 = build.command("Command3", "&BROWSE", "CLICK TO FIND AN EXISTING FILE");
    Combo7 = build.combo("Combo7", "YES STARTS A NEW FILE WITH THE NAME ABOVE");
    Combo6 = build.combo("Combo6", "YES = DUPES ARE LOGGED AND MARKED");
    Text10 = build.text("Text10", callWidth, "ENTER THE CALL OF THE BONUS STATION HERE");
    Command6 = build.command("Command6", "CLEAR  BONUS STATION",
                             "CLEARS THE BONUS STATION BOX-->LEAVE BLANK IF NO BONUS STN");
    Combo1 = build.combo("Combo1");
    Combo2 = build.combo("Combo2");
    Combo3 = build.combo("Combo3");
    Combo4 = build.combo("Combo4");
    Command5 = build.command("Command5", "UPDATE THE DATABASE",
                             "UPDATES THE VANTREL DATABASE USING SKCCDATA.TXT OR SKCCLIST.TXT");
    Command2 = build.command("Command2", "&START", "ACCEPTS ALL ITEMS THIS PAGE AND STARTS PGM");
    Command1 = build.command("Command1", "E&XIT", "QUIT THE ENTIRE PROGRAM");
    Label12 = build.label("Label12");
    Label13 = build.label("Label13");
    Label14 = build.label("Label14");
    fill(Combo1, rigList());
    fill(Combo2, portList());
    fill(Combo3, baudList());
    fill(Combo4, civList());
    fill(Combo5, offsetList());
    fill(Combo6, dupeModeList());
    fill(Combo7, dupeModeList());
}

void frmVantrelStart::connectHandlers() {
    using Start = frmVantrelStart;
    connectHandler(Option1, &QRadioButton::clicked, this, &Start::Option1_Click);
    connectHandler(Option2, &QRadioButton::clicked, this, &Start::Option2_Click);
    connectHandler(Option3, &QRadioButton::clicked, this, &Start::Option3_Click);
    connectHandler(Option4, &QRadioButton::clicked, this, &Start::Option4_Click);
    connectHandler(Command4, &QPushButton::clicked, this, &Start::Command4_Click);
    connectHandler(Command3, &QPushButton::clicked, this, &Start::Command3_Click);
    connectHandler(Combo7, &QComboBox::currentIndexChanged, this, &Start::Combo7_Change);
    connectHandler(Combo5, &QComboBox::currentIndexChanged, this, &Start::Combo5_Change);
    connectHandler(Combo2, &QComboBox::currentIndexChanged, this, &Start::Combo2_Change);
    connectHandler(Command6, &QPushButton::clicked, this, &Start::Command6_Click);
    connectHandler(Command5, &QPushButton::clicked, this, &Start::Command5_Click);
    connectHandler(Command2, &QPushButton::clicked, this, &Start::Command2_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { screens().quit(); });
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelStart::load() {
    const OperatingSettings& settings = shared().settings;
    const auto select = [](QComboBox* combo, const std::vector<ListEntry>& list,
                           std::string_view value, std::string_view otherwise) {
        combo->setCurrentIndex(positionOf(list, value, otherwise));
    };
    const struct {
        QRadioButton* option;
        std::string_view code;
    } contests[] = {{Option1, contestSks},
                    {Option2, contestSkse},
                    {Option3, contestWes},
                    {Option4, contestK3y}};
    for (const auto& contest : contests)
        if (contest.code == settings.contestCode)
            contest.option->setChecked(true);
    select(Combo5, offsetList(), settings.gmtOffset, "0");
    select(Combo4, civList(), settings.civAddress, noneSetting);
    select(Combo1, rigList(), settings.rig, noneSetting);
    select(Combo2, portList(), settings.comPort, noneSetting);
    select(Combo3, baudList(), settings.baud, noneSetting);
    select(Combo6, dupeModeList(), settings.dupeMode, "NO");
    showTrimmed(Text1, settings.contestText);
    showTrimmed(Text2, settings.myCall);
    showTrimmed(Text6, settings.myName);
    showTrimmed(Text7, settings.myState);
    showTrimmed(Text8, settings.myNumber);
    showTrimmed(Text9, settings.logFileName);
    showTrimmed(Text10, settings.bonusStation);
    Combo5_Change();
    Combo2_Change();
}

QWidget* frmVantrelStart::firstFocus() {
    return Text2;
}

// Without a main page there is nothing to return to.
void frmVantrelStart::closeEvent(QCloseEvent* event) {
    Form::closeEvent(event);
    if (screens().mainPage() == nullptr)
        screens().quit();
}

// --- Contest and log file --------------------------------------------------------------------

void frmVantrelStart::Option1_Click() {
    chooseContest(contestSks);
}
void frmVantrelStart::Option2_Click() {
    chooseContest(contestSkse);
}
void frmVantrelStart::Option3_Click() {
    chooseContest(contestWes);
}

void frmVantrelStart::Option4_Click() {
    chooseContest(contestK3y);
    screens().open(Screen::callArea);
}

void frmVantrelStart::chooseContest(std::string_view code) {
    Text1->setText(toQt(code));
}

void frmVantrelStart::Command4_Click() {
    const std::string code = contestCode();
    if (code == contestK3y) // the event's name comes from the call area
        return;
    Text9->setText(toQt(defaultLogName(code, platform().clock.now())));
    Text1->setText(toQt(code));
}

void frmVantrelStart::Command3_Click() {
    screens().openFinder(Screen::start);
}

void frmVantrelStart::Combo7_Change() {
    if (Combo7->currentIndex() != 1)
        return;
    const bool yes =
        messages().ask({std::string(newFileQuestion), BoxIcon::exclamation, "", "WARNING"});
    Combo7->setCurrentIndex(0);
    if (yes)
        startNewFile();
    else
        Option1->setFocus();
}

void frmVantrelStart::startNewFile() {
    const OperatingSettings settings = storedSettings(pageSettings());
    // The file gets the name as it was typed; START finds it whatever its case.
    const std::string name(trim(withoutSeparatorsAndQuotes(fromQt(Text9->text()))));
    Label14->clear();
    refuseOwnFile(platform().files, name);
    const std::string kept =
        startNewLog(platform().files, name,
                    logHeader(settings.contestText, settings.myCall, settings.myNumber));
    Label14->setText(toQt(kept.empty() ? "NEW FILE STARTED" : "THE OLD LOG IS KEPT AS " + kept));
}

void frmVantrelStart::Combo5_Change() {
    const UtcTime utc = utcTime(platform().clock.now(), stored(Combo5));
    Label12->setText(toQt(utc.time + " UTC   " + utc.date));
}

void frmVantrelStart::Combo2_Change() {
    Label13->setText(toQt(serialDeviceShown(platform().files, stored(Combo2))));
}

void frmVantrelStart::Command6_Click() {
    Text10->setText(toQt(blanks(callWidth)));
}

void frmVantrelStart::Command5_Click() {
    screens().open(Screen::updateList);
}

// --- START -----------------------------------------------------------------------------------

void frmVantrelStart::Command2_Click() {
    upperCaseBoxes();
    const OperatingSettings settings = storedSettings(pageSettings());
    saveSettings(platform().files, settings);
    switch (probeLog(platform().files, settings.logFileName)) {
    case LogProbe::opened:
        // Not before: a main page behind this one goes on with the log that it shows.
        shared().settings = settings;
        openMainPage();
        break;
    case LogProbe::fileNotFound:
        messages().show({std::string(fileNotFoundText), BoxIcon::critical,
                         platform().files.path(settings.logFileName)});
        break;
    case LogProbe::pathNotFound:
        messages().show({std::string(pathNotFoundText), BoxIcon::critical,
                         platform().files.path(settings.logFileName)});
        break;
    }
}

void frmVantrelStart::openMainPage() {
    // A main page that is there already is loaded afresh: the log may be another one now.
    if (MainPage* page = screens().mainPage())
        page->loadAfresh();
    screens().open(Screen::main);
    hide();
}

void frmVantrelStart::upperCaseBoxes() {
    for (QLineEdit* box : {Text1, Text2, Text6, Text7, Text8, Text9})
        box->setText(toQt(upper(fromQt(box->text()))));
}

OperatingSettings frmVantrelStart::pageSettings() const {
    OperatingSettings settings;
    settings.myCall = fromQt(Text2->text());
    settings.contestCode = contestCode();
    settings.gmtOffset = stored(Combo5);
    settings.civAddress = stored(Combo4);
    settings.myName = fromQt(Text6->text());
    settings.myState = fromQt(Text7->text());
    settings.myNumber = fromQt(Text8->text());
    settings.rig = stored(Combo1);
    settings.comPort = stored(Combo2);
    settings.baud = stored(Combo3);
    settings.contestText = fromQt(Text1->text());
    settings.logFileName = fromQt(Text9->text());
    settings.bonusStation = fromQt(Text10->text());
    settings.dupeMode = stored(Combo6);
    return settings;
}

std::string frmVantrelStart::contestCode() const {
    if (Option2->isChecked())
        return std::string(contestSkse);
    if (Option3->isChecked())
        return std::string(contestWes);
    if (Option4->isChecked())
        return std::string(contestK3y);
    return std::string(contestSks);
}

// --- What other screens do here --------------------------------------------------------------

std::string frmVantrelStart::logFileName() const {
    return fromQt(Text9->text());
}

void frmVantrelStart::setLogFileName(const std::string& name) {
    Text9->setText(toQt(name));
}

std::string frmVantrelStart::myCall() const {
    return upper(trim(fromQt(Text2->text())));
}

std::string frmVantrelStart::gmtOffset() const {
    return stored(Combo5);
}

void frmVantrelStart::receivePath(const std::string& path) {
    setLogFileName(path);
    Text9->setFocus();
}

// --- Layout ----------------------------------------------------------------------------------

void frmVantrelStart::layOut() {
    FormBuilder build(this);
    auto* columns = new QGridLayout;
    columns->addLayout(build.section("CONTEST", contestBox()), 0, 0);
    columns->addLayout(build.section("OPERATOR", operatorBox()), 0, 1);
    columns->addLayout(build.section("LOG FILE", fileBox()), 1, 0);
    columns->addLayout(build.section("RADIO", radioBox()), 1, 1);
    columns->setColumnStretch(0, 1);
    columns->setColumnStretch(1, 1);

    auto* buttons = new QHBoxLayout;
    Command2->setFont(enlargedFont(this, 1.3));
    buttons->addWidget(Command5);
    buttons->addStretch();
    buttons->addWidget(Command2);
    buttons->addWidget(Command1);

    auto* page = new QVBoxLayout(this);
    page->addLayout(columns, 1);
    page->addLayout(buttons);
}

QLayout* frmVantrelStart::contestBox() {
    FormBuilder build(this);
    auto* layout = new QVBoxLayout;
    for (QRadioButton* option : {Option1, Option2, Option3, Option4})
        layout->addWidget(option);
    layout->addWidget(build.caption("CONTEST NAME:"));
    layout->addWidget(Text1);
    layout->addStretch();
    return layout;
}

QLayout* frmVantrelStart::operatorBox() {
    FormBuilder build(this);
    auto* grid = new QGridLayout;
    const struct {
        const char* caption;
        QWidget* control;
    } rows[] = {{"YOUR CALL:", Text2},
                {"YOUR NAME:", Text6},
                {"YOUR STATE:", Text7},
                {"YOUR SKCC#:", Text8},
                {"DIFF IN COMPUTER TIME TO GMT:", Combo5},
                {"UTC:", Label12}};
    int row = 0;
    for (const auto& entry : rows) {
        grid->addWidget(build.caption(entry.caption), row, 0);
        grid->addWidget(entry.control, row++, 1);
    }
    grid->setRowStretch(row, 1);
    return grid;
}

QLayout* frmVantrelStart::fileBox() {
    FormBuilder build(this);
    auto* grid = new QGridLayout;
    grid->addWidget(build.caption("FILE NAME:"), 0, 0);
    grid->addWidget(Text9, 0, 1, 1, 2);
    grid->addWidget(Command4, 1, 0, 1, 2);
    grid->addWidget(Command3, 1, 2);
    grid->addWidget(build.caption("START A NEW"), 2, 0);
    grid->addWidget(Combo7, 2, 1);
    grid->addWidget(Label14, 3, 0, 1, 3);
    grid->addWidget(build.caption("LOG DUPES:"), 4, 0);
    grid->addWidget(Combo6, 4, 1);
    grid->addWidget(build.caption("BONUS STATION:"), 5, 0);
    grid->addWidget(Text10, 5, 1, 1, 2);
    grid->addWidget(Command6, 6, 1, 1, 2);
    Label14->setWordWrap(true);
    grid->setRowStretch(7, 1);
    return grid;
}

QLayout* frmVantrelStart::radioBox() {
    FormBuilder build(this);
    auto* grid = new QGridLayout;
    grid->addWidget(build.caption("RIG:"), 0, 0);
    grid->addWidget(Combo1, 0, 1);
    grid->addWidget(build.caption("COM:"), 1, 0);
    grid->addWidget(Combo2, 1, 1);
    grid->addWidget(Label13, 2, 0, 1, 2);
    grid->addWidget(build.caption("BAUD RATE:"), 3, 0);
    grid->addWidget(Combo3, 3, 1);
    grid->addWidget(build.caption("ICOM      HEX:"), 4, 0);
    grid->addWidget(Combo4, 4, 1);
    Label13->setWordWrap(true);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

} // namespace vantrel
