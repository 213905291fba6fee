// SPDX-License-Identifier: MIT
#include "rig/catlink.h"

#include "base/runtimeerror.h"
#include "platform/serialport.h"
#include "rig/radiofamily.h"
#include "shared/settings.h"

#include <algorithm>
#include <array>

namespace vantrel {

namespace {

struct Model {
    std::string_view rig;
    const RadioFamily* family;
};

constexpr std::array<Model, 15> models{{
    {"Orion", &tenTecAscii},
    {"Omni7", &tenTecBinary},
    {"Jupiter", &tenTecBinary},
    {"K-3", &elecraftK3},
    {"K-2", &elecraftK2},
    {"FT-1000MP", &yaesuBinary},
    // The settings store these two without their hyphen, so no rig of that name ever comes
    // here: their owners type the frequency, and old settings files keep their meaning.
    {"FTdx-5000", &yaesuAscii},
    {"FTdx-3000", &yaesuAscii},
    {"FT-2000", &yaesuAscii},
    {"FT-950", &yaesuAscii},
    {"FT-450", &yaesuAscii},
    {"TS-990S", &kenwood},
    {"TS-590S", &kenwood},
    {"TS-480S", &kenwood},
    {"TS-2000", &kenwood},
}};

// Every Icom on the list is called IC-7 and something.
constexpr std::string_view icomPrefix = "IC-7";

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

const RadioFamily* familyOf(std::string_view rig) {
    const auto* const found = std::find_if(models.begin(), models.end(),
                                           [&](const Model& model) { return model.rig == rig; });
    if (found != models.end())
        return found->family;
    return rig.starts_with(icomPrefix) ? &icomCiv : nullptr;
}

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
