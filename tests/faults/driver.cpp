// SPDX-License-Identifier: MIT
// Works on a program folder through the rules as the forms do, without end, and tells of each
// operation in its diary (standard output). It is there to be killed.
#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "fakes/fakeclock.h"
#include "faults/diary.h"
#include "log/logfile.h"
#include "logedit/correction.h"
#include "logedit/logedit.h"
#include "output/adif/adif.h"
#include "output/files/backup.h"
#include "platform/files.h"
#include "platform/programfolder.h"
#include "platform/systemcalls.h"
#include "roster/rosterimport.h"
#include "roster/rostersort.h"
#include "screens/main/dupecheck.h"
#include "screens/main/qsoentry.h"
#include "shared/module1.h"
#include "shared/utctime.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <unistd.h>

namespace vantrel::test {
namespace {

// Written at once: what was told has been told, whenever the end comes.
void tell(std::string text) {
    text += '\n';
    if (::write(STDOUT_FILENO, text.data(), text.size()) != static_cast<long>(text.size()))
        std::abort();
}

void tell(std::string_view operation, const std::string& first, const std::string& second = {}) {
    tell(std::string(operation) + '\t' + first + '\t' + second);
}

class Driver {
public:
    Driver(const std::string& folder, int run)
        : m_run(run), m_random(static_cast<unsigned>(run)), m_files(folder, m_calls) {}

    void open() {
        m_files.recover();
        m_module.settings = loadSettings(m_files);
        m_module.settings.logFileName = diary::logName;
        m_module.settings.myCall = "W1ABC";
        m_module.settings.dupeMode = "YES";
        m_module.log.open(std::string(diary::logName));
    }

    void work() {
        // Logging is what an evening consists of; the rest happens now and then.
        switch (upTo(16)) {
        case 0:
            return correct();
        case 1:
            return erase();
        case 2:
            return undo();
        case 3:
            return import();
        case 4:
            return rewrite(diary::sort, [this] { sortRosterFiles(m_files); });
        case 5:
            return rewrite(diary::adif, [this] { exportAdif(m_files, m_module.log); });
        case 6:
            return rewrite(diary::backup,
                           [this] { backUpLog(m_files, diary::logName, diary::backupFolder); });
        case 7:
            return save();
        case 8:
            return upTo(4) == 0 ? start() : log();
        default:
            return log();
        }
    }

private:
    int upTo(int count) { return std::uniform_int_distribution(0, count - 1)(m_random); }

    // A text that no other operation of any run has.
    std::string fresh() { return zeroPadded(m_run, 3) + zeroPadded(++m_serial, 4); }

    void log() {
        Entry entry{"K" + fresh(), "NAME", "MA", "1234T", "599", "599", "14.050"};
        if (!duplicateOf(m_module.log.contacts(), entry.call, "14").empty())
            std::abort();
        ContactFields contact =
            contactFrom(entry, m_module.settings, noMarker, utcTime(m_clock.now(), "0"));
        if (enterFrequency(contact, entry.frequency, m_module.settings) != FrequencyCheck::good)
            std::abort();
        const std::string line = assembleLine(contact);
        tell(diary::log, line);
        m_module.log.append(line);
        tell(std::string(diary::done));
        m_module.log.reread();
    }

    // Finds one of the logged contacts; false when there is none.
    bool find() {
        const Contacts& contacts = m_module.log.contacts();
        if (contacts.empty())
            return false;
        const std::string_view line =
            contacts[static_cast<std::size_t>(upTo(m_module.log.count().value()))];
        return m_log.search(trim(qso::hisCall.of(line))) == SearchResult::found;
    }

    void changed(const ChangeResult& result) {
        if (!result.made)
            std::abort();
        m_module.log.reread();
        tell(std::string(diary::done));
    }

    void correct() {
        if (!find())
            return;
        const CorrectionBoxes shown = correctionBoxes("", m_log.line());
        CorrectionBoxes typed = shown;
        typed[1] = "X" + fresh();
        const std::string line = corrected(m_log.line(), shown, typed).line;
        tell(diary::correct, m_log.line(), line);
        changed(m_log.replaceLine(line));
    }

    void erase() {
        if (!find())
            return;
        tell(diary::erase, m_log.line());
        changed(m_log.removeLine());
    }

    void undo() {
        if (!m_log.canUndo())
            return;
        tell(diary::undo, "");
        const ChangeResult result = m_log.undo();
        m_module.log.reread();
        tell(std::string(result.made ? diary::done : diary::ready)); // refused: nothing was done
    }

    void start() {
        tell(diary::start, "");
        startNewLog(m_files, m_module.log.name(), logHeader("SKS", "W1ABC", ""));
        tell(std::string(diary::done));
        m_module.log.open(std::string(diary::logName));
    }

    // All members get the same new name, so that a mixture of two imports would show.
    void import() {
        const std::string generation = "G" + fresh();
        std::string list;
        for (int i = 0; i < diary::members; ++i)
            list += std::to_string(1000 + i) + "T|" + "AKNWD"[i % 5] + std::to_string(i % 10) +
                    "AB" + static_cast<char>('A' + i % 26) + "|" + generation +
                    "|TOWN|MA|||||||\r\n";
        m_files.rewrite(dataListFile, list);
        rewrite(
            diary::import,
            [this] {
                importMembers(m_files, MemberList::data, dataListFile,
                              [](const ImportStep&) { return true; });
            },
            generation);
    }

    void save() {
        m_module.settings.bonusStation = leftAligned("B" + fresh(), callWidth);
        rewrite(
            diary::save, [this] { saveSettings(m_files, m_module.settings); },
            m_module.settings.bonusStation);
    }

    template <typename Operation>
    void rewrite(std::string_view name, Operation operation, const std::string& told = {}) {
        tell(name, told);
        operation();
        tell(std::string(diary::done));
    }

    int m_run;
    int m_serial = 0;
    std::mt19937 m_random;
    SystemCalls m_calls;
    Files m_files;
    FakeClock m_clock;
    Module1 m_module{m_files};
    LogEdit m_log{m_files, m_module.log};
};

} // namespace
} // namespace vantrel::test

// usage: fault_driver FOLDER RUN. Ends with 1 when another one holds the folder.
int main(int argc, char** argv) {
    using namespace vantrel::test;
    if (argc != 3)
        return 2;
    const std::string folder = argv[1];
    const vantrel::FolderLock lock(folder);
    if (!lock.held())
        return 1;
    try {
        Driver driver(folder, std::atoi(argv[2]));
        driver.open();
        tell(std::string(diary::ready));
        for (;;)
            driver.work();
    } catch (const vantrel::RuntimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 3;
}
