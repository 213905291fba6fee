// SPDX-License-Identifier: MIT
// The open log: its contacts as they stand on the disk, and the worked stations made of them, in
// memory and in "StnsWorked.TXT".
#pragma once

#include "base/integer16.h"
#include "base/runtimeerror.h"
#include "log/qsoline.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

class Files;

inline constexpr std::string_view workedStationsFile = "StnsWorked.TXT";

// A log's contact lines, in file order.
using Contacts = std::vector<std::string_view>;

// Every comma-delimited item that begins "QSO", however many; views into `logBytes`.
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
inline constexpr Column date{54, 10};
inline constexpr Column marker{65, 6};
inline constexpr int columns = 70;
} // namespace worked

// The line in words, for a screen reader: "K9SKC CLUB 5000S IL 14050 at 0012", then its marker.
std::string workedWords(std::string_view workedLine);

// How the list marks a worked-stations line: a duplicate, or incomplete (no name, state or number).
enum class WorkedKind { complete, incomplete, dupe };
WorkedKind kindOf(std::string_view workedLine);
// The last field of a worked-stations line, without its blanks: a K3Y tag, "DUPE" or nothing.
std::string_view markerOf(std::string_view workedLine);

// The log's file was gone, or had lost contacts, when the next contact was appended.
struct LogLoss {
    bool vanished;    // gone; otherwise it held fewer contacts than had been read
    std::string kept; // path of the copy made of what was read, as text to show; empty: no contact
};

class Log {
public:
    static constexpr int capacity = 12000;
    static constexpr int workedCapacity = 1000; // in the list and in the file

    explicit Log(Files& files) : m_files(files) {}
    Log(const Log&) = delete; // its contacts point into its own bytes
    Log& operator=(const Log&) = delete;

    const std::string& name() const { return m_name; }
    // The first 12,000; valid until the log is read again.
    const Contacts& contacts() const { return m_contacts; }
    Integer16 count() const { return static_cast<long long>(m_contacts.size()); }
    // Changes whenever the log is read.
    int reading() const { return m_reading; }
    // RuntimeError 9 while the file holds more contacts than the first 12,000.
    const std::optional<RuntimeError>& tooLong() const { return m_tooLong; }
    // The lines of the first 1,000 contacts.
    const std::vector<std::string>& worked() const { return m_worked; }

    // Calls the watcher after each reading, for as long as the Watch handed back is kept.
    using Watch = std::shared_ptr<const std::function<void()>>;
    [[nodiscard]] Watch watch(std::function<void()> watcher);

    // Makes `name` the open log, reads it and rewrites "StnsWorked.TXT". Throws as reread(); a
    // log that cannot be read then has no contacts.
    void open(const std::string& name);

    // Reads the log again and brings the worked stations and their file up to date, then calls
    // every watcher. A failure is thrown after that, a watcher's only when there is none of:
    // - as Files::read: contacts and worked stations are as before;
    // - RuntimeError 9: see tooLong();
    // - as Files::rewrite: "StnsWorked.TXT" is not up to date, worked() is.
    void reread();

    // Appends the line to the file: on the disk when this returns. The next reread() brings it
    // into contacts() and worked(). A log that vanished or lost contacts since it was read takes
    // the line all the same, after what was read is kept beside it as NAME.OLD (numbered). Throws
    // as Files::read, Files::keepCopy and Files::appendLine; nothing is appended then.
    [[nodiscard]] std::optional<LogLoss> append(std::string_view line);

private:
    void readAndUpdate();
    void parse(std::string bytes, std::size_t known);
    void addWorked(std::size_t added);
    void rewriteWorked();

    Files& m_files;
    std::string m_name;
    std::string m_bytes; // of the file; m_contacts points into it
    Contacts m_contacts;
    int m_reading = 0;
    std::optional<RuntimeError> m_tooLong;
    std::vector<std::string> m_worked;
    bool m_workedOnDisk = false; // the file holds what m_worked does
    std::vector<std::weak_ptr<const std::function<void()>>> m_watchers;
};

} // namespace vantrel
