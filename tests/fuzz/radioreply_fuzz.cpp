// SPDX-License-Identifier: MIT
// Any bytes as a radio's reply: each family reads a frequency that can be logged, or none.
#include "fuzz/fuzztarget.h"
#include "platform/serialport.h"
#include "rig/catlink.h"
#include "rig/radiofamily.h"
#include "screens/main/frequency.h"
#include "shared/fixedtext.h"
#include "shared/module1.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantrel::test {
namespace {

struct Rig {
    std::string_view name;
    const RadioFamily& family;
};

const std::array<Rig, 8> rigs{{{"Orion", tenTecAscii},
                               {"Omni7", tenTecBinary},
                               {"K-3", elecraftK3},
                               {"K-2", elecraftK2},
                               {"IC-7200", icomCiv},
                               {"FT-950", yaesuAscii},
                               {"FT-1000MP", yaesuBinary},
                               {"TS-2000", kenwood}}};

// A radio that sends the same reply to every query, in pieces of so many bytes.
class Babbler : public SerialPort {
public:
    Babbler(std::string reply, std::size_t piece) : m_reply(std::move(reply)), m_piece(piece) {}

    void open(const std::string&, const std::string&) override { m_left.clear(); }
    void close() override {}
    void write(std::string_view) override { m_left = m_reply; }
    bool wait(int milliseconds) override {
        m_now += milliseconds;
        return true;
    }
    std::string readAll() override {
        std::string piece = m_left.substr(0, m_piece);
        m_left.erase(0, m_piece);
        return piece;
    }
    int elapsed() const override { return m_now; }

private:
    std::string m_reply;
    std::size_t m_piece;
    std::string m_left;
    int m_now = 0;
};

void canBeLogged(std::string_view mhz) {
    const std::size_t point = mhz.find('.');
    require(point == 1 || point == 2, "a frequency is below 100 MHz");
    require(mhz.size() == point + 4, "a frequency has three decimals");
    require(isLoggableKhz(khzField(completedFrequency(mhz))), "a frequency can be logged");
}

void theLinkReadsTheSame(const Rig& rig, const std::string& reply, std::size_t piece) {
    Module1 module;
    module.settings.rig = rig.name;
    module.settings.comPort = "com1";
    module.settings.baud = "4800";
    Babbler port(reply, piece);
    const ReadResult result = readFrequency(module, port);
    require(port.elapsed() <= 2000, "a read takes two seconds at most");
    require((result.outcome == ReadOutcome::read) == !module.frequency.empty(),
            "a failed read leaves the frequency alone");
    if (result.outcome == ReadOutcome::read)
        canBeLogged(module.frequency);
    else
        require(!result.message.text.empty(), "a failed read says so");
}

} // namespace
} // namespace vantrel::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantrel;
    using namespace vantrel::test;
    Input input(data, size);
    const Rig& rig = rigs.at(input.choice(rigs.size()));
    const std::size_t piece = 1 + input.choice(40);
    const std::string reply = input.rest();
    if (const auto mhz = rig.family.parse(reply))
        canBeLogged(*mhz);
    require(!rig.family.complete(reply.substr(0, piece)) || rig.family.complete(reply),
            "a complete reply stays one");
    theLinkReadsTheSame(rig, reply, piece);
    return 0;
}
