// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelFiles.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "log/outputfiles.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/files/printlog.h"
#include "platform/files.h"
#include "platform/printjob.h"
#include "roster/rostersort.h"
#include "roster/rosterview.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

frmVantrelFiles::frmVantrelFiles(const FormContext& context)
    : Form(context, "frmVantrelFiles", "Vantrel - Files") {
    FormBuilder build(this);
    auto* options = new QHBoxLayout;
    createOptions(options);
    m_mainPageButton = build.command("Command1", "&MAIN PAGE", "BACK TO THE MAIN PAGE");
    m_adifCaption = build.label("Label5");
    m_adifPath = build.output("Text2");
    m_adifCaption->setBuddy(m_adifPath);

    auto* page = new QVBoxLayout(this);
    page->addLayout(options, 1);
    page->addWidget(m_adifCaption);
    page->addWidget(m_adifPath);
    page->addWidget(m_mainPageButton, 0, Qt::AlignRight);
    connect(m_mainPageButton, &QPushButton::clicked, this, &QWidget::close);
    openAtPageSize();
}

// All jobs, in the order in which they stand on the screen and Tab passes them.
std::vector<frmVantrelFiles::Group> frmVantrelFiles::groups() {
    const auto members = [this](std::size_t number) { return [=, this] { showMembers(number); }; };
    const auto opens = [this](Screen screen) { return [=, this] { screens().open(screen); }; };
    const auto lists = [this](ListedFile file) { return [=, this] { screens().openList(file); }; };
    return {
        {"MEMBERS",
         {{"Option1", "SHOW MEMBERS &A...", "SHOWS SKSDB1.TXT", members(1)},
          {"Option2", "SHOW MEMBERS &K...", "SHOWS SKSDB2.TXT", members(2)},
          {"Option3", "SHOW MEMBERS &N...", "SHOWS SKSDB3.TXT", members(3)},
          {"Option4", "SHOW MEMBERS &W...", "SHOWS SKSDB4.TXT", members(4)},
          {"Option5", "SHOW MEMBERS OF ALL &OTHER CALLS", "SHOWS SKSDB5.TXT", members(5)},
          {"Option13", "SORT THE DATA&BASE BY SKCC#", "SORTS ALL FIVE MEMBER FILES",
           [this] { sortMembers(); }},
          {"Option11", "&UPDATE THE DATABASE",
           "UPDATES THE VANTREL DATABASE USING SKCCDATA.TXT OR SKCCLIST.TXT",
           opens(Screen::updateList)}}},
        {"LOG",
         {{"Option6", "MAKE AN AD&IF FILE", "WRITES THE LOG AS AN ADIF FILE",
           [this] { exportLog(); }},
          {"Option14", "ADIF FILE FOR OTHER LOGGERS",
           "WRITES THE LOG STRICTLY BY ADIF 3.1, BESIDE THE OTHER ADIF FILE",
           [this] { exportLogStrictly(); }},
          {"Option7", "&LIST THE ADIF FILE", "DISPLAYS THE ADIF FILE", lists(ListedFile::adif)},
          {"Option8", "LIST THE LO&G", "DISPLAYS OF FULL CABRILLO FILE", lists(ListedFile::log)},
          {"Option9", "&EDIT THE LOG", "CHANGES ANY FIELD OF A CONTACT", opens(Screen::editor)},
          {"Option12", "&PRINT THE LOG", "PRINTS THE WHOLE CABRILLO FILE", [this] { printLog(); }},
          {"Option10", "&START PAGE", "CONTEST, OPERATOR, LOG FILE, RADIO", opens(Screen::start)}}},
    };
}

void frmVantrelFiles::createOptions(QHBoxLayout* page) {
    FormBuilder build(this);
    for (const Group& group : groups()) {
        auto* column = new QVBoxLayout;
        for (const Job& job : group.jobs) {
            QRadioButton* option = build.jobOption(job.name, job.caption, job.toolTip);
            connect(option, &QRadioButton::clicked, this,
                    [this, run = job.run] { runHandler(run); });
            column->addWidget(option);
            if (m_firstOption == nullptr)
                m_firstOption = option;
        }
        column->addStretch();
        page->addLayout(build.section(group.title, column));
    }
}

QWidget* frmVantrelFiles::firstFocus() {
    return m_firstOption;
}

// --- Member files ----------------------------------------------------------------------------

void frmVantrelFiles::showMembers(std::size_t number) {
    RosterView view = viewRosterFile(platform().files, number);
    screens().openRoster(std::move(view.path), std::move(view.lines));
}

void frmVantrelFiles::sortMembers() {
    sortRosterFiles(platform().files);
    messages().show({std::string(rosterSorted), BoxIcon::exclamation});
}

// --- The log ---------------------------------------------------------------------------------

void frmVantrelFiles::exportLog() {
    showAdifPath(exportAdif(platform().files, shared().log));
}

void frmVantrelFiles::exportLogStrictly() {
    showAdifPath(exportStrictAdif(platform().files, platform().clock, shared().settings.gmtOffset,
                                  shared().log));
}

void frmVantrelFiles::showAdifPath(const std::string& path) {
    put(m_adifCaption, adifCreated);
    put(m_adifPath, path);
}

void frmVantrelFiles::printLog() {
    const std::string& log = shared().log.name();
    Files& files = platform().files;
    const std::string note = sendToPrinter(platform().printer, files,
                                           logPrintLines(log, files.read(log)), logPdfName(log));
    messages().show({std::string(logPrinted), BoxIcon::exclamation, note});
}

} // namespace vantrel
