// SPDX-License-Identifier: MIT
// Any bytes as a log, exported as ADIF both ways: every contact is one record, and a reader
// that goes by the lengths gets back what stands in the log.
#include "fakes/fakeclock.h"
#include "fuzz/fuzztarget.h"
#include "output/adif.h"
#include "output/strictadif.h"
#include "shared/bands.h"
#include "shared/fixedtext.h"
#include "shared/qsoline.h"
#include "shared/qsotable.h"

#include <algorithm>
#include <map>

namespace vantrel::test {
namespace {

using Record = std::map<std::string, std::string, std::less<>>;

// Takes "<NAME:4>JOHN" or "<EOR>" off `rest`, with what stands before it. Returns the name; the
// value is put into `value`.
std::string takeField(std::string_view& rest, std::string& value) {
    rest.remove_prefix(std::min(rest.find('<'), rest.size()));
    const std::size_t end = rest.find('>');
    require(end != std::string_view::npos, "a field's head ends");
    const std::string_view head = rest.substr(1, end - 1);
    rest.remove_prefix(end + 1);
    const std::size_t colon = head.find(':');
    value.clear();
    if (colon != std::string_view::npos) {
        const auto size = static_cast<std::size_t>(numericValue(head.substr(colon + 1)));
        require(size <= rest.size(), "a field is as long as it says");
        value = rest.substr(0, size);
        rest.remove_prefix(size);
    }
    return std::string(head.substr(0, colon));
}

// The fields up to the one called `last`, each at most once.
Record takeRecord(std::string_view& rest, std::string_view last) {
    Record record;
    for (;;) {
        std::string value;
        const std::string name = takeField(rest, value);
        require(record.emplace(name, value).second, "a field stands once in a record");
        if (name == last)
            return record;
    }
}

bool isPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return character >= ' ' && character <= '~'; });
}

void strictFileReadsBack(const QsoTable& table) {
    const std::string bytes = strictAdifText(table.lines(), "20110616 001230");
    std::string_view rest(bytes);
    takeRecord(rest, "EOH");
    for (const std::string_view line : table.lines()) {
        const Record record = takeRecord(rest, "EOR");
        for (const auto& [name, value] : record) {
            require(isPlain(value), "values are plain text");
            require(!value.empty() || name == "EOR", "a field without a value is left out");
        }
        const std::string_view call = trim(qso::hisCall.of(line));
        if (isPlain(call) && !call.empty())
            requireEqual(record.at("CALL"), call, "the call of the strict record");
        if (const auto band = record.find("BAND"); band != record.end())
            require(upper(band->second) == bandOfMhz(record.at("FREQ"))->label,
                    "band of frequency");
    }
    requireEqual(rest, "\r\n", "nothing follows the last record");
}

// A whole line without what would make its own record ambiguous.
bool isOrdinary(std::string_view line) {
    return length(line) >= qso::marker.first - 1 && isPlain(line) &&
           line.find_first_of("<>") == std::string_view::npos;
}

void customaryFileReadsBack(const QsoTable& table) {
    const std::string bytes = adifText(table.lines());
    require(std::count(bytes.begin(), bytes.end(), '\n') == table.count().value() + 2,
            "a line a contact, one above and one below");
    std::string_view rest(bytes);
    rest.remove_prefix(rest.find('\n') + 1);
    for (const std::string_view line : table.lines()) {
        std::string_view text = rest.substr(0, rest.find('\n') + 1);
        rest.remove_prefix(text.size());
        require(text.ends_with("<EOR>\r\n"), "a contact's line ends its record");
        if (!isOrdinary(line))
            continue;
        // The comment's length is not its own: what stands behind it is left alone here.
        Record record = takeRecord(text, "SKCC_NR");
        for (const auto& [name, column] :
             {std::pair{"CALL", qso::hisCall}, std::pair{"NAME", qso::hisName},
              std::pair{"STATE", qso::hisState}, std::pair{"SKCC_NR", qso::hisNumber},
              std::pair{"TIME_ON", qso::time}, std::pair{"RST_RCVD", qso::rstReceived}})
            requireEqual(trim(record[name]), trim(column.of(line)), name);
    }
    requireEqual(rest, "<EOF>\r\n", "nothing but the end follows the last record");
}

// The offset comes from the settings file, where somebody may have written anything.
void creationTimeIsOne(const std::string& gmtOffset) {
    std::string text;
    if (errorOf([&] { text = creationTime(FakeClock().now(), gmtOffset); }))
        return;
    require(text.size() == 15 && text[8] == ' ', "a creation time has its form");
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel::test;
    Input input(data, size);
    creationTimeIsOne(input.text());
    vantrel::QsoTable table;
    table.refill(input.rest());
    strictFileReadsBack(table);
    customaryFileReadsBack(table);
    return 0;
}
