// SPDX-License-Identifier: MIT
// Any bytes as a log, exported as ADIF both ways: every contact is one record, and a reader
// of the strict file that goes by the lengths gets back what stands in the log.
#include "base/fixedtext.h"
#include "base/itemreader.h"
#include "fakes/fakeclock.h"
#include "fuzz/fuzztarget.h"
#include "log/bands.h"
#include "log/log.h"
#include "log/qsoline.h"
#include "output/adif/adif.h"
#include "output/adif/strictadif.h"

#include <algorithm>
#include <map>

namespace vantrel::test {
namespace {

using Record = std::map<std::string, std::string, std::less<>>;

// Takes the fields up to the one called `last` off `rest`, each "<NAME:4>JOHN" or "<EOR>" with
// what stands before it.
Record takeRecord(std::string_view& rest, std::string_view last) {
    Record record;
    while (record.find(last) == record.end()) {
        rest.remove_prefix(std::min(rest.find('<'), rest.size()));
        const std::size_t end = rest.find('>');
        require(end != std::string_view::npos, "a field's head ends");
        const std::string_view head = rest.substr(1, end - 1);
        rest.remove_prefix(end + 1);
        const std::size_t colon = std::min(head.find(':'), head.size());
        const auto size =
            static_cast<std::size_t>(numericValue(head.substr(std::min(colon + 1, head.size()))));
        require(size <= rest.size(), "a field is as long as it says");
        require(record.emplace(head.substr(0, colon), rest.substr(0, size)).second,
                "a field stands once in a record");
        rest.remove_prefix(size);
    }
    return record;
}

bool isPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return character >= ' ' && character <= '~'; });
}

void strictFileReadsBack(const Contacts& contacts) {
    const std::string bytes = strictAdifText(contacts, "20110616 001230");
    std::string_view rest(bytes);
    takeRecord(rest, "EOH");
    for (const std::string_view line : contacts) {
        const Record record = takeRecord(rest, "EOR");
        for (const auto& [name, value] : record)
            require(isPlain(value) && value.empty() == (name == "EOR"),
                    "values are plain text, and a field without one is left out");
        const std::string_view call = trim(qso::hisCall.of(line));
        if (isPlain(call) && !call.empty())
            requireEqual(record.at("CALL"), call, "the call of the strict record");
        if (const auto band = record.find("BAND"); band != record.end())
            require(upper(band->second) == bandOfMhz(record.at("FREQ"))->label,
                    "band of frequency");
    }
    requireEqual(rest, "\r\n", "nothing follows the last record");
}

// Its fields may hold what looks like another one: only the frame is the same for any log.
void customaryFileHasALineAContact(const Contacts& contacts) {
    const std::string bytes = adifText(contacts);
    LineReader lines(bytes);
    requireEqual(lines.next(), "<EOH>", "the head comes first");
    for (const std::string_view line : contacts) {
        const std::string_view record = lines.next();
        require(record.ends_with("<EOR>"), "a contact's line ends its record");
        require(record.find(trim(qso::hisCall.of(line))) != record.npos, "it has his call");
    }
    requireEqual(lines.next(), "<EOF>", "nothing but the end follows the last record");
}

} // namespace

void fuzz(Input& input) {
    // The offset comes from the settings file, where somebody may have written anything.
    const std::string offset = input.text();
    std::string created;
    const auto error = errorOf([&] { created = creationTime(FakeClock().now(), offset); });
    require(error || (created.size() == 15 && created[8] == ' '), "a creation time has its form");
    const Contacts contacts = contactsIn(input.rest());
    strictFileReadsBack(contacts);
    customaryFileHasALineAContact(contacts);
}

} // namespace vantrel::test
