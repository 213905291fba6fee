// SPDX-License-Identifier: MIT
// The open log: its contacts as they stand on the disk, and the worked stations that follow
// them, in memory and in "StnsWorked.TXT".
#pragma once

#include "base/integer16.h"
#include "log/qsoline.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;

inline constexpr std::string_view workedStationsFile = "StnsWorked.TXT";

// A log's contact lines, in file order.
using Contacts = std::vector<std::string_view>;

// Every comma-delimited item that begins "QSO"; views into `logBytes`. Throws RuntimeError 9 at
// the 12,001st.
Contacts contactsIn(std::string_view logBytes);

// The worked-stations line of a contact: his call (10), "| ", his name (10), "|", his number
// (6), " | ", his state (3), " | ", kHz (5), " | ", time (4), " | ", date (10), "|", marker (6,
// or the bare four of "DUPE"). 70 columns, 68 with "DUPE".
std::string workedLine(std::string_view contact);

namespace worked {
inline constexpr Column call{1, 10};
inline constexpr Column name{13, 10};
inline constexpr Column number{24, 6};
inline constexpr Column state{33, 3};
inline constexpr Column frequency{39, 5};
inline constexpr Column time{47, 4};
inline constexpr Column marker{65, 6};
inline constexpr int columns = 70;
} // namespace worked

// The line as one would say it: "K9SKC CLUB 5000S IL 14050 at 0012", and the marker behind it.
std::string workedWords(std::string_view workedLine);

// Why a worked-stations line stands out: a duplicate, or a name, state or number that is missing.
enum class WorkedKind { complete, incomplete, dupe };
WorkedKind kindOf(std::string_view workedLine);
// The last field of a worked-stations line, without its blanks: a K3Y tag, "DUPE" or nothing.
std::string_view markerOf(std::string_view workedLine);

class Log {
public:
    static constexpr int capacity = 12000;
    static constexpr int workedCapacity = 1000; // in the list and in the file

    explicit Log(Files& files) : m_files(files) {}
    Log(const Log&) = delete; // its contacts point into its own bytes
    Log& operator=(const Log&) = delete;

    const std::string& name() const { return m_name; }
    // At most 12,000; valid until the log is read again.
    const Contacts& contacts() const { return m_readings[m_turn].contacts; }
    Integer16 count() const { return static_cast<long long>(contacts().size()); }
    // The lines of the first 1,000 contacts.
    const std::vector<std::string>& worked() const { return m_worked; }

    // Called whenever contacts and worked stations may have changed, for as long as the Watch
    // that is handed back is kept.
    using Watch = std::shared_ptr<const std::function<void()>>;
    [[nodiscard]] Watch watch(std::function<void()> watcher);

    // Makes `name` the open log, reads it and writes "StnsWorked.TXT" anew. Throws as reread();
    // there are no contacts then unless some could be read.
    void open(const std::string& name);

    // Reads the log again; worked stations and their file follow, whoever changed it. Throws as
    // Files::read, all being as before; RuntimeError 9 at the 12,001st contact, the first 12,000
    // being there; as Files::rewrite for the file of the worked stations, the list being right.
    void reread();

    // Appends the line to the log: on the disk when this returns. Contacts and worked stations
    // follow at the next reread(). Throws as Files::appendLine.
    void append(std::string_view line);

private:
    // Two of them take turns: the log is read after each contact, and memory is used again.
    struct Reading {
        std::string bytes;
        Contacts contacts;
    };

    void follow(bool anew);
    void readAndFollow(bool anew);
    void tellWatchers();
    bool read();
    void addWorked(std::size_t added);
    void rewriteWorked();

    Files& m_files;
    std::string m_name;
    std::array<Reading, 2> m_readings;
    std::size_t m_turn = 0;
    std::vector<std::string> m_worked;
    bool m_workedOnDisk = false; // the file holds what the list does
    std::vector<std::weak_ptr<const std::function<void()>>> m_watchers;
};

} // namespace vantrel
