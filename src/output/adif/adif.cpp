// SPDX-License-Identifier: MIT
#include "output/adif/adif.h"

#include "log/bands.h"
#include "log/logfile.h"
#include "log/qsoline.h"
#include "platform/files.h"

namespace vantrel {

namespace {

// The parts of a date written year first. A date written month first, after a month end, is cut at
// the same columns: the result is no date, and the programs that read these files expect that.
constexpr Column yearOfDate{qso::date.first, 4};
constexpr Column monthOfDate{qso::date.first + 5, 2};
constexpr Column dayOfDate{qso::date.first + 8, 2};
constexpr Column continent{qso::marker.first + 4, 2}; // the region letters of a K3Y tag
constexpr std::size_t typicalRecord = 256;            // bytes

class AdifWriter {
public:
    void append(std::string& bytes, std::string_view contact) {
        takeFrequency(contact);
        appendAdifItem(bytes, "<FREQ:", m_mhz);
        appendAdifItem(bytes, "<BAND:", m_band);
        bytes.append("<MODE:2>").append(qso::mode.of(contact));
        bytes.append("<QSO_DATE:8>").append(yearOfDate.of(contact));
        bytes.append(monthOfDate.of(contact)).append(dayOfDate.of(contact));
        bytes.append("<TIME_ON:4>").append(qso::time.of(contact));
        bytes.append("<RST_SENT:3>").append(qso::rstSent.of(contact));
        appendAdifItem(bytes, "<CALL:", trim(qso::hisCall.of(contact)));
        bytes.append("<RST_RCVD:3>").append(qso::rstReceived.of(contact));
        appendAdifItem(bytes, "<NAME:", trim(qso::hisName.of(contact)));
        appendAdifItem(bytes, "<STATE:", trim(qso::hisState.of(contact)));
        appendNumber(bytes, qso::hisNumber.of(contact));
        if (length(trim(qso::marker.of(contact))) == qso::marker.width)
            bytes.append("<CONT:2>").append(continent.of(contact));
        bytes += "<EOR>\r\n";
    }

private:
    // A frequency that is neither 4 nor 5 digits long, and one outside the bands, leave what
    // the contact before had.
    void takeFrequency(std::string_view contact) {
        const std::string_view khz = trim(qso::frequency.of(contact));
        if (length(khz) == 4 || length(khz) == 5)
            m_mhz = std::string(left(khz, length(khz) - 3)) + '.' + std::string(right(khz, 3));
        if (const Band* band = bandOfMhz(m_mhz))
            m_band = band->label;
    }

    // The comment declares the length of the padded number but holds the trimmed one: the
    // programs that read these files are written for that.
    static void appendNumber(std::string& bytes, std::string_view field) {
        constexpr std::string_view prefix = "SKCC NR: ";
        const std::string_view number = trim(field);
        appendAdifItem(bytes, "<SKCC_NR:", number);
        bytes.append("<COMMENT:").append(std::to_string(length(prefix) + length(field)));
        bytes.append(">").append(prefix).append(number);
    }

    std::string m_mhz;
    std::string_view m_band;
};

} // namespace

void appendAdifItem(std::string& bytes, std::string_view head, std::string_view value) {
    bytes.append(head).append(std::to_string(length(value))).append(">").append(value);
}

std::string adifText(const Contacts& contacts) {
    std::string bytes;
    bytes.reserve(contacts.size() * typicalRecord);
    bytes += "<EOH>\r\n";
    AdifWriter writer;
    for (const std::string_view contact : contacts)
        writer.append(bytes, contact);
    bytes += "<EOF>\r\n";
    return bytes;
}

std::string exportAdif(Files& files, Log& log) {
    log.reread();
    const std::string name = adifFileName(log.name());
    requireOtherThanLog(files, name, log.name());
    files.rewrite(name, adifText(log.contacts()));
    return files.path(name);
}

} // namespace vantrel
