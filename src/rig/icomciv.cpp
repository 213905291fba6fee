// SPDX-License-Identifier: MIT
// Icom CI-V: one wire for both directions, so the query comes back first, then the reply.
// FE FE addr E0 03 FD, FE FE E0 addr 03, the frequency in pairs of digits from 1 Hz up, FD.
#include "base/fixedtext.h"
#include "rig/radiofamily.h"
#include "rig/reply.h"
#include "rig/rigs.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr char frameEnd = '\xFD';
constexpr std::size_t addressInQuery = 2;
constexpr std::size_t fullQuery = 6;
// The digits worth reading: 1 Hz to 10 MHz. The oldest radios send these four pairs and the end,
// the others a fifth pair, from 100 MHz up.
constexpr std::size_t pairs = 4;

int hexDigit(char digit) {
    return isDigit(digit) ? digit - '0' : digit - 'A' + 10;
}

// An address that no listed radio has is left out: no radio answers the short frame.
std::string query(const OperatingSettings& settings) {
    const std::string_view address = settings.civAddress;
    const bool known = std::any_of(rigs.begin(), rigs.end(), [&](const Rig& rig) {
        return rig.family == &icomCiv && rig.civAddress == address;
    });
    std::string frame = "\xFE\xFE";
    if (known)
        frame += static_cast<char>(hexDigit(address[4]) * 16 + hexDigit(address[5]));
    return frame + "\xE0\x03\xFD";
}

std::string_view behind(std::string_view bytes, std::string_view mark) {
    const auto at = bytes.find(mark);
    return at == std::string_view::npos ? std::string_view() : bytes.substr(at + mark.size());
}

// What follows the head of an answer to the query; a query without address has none.
std::string_view answerIn(std::string_view bytes, std::string_view query) {
    if (query.size() < fullQuery)
        return {};
    return behind(bytes, std::string("\xFE\xFE\xE0") + query[addressInQuery] + '\x03');
}

bool isFrom100MHz(std::string_view answer) {
    return answer.size() > pairs && answer[pairs] != frameEnd && answer[pairs] != 0;
}

std::optional<std::int64_t> hertzOf(std::string_view digits) {
    std::int64_t hertz = 0;
    for (std::size_t i = digits.size(); i > 0; --i) {
        const auto pair = static_cast<unsigned char>(digits[i - 1]);
        if (pair / 16 > 9 || pair % 16 > 9)
            return std::nullopt;
        hertz = hertz * 100 + pair / 16 * 10 + pair % 16;
    }
    return hertz;
}

// The answer stands behind the echo of the query. Around both the radio tells everybody when
// the dial is turned, and other stations of the bus speak: their frames are passed over.
Heard hear(std::string_view bytes, std::string_view query) {
    const std::string_view answer = answerIn(behind(bytes, query), query);
    if (answer.find(frameEnd) < pairs)
        return {true};
    if (answer.size() <= pairs)
        return {};
    const std::optional<std::int64_t> hertz = hertzOf(answer.substr(0, pairs));
    if (!hertz || isFrom100MHz(answer))
        return {true};
    return {true, mhzText(*hertz)};
}

std::string reason(const OperatingSettings& settings, std::string_view bytes) {
    const std::string sent = query(settings);
    if (sent.size() < fullQuery)
        return "No address is chosen for the " + settings.rig +
               ": choose the radio's at ICOM HEX on the start page.";
    const std::string radio = "The " + settings.rig + " on " + settings.comPort;
    const std::string at =
        " at " + settings.baud + " baud and address " + settings.civAddress.substr(4);
    const bool echoed = bytes.find(sent) != std::string_view::npos;
    const std::string_view answer = answerIn(bytes, sent);
    if (!echoed && !answer.empty())
        return radio + " answers, but its CI-V echo back is off: turn it on in the radio's menu.";
    if (isFrom100MHz(answer))
        return radio + " is above 100 MHz, outside the bands of this log.";
    if (echoed && answer.empty())
        return "Only the query came back" + at + ": the radio is off or has another address.";
    if (bytes.empty())
        return radio + " did not answer" + at + ". Is it on, and set to these?";
    return "";
}

} // namespace

const RadioFamily icomCiv{
    .settings = ",n,8,1",
    .takesBaud = true,
    .query = query,
    .settle = 10,
    .polls = 5'000 + 80'000,
    .milliseconds = 1800, // a second and more at 1,200 baud
    .hear = hear,
    .reason = reason,
    .message = "COM PORT NOT READ",
    .refusedMessage = " Incorrect COM Port ",
    .errorMessage = " AN ERROR HAS OCCURED ",
    .vfo = "VFO IN USE",
};

} // namespace vantrel
