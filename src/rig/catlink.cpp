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
    OpenPort(SerialPort& port, const std::string& name, const std::string& settings)
        : m_port(port) {
        m_port.open(name, settings);
    }
    ~OpenPort() { m_port.close(); }
    OpenPort(const OpenPort&) = delete;
    OpenPort& operator=(const OpenPort&) = delete;

private:
    SerialPort& m_port;
};

// Adds what the radio sends to `reply` until it is complete or the polls are used up, each
// lasting its share of the family's time. False when the program is being closed.
bool awaitReply(const RadioFamily& family, SerialPort& port, std::string& reply) {
    const int polls = std::min(family.polls, family.milliseconds / shortestPoll);
    const int share = family.milliseconds / polls;
    const int deadline = port.elapsed() + family.milliseconds;
    for (int poll = 0; poll < polls && port.elapsed() < deadline; ++poll) {
        if (family.complete(reply))
            break;
        if (!port.wait(share))
            return false;
        reply += port.readAll();
    }
    return true;
}

// One query and what comes back. False when the program is being closed.
bool exchange(const RadioFamily& family, const OperatingSettings& settings, SerialPort& port,
              std::string& reply) {
    const std::string line(family.settings);
    const OpenPort open(port, settings.comPort, family.takesBaud ? settings.baud + line : line);
    if (family.settle > 0) {
        if (!port.wait(family.settle))
            return false;
        port.readAll();
    }
    port.write(family.query(settings));
    return awaitReply(family, port, reply);
}

Message failure(const RadioFamily& family, std::string_view text, const std::string& reason) {
    return {std::string(text.empty() ? family.message : text), BoxIcon::critical,
            std::string(family.errorLead) + reason};
}

Message badReply(const RadioFamily& family, const OperatingSettings& settings,
                 std::string_view reply) {
    if (!family.errorLead.empty())
        return failure(family, family.message, std::string(errorText(ErrorCode::invalidCall)));
    const std::string who = "The " + settings.rig + " on " + settings.comPort;
    return failure(family, family.message,
                   reply.empty() ? who + " did not answer. Is it on, and at this baud rate?"
                                 : who + " sent no frequency. Is it the right rig and baud rate?");
}

ReadResult askRadio(const RadioFamily& family, const OperatingSettings& settings,
                    SerialPort& port) {
    std::string reply;
    std::optional<std::string> frequency;
    for (int attempt = 0; attempt < family.attempts && !frequency; ++attempt) {
        // A reply cut off by the time-out is dropped; a complete bad one stays, and so spoils
        // the attempts that are left: a radio that talks nonsense costs no more waiting.
        if (attempt > 0 && !family.complete(reply))
            reply.clear();
        if (!exchange(family, settings, port, reply))
            return {ReadOutcome::cancelled};
        frequency = family.parse(reply);
    }
    if (!frequency)
        return {ReadOutcome::failed, "", badReply(family, settings, reply)};
    return {ReadOutcome::read, *frequency};
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

std::string_view autoReadText(ReadOutcome outcome) {
    return outcome == ReadOutcome::noRadio ? "AUTO READ OFF" : "AUTO READ ON ";
}

} // namespace vantrel
