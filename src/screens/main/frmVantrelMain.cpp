// SPDX-License-Identifier: MIT
#include "screens/main/frmVantrelMain.h"

#include "k3y/dupecheckk3y.h"
#include "k3y/k3ytag.h"
#include "platform/files.h"
#include "platform/qt/formbuilder.h"
#include "platform/qt/latin1.h"
#include "platform/qt/linelistmodel.h"
#include "platform/serialport.h"
#include "rig/catlink.h"
#include "screens/main/bandring.h"
#include "screens/main/dupecheck.h"
#include "screens/main/frequency.h"
#include "screens/main/workedbefore.h"
#include "shared/fixedtext.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace vantrel {

namespace {

constexpr int numberBoxWidth = 10; // a lookup fills ten
constexpr int frequencyBoxWidth = 10;
constexpr double entryEnlargement = 1.5;
constexpr double workedBeforeEnlargement = 1.1;
constexpr int workedBeforeColumns = 80;
constexpr std::string_view startFrequency = "14.050";
constexpr std::string_view startBand = "20 Meters ";
constexpr const char* reports[] = {"599", "589", "579", "569", "559", "549",
                                   "539", "529", "519", "449", "339"};

// Upper case as one types; the cursor stays where it was.
void keepUpperCase(QLineEdit* box) {
    QObject::connect(box, &QLineEdit::textEdited, box, [box](const QString& typed) {
        const QString shown = toQt(upper(fromQt(typed)));
        if (shown == typed)
            return;
        const int cursor = box->cursorPosition();
        box->setText(shown);
        box->setCursorPosition(cursor);
    });
}

// A red that can be read on a light and on a dark window.
QColor warningColour(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return dark ? QColor(0xFF, 0x80, 0x80) : QColor(0xC0, 0, 0);
}

QComboBox* reportBox(FormBuilder& build, const char* name) {
    QComboBox* box = build.editableCombo(name, "Click on Arrow - Then Select");
    for (const char* report : reports)
        box->addItem(QString::fromLatin1(report));
    return box;
}

} // namespace

frmVantrelMain::frmVantrelMain(const FormContext& context)
    : Form(context, "frmVantrelMain", "Vantrel"),
      m_hold(this, [this] { platform().serialPort.close(); }),
      m_roster(context.platform.files) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    createControls();
    layOut();
    connectHandlers();
    openAtPageSize();
}

void frmVantrelMain::createControls() {
    FormBuilder build(this);
    // The tab order follows the exchange as it is heard.
    Text2 = build.text("Text2", callWidth, "ENTER HIS CALL OR HIS SKCC#=10 CHARACTERS & DIGITS");
    Combo1 = reportBox(build, "Combo1");
    Combo2 = reportBox(build, "Combo2");
    Text3 = build.text("Text3", nameWidth, "10 CHARACTERS");
    Text4 = build.text("Text4", stateWidth, "3 CHARACTERS");
    Text5 = build.text("Text5", numberBoxWidth, "Enter as: 1234T or 100W or NONE");
    Text7 = build.text("Text7", frequencyBoxWidth,
                       "THIS FREQ WILL BE PUT INTO THE LOG-->TYPE OVER TO CHANGE - 4 OR 5 DIGITS ");
    Command15 = build.command("Command15", "Enter",
                              "WITH AUTO READ OFF , ENTER FREQ AND CLICK ENTER BUTTON");
    Command2 = build.command("Command2", "&SEARCH", "ENTER A CALL THEN CLICK HERE");
    Command3 = build.command("Command3", "&LOG", "SAVES THE QSO TO CABRILLO FILE");
    Command4 = build.command("Command4", "&NO LOG", "DOES NOT SAVE QSO TO FILE");
    Command5 = build.command("Command5", "&FREQ", "READS FREQ FROM RADIO");
    Command13 = build.command("Command13", "&Up", "TOGGELS BAND UP ONE");
    Command14 = build.command("Command14", "&Down", "TOGGLES BAND DOWN ONE");
    Option1 = build.jobOption("Option1", "ADD K3Y/xx",
                              "CLICK TO ADD K3Y/xx  TO FILE - BEFORE LOGGING DX K3Y STATIONS");
    Command12 = build.command("Command12", "AUDIO ON", "TOGGLES DUPE AUDIO ");
    Command6 = build.command("Command6", "LIS&T", "DISPLAYS OF FULL CABRILLO FILE");
    Command7 = build.command("Command7", "CO&RRECT", "CORRECT ANY ENTRY IN CABRILLO FILE");
    Command8 = build.command("Command8", "DELET&E", "REMOVES ENTRY FROM CABRILLO FILE");
    Command9 = build.command("Command9", "F&ILES", "FILE MAINTENANCE PAGE");
    Command10 = build.command("Command10", "&BACKUP", "SAVES CABRILLO FILE TO BACKUP DISK");
    Command11 = build.command("Command11", "S&CORE", "CALCULATES CURRENT SCORE ");
    Command16 = build.command("Command16", "B&ONUS", "COUNTS BONUS POINTS IN THE NAME FIELD");
    Command1 = build.command("Command1", "E&XIT", "QUIT THE ENTIRE PROGRAM");
    Text1 = build.output("Text1");
    List1 = build.list("List1");
    Label10 = build.label("Label10");
    Label11 = build.label("Label11");
    Label12 = build.label("Label12");
    Label13 = build.label("Label13");
    Label23 = build.label("Label23");
    Label24 = build.label("Label24");
    m_worked = new LineListModel(this);
    List1->setModel(m_worked);
}

void frmVantrelMain::connectHandlers() {
    connectEntryBoxes();
    using Main = frmVantrelMain;
    const auto onClick = [this](QPushButton* button, void (Main::*handler)()) {
        connectHandler(button, &QPushButton::clicked, this, handler);
    };
    onClick(Command2, &Main::Command2_Click);
    onClick(Command3, &Main::Command3_Click);
    onClick(Command4, &Main::Command4_Click);
    onClick(Command5, &Main::Command5_Click);
    onClick(Command6, &Main::Command6_Click);
    onClick(Command11, &Main::Command11_Click);
    onClick(Command12, &Main::Command12_Click);
    onClick(Command13, &Main::Command13_Click);
    onClick(Command14, &Main::Command14_Click);
    onClick(Command15, &Main::Command15_Click);
    connectHandler(Option1, &QRadioButton::clicked, this, &Main::Option1_Click);
    const auto opens = [this](QPushButton* button, Screen screen) {
        connect(button, &QPushButton::clicked, this,
                [this, screen] { runHandler([&] { screens().open(screen); }); });
    };
    opens(Command7, Screen::correct);
    opens(Command8, Screen::deletion);
    opens(Command9, Screen::files);
    opens(Command10, Screen::backup);
    opens(Command16, Screen::bonus);
    connect(Command1, &QPushButton::clicked, this, [this] { screens().quit(); });
}

void frmVantrelMain::connectEntryBoxes() {
    using Main = frmVantrelMain;
    for (QLineEdit* box :
         {Text2, Combo1->lineEdit(), Combo2->lineEdit(), Text3, Text4, Text5, Text7})
        keepUpperCase(box);
    connectHandler(Text2, &QLineEdit::textEdited, this, &Main::Text2_Change);
    connectHandler(Text2, &QLineEdit::returnPressed, this, &Main::Command2_Click);
    const auto nextOnEnter = [this](QLineEdit* box, QWidget* next) {
        // As Tab would: what the box holds is selected, and typing replaces it.
        connect(box, &QLineEdit::returnPressed, next,
                [next] { next->setFocus(Qt::TabFocusReason); });
    };
    nextOnEnter(Combo1->lineEdit(), Combo2);
    nextOnEnter(Combo2->lineEdit(), Text3);
    nextOnEnter(Text3, Text4);
    nextOnEnter(Text4, Text5);
    connectHandler(Text5, &QLineEdit::returnPressed, this, &Main::Command3_Click);
    connectHandler(Text7, &QLineEdit::returnPressed, this, &Main::Command15_Click);
    connectHandler(Text7, &QLineEdit::editingFinished, this, &Main::frequencyEntered);
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelMain::Form_Load() {
    const OperatingSettings& settings = module().settings;
    Label12->setText(toQt("FILE NAME:  " + settings.logFileName));
    Label13->setText(toQt(settings.logsDupes() ? "Dupes Are Logged" : "Dupes Not Logged"));
    module().bandText = startBand;
    Label10->setText(toQt(module().bandText));
    showFrequency(std::string(startFrequency));
    Label11->setText(
        toQt(autoReadText(settings.hasRadio() ? ReadOutcome::read : ReadOutcome::noRadio)));
    module().marker = noMarker;
    clearEntry(EntryBoxes::empty);
    showTag(std::string(noTagLabel));
    module().audioOn = true;
    Command12->setText(QStringLiteral("AUDIO ON"));
    runHandler([this] { openLog(module(), platform().files); });
    showLog();
    m_radioReadDue = settings.hasRadio();
    update();
}

void frmVantrelMain::paintEvent(QPaintEvent* event) {
    Form::paintEvent(event);
    if (!m_radioReadDue)
        return;
    m_radioReadDue = false;
    QTimer::singleShot(0, this, [this] { runHandler([this] { Command5_Click(); }); });
}

QWidget* frmVantrelMain::firstFocus() {
    return Text2;
}

void frmVantrelMain::closeEvent(QCloseEvent* event) {
    Form::closeEvent(event);
    screens().quit();
}

// --- SEARCH ----------------------------------------------------------------------------------

// What a lookup filled in belongs to the call it was looked up for, and so does a mark.
void frmVantrelMain::Text2_Change() {
    resetDupeMarker(module());
    showWorkedBefore();
    if (!m_lookedUp)
        return;
    Entry now = entry();
    forgetLookup(now, *m_lookedUp);
    m_lookedUp.reset();
    const int cursor = Text2->cursorPosition();
    showEntry(now);
    Text2->setCursorPosition(cursor);
}

// Only shows, in red where SEARCH would call it a duplicate on the present band.
void frmVantrelMain::showWorkedBefore() {
    const std::string typed = fromQt(Text2->text());
    const std::string mhz = completedFrequency(frequencyAsEntered(fromQt(Text7->text())));
    const std::string text = workedBefore(module().qsoTable, typed, workedBeforeColumns);
    const bool duplicate = !text.empty() && isDuplicate(module().qsoTable, typed, bandTagOf(mhz));
    QPalette colours(palette());
    if (duplicate)
        colours.setColor(QPalette::WindowText, warningColour(colours));
    Label24->setPalette(colours);
    Label24->setText(toQt(text));
}

void frmVantrelMain::Command2_Click() {
    const InputHold::Scope hold(m_hold);
    frequencyEntered();
    Entry now = entry();
    if (isComplete(now)) {
        Command3_Click();
        return;
    }
    module().dupeFlag = false;
    now.call = callAsEntered(now.call);
    Text2->setText(toQt(now.call));
    if (!lookedUpAndShown(now)) {
        toCallBox();
        return;
    }
    if (!readRadio(now))
        return;
    if (trim(now.frequency).empty()) {
        messages().show({std::string(frequencyMissingText), BoxIcon::exclamation});
        Text2->clear();
        toCallBox();
        return;
    }
    now.frequency = completedFrequency(now.frequency);
    showFrequency(now.frequency);
    checkForDupes(now);
    toCallBox();
}

// Looks the call up and shows what it gave; false when the check ends here.
bool frmVantrelMain::lookedUpAndShown(Entry& now) {
    if (!canLookUp(now.call))
        return false;
    const LookupOutcome outcome = lookUp(now, module(), m_roster);
    showEntry(now);
    if (outcome == LookupOutcome::found)
        m_lookedUp = now;
    return outcome != LookupOutcome::nobody;
}

void frmVantrelMain::checkForDupes(const Entry& now) {
    const std::string bandTag = bandTagOf(now.frequency);
    if (isDuplicate(module().qsoTable, now.call, bandTag))
        screens().open(Screen::dupe);
    const bool goesOn = settleDupe(module());
    showTag(std::string(noTagLabel));
    if (goesOn && module().settings.isK3y() &&
        isK3yDupe(module().qsoTable, now.call, now.number, bandTag))
        messages().show({std::string(duplicateQsoText), BoxIcon::exclamation});
}

// --- LOG -------------------------------------------------------------------------------------

void frmVantrelMain::Command3_Click() {
    const InputHold::Scope hold(m_hold);
    frequencyEntered();
    Entry now = entry();
    if (!canBeLogged(now)) {
        toCallBox();
        return;
    }
    try {
        if (!assembleContact(now))
            return;
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::invalidCall)
            throw;
        messages().show({std::string(invalidEntryText), BoxIcon::exclamation, error.detail()});
        clearEntry(EntryBoxes::empty);
        return;
    }
    if (module().settings.isK3y() && isK3yDupe(module().qsoTable, module().currentLine)) {
        screens().open(Screen::checkDupeK3y);
        return;
    }
    logContact();
}

// Assembles the log line; false, after saying why, when its frequency cannot be logged.
bool frmVantrelMain::assembleContact(Entry& now) {
    Qso contact = contactFrom(now, module(), platform().clock);
    if (!readRadio(now))
        return false;
    const FrequencyCheck check = enterFrequency(contact, now.frequency, module());
    showFrequency(now.frequency);
    switch (check) {
    case FrequencyCheck::outsideSprintBands:
        messages().show({now.frequency + std::string(wrongBandText), BoxIcon::critical});
        clearEntry(EntryBoxes::empty);
        return false;
    case FrequencyCheck::missing:
        messages().show({std::string(frequencyMissingText), BoxIcon::exclamation});
        toCallBox();
        return false;
    case FrequencyCheck::good:
        break;
    }
    module().currentLine = assembleLine(contact);
    return true;
}

void frmVantrelMain::logContact() {
    const bool logWasThere = platform().files.present(module().settings.logFileName);
    appendContact(module(), platform().files);
    // The contact is on the disk: whatever fails from here on is shown, but the boxes are
    // cleared first, so that nobody logs it twice.
    const std::optional<Message> failure = bringUpToDate(module(), platform().files);
    showLog();
    clearEntry(EntryBoxes::empty);
    showTag(std::string(noTagLabel));
    if (failure)
        messages().show(*failure);
    if (!logWasThere)
        messages().show({std::string(logStartedAgainText), BoxIcon::exclamation,
                         platform().files.path(module().settings.logFileName)});
}

void frmVantrelMain::Command4_Click() {
    clearEntry(EntryBoxes::empty);
    showTag(std::string(noTagLabel));
}

// --- Frequency and band ----------------------------------------------------------------------

void frmVantrelMain::Command15_Click() {
    frequencyEntered();
    toCallBox();
}

void frmVantrelMain::frequencyEntered() {
    showFrequency(frequencyAsEntered(fromQt(Text7->text())));
}

// Shows the frequency and the band that follows from it.
void frmVantrelMain::showFrequency(const std::string& mhz) {
    if (fromQt(Text7->text()) != mhz)
        Text7->setText(toQt(mhz));
    module().bandText = bandTextOf(mhz, module().bandText);
    Label10->setText(toQt(module().bandText));
    showWorkedBefore();
}

void frmVantrelMain::Command5_Click() {
    const InputHold::Scope hold(m_hold);
    Entry now = entry();
    if (readRadio(now))
        toCallBox();
}

// Reads the radio's frequency, if there is a radio, into the box and the entry. A radio that
// does not answer is reported and the frequency in the box stands. False when the program is
// being closed: the handler then ends at once.
bool frmVantrelMain::readRadio(Entry& now) {
    const ReadResult result = readFrequency(module(), platform().serialPort);
    if (result.outcome == ReadOutcome::cancelled)
        return false;
    Label11->setText(toQt(autoReadText(result.outcome)));
    if (result.outcome == ReadOutcome::read) {
        now.frequency = module().frequency;
        showFrequency(now.frequency);
    }
    if (result.outcome == ReadOutcome::failed)
        messages().show(result.message);
    return true;
}

void frmVantrelMain::Command13_Click() {
    stepTo(bandUp(fromQt(Label10->text())));
}

void frmVantrelMain::Command14_Click() {
    stepTo(bandDown(fromQt(Label10->text())));
}

void frmVantrelMain::stepTo(const Band& band) {
    showFrequency(std::string(band.defaultFrequency));
    toCallBox();
}

// --- The other commands ----------------------------------------------------------------------

void frmVantrelMain::Command12_Click() {
    module().audioOn = !module().audioOn;
    Command12->setText(toQt(module().audioOn ? "AUDIO ON" : "AUDIO OFF"));
    toCallBox();
}

void frmVantrelMain::Option1_Click() {
    screens().open(Screen::k3yBox);
    Option1->setChecked(fromQt(Label23->text()) != noTagLabel); // opened, nothing is chosen yet
}

void frmVantrelMain::Command6_Click() {
    module().listShowsAdif = false;
    module().listFromFileScreen = false;
    screens().open(Screen::list);
}

// In the event month the standings take the place of the score.
void frmVantrelMain::Command11_Click() {
    screens().open(module().settings.isK3y() ? Screen::standings : Screen::score);
}

// --- Boxes -----------------------------------------------------------------------------------

Entry frmVantrelMain::entry() const {
    return {fromQt(Text2->text()), fromQt(Text3->text()),         fromQt(Text4->text()),
            fromQt(Text5->text()), fromQt(Combo1->currentText()), fromQt(Combo2->currentText()),
            fromQt(Text7->text())};
}

void frmVantrelMain::showEntry(const Entry& entry) {
    Text2->setText(toQt(entry.call));
    Text3->setText(toQt(entry.name));
    Text4->setText(toQt(entry.state));
    Text5->setText(toQt(entry.number));
    showWorkedBefore();
}

void frmVantrelMain::clearEntry(EntryBoxes boxes) {
    const std::string left = boxes == EntryBoxes::oneBlank ? " " : "";
    showEntry({left, left, left, left, {}, {}, {}});
    for (QComboBox* report : {Combo1, Combo2}) {
        report->setCurrentIndex(0);
        report->setEditText(report->itemText(0));
    }
    m_lookedUp.reset();
    resetDupeMarker(module());
    toCallBox();
}

void frmVantrelMain::showTag(const std::string& text) {
    Label23->setText(toQt(text));
    Option1->setChecked(text != noTagLabel);
}

void frmVantrelMain::showLog() {
    Text1->setText(toQt(countText(module())));
    m_worked->setLines(module().workedStations.entries());
    List1->scrollToBottom();
}

void frmVantrelMain::toCallBox() {
    activateWindow();
    Text2->setFocus();
}

// --- Layout ----------------------------------------------------------------------------------

void frmVantrelMain::layOut() {
    // Long texts are cut at the window's edge; they must not widen it.
    for (QLabel* label : {Label12, Label24})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Label24->setFont(enlargedFont(this, workedBeforeEnlargement));
    auto* page = new QVBoxLayout(this);
    page->addLayout(statusRow());
    page->addLayout(exchangeRow());
    page->addWidget(Label24);
    page->addLayout(frequencyRow());
    page->addLayout(rowOf({Command2, Command3, Command4, Command5, Command12, Option1, Label23}));
    page->addWidget(workedHeadings());
    page->addWidget(List1, 1);
    page->addLayout(
        rowOf({Command7, Command8, Command6, Command9, Command10, Command11, Command16, Command1}));
}

QHBoxLayout* frmVantrelMain::rowOf(std::initializer_list<QWidget*> controls) {
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls)
        row->addWidget(control);
    return row;
}

QHBoxLayout* frmVantrelMain::statusRow() {
    QHBoxLayout* row = rowOf({Label12, Label13, Label11});
    row->setStretch(0, 1);
    row->setSpacing(fontMetrics().averageCharWidth() * 4);
    return row;
}

// The boxes of the exchange, each under its name, large enough to be read from the key.
QGridLayout* frmVantrelMain::exchangeRow() {
    struct Box {
        const char* caption;
        QWidget* box;
        int columns;
    };
    const Box boxes[] = {{"HIS CALL", Text2, callWidth}, {"RST SENT", Combo1, 0},
                         {"RST RCVD", Combo2, 0},        {"NAME", Text3, nameWidth},
                         {"STATE", Text4, stateWidth},   {"SKCC#", Text5, numberWidth}};
    FormBuilder build(this);
    auto* grid = new QGridLayout;
    int column = 0;
    for (const Box& box : boxes) {
        box.box->setFont(enlargedFont(this, entryEnlargement));
        if (auto* line = qobject_cast<QLineEdit*>(box.box))
            setColumns(line, box.columns);
        grid->addWidget(build.caption(box.caption), 0, column);
        grid->addWidget(box.box, 1, column++);
    }
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(3, 3);
    return grid;
}

QHBoxLayout* frmVantrelMain::frequencyRow() {
    FormBuilder build(this);
    for (QWidget* control : {static_cast<QWidget*>(Text7), static_cast<QWidget*>(Text1),
                             static_cast<QWidget*>(Label10)})
        control->setFont(enlargedFont(this, entryEnlargement));
    setColumns(Text7, 6);
    setColumns(Text1, 5);
    Text1->setAlignment(Qt::AlignCenter);
    QHBoxLayout* row = rowOf({build.caption("FREQ MHz"), Text7, Command15, Command13, Command14,
                              Label10, build.caption("QSOs"), Text1});
    row->setStretch(5, 1);
    Label10->setAlignment(Qt::AlignCenter);
    return row;
}

// The headings stand over the columns of a worked-stations entry.
QLabel* frmVantrelMain::workedHeadings() {
    struct Heading {
        int column;
        std::string_view text;
    };
    constexpr Heading headings[] = {{1, "LAST CALL WKD "}, {15, "NAME"}, {24, "SKCC#"},
                                    {33, "STATE"},         {39, "FREQ"}, {47, "TIME"},
                                    {54, "DATE"},          {65, "DUPE"}};
    std::string line;
    for (const Heading& heading : headings)
        line = fitLeft(line, heading.column - 1) + std::string(heading.text);
    FormBuilder build(this);
    QLabel* label = build.caption(line.c_str());
    label->setFont(fixedWidthFont());
    label->setIndent(List1->frameWidth() + style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    return label;
}

} // namespace vantrel
