// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelFiles.h"

#include "forms/formbuilder.h"
#include "log/outputfiles.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/files/printlog.h"
#include "platform/files.h"
#include "platform/printjob.h"
#include "platform/qt/latin1.h"
#include "roster/rostersort.h"
#include "roster/rosterview.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>

namespace vantrel {

frmVantrelFiles::frmVantrelFiles(const FormContext& context)
    : Form(context, "frmVantrelFiles", "Vantrel - Files") {
    createControls();
    layOut();
    connectHandlers();
    openAtPageSize();
}

void frmVantrelFiles::createControls() {
    FormBuilder build(this);
    m_options = {
        build.jobOption("Option1", "SHOW MEMBERS &A...", "SHOWS SKSDB1.TXT"),
        build.jobOption("Option2", "SHOW MEMBERS &K...", "SHOWS SKSDB2.TXT"),
        build.jobOption("Option3", "SHOW MEMBERS &N...", "SHOWS SKSDB3.TXT"),
        build.jobOption("Option4", "SHOW MEMBERS &W...", "SHOWS SKSDB4.TXT"),
        build.jobOption("Option5", "SHOW MEMBERS OF ALL &OTHER CALLS", "SHOWS SKSDB5.TXT"),
        build.jobOption("Option6", "MAKE AN AD&IF FILE", "WRITES THE LOG AS AN ADIF FILE"),
        build.jobOption("Option7", "&LIST THE ADIF FILE", "DISPLAYS THE ADIF FILE"),
        build.jobOption("Option8", "LIST THE LO&G", "DISPLAYS OF FULL CABRILLO FILE"),
        build.jobOption("Option9", "&EDIT THE LOG", "CHANGES ANY FIELD OF A CONTACT"),
        build.jobOption("Option10", "&START PAGE", "CONTEST, OPERATOR, LOG FILE, RADIO"),
        build.jobOption("Option11", "&UPDATE THE DATABASE",
                        "UPDATES THE VANTREL DATABASE USING SKCCDATA.TXT OR SKCCLIST.TXT"),
        build.jobOption("Option12", "&PRINT THE LOG", "PRINTS THE WHOLE CABRILLO FILE"),
        build.jobOption("Option13", "SORT THE DATA&BASE BY SKCC#", "SORTS ALL FIVE MEMBER FILES"),
        build.jobOption("Option14", "ADIF FILE FOR OTHER LOGGERS",
                        "WRITES THE LOG STRICTLY BY ADIF 3.1, BESIDE THE OTHER ADIF FILE"),
    };
    Command1 = build.command("Command1", "&MAIN PAGE", "BACK TO THE MAIN PAGE");
    Label5 = build.label("Label5");
    Text2 = build.output("Text2");
}

void frmVantrelFiles::connectHandlers() {
    using Panel = frmVantrelFiles;
    const std::array<void (Panel::*)(), optionCount> handlers{
        &Panel::Option1_Click,  &Panel::Option2_Click,  &Panel::Option3_Click,
        &Panel::Option4_Click,  &Panel::Option5_Click,  &Panel::Option6_Click,
        &Panel::Option7_Click,  &Panel::Option8_Click,  &Panel::Option9_Click,
        &Panel::Option10_Click, &Panel::Option11_Click, &Panel::Option12_Click,
        &Panel::Option13_Click, &Panel::Option14_Click};
    for (std::size_t i = 0; i < optionCount; ++i) {
        // Only the job run last is marked.
        connect(m_options[i], &QRadioButton::clicked, this, [this, i] {
            for (QRadioButton* option : m_options)
                option->setChecked(option == m_options[i]);
        });
        connectHandler(m_options[i], &QRadioButton::clicked, this, handlers[i]);
    }
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

QWidget* frmVantrelFiles::firstFocus() {
    return m_options.front();
}

// --- Member files ----------------------------------------------------------------------------

void frmVantrelFiles::Option1_Click() {
    viewRosterFile(1);
}

void frmVantrelFiles::Option2_Click() {
    viewRosterFile(2);
}

void frmVantrelFiles::Option3_Click() {
    viewRosterFile(3);
}

void frmVantrelFiles::Option4_Click() {
    viewRosterFile(4);
}

void frmVantrelFiles::Option5_Click() {
    viewRosterFile(5);
}

void frmVantrelFiles::viewRosterFile(std::size_t number) {
    RosterView view = vantrel::viewRosterFile(platform().files, number);
    screens().openRoster(std::move(view.path), std::move(view.lines));
}

void frmVantrelFiles::Option13_Click() {
    sortRosterFiles(platform().files);
    messages().show({"THE DATABASE FILES HAVE BEEN ALPHABETIZED BY SKCC#s", BoxIcon::exclamation});
}

// --- The log ---------------------------------------------------------------------------------

void frmVantrelFiles::Option6_Click() {
    showAdifPath(exportAdif(platform().files, shared().log));
}

void frmVantrelFiles::Option14_Click() {
    showAdifPath(exportStrictAdif(platform().files, platform().clock, shared().settings.gmtOffset,
                                  shared().log));
}

void frmVantrelFiles::showAdifPath(const std::string& path) {
    Label5->setText(QStringLiteral("ADIF FILE CREATED AT:"));
    Text2->setText(toQt(path));
}

void frmVantrelFiles::Option12_Click() {
    const std::string& log = shared().log.name();
    Files& files = platform().files;
    const std::string note = sendToPrinter(platform().printer, files,
                                           logPrintLines(log, files.read(log)), logPdfName(log));
    messages().show({"THE FILE HAS BEEN SENT TO THE PRINTER", BoxIcon::exclamation, note});
}

// --- Other screens ---------------------------------------------------------------------------

void frmVantrelFiles::Option7_Click() {
    screens().openList(ListedFile::adif);
}

void frmVantrelFiles::Option8_Click() {
    screens().openList(ListedFile::log);
}

void frmVantrelFiles::Option9_Click() {
    screens().open(Screen::editor);
}

void frmVantrelFiles::Option10_Click() {
    screens().open(Screen::start);
}

void frmVantrelFiles::Option11_Click() {
    screens().open(Screen::updateList);
}

// --- Layout ----------------------------------------------------------------------------------

void frmVantrelFiles::layOut() {
    QWidget* before = nullptr; // in the tab order
    const auto group = [&](const char* title, std::initializer_list<std::size_t> numbers) {
        auto* column = new QVBoxLayout;
        for (const std::size_t number : numbers) {
            column->addWidget(m_options[number - 1]);
            if (before != nullptr)
                setTabOrder(before, m_options[number - 1]);
            before = m_options[number - 1];
        }
        column->addStretch();
        return FormBuilder(this).section(title, column);
    };
    auto* groups = new QHBoxLayout;
    groups->addLayout(group("MEMBERS", {1, 2, 3, 4, 5, 13, 11}));
    groups->addLayout(group("LOG", {6, 14, 7, 8, 9, 12, 10}));
    setTabOrder(before, Command1);

    auto* page = new QVBoxLayout(this);
    page->addLayout(groups, 1);
    page->addWidget(Label5);
    page->addWidget(Text2);
    page->addWidget(Command1, 0, Qt::AlignRight);
}

} // namespace vantrel
