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

// Where things stand in echo and reply together, counted from 0.
constexpr std::size_t addressInEcho = 2;
constexpr std::size_t lowestPair = 11;
constexpr std::size_t highestPair = 14;
// The oldest radios send four pairs and the end, the others a fifth pair (100 MHz), which is
// not read: either way 16 bytes hold all there is to know.
constexpr std::size_t enough = 16;

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

std::optional<std::string> parse(std::string_view reply) {
    if (reply.size() < enough)
        return std::nullopt;
    const char address = reply[addressInEcho];
    const std::string head =
        std::string("\xFE\xFE") + address + "\xE0\x03\xFD\xFE\xFE\xE0" + address + "\x03";
    if (!reply.starts_with(head))
        return std::nullopt;
    std::int64_t hertz = 0;
    for (std::size_t i = highestPair; i >= lowestPair; --i) {
        const auto pair = static_cast<unsigned char>(reply[i]);
        if (pair / 16 > 9 || pair % 16 > 9)
            return std::nullopt;
        hertz = hertz * 100 + pair / 16 * 10 + pair % 16;
    }
    return mhzText(hertz);
}

} // namespace

const RadioFamily icomCiv{
    .settings = ",n,8,1",
    .takesBaud = true,
    .query = query,
    .settle = 10,
    .polls = 5'000 + 80'000,
    .milliseconds = 1800, // a second and more at 1,200 baud
    .complete = [](std::string_view reply) { return reply.size() >= enough; },
    .parse = parse,
    .message = "COM PORT NOT READ",
    .refusedMessage = " Incorrect COM Port ",
    .errorMessage = " AN ERROR HAS OCCURED ",
};

} // namespace vantrel
