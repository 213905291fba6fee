// SPDX-License-Identifier: MIT
#include "roster/frmMemberImport.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "platform/eventloop.h"
#include "platform/filenames.h"
#include "platform/files.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr qint64 frameMilliseconds = 16;
constexpr int widthInCharacters = 90;
} // namespace

const MemberImportPage dataImportPage{
    "frmReadSKCCDATA",
    "Read SKCCDATA.TXT",
    MemberList::data,
    dataListFile,
    "READS SKCCDATA.TXT FILE AND APPENDS  NEW CALLS,           SKCC#s, NAMES, and STATES TO THE "
    "EXISTING                                         SKSDBx.TXT DATABASE FILES",
    false,
    "READS SKCCDATA.TXT AND ADDS NEW MEMBERS"};

const MemberImportPage memberImportPage{"frmVantrelUpdate",
                                        "Update The Data Files",
                                        MemberList::members,
                                        memberListFile,
                                        "",
                                        true,
                                        "READS SKCCLIST.TXT AND ADDS NEW MEMBERS"};

frmMemberImport::frmMemberImport(const FormContext& context, const MemberImportPage& page)
    : Form(context, page.name, page.caption), m_page(page) {
    createControls();
    layOut();
    using Page = frmMemberImport;
    connectHandler(m_addButton, &QPushButton::clicked, this, &Page::addMembersClicked);
    if (m_browseButton != nullptr)
        connectHandler(m_browseButton, &QPushButton::clicked, this, &Page::browseClicked);
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
}

void frmMemberImport::createControls() {
    FormBuilder build(this);
    m_pathBox = build.text("Text1", 0, "PATH AND FILE NAME");
    if (m_page.browses) {
        m_browseButton = build.command("Command3", "&BROWSE", "USE TO FIND THE SKCCLIST.TXT FILE");
        m_fixed = build.label("Label4");
    }
    m_addButton = build.command("Command2", "&ADD MBRS", m_page.addTip);
    m_exitButton = build.command("Command1", "E&XIT", "QUIT THIS PAGE");
    m_phase = build.label("Label1");
    m_lineNumber = build.label("Label2");
    m_added = build.label("Label3");
    m_skipped = build.label("Label5");
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("ProgressBar1"));
}

void frmMemberImport::load() {
    // A folder whose name the box cannot show is left out: the name alone is found there too.
    const Files& files = platform().files;
    const bool sayable = latin1Text(files.programFolder()).has_value();
    put(m_pathBox, sayable ? files.path(m_page.listFile) : std::string(m_page.listFile));
}

QWidget* frmMemberImport::firstFocus() {
    return m_addButton;
}

void frmMemberImport::closeEvent(QCloseEvent* event) {
    m_closed = true;
    Form::closeEvent(event);
}

void frmMemberImport::receivePath(const std::string& path) {
    put(m_pathBox, path);
    m_pathBox->setFocus();
}

void frmMemberImport::browseClicked() {
    screens().openFinder(Screen::memberUpdate);
}

void frmMemberImport::addMembersClicked() {
    const std::string path = textOf(m_pathBox);
    if (m_page.list == MemberList::members && !platform().files.present(path)) {
        messages().show(
            {std::string(memberListMissing), BoxIcon::exclamation, platform().files.path(path)});
        return;
    }
    enableButtons(false);
    bool finished = false;
    runHandler([&] { finished = runImport(); });
    if (m_closed)
        return;
    enableButtons(true);
    if (finished)
        m_exitButton->setFocus();
    else
        m_phase->clear(); // nothing was saved
}

bool frmMemberImport::runImport() {
    for (QLabel* label : {m_lineNumber, m_added, m_fixed, m_skipped})
        if (label != nullptr)
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
    if (m_closed) // files under way are saved to the end; another turn would delete this form
        return false;
    const bool lastLine = step.line == step.lines;
    if (!lastLine && m_sinceShown.isValid() && m_sinceShown.elapsed() < frameMilliseconds)
        return true;
    put(m_phase, step.phase);
    if (step.line > 0) {
        put(m_lineNumber, lineNumberText(step.line));
        m_progress->setMaximum(step.lines);
        m_progress->setValue(step.line);
    }
    platform().eventLoop.yield();
    m_sinceShown.start();
    return !m_closed;
}

void frmMemberImport::showResult(const ImportResult& result) {
    put(m_added, addedText(m_page.list, result.added));
    put(m_skipped, skippedText(result.skipped));
    if (m_fixed != nullptr)
        put(m_fixed, fixedText(result.fixed));
}

void frmMemberImport::enableButtons(bool enabled) {
    for (QPushButton* button : {m_exitButton, m_addButton, m_browseButton})
        if (button != nullptr)
            button->setEnabled(enabled);
}

void frmMemberImport::layOut() {
    FormBuilder build(this);
    auto* page = new QVBoxLayout(this);
    const auto addText = [&](const std::string& text) {
        QLabel* label = build.caption(text.c_str());
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        page->addWidget(label);
    };
    if (*m_page.explanation != '\0')
        addText(m_page.explanation);
    addText("The club publishes its lists at " + std::string(listsAddress));
    addText("Then run this routine to add new members to the database - Click ADD MBRS");
    auto* path = new QHBoxLayout;
    path->addWidget(m_pathBox, 1);
    if (m_browseButton != nullptr)
        path->addWidget(m_browseButton);
    page->addLayout(path);
    page->addWidget(m_phase);
    page->addWidget(m_lineNumber);
    page->addWidget(m_progress);
    page->addWidget(m_added);
    if (m_fixed != nullptr)
        page->addWidget(m_fixed);
    page->addWidget(m_skipped);
    page->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_addButton);
    buttons->addWidget(m_exitButton);
    page->addLayout(buttons);
    // As high as its texts need when they wrap at this width.
    const int width = fontMetrics().averageCharWidth() * widthInCharacters;
    resize(width, page->totalHeightForWidth(width));
}

} // namespace vantrel
