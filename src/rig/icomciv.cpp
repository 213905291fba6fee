// SPDX-License-Identifier: MIT
// Icom CI-V, as its reference manual tells: one wire for both directions, so the query comes back
// first, then the reply. FE FE addr E0 03 FD, then FE FE E0 addr 03, the frequency in pairs of
// digits from 1 Hz up, FD.
#include "base/fixedtext.h"
#include "rig/radiofamily.h"
#include "rig/rigs.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr char frameEnd = '\xFD';
constexpr std::size_t addressInQuery = 2;
constexpr std::size_t fullQuery = 6;
// The pairs from 1 Hz to 10 MHz, which the oldest radios send alone. The others send a fifth pair,
// for 100 MHz and up.
constexpr std::size_t fewestPairs = 4;

int hexDigit(char digit) {
    return isDigit(digit) ? digit - '0' : digit - 'A' + 10;
}

std::string hexText(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        (text += ' ') += digits[value / 16];
        text += digits[value % 16];
    }
    return text;
}

// An address that is not in the table is left out of the frame, and then no radio answers.
std::string query(const OperatingSettings& settings) {
    const std::string_view address = settings.civAddress;
    const bool known = std::ranges::any_of(
        rigs, [&](const Rig& rig) { return rig.family == &icomCiv && rig.civAddress == address; });
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

bool isEchoed(std::string_view bytes, std::string_view query) {
    return bytes.find(query) != std::string_view::npos;
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

// The answer follows the echo of the query. Other frames are passed over: the radio sends one to
// all stations whenever its dial is turned, and other stations use the bus.
Reply parseReply(std::string_view bytes, std::string_view query) {
    const std::string_view answer = answerIn(behind(bytes, query), query);
    if (answer.find(frameEnd) < fewestPairs)
        return {true};
    if (answer.size() <= fewestPairs)
        return {};
    return {true,
            hertzOf(answer.substr(0, fewestPairs + (answer[fewestPairs] == frameEnd ? 0 : 1)))};
}

// Two stations that send at once spoil each other's frames, and a radio whose dial is turned sends
// about every 60 ms. The query fits in right after one of its frames, or once the bus is quiet.
bool queryLost(std::string_view query, const Received& received) {
    constexpr int echoIsInAfter = 200; // milliseconds; at 1,200 baud after another frame, too
    constexpr int justNow = 5;
    constexpr int longestPause = 100;
    const bool spoilt = received.sinceQuery >= echoIsInAfter && !received.bytes.empty() &&
                        !isEchoed(received.bytes, query) && answerIn(received.bytes, query).empty();
    return spoilt && (received.quiet >= longestPause ||
                      (received.quiet < justNow && received.bytes.back() == frameEnd));
}

std::string reason(const OperatingSettings& settings, std::string_view bytes) {
    const std::string sent = query(settings);
    if (sent.size() < fullQuery)
        return "No address is chosen for the " + settings.rig +
               ": choose the radio's at ICOM HEX on the start page.";
    const std::string radio = "The " + settings.rig + " on " + settings.comPort;
    const std::string at =
        " at " + settings.baud + " baud and address " + settings.civAddress.substr(4);
    const bool answered = !answerIn(bytes, sent).empty();
    if (bytes.empty())
        return radio + " did not answer" + at + ". Is it on, and set to these?";
    if (isEchoed(bytes, sent))
        return answered
                   ? ""
                   : "Only the query came back" + at + ": the radio is off or has another address.";
    if (answered)
        return radio + " answers, but its CI-V echo back is off: turn it on in the radio's menu.";
    constexpr std::size_t mostShown = 24;
    return radio + " was not heard" + at +
           ", and the query did not come back whole. Heard:" + hexText(bytes.substr(0, mostShown)) +
           (bytes.size() > mostShown ? " ..." : "") +
           ". Is the dial being turned, or is the rate another one?";
}

} // namespace

const RadioFamily icomCiv{
    .port = {0, 1},
    .query = query,
    .quietMs = 10,
    .polls = 5'000 + 80'000,
    .milliseconds = 1800, // a second and more at 1,200 baud
    .parseReply = parseReply,
    .queryLost = queryLost,
    .reason = reason,
    .message = "COM PORT NOT READ",
    .refusedMessage = " Incorrect COM Port ",
    .errorMessage = " AN ERROR HAS OCCURED ",
    .vfo = "VFO IN USE",
};

} // namespace vantrel
