// SPDX-License-Identifier: MIT
// Importing 19,500 members into roster files near their capacity: without a window against
// `LC_ALL=C sort` of the same list, in the window against without, and how long the window
// goes without serving its events.
#include "roster/rosterfiles.h"
#include "roster/rosterimport.h"
#include "support/program.h"

#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace {

struct ListedMember {
    std::string number, call, name, state;
};

// The line of "skccdata.txt"; every third one without its last separator.
std::string dataLine(const ListedMember& m, std::size_t i) {
    return m.number + "|" + m.call + "|" + m.name + "|Some, Town|" + m.state +
           "||1234|291|01 Jan 2010|02 Feb 2011|" + (i % 3 == 0 ? "" : "|");
}

// `count` members, no two with one call, with names and states as operators write them.
std::vector<ListedMember> madeUpMembers(int count) {
    static constexpr std::array names{"JOHN", "Bob", "Christopher J", "", "  Ann ", "Bj\xF6rn"};
    static constexpr std::array states{"MA", "ny", "CA ", "", "ONT", "DLX4", " G"};
    static constexpr std::array awards{"", "C", "T", "S"};
    std::vector<ListedMember> members;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        members.push_back({std::to_string(i * 7919 % 25000) + awards[i % awards.size()],
                           "K" + std::to_string(i) + "XY", names[i % names.size()],
                           states[i % states.size()]});
    return members;
}

using namespace vantrel;

constexpr int listed = 19500;
constexpr int roomLeft = 50; // lines short of each file's capacity before the import
constexpr int rounds = 9;

std::string dataList() {
    std::string list =
        "SKCCNR|CALL|NAME|QTH|SPC|OLDCALL|SKCC|DXCODE|JOINDATE|CENTDATE|TRIBDATE\r\n";
    // Spread over the files as the club's members are.
    static constexpr std::array prefixes{"K", "W", "N", "A", "G", "K", "W", "K"};
    auto members = madeUpMembers(listed);
    for (std::size_t i = 0; i < members.size(); ++i) {
        members[i].call = prefixes[i % prefixes.size()] + std::to_string(i) + "XY";
        list += dataLine(members[i], i) + "\r\n";
    }
    return list;
}

// Files that hold every member of the list, filled up with others to near their capacity.
void fillRoster(bench::Program& program) {
    importMembers(program.files, MemberList::data, dataListFile,
                  [](const ImportStep&) { return true; });
    for (std::size_t i = 0; i < rosterFiles.size(); ++i) {
        std::string bytes = program.files.readOrEmpty(rosterFiles[i]);
        for (auto count = std::count(bytes.begin(), bytes.end(), '\n');
             count < rosterCapacities[i] - roomLeft; ++count)
            bytes += leftAligned("Z9" + std::to_string(count), member::width) + "\r\n";
        program.folder.write(std::string(rosterFiles[i]), bytes);
    }
}

// The longest time between two turns of the event loop while it lives.
class HoldWatch {
public:
    HoldWatch() {
        m_since.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            longest = std::max(longest, static_cast<double>(m_since.nsecsElapsed()) / 1e6);
            m_since.restart();
        });
        m_timer.start(0);
    }
    double longest = 0;

private:
    QTimer m_timer;
    QElapsedTimer m_since;
};

} // namespace

int main(int argc, char** argv) {
    bench::useNoDisplay();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    bench::Program program;
    const std::string list = std::string(dataListFile);
    program.folder.write(list, dataList());
    fillRoster(program);

    const std::string sorting = "LC_ALL=C sort -o " + (program.folder.path / "sorted").string() +
                                " " + (program.folder.path / list).string();
    program.screens.open(Screen::readData);
    auto* add =
        bench::windowNamed("frmReadSKCCDATA")->findChild<QPushButton*>(QStringLiteral("Command2"));
    QCoreApplication::processEvents();

    std::vector<double> without, sorted, inWindow, holds;
    for (int round = 0; round < rounds; ++round) {
        without.push_back(bench::millisecondsOf([&] {
            importMembers(program.files, MemberList::data, list,
                          [](const ImportStep&) { return true; });
        }));
        sorted.push_back(bench::millisecondsOf([&] {
            if (std::system(sorting.c_str()) != 0)
                std::abort();
        }));
        HoldWatch watch;
        inWindow.push_back(bench::millisecondsOf([&] { add->click(); }));
        QCoreApplication::processEvents();
        holds.push_back(watch.longest);
    }
    bench::printHead();
    bench::printRatio("import of 19,500, against sort", bench::median(without),
                      bench::median(sorted), "ms", 5);
    bench::printRatio("the same in its window, against without", bench::median(inWindow),
                      bench::median(without), "ms", 2);
    bench::printValue("longest hold of the event loop meanwhile",
                      *std::max_element(holds.begin(), holds.end()), "ms", 50);
    return 0;
}
