// SPDX-License-Identifier: MIT
#include "rig/catlink.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "rig/radiofamily.h"
#include "rig/rigs.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

// Shorter polls only take time: a wait ends anyway when a byte arrives.
constexpr int shortestPoll = 3; // milliseconds

// The range of the log's frequency column, 5 digits of kHz.
constexpr std::int64_t lowestHertz = 1'000;
constexpr std::int64_t aboveHertz = 100'000'000;

struct PortCloser {
    SerialPort& port;
    ~PortCloser() { port.close(); }
};

// One query and its reply.
struct CatTransaction {
    const RadioFamily& family;
    const OperatingSettings& settings;
    SerialPort& port;
    std::string query;
    std::string bytes{}; // received since the query was sent
    Reply reply{};

    bool isRead() const {
        return reply.hertz && *reply.hertz >= lowestHertz && *reply.hertz < aboveHertz;
    }
};

// "14.020": cut, not rounded, below a kilohertz.
std::string mhzText(std::int64_t hertz) {
    const std::int64_t kilohertz = hertz / 1000;
    return std::to_string(kilohertz / 1000) + "." +
           zeroPadded(static_cast<int>(kilohertz % 1000), 3);
}

int baudOf(const RadioFamily& family, const OperatingSettings& settings) {
    return family.port.baud > 0 ? family.port.baud : static_cast<int>(numericValue(settings.baud));
}

// Adapters change places when they are plugged in again, and what is a harmless query to the radio
// may key another device. Throws SerialPortError when the port is another device than at START.
void requireSameDevice(const OperatingSettings& settings, const SerialPort& port) {
    const std::string& before = settings.portDevice;
    const std::string now = before.empty() ? "" : port.device(settings.comPort);
    if (!now.empty() && now != before)
        throw SerialPortError(upper(settings.comPort) + " WAS " + before + " AT START AND IS " +
                                  now +
                                  " NOW. Nothing was sent. If that is right, press START again.",
                              true);
}

// Waits for the family's quiet time and discards what is received in it: a query sent into another
// station's frame spoils both. False when the program is being closed.
bool awaitQuiet(const CatTransaction& cat) {
    while (cat.port.elapsed() < cat.family.quietMs) {
        if (!cat.port.wait(cat.family.quietMs - cat.port.elapsed()))
            return false;
        cat.port.readAll();
    }
    return true;
}

// Receives until the reply is complete or the polls are used up; each poll waits for its share of
// the family's time. False when the program is being closed.
bool awaitReply(CatTransaction& cat) {
    const RadioFamily& family = cat.family;
    const int polls = std::min(family.polls, family.milliseconds / shortestPoll);
    const int share = family.milliseconds / polls;
    const int sentAt = cat.port.elapsed();
    int heardAt = sentAt;
    bool mayRepeat = family.queryLost != nullptr;
    for (int poll = 0; poll < polls && !cat.reply.complete; ++poll) {
        const int now = cat.port.elapsed();
        if (now - sentAt >= family.milliseconds)
            break;
        if (mayRepeat && family.queryLost(cat.query, {cat.bytes, now - sentAt, now - heardAt})) {
            cat.port.write(cat.query);
            mayRepeat = false;
        }
        if (!cat.port.wait(share))
            return false;
        const std::string received = cat.port.readAll();
        if (!received.empty())
            heardAt = cat.port.elapsed();
        cat.bytes += received;
        cat.reply = family.parseReply(cat.bytes, cat.query);
    }
    return true;
}

// False when the program is being closed.
bool exchange(CatTransaction& cat) {
    PortSettings portSettings = cat.family.port;
    portSettings.baud = baudOf(cat.family, cat.settings);
    if (portSettings.baud == 0)
        throw SerialPortError(cat.settings.comPort + ": no baud rate is chosen on the start page.");
    cat.port.open(cat.settings.comPort, portSettings);
    const PortCloser closer{cat.port};
    if (!awaitQuiet(cat))
        return false;
    cat.port.write(cat.query);
    return awaitReply(cat);
}

Message failure(const RadioFamily& family, std::string_view text, const std::string& reason) {
    return {std::string(text.empty() ? family.message : text), BoxIcon::critical,
            std::string(family.errorLead) + reason};
}

// Why there is no frequency and what to check, in the operator's words.
std::string plainReason(const CatTransaction& cat) {
    const RadioFamily& family = cat.family;
    const OperatingSettings& settings = cat.settings;
    if (cat.reply.hertz && *cat.reply.hertz >= aboveHertz)
        return mhzText(*cat.reply.hertz) + " MHz IS ABOVE WHAT THE LOG HOLDS";
    const std::string known = family.reason != nullptr ? family.reason(settings, cat.bytes) : "";
    if (!known.empty())
        return known;
    const bool silent = cat.bytes.empty() || cat.bytes == cat.query;
    const bool fixed = family.port.baud > 0;
    return "The " + settings.rig + " on " + settings.comPort +
           (silent ? " did not answer" : " sent no frequency") + " at " +
           std::to_string(baudOf(family, settings)) + " baud" + (fixed ? ", its fixed rate" : "") +
           (silent ? ". Is it on, and at this rate?" : ". Is it the right rig and rate?") +
           (fixed ? " BAUD RATE is not used for this rig." : "");
}

Message badReply(const CatTransaction& cat) {
    std::string words = plainReason(cat);
    if (!cat.family.errorLead.empty())
        words = std::string(errorText(ErrorCode::invalidCall)) + "\n" + words;
    return failure(cat.family, cat.family.message, words);
}

ReadResult askRadio(const RadioFamily& family, const OperatingSettings& settings,
                    SerialPort& port) {
    CatTransaction cat{family, settings, port, family.query(settings)};
    requireSameDevice(settings, port);
    for (int attempt = 0; attempt < family.attempts && !cat.isRead(); ++attempt) {
        // A reply cut off by the time-out is dropped. A complete bad one is kept, so that the
        // attempts left end at once: more waiting would not help.
        if (!cat.reply.complete)
            cat.bytes.clear();
        if (!exchange(cat))
            return {ReadOutcome::cancelled};
    }
    if (!cat.isRead())
        return {ReadOutcome::failed, "", badReply(cat)};
    return {ReadOutcome::read, mhzText(*cat.reply.hertz)};
}

} // namespace

ReadResult readFrequency(const OperatingSettings& settings, SerialPort& port) {
    if (!settings.hasRadio())
        return {ReadOutcome::noRadio};
    const RadioFamily* const family = familyOf(settings.rig);
    if (family == nullptr)
        return {ReadOutcome::noReader};
    try {
        return askRadio(*family, settings, port);
    } catch (const SerialPortError& error) {
        return {ReadOutcome::failed, "",
                failure(*family, error.notThere() ? family->refusedMessage : family->errorMessage,
                        error.what())};
    }
}

Message withFrequencyUsed(Message message, std::string_view mhz) {
    if (!mhz.empty())
        message.informative += "\n" + std::string(mhz) + " MHz, AS IN THE BOX, IS USED";
    return message;
}

std::string_view autoReadText(ReadOutcome outcome) {
    return outcome == ReadOutcome::noRadio ? "AUTO READ OFF" : "AUTO READ ON ";
}

} // namespace vantrel
