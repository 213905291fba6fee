// SPDX-License-Identifier: MIT
// Radios that are asked and answer in letters and digits, as the makers' CAT reference books tell.
// With a semicolon at the end: Kenwood (TS-990S, TS-590S, TS-480S, TS-2000), Yaesu (FTdx-5000,
// FTdx-3000, FT-2000, FT-950, FT-450), Elecraft K3 and K2. With CR: Ten-Tec Orion, "?AF" and
// "@AF14025000".
#include "base/fixedtext.h"
#include "rig/radiofamily.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

// The hertz of an answer that begins with `letters`, then so many digits, then `end`; nothing
// when it has another form.
std::optional<std::int64_t> hertzOfAnswer(std::string_view answer, std::string_view letters,
                                          int digits, char end) {
    const std::string_view hertz = mid(answer, length(letters) + 1, digits);
    const bool form = answer.starts_with(letters) && length(hertz) == digits && allDigits(hertz) &&
                      midToEnd(answer, length(letters) + digits + 1).starts_with(end);
    if (!form)
        return std::nullopt;
    return numericValue(hertz);
}

// The bytes from the first answer on that begins with `letters` and a digit and ends in a
// semicolon; empty until it has come. What stands before it is passed over: the query echoed by
// the cable, "?;" of a busy radio, reports nobody asked for, the rest of an earlier answer.
std::string_view fromAnswer(std::string_view bytes, std::string_view letters) {
    for (auto end = bytes.find(';'); end != std::string_view::npos;
         end = bytes.find(';', end + 1)) {
        // The last letters before the end: earlier ones begin an answer that was cut off.
        const auto begin = bytes.rfind(letters, end);
        if (begin != std::string_view::npos && isDigit(bytes[begin + letters.size()]))
            return bytes.substr(begin);
    }
    return {};
}

Reply frequencyReply(std::string_view bytes, std::string_view letters, int digits) {
    const std::string_view answer = fromAnswer(bytes, letters);
    if (answer.empty())
        return {};
    return {true, hertzOfAnswer(answer, letters, digits, ';')};
}

// "FA00014025000;" with eleven digits, "FA14025000;" with eight.
template <int digits>
Reply vfoAReply(std::string_view bytes, std::string_view) {
    return frequencyReply(bytes, "FA", digits);
}

// "FT0;FA00014025000;FB00007025000;MD3;": the frequency of the VFO that transmits is logged, A
// after FT0 and B after FT1. What follows it is not waited for.
Reply twoVfoReply(std::string_view bytes, std::string_view) {
    const std::string_view transmits = fromAnswer(bytes, "FT");
    if (transmits.empty())
        return {};
    if (transmits.starts_with("FT0;"))
        return frequencyReply(transmits, "FA", 11);
    if (transmits.starts_with("FT1;"))
        return frequencyReply(transmits, "FB", 11);
    return {true};
}

Reply orionReply(std::string_view bytes, std::string_view) {
    constexpr std::size_t size = 12;
    bytes.remove_prefix(std::min(bytes.find_first_not_of("\r\n"), bytes.size()));
    if (bytes.size() < size)
        return {};
    return {true, hertzOfAnswer(bytes, "@AF", 8, '\r')};
}

std::string askVfoA(const OperatingSettings&) {
    return "FA;";
}

constexpr RadioFamily kenwoodOrYaesu(int stopBits, decltype(RadioFamily::parseReply) parseReply) {
    return {
        .port = {0, stopBits, RtsLine::high}, // they send nothing while RTS is low
        .query = askVfoA,
        .polls = 500,
        .parseReply = parseReply,
        .message = "ERROR READING FREQUENCY FROM THE CAT PORT",
        .errorLead = "                       AN ERROR HAS OCCURED: ",
    };
}

} // namespace

const RadioFamily kenwood = kenwoodOrYaesu(1, vfoAReply<11>);
const RadioFamily yaesuAscii = kenwoodOrYaesu(2, vfoAReply<8>);

const RadioFamily elecraftK3{
    .port = {38400, 2},
    .query = askVfoA,
    .polls = 500 + 10'000, // on a band change it answers up to half a second later
    .parseReply = vfoAReply<11>,
    .message = " Com Port Not Read ",
};

// Which VFO transmits and what each is tuned to, in one go: sending and answering take 150 ms.
const RadioFamily elecraftK2{
    .port = {4800, 2},
    .query = [](const OperatingSettings&) -> std::string { return "FT;FA;FB;MD;"; },
    .polls = 110'000 + 8'000,
    .parseReply = twoVfoReply,
    .message = " Com Port Not Read ",
    .vfo = "VFO IN USE",
};

const RadioFamily tenTecAscii{
    .port = {57600, 1},
    .query = [](const OperatingSettings&) -> std::string { return "?AF\r"; },
    .attempts = 5,
    .polls = 15'000,
    .milliseconds = 360, // the five together stay below two seconds
    .parseReply = orionReply,
    .message = "A File Error has Occured - The freq was not read",
};

} // namespace vantrel
