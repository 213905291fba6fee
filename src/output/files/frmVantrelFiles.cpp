// SPDX-License-Identifier: MIT
#include "output/files/frmVantrelFiles.h"

#include "forms/colours.h"
#include "log/logfile.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"
#include "output/files/filetexts.h"
#include "platform/files.h"
#include "roster/rosterfiles.h"
#include "shared/utctime.h"

#include <QGridLayout>

namespace vantrel {

namespace {
constexpr int widthInCharacters = 168; // of the page, with each result beside its job
} // namespace

frmVantrelFiles::frmVantrelFiles(const FormContext& context)
    : Form(context, "frmVantrelFiles", "Vantrel - Files") {
    FormBuilder build(this);
    std::vector<Item> parts;
    for (const Group& group : groups()) // the last one's results are the longest
        parts.emplace_back(build.section(group.title, jobs(group)), parts.empty() ? 0 : 1);
    focusFirst(findChild<QRadioButton*>()); // until a job was run
    m_adifCaption = build.alert("Label5");
    m_adifPath = build.output("Text2");
    m_adifPath->setAccessibleName(QStringLiteral("ADIF FILE"));
    m_adifPath->setAlignment(Qt::AlignLeft);
    FormBuilder::tie(m_adifCaption, m_adifPath);
    page(this,
         {{row(parts), 1},
          m_adifCaption,
          m_adifPath,
          m_adifContacts = build.alert("Label6"),
          {build.command("Command1", "&MAIN PAGE", "BACK TO THE MAIN PAGE", [this] { close(); }), 0,
           Qt::AlignRight}});
    resize(fontMetrics().averageCharWidth() * widthInCharacters, sizeHint().height());
}

// All jobs, in the order in which they stand on the screen and Tab passes them.
std::vector<frmVantrelFiles::Group> frmVantrelFiles::groups() {
    const auto members = [this](std::size_t number) { return [=, this] { showMembers(number); }; };
    const auto opens = [this](Screen screen) { return [=, this] { screens().open(screen); }; };
    const auto lists = [this](ListedFile file) { return [=, this] { screens().openList(file); }; };
    const auto membersOf = [this](std::size_t number) {
        return [=, this] { return membersText(platform().files, number); };
    };
    const auto adif = [this] { return writtenNow(adifFileName(shared().log.name())); };
    const auto strictAdif = [this] {
        return "UPLOAD THIS: " + writtenNow(strictAdifFileName(shared().log.name()));
    };
    const auto log = [this] { return logText(shared().log.name(), shared().log.count().value()); };
    return {
        {"MEMBERS",
         {{"Option1", "SHOW MEMBERS &A...", "SHOWS SKSDB1.TXT", members(1), membersOf(1)},
          {"Option2", "SHOW MEMBERS &K...", "SHOWS SKSDB2.TXT", members(2), membersOf(2)},
          {"Option3", "SHOW MEMBERS &N...", "SHOWS SKSDB3.TXT", members(3), membersOf(3)},
          {"Option4", "SHOW MEMBERS &W...", "SHOWS SKSDB4.TXT", members(4), membersOf(4)},
          {"Option5", "SHOW MEMBERS OF ALL &OTHER CALLS", "SHOWS SKSDB5.TXT", members(5),
           membersOf(5)},
          {"Option13", "SORT THE DATA&BASE BY SKCC#", "SORTS ALL FIVE MEMBER FILES",
           [this] { sortMembers(); }},
          {"Option11", "&UPDATE THE DATABASE",
           "UPDATES THE VANTREL DATABASE USING SKCCDATA.TXT OR SKCCLIST.TXT",
           opens(Screen::updateList),
           [this] { return counted(countMembers(platform().files), "MEMBER"); }}}},
        {"LOG",
         {{"Option6", "MAKE AN AD&IF FILE", "WRITES THE LOG AS AN ADIF FILE",
           [this] { showAdifFile(exportAdif(platform().files, shared().log)); }, adif},
          {"Option14", "ADIF FILE &FOR OTHER LOGGERS",
           "WRITES THE LOG STRICTLY BY ADIF 3.1, BESIDE THE OTHER ADIF FILE",
           [this] { exportLogStrictly(); }, strictAdif},
          {"Option7", "&LIST THE ADIF FILE", "DISPLAYS THE ADIF FILE", lists(ListedFile::adif),
           adif},
          {"Option8", "LIST THE LO&G", "DISPLAYS OF FULL CABRILLO FILE", lists(ListedFile::log),
           log},
          {"Option9", "&EDIT THE LOG", "CHANGES ANY FIELD OF A CONTACT", opens(Screen::editor)},
          {"Option12", "&PRINT THE LOG", "PRINTS THE WHOLE CABRILLO FILE", [this] { printLog(); }},
          {"Option10", "&START PAGE", "CONTEST, OPERATOR, LOG FILE, RADIO", opens(Screen::start)}}},
    };
}

QLayout* frmVantrelFiles::jobs(const Group& group) {
    FormBuilder build(this);
    auto* column = new QGridLayout;
    for (int row = 0; const Job& job : group.jobs) {
        QRadioButton* option = build.jobOption(job.name, job.caption, job.toolTip);
        connectHandler(option, &QRadioButton::clicked,
                       [this, option, task = job.run] { run(option, task); });
        column->addWidget(option, ++row, 0);
        if (!job.result)
            continue;
        QLabel* result = build.label((job.name + std::string("Result")).c_str());
        setTextColour(result, dimmedColour);
        // It takes the room that is left, whatever its text: the page keeps its width.
        result->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        result->setMinimumWidth(fontMetrics().size(0, toQt(noSuchFileYet)).width());
        column->addWidget(result, row, 1);
        m_results.emplace_back(result, job.result);
    }
    column->setRowStretch(column->rowCount(), 1);
    column->setColumnStretch(1, 1);
    return column;
}

void frmVantrelFiles::bringToFront() {
    showResults();
    Form::bringToFront();
}

// What the job before made is cleared first: this one may fail.
void frmVantrelFiles::run(QRadioButton* option, const std::function<void()>& job) {
    focusFirst(option); // from now on
    showAdifFile({});
    const QPointer<Form> self(this);
    runHandler(job);
    if (self)
        showResults();
}

void frmVantrelFiles::showResults() {
    for (const auto& [label, text] : m_results) {
        try {
            put(label, text());
        } catch (const RuntimeError&) {
            put(label, "CANNOT BE READ"); // the job itself says why
        }
    }
}

// --- Member files ----------------------------------------------------------------------------

void frmVantrelFiles::showMembers(std::size_t number) {
    RosterView view = viewRosterFile(platform().files, number);
    screens().openRoster(std::move(view.path), std::move(view.lines));
}

void frmVantrelFiles::sortMembers() {
    sortRosterFiles(platform().files);
    messages().show({"THE DATABASE FILES HAVE BEEN ALPHABETIZED BY SKCC#s", BoxIcon::exclamation});
}

// --- The log ---------------------------------------------------------------------------------

void frmVantrelFiles::exportLogStrictly() {
    const StrictAdifFile file = exportStrictAdif(platform().files, platform().clock,
                                                 shared().settings.gmtOffset, shared().log);
    showAdifFile(file.path);
    m_adifContacts->announce(contactsWritten(file));
    setTextColour(m_adifContacts, file.leftOut == 0 ? nullptr : cautionColour);
}

// path: empty when no file was made.
void frmVantrelFiles::showAdifFile(const std::string& path) {
    m_adifCaption->announce(path.empty() ? "" : "ADIF FILE CREATED AT:");
    put(m_adifPath, path);
    m_adifPath->setToolTip(m_adifPath->text());
    m_adifContacts->clear();
}

std::string frmVantrelFiles::writtenNow(const std::string& name) {
    const std::string today = utcTime(platform().clock.now(), shared().settings.gmtOffset).date;
    return writtenText(platform().files, name, today);
}

void frmVantrelFiles::printLog() {
    const std::string& log = shared().log.name();
    Files& files = platform().files;
    const std::string note =
        sendToPrinter(platform().printer, files, logPrintLines(log, files.read(log)),
                      nameBeside(log, "-LOG.PDF"));
    messages().show({"THE FILE HAS BEEN SENT TO THE PRINTER", BoxIcon::exclamation, note});
}

} // namespace vantrel
