// SPDX-License-Identifier: MIT
// Any bytes as a radio's reply, in pieces: each family reads a frequency that can be logged, or
// none and says so.
#include "fakes/fakeserialport.h"
#include "fakes/radios.h"
#include "fuzz/fuzztarget.h"
#include "rig/catlink.h"
#include "screens/main/frequency.h"

namespace vantrel::test {
namespace {

void canBeLogged(std::string_view mhz) {
    const std::size_t point = mhz.find('.');
    require(point == 1 || point == 2, "a frequency is below 100 MHz");
    require(mhz.size() == point + 4, "a frequency has three decimals");
    require(isLoggableKhz(khzField(completedFrequency(mhz))), "a frequency can be logged");
}

} // namespace

void fuzz(Input& input) {
    const Radio& radio = radios().at(input.choice(radios().size()));
    const int pieces = 1 + static_cast<int>(input.choice(40));
    FakeSerialPort port;
    for (int query = 0; query < radio.queries; ++query)
        port.answers.push_back({radio.query, input.rest(), 1, pieces});
    const ReadResult result = readFrequency(settingsFor(radio), port);
    require(port.waited() <= 2000 * radio.queries, "a query takes two seconds at most");
    require((result.outcome == ReadOutcome::read) == !result.frequency.empty(),
            "a failed read has no frequency");
    if (result.outcome == ReadOutcome::read)
        canBeLogged(result.frequency);
    else
        require(!result.message.text.empty(), "a failed read says so");
}

} // namespace vantrel::test
