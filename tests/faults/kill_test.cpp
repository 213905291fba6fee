// SPDX-License-Identifier: MIT
// The program killed in the middle of its work, again and again on one folder: what it had told
// the operator is there, whole, once; every file is the old or the new one; the next start
// goes on. And two programs on one folder.
#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "faults/diary.h"
#include "log/log.h"
#include "log/logfile.h"
#include "log/outputfiles.h"
#include "platform/files.h"
#include "platform/programfolder.h"
#include "platform/systemcalls.h"
#include "roster/rosterrecord.h"
#include "screens/main/qsoentry.h"
#include "shared/settings.h"
#include "support/tempfolder.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <poll.h>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace vantrel::test {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

Lines linesOf(std::string_view bytes) {
    Lines lines;
    for (LineReader reader(bytes); !reader.atEnd();)
        lines.emplace_back(reader.next());
    return lines;
}

// A driver at work, and what it tells.
class Child {
public:
    Child(const std::string& folder, int run) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            std::abort();
        const std::string number = std::to_string(run);
        m_process = ::fork();
        if (m_process < 0) // killing it would mean everybody
            std::abort();
        if (m_process == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::execl(VANTREL_FAULT_DRIVER, VANTREL_FAULT_DRIVER, folder.c_str(), number.c_str(),
                    nullptr);
            ::_exit(127);
        }
        ::close(ends[1]);
        m_pipe = ends[0];
    }
    ~Child() {
        if (!m_ended)
            kill();
        ::close(m_pipe);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    // Reads what it tells until it has said the word, or nothing for so long.
    void listen(int milliseconds, std::string_view until) {
        pollfd poll{m_pipe, POLLIN, 0};
        while (m_told.find(until) == std::string::npos) {
            if (::poll(&poll, 1, milliseconds) != 1 || !readSome())
                return;
        }
    }
    void kill() {
        ::kill(m_process, SIGKILL);
        wait();
        while (readSome()) {
        }
    }
    int wait() {
        int status = 0;
        ::waitpid(m_process, &status, 0);
        m_ended = true;
        return status;
    }
    const std::string& told() const { return m_told; }

private:
    bool readSome() {
        char bytes[4096];
        const long count = ::read(m_pipe, bytes, sizeof bytes);
        if (count > 0)
            m_told.append(bytes, static_cast<std::size_t>(count));
        return count > 0;
    }

    pid_t m_process = 0;
    int m_pipe = -1;
    bool m_ended = false;
    std::string m_told;
};

// What the folder must hold, as far as the diary tells.
struct Contents {
    Lines log;
    Lines backup;       // the copy in the backup folder
    Lines beforeChange; // NAME.BAK
    std::vector<Lines> kept;
    std::string generation; // of the members
    std::string bonusStation{blanks(callWidth)};
    bool hasAdif = false;
};

const Lines header = linesOf(logHeader("SKS", "W1ABC", ""));

// One operation of the diary done to the contents.
void carryOut(Contents& contents, const std::string& operation) {
    const std::size_t tab = operation.find('\t');
    const std::size_t second = operation.find('\t', tab + 1);
    const std::string name = operation.substr(0, tab);
    const std::string first = operation.substr(tab + 1, second - tab - 1);
    const Lines before = contents.log;
    if (name == diary::log) {
        contents.log.push_back(first);
    } else if (name == diary::correct) {
        std::replace(contents.log.begin(), contents.log.end(), first, operation.substr(second + 1));
        contents.beforeChange = before;
    } else if (name == diary::erase) {
        std::erase(contents.log, first);
        contents.beforeChange = before;
    } else if (name == diary::undo) {
        contents.log.swap(contents.beforeChange);
    } else if (name == diary::start) {
        if (before.size() > header.size())
            contents.kept.push_back(before);
        contents.log = header;
    } else if (name == diary::import) {
        contents.generation = first;
    } else if (name == diary::save) {
        contents.bonusStation = first;
    } else if (name == diary::backup) {
        contents.backup = before;
    } else if (name == diary::adif) {
        contents.hasAdif = true;
    } else {
        EXPECT_EQ(name, diary::sort);
    }
}

class KilledProgram : public ::testing::Test {
protected:
    KilledProgram() {
        fs::create_directory(m_folder.path() / diary::backupFolder);
        startNewLog(m_files, std::string(diary::logName), logHeader("SKS", "W1ABC", ""));
        for (const std::string_view name : rosterFiles)
            m_folder.write(std::string(name), "");
        m_now.log = header;
    }

    // One life of the program, ended after some milliseconds of work.
    void liveAndDie(int run, int microseconds) {
        Child child(m_folder.string(), run);
        child.listen(20'000, diary::ready);
        EXPECT_FALSE(FolderLock(m_folder.string()).held()) << "while the program runs";
        ::usleep(static_cast<unsigned>(microseconds));
        child.kill();
        ASSERT_THAT(child.told(), ::testing::StartsWith(std::string(diary::ready)));
        EXPECT_TRUE(FolderLock(m_folder.string()).held()) << "after the program was killed";
        readDiary(child.told());
    }

    // Done operations go into m_now; one that was cut off may or may not have been done.
    void readDiary(const std::string& told) {
        m_pending.reset();
        std::string operation;
        for (const std::string& line : linesOf(told)) {
            if (line == diary::done) {
                carryOut(m_now, operation);
                ++m_operations;
                operation.clear();
            } else {
                operation = line == diary::ready ? std::string() : line;
            }
        }
        if (operation.empty())
            return;
        m_cutOff.insert(operation.substr(0, operation.find('\t')));
        m_pending = m_now;
        carryOut(*m_pending, operation);
    }

    void everythingToldIsThere() {
        m_files.recover();
        const Contents found = contentsOfTheFolder();
        const bool isNew = m_pending && found.log == m_pending->log;
        EXPECT_THAT(found.log, ::testing::AnyOf(m_now.log, m_pending.value_or(m_now).log));
        EXPECT_TRUE(found.beforeChange == (isNew ? *m_pending : m_now).beforeChange)
            << "the log before the last change goes with the log";
        expectOldOrNew(found, &Contents::backup, "the backup copy");
        expectOldOrNew(found, &Contents::generation, "the members");
        expectOldOrNew(found, &Contents::bonusStation, "the settings");
        expectOldOrNew(found, &Contents::hasAdif, "the ADIF file");
        expectKeptLogs(found, isNew);
        for (const std::string& name : m_folder.names())
            EXPECT_FALSE(name.starts_with(".vantrel-") && name != ".vantrel-lock") << name;
        m_now = found;
    }

    void theNextStartGoesOn() {
        loadSettings(m_files);
        Log log(m_files);
        log.open(std::string(diary::logName));
        Lines worked;
        for (const std::string_view line : log.contacts())
            if (static_cast<int>(worked.size()) < Log::workedCapacity)
                worked.push_back(workedLine(line));
        EXPECT_EQ(m_folder.read(std::string(workedStationsFile)), joinLines(worked));
    }

    int m_operations = 0;
    std::set<std::string> m_cutOff; // the kinds of operation that a kill has hit

private:
    template <typename Member>
    void expectOldOrNew(const Contents& found, Member member, const char* what) {
        EXPECT_TRUE(found.*member == m_now.*member ||
                    (m_pending && found.*member == (*m_pending).*member))
            << what << " is neither the old nor the new one";
    }

    // A copy that was being written when the end came is whatever had been written: the log
    // itself is untouched then.
    void expectKeptLogs(const Contents& found, bool isNew) {
        const std::vector<Lines>& wanted = (isNew ? *m_pending : m_now).kept;
        ASSERT_GE(found.kept.size(), wanted.size());
        ASSERT_LE(found.kept.size(), wanted.size() + 1);
        for (std::size_t i = 0; i < wanted.size(); ++i)
            EXPECT_EQ(found.kept[i], wanted[i]) << "kept log " << i;
    }

    Contents contentsOfTheFolder() {
        Contents contents;
        contents.log = wholeLines(std::string(diary::logName));
        contents.beforeChange = ifThere(std::string(diary::logName) + ".BAK");
        contents.backup =
            ifThere(std::string(diary::backupFolder) + '/' + std::string(diary::logName));
        for (int number = 1;; ++number) {
            const std::string name =
                std::string(diary::logName) + ".OLD" + (number == 1 ? "" : std::to_string(number));
            if (!m_folder.has(name))
                break;
            contents.kept.push_back(linesOf(m_folder.read(name)));
        }
        contents.generation = generation();
        contents.bonusStation = leftAligned(loadSettings(m_files).bonusStation, callWidth);
        contents.hasAdif = hasWholeAdif();
        return contents;
    }

    Lines wholeLines(const std::string& name) {
        const std::string bytes = m_folder.read(name);
        EXPECT_TRUE(bytes.empty() || bytes.ends_with("\r\n")) << name;
        return linesOf(bytes);
    }

    Lines ifThere(const std::string& name) {
        return m_folder.has(name) ? wholeLines(name) : Lines();
    }

    // All members of all five files are of one import, or there are none.
    std::string generation() {
        std::set<std::string> generations;
        int members = 0;
        for (const std::string_view file : rosterFiles)
            for (const std::string& line : wholeLines(std::string(file))) {
                generations.emplace(trim(member::name.of(line)));
                ++members;
            }
        EXPECT_TRUE(members == 0 || members == diary::members) << members;
        EXPECT_LE(generations.size(), 1U) << "members of two imports";
        return generations.empty() ? std::string() : *generations.begin();
    }

    bool hasWholeAdif() {
        const std::string name = adifFileName(diary::logName);
        if (!m_folder.has(name))
            return false;
        const Lines lines = wholeLines(name);
        EXPECT_EQ(lines.front(), "<EOH>");
        EXPECT_EQ(lines.back(), "<EOF>");
        for (std::size_t i = 1; i + 1 < lines.size(); ++i)
            EXPECT_THAT(lines[i], ::testing::EndsWith("<EOR>"));
        return true;
    }

    TempFolder m_folder;
    SystemCalls m_calls;
    Files m_files{m_folder.string(), m_calls};
    Contents m_now;
    std::optional<Contents> m_pending; // with the operation that was cut off
};

TEST_F(KilledProgram, LosesNothingItHasToldAndGoesOn) {
    const bool isLong = std::getenv("VANTREL_LONG") != nullptr;
    const int kills = isLong ? 500 : 20;
    const unsigned dice = isLong ? std::random_device()() : 1; // the same moments in a short run
    std::mt19937 random(dice);
    std::uniform_int_distribution microseconds(0, isLong ? 200'000 : 60'000);
    for (int run = 1; run <= kills; ++run) {
        SCOPED_TRACE("life " + std::to_string(run) + ", dice " + std::to_string(dice));
        liveAndDie(run, microseconds(random));
        everythingToldIsThere();
        theNextStartGoesOn();
        if (HasFailure())
            return;
    }
    std::string cutOff;
    for (const std::string& operation : m_cutOff)
        cutOff += ' ' + operation;
    std::printf("%d kills, %d operations done, cut off in:%s\n", kills, m_operations,
                cutOff.c_str());
    EXPECT_GT(m_operations, kills) << "killed before there was any work";
    EXPECT_GT(m_cutOff.size(), isLong ? 7U : 0U) << "kills must hit all kinds of work";
}

TEST(SecondProgram, EndsAtOnceAndTheFirstGoesOn) {
    TempFolder folder;
    folder.write(std::string(diary::logName), logHeader("SKS", "W1ABC", ""));
    for (const std::string_view name : rosterFiles)
        folder.write(std::string(name), "");
    fs::create_directory(folder.path() / diary::backupFolder);
    Child first(folder.string(), 1);
    first.listen(20'000, diary::ready);
    Child second(folder.string(), 2);
    const int status = second.wait();
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(second.told(), "");
    first.listen(20'000, diary::done);
    EXPECT_THAT(first.told(), ::testing::HasSubstr(std::string(diary::done)));
}

} // namespace
} // namespace vantrel::test
