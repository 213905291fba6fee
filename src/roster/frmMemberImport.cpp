// SPDX-License-Identifier: MIT
#include "roster/frmMemberImport.h"

#include "forms/colours.h"
#include "platform/filenames.h"
#include "platform/files.h"

#include <QProgressBar>

namespace vantrel {

namespace {
constexpr int importCharacters = 90;
// How long a display shows one picture, at 60 a second: nothing has to be drawn more often.
constexpr int frameMilliseconds = 16;
} // namespace

const MemberImportPage dataImportPage{
    "frmReadSKCCDATA",
    "Read SKCCDATA.TXT",
    MemberList::data,
    dataListFile,
    "READS SKCCDATA.TXT FILE AND APPENDS  NEW CALLS,           SKCC#s, NAMES, and STATES TO THE "
    "EXISTING                                         SKSDBx.TXT DATABASE FILES",
    "USE TO FIND THE SKCCDATA.TXT FILE",
    Screen::readData,
    "READS SKCCDATA.TXT AND ADDS NEW MEMBERS",
    "Label6",
    [](int changed) { return counted(changed, "NUMBER") + " CHANGED"; }};

const MemberImportPage memberImportPage{
    "frmVantrelUpdate",
    "Update The Data Files",
    MemberList::members,
    memberListFile,
    "",
    "USE TO FIND THE SKCCLIST.TXT FILE",
    Screen::memberUpdate,
    "READS SKCCLIST.TXT AND ADDS NEW MEMBERS",
    "Label4",
    [](int fixed) { return std::to_string(fixed) + " SKCC#'s Fixed"; }};

frmMemberImport::frmMemberImport(const FormContext& context, const MemberImportPage& edition)
    : Form(context, edition.name, edition.caption), m_page(edition) {
    FormBuilder build(this);
    m_pathBox = build.text("Text1", 0, "PATH AND FILE NAME");
    m_browseButton = build.command("Command3", "&BROWSE", m_page.browseTip,
                                   [this] { screens().openFinder(m_page.screen); });
    m_addButton =
        bold(build.command("Command2", "&ADD MBRS", m_page.addTip, [this] { addMembers(); }));
    focusFirst(m_addButton);
    m_exitButton = build.exit("QUIT THIS PAGE");
    const QLayout* const whole = page(
        this, {texts(), row({build.caption("LIST:", m_pathBox), {m_pathBox, 1}, m_browseButton}),
               progressPart(), resultPart(), Item::gap(fontMetrics().height()), Item::room(),
               row({m_addButton, Item::room(), m_exitButton})});
    connectHandler(m_pathBox, &QLineEdit::returnPressed, [this] { m_addButton->setFocus(); });
    // As high as its texts need when they wrap at this width.
    const int width = fontMetrics().averageCharWidth() * importCharacters;
    resize(width, whole->totalHeightForWidth(width));
}

QLayout* frmMemberImport::texts() {
    FormBuilder build(this);
    std::vector<Item> texts;
    const std::string address = "The club publishes its lists at " + std::string(listsAddress);
    for (const char* text :
         {m_page.explanation, address.c_str(),
          "Then run this routine to add new members to the database - Click ADD MBRS"}) {
        if (*text == '\0')
            continue;
        QLabel* label = wrapped(build.caption(text));
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        texts.emplace_back(label);
    }
    return column(texts);
}

QLayout* frmMemberImport::progressPart() {
    FormBuilder build(this);
    m_phase = build.label("Label1");
    m_lineNumber = build.label("Label2");
    m_progress = FormBuilder::named(new QProgressBar(this), "ProgressBar1");
    m_progress->setAccessibleName(QStringLiteral("LINES READ"));
    for (QWidget* widget : std::initializer_list<QWidget*>{m_phase, m_lineNumber, m_progress}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // nothing jumps when it comes and goes
        widget->setSizePolicy(policy);
        widget->hide();
    }
    return column({row({m_phase, m_lineNumber, Item::room()}), m_progress});
}

QLayout* frmMemberImport::resultPart() {
    FormBuilder build(this);
    const Item gap = Item::gap(2 * fontMetrics().averageCharWidth());
    m_added = bold(build.alert("Label3"));
    m_linesRead = build.label("Label7");
    m_changed = build.label(m_page.changedLabel);
    m_skipped = build.label("Label5");
    setTextColour(m_skipped, cautionColour);
    return column({m_added, row({m_linesRead, gap, m_changed, Item::room()}), wrapped(m_skipped)});
}

void frmMemberImport::load() {
    // A folder whose name the box cannot show is left out: the name alone is found there too.
    const Files& files = platform().files;
    const bool sayable = latin1Text(files.programFolder()).has_value();
    put(m_pathBox, sayable ? files.path(m_page.listFile) : std::string(m_page.listFile));
}

void frmMemberImport::receivePath(const std::string& path) {
    put(m_pathBox, path);
    m_pathBox->setFocus();
}

void frmMemberImport::addMembers() {
    const std::string path = textOf(m_pathBox);
    if (m_page.list == MemberList::members && !platform().files.present(path)) {
        messages().show({"SKCCLIST.TXT IS NOT FOUND", BoxIcon::exclamation,
                         missingListText(platform().files, path)});
        return;
    }
    // Each import writes all five files as it read them: what the other one added would be lost.
    bool& isRunning = shared().importRuns;
    if (isRunning) {
        messages().show({"AN IMPORT IS RUNNING: WAIT FOR ITS END", BoxIcon::exclamation});
        return;
    }
    isRunning = true;
    showRunning(true);
    bool finished = false;
    runHandler([&] { finished = runImport(); });
    isRunning = false;
    if (isGone())
        return;
    showRunning(false);
    if (finished)
        m_exitButton->setFocus();
    else
        m_phase->clear(); // nothing was saved
}

bool frmMemberImport::runImport() {
    for (QLabel* label :
         std::initializer_list<QLabel*>{m_lineNumber, m_added, m_linesRead, m_changed, m_skipped})
        label->clear();
    m_progress->reset();
    const ImportResult result =
        importMembers(platform().files, m_page.list, textOf(m_pathBox),
                      [this](const ImportStep& step) { return showStep(step); });
    if (result.finished)
        showResult(result);
    return result.finished;
}

// Shows a phase at once and the lines once a frame; false once the window has been closed.
bool frmMemberImport::showStep(const ImportStep& step) {
    // The files are saved all the same, but a turn of the event loop would delete this form.
    if (isGone())
        return false;
    const bool lastLine = step.line == step.lines;
    if (!lastLine && m_sinceShown.isValid() && m_sinceShown.elapsed() < frameMilliseconds)
        return true;
    put(m_phase, step.phase);
    if (step.line > 0) {
        put(m_lineNumber, std::to_string(step.line) + blanks(24));
        m_progress->setMaximum(step.lines);
        m_progress->setValue(step.line);
    }
    platform().eventLoop.yield();
    m_sinceShown.start();
    return !isGone();
}

void frmMemberImport::showResult(const ImportResult& result) {
    put(m_skipped, skippedText(m_page.list, result));
    const std::string added = addedText(m_page.list, result.added);
    m_added->announce(added, added + ". " + textOf(m_skipped));
    put(m_linesRead, counted(result.lines, "LINE") + " READ");
    put(m_changed, m_page.changedText(result.fixed));
}

// Progress shows while the import runs, and the buttons are disabled.
void frmMemberImport::showRunning(bool running) {
    for (QWidget* widget : std::initializer_list<QWidget*>{m_phase, m_lineNumber, m_progress})
        widget->setVisible(running);
    for (QPushButton* button : {m_exitButton, m_addButton, m_browseButton})
        button->setEnabled(!running);
}

} // namespace vantrel
