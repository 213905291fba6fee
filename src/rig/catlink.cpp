// SPDX-License-Identifier: MIT
#include "rig/catlink.h"

#include "base/runtimeerror.h"
#include "platform/serialport.h"
#include "rig/radiofamily.h"
#include "rig/rigs.h"
#include "shared/settings.h"

#include <algorithm>

namespace vantrel {

namespace {

// Polls shorter than this only cost time: the port wakes us when a byte comes.
constexpr int shortestPoll = 3; // milliseconds

class OpenPort {
public:
    OpenPort(SerialPort& port, const std::string& name, const std::string& line, RtsLine rts)
        : m_port(port) {
        m_port.open(name, line, rts);
    }
    ~OpenPort() { m_port.close(); }
    OpenPort(const OpenPort&) = delete;
    OpenPort& operator=(const OpenPort&) = delete;

private:
    SerialPort& m_port;
};

// What is said to the radio, and what comes of it.
struct Talk {
    const RadioFamily& family;
    const OperatingSettings& settings;
    SerialPort& port;
    std::string query;
    std::string bytes{};
    Heard heard{};
};

std::string lineOf(const RadioFamily& family, const OperatingSettings& settings) {
    return (family.takesBaud ? settings.baud : "") + std::string(family.settings);
}

// Lets the family's quiet time run out, whatever is heard in it: to send into somebody else's
// frame spoils both. False when the program is being closed.
bool settle(const Talk& talk) {
    while (talk.port.elapsed() < talk.family.settle) {
        if (!talk.port.wait(talk.family.settle - talk.port.elapsed()))
            return false;
        talk.port.readAll();
    }
    return true;
}

// Takes what the radio sends until the answer is in or the polls are used up, each lasting its
// share of the family's time. False when the program is being closed.
bool awaitAnswer(Talk& talk) {
    const RadioFamily& family = talk.family;
    const int polls = std::min(family.polls, family.milliseconds / shortestPoll);
    const int share = family.milliseconds / polls;
    const int deadline = talk.port.elapsed() + family.milliseconds;
    for (int poll = 0; poll < polls && talk.port.elapsed() < deadline; ++poll) {
        if (talk.heard.answered)
            break;
        if (!talk.port.wait(share))
            return false;
        talk.bytes += talk.port.readAll();
        talk.heard = family.hear(talk.bytes, talk.query);
    }
    return true;
}

// One query and what comes back. False when the program is being closed.
bool exchange(Talk& talk) {
    const OpenPort open(talk.port, talk.settings.comPort, lineOf(talk.family, talk.settings),
                        talk.family.rts);
    if (!settle(talk))
        return false;
    talk.port.write(talk.query);
    return awaitAnswer(talk);
}

Message failure(const RadioFamily& family, std::string_view text, const std::string& reason) {
    return {std::string(text.empty() ? family.message : text), BoxIcon::critical,
            std::string(family.errorLead) + reason};
}

// Why there is no frequency, and what to look after, in the operator's words.
std::string plainReason(const Talk& talk) {
    const RadioFamily& family = talk.family;
    const OperatingSettings& settings = talk.settings;
    const std::string known = family.reason != nullptr ? family.reason(settings, talk.bytes) : "";
    if (!known.empty())
        return known;
    const std::string line = lineOf(family, settings);
    const bool silent = talk.bytes.empty() || talk.bytes == talk.query;
    return "The " + settings.rig + " on " + settings.comPort +
           (silent ? " did not answer" : " sent no frequency") + " at " +
           line.substr(0, line.find(',')) + " baud" + (family.takesBaud ? "" : ", its fixed rate") +
           (silent ? ". Is it on, and at this rate?" : ". Is it the right rig and rate?") +
           (family.takesBaud ? "" : " BAUD RATE is not used for this rig.");
}

Message badAnswer(const Talk& talk) {
    std::string words = plainReason(talk);
    if (!talk.family.errorLead.empty())
        words = std::string(errorText(ErrorCode::invalidCall)) + "\n" + words;
    return failure(talk.family, talk.family.message, words);
}

ReadResult askRadio(const RadioFamily& family, const OperatingSettings& settings,
                    SerialPort& port) {
    Talk talk{family, settings, port, family.query(settings)};
    for (int attempt = 0; attempt < family.attempts && !talk.heard.mhz; ++attempt) {
        // An answer cut off by the time-out is dropped; a complete bad one stays, and so spoils
        // the attempts that are left: a radio that talks nonsense costs no more waiting.
        if (!talk.heard.answered)
            talk.bytes.clear();
        if (!exchange(talk))
            return {ReadOutcome::cancelled};
    }
    if (!talk.heard.mhz)
        return {ReadOutcome::failed, "", badAnswer(talk)};
    return {ReadOutcome::read, *talk.heard.mhz};
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
        const bool refused = error.reason() == SerialPortError::Reason::notThere;
        return {ReadOutcome::failed, "",
                failure(*family, refused ? family->refusedMessage : family->errorMessage,
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
