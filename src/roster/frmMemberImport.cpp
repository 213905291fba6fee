// SPDX-License-Identifier: MIT
#include "roster/frmMemberImport.h"

#include "forms/formbuilder.h"
#include "platform/eventloop.h"
#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/qt/latin1.h"

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
    connectHandler(Command2, &QPushButton::clicked, this, &frmMemberImport::Command2_Click);
    if (Command3 != nullptr)
        connectHandler(Command3, &QPushButton::clicked, this, &frmMemberImport::Command3_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

void frmMemberImport::createControls() {
    FormBuilder build(this);
    Text1 = build.text("Text1", 0, "PATH AND FILE NAME");
    if (m_page.browses) {
        Command3 = build.command("Command3", "&BROWSE", "USE TO FIND THE SKCCLIST.TXT FILE");
        Label4 = build.label("Label4");
    }
    Command2 = build.command("Command2", "&ADD MBRS", m_page.addTip);
    Command1 = build.command("Command1", "E&XIT", "QUIT THIS PAGE");
    Label1 = build.label("Label1");
    Label2 = build.label("Label2");
    Label3 = build.label("Label3");
    Label5 = build.label("Label5");
    ProgressBar1 = new QProgressBar(this);
    ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
}

void frmMemberImport::load() {
    // A folder whose name the box cannot show is left out: the name alone is found there too.
    const Files& files = platform().files;
    const bool sayable = latin1Text(files.programFolder()).has_value();
    Text1->setText(toQt(sayable ? files.path(m_page.listFile) : std::string(m_page.listFile)));
}

QWidget* frmMemberImport::firstFocus() {
    return Command2;
}

void frmMemberImport::closeEvent(QCloseEvent* event) {
    m_closed = true;
    Form::closeEvent(event);
}

void frmMemberImport::receivePath(const std::string& path) {
    Text1->setText(toQt(path));
    Text1->setFocus();
}

void frmMemberImport::Command3_Click() {
    screens().openFinder(Screen::memberUpdate);
}

void frmMemberImport::Command2_Click() {
    const std::string path = fromQt(Text1->text());
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
        Command1->setFocus();
    else
        Label1->clear(); // nothing was saved
}

bool frmMemberImport::runImport() {
    for (QLabel* label : {Label2, Label3, Label4, Label5})
        if (label != nullptr)
            label->clear();
    ProgressBar1->reset();
    const ImportResult result =
        importMembers(platform().files, m_page.list, fromQt(Text1->text()),
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
    Label1->setText(toQt(step.phase));
    if (step.line > 0) {
        Label2->setText(toQt(lineNumberText(step.line)));
        ProgressBar1->setMaximum(step.lines);
        ProgressBar1->setValue(step.line);
    }
    platform().eventLoop.yield();
    m_sinceShown.start();
    return !m_closed;
}

void frmMemberImport::showResult(const ImportResult& result) {
    Label3->setText(toQt(addedText(m_page.list, result.added)));
    Label5->setText(toQt(skippedText(result.skipped)));
    if (Label4 != nullptr)
        Label4->setText(toQt(fixedText(result.fixed)));
}

void frmMemberImport::enableButtons(bool enabled) {
    for (QPushButton* button : {Command1, Command2, Command3})
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
    path->addWidget(Text1, 1);
    if (Command3 != nullptr)
        path->addWidget(Command3);
    page->addLayout(path);
    page->addWidget(Label1);
    page->addWidget(Label2);
    page->addWidget(ProgressBar1);
    page->addWidget(Label3);
    if (Label4 != nullptr)
        page->addWidget(Label4);
    page->addWidget(Label5);
    page->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Command2);
    buttons->addWidget(Command1);
    page->addLayout(buttons);
    // As high as its texts need when they wrap at this width.
    const int width = fontMetrics().averageCharWidth() * widthInCharacters;
    resize(width, page->totalHeightForWidth(width));
}

} // namespace vantrel
