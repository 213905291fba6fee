// SPDX-License-Identifier: MIT
// Every radio family against a scripted radio: what is sent, what is read, what the operator
// is told when there is no good reply, and how long that takes.
#include "fakes/fakeserialport.h"
#include "fakes/radios.h"
#include "rig/catlink.h"
#include "rig/radiofamily.h"
#include "support/testing.h"

namespace vantrel::test {
namespace {

using namespace std::string_literals;
using ::testing::EndsWith;
using ::testing::StartsWith;

const std::string on = "AUTO READ ON ";

struct CatLink : ::testing::TestWithParam<Radio> {
    // What the page says and reads of a radio that answers so; both texts of the box of a failure.
    std::string read(const Radio& radio, const std::deque<Answer>& answers = {}) {
        settings = settingsFor(radio);
        port = {};
        port.answers = answers;
        return read();
    }
    std::string read() {
        const ReadResult result = readFrequency(settings, port);
        EXPECT_FALSE(port.isOpen());
        EXPECT_LE(port.waited(), 2000);
        if (result.outcome != ReadOutcome::failed)
            return std::string(autoReadText(result.outcome)) + result.frequency;
        EXPECT_EQ(result.message.icon, BoxIcon::critical);
        return result.message.text + '\n' + result.message.informative;
    }

    OperatingSettings settings;
    FakeSerialPort port;
};

TEST_P(CatLink, IsAskedOnceAndReadAsSoonAsItsReplyIsIn) {
    const Radio& radio = GetParam();
    for (const auto& [hertz, mhz] : {std::pair{1'825'000L, "1.825"},
                                     {7'000'000L, "7.000"},
                                     {10'120'000L, "10.120"},
                                     {28'999'990L, "28.999"}})
        for (const auto& [pass, pieces, most] : {std::array{1, 1, 12}, {100, 5, 320}}) {
            EXPECT_EQ(read(radio, {{radio.query, radio.reply(hertz), pass, pieces}}), on + mhz);
            EXPECT_EQ(port.opened, std::vector{"com1 " + radio.lineSettings});
            EXPECT_LE(port.waited(), most);
        }
}

TEST_P(CatLink, WithoutAFrequencyItIsGivenUpWithItsMessage) {
    const Radio& radio = GetParam();
    const std::string text = radio.noReplyText + '\n';
    EXPECT_THAT(read(radio), AllOf(StartsWith(text), HasSubstr("did not answer at ")));
    EXPECT_EQ(port.sent, std::vector(static_cast<std::size_t>(radio.queries), radio.query));
    EXPECT_GE(port.waited(), 1400) << "slow radios need their time";
    EXPECT_THAT(read(radio, {{radio.query, radio.reply(999)}}),
                AllOf(StartsWith(text), HasSubstr("sent no frequency at ")));
    EXPECT_THAT(read(radio, {{radio.query, "\xFE", 1, 1, true}}),
                AllOf(StartsWith(radio.name == "IcomCiv" ? " AN ERROR HAS OCCURED \n" : text),
                      EndsWith("com1 has been unplugged.")));
}

TEST_P(CatLink, IsReadPastWhatStandsInFrontOfItsAnswerAndNotAskedAgain) {
    const Radio& radio = GetParam();
    const std::string reply = radio.reply(14'025'000);
    for (const std::string& stray : straysOf(radio)) {
        std::string bytes = stray;
        for (int times = stray == radio.query ? 1 : 10; times > 1; --times)
            bytes += stray;
        EXPECT_EQ(read(radio, {{radio.query, bytes + reply, 1, 5}}), on + "14.025") << stray;
        EXPECT_EQ(port.sent.size(), 1U);
        EXPECT_LE(port.waited(), 60);
    }
}

INSTANTIATE_TEST_SUITE_P(Radios, CatLink, ::testing::ValuesIn(radios()),
                         [](const auto& row) { return row.param.name; });

TEST(Reply, OfTheRightFormIsAFrequencyAndNoOtherIs) {
    const std::string civ = "\xFE\xFE\x6A\xE0\x03\xFD\xFE\xFE\xE0\x6A\x03";
    const std::tuple<const char*, const RadioFamily&, std::string, const char*> rows[] = {
        {"letter among the digits", kenwood, "FA0001402500x;", "none"},
        {"K2 cut short", elecraftK2, "FT0;FA00014025000", "waits"},
        {"K2 without VFO", elecraftK2, "FT2;FA00014025000;FB00021050000;MD3;", "none"},
        {"K2 on VFO B", elecraftK2, "FT1;FA00014025000;FB00007025000;MD3;", "7025"},
        {"Omni of another letter", tenTecBinary, "B\x01\x02\x03\x04\r", "waits"},
        // 7,015,693 Hz is 00 6B 0D 0D: ends that are data.
        {"Omni with CRs", tenTecBinary, "A\x00\x6B\x0D\x0D\r"s, "7015"},
        {"hex in CI-V digits", icomCiv, civ + "\x00\x5A\x02\x14\xFD"s, "none"},
        // The oldest radios of the list send four pairs only.
        {"CI-V of four pairs", icomCiv, civ + "\x00\x50\x02\x14\xFD"s, "14025"},
        {"an answer cut off, then a whole one", kenwood, "FA0001FA00014025000;", "14025"},
        {"a bad answer first", kenwood, "FA14025000;FA00014025000;", "none"},
    };
    const OperatingSettings icom = settingsFor(radioNamed("IcomCiv"));
    for (const auto& [name, family, reply, khz] : rows) {
        const Reply parsed = family.parseReply(reply, family.query(icom));
        EXPECT_EQ(parsed.hertz ? std::to_string(*parsed.hertz / 1000)
                               : (parsed.complete ? "none" : "waits"),
                  khz)
            << name;
    }
}

TEST_F(CatLink, ASilentRadioSaysWhatToLookFor) {
    EXPECT_EQ(read(radioNamed("Kenwood")),
              "ERROR READING FREQUENCY FROM THE CAT PORT\n"
              "                       AN ERROR HAS OCCURED: Invalid procedure call or argument\n"
              "The TS-2000 on com1 did not answer at 57600 baud. Is it on, and at this rate?");
    const Radio& fixed = radioNamed("ElecraftK3");
    EXPECT_THAT(read(fixed), EndsWith("BAUD RATE is not used for this rig."));
    EXPECT_THAT(read(fixed, {{fixed.query, fixed.reply(145'000'000)}}),
                EndsWith("145.000 MHz IS ABOVE WHAT THE LOG HOLDS"));
}

TEST_F(CatLink, OrionIsAskedAgainUntilItAnswersUnlessItTalksNonsense) {
    const Radio& orion = radioNamed("TenTecAscii");
    const Answer good{orion.query, orion.reply(14'025'000)};
    // The first is cut off by the time-out, and dropped.
    EXPECT_EQ(read(orion, {{orion.query, "@AF140"}, good}), on + "14.025");
    read(orion, {{orion.query, "#AF14025000\r"}, good, good, good, good});
    EXPECT_EQ(port.sent.size(), 5U);
    EXPECT_EQ(port.waits, 1);
}

TEST_F(CatLink, IcomSaysWhatIsMissingAndAddressesOutsideTheListAreLeftOut) {
    const Radio& radio = radioNamed("IcomCiv");
    settings = settingsFor(radio);
    port.noise = straysOf(radio).back(); // the quiet time before the query runs to its end
    port.answers = {{radio.query, radio.reply(7'025'000)}};
    EXPECT_EQ(read(), on + "7.025");
    EXPECT_EQ(port.waited(), 10 + 1);
    for (const auto& [reply, words] :
         {std::pair{radio.query, "Only the query came back at 1200 baud and address 6A: the radio"},
          {radio.reply(14'025'000).substr(6), "CI-V echo back is off"}}) {
        EXPECT_THAT(read(radio, {{radio.query, reply}}), HasSubstr(words));
        EXPECT_EQ(port.sent.size(), 1U);
    }
    EXPECT_THAT(read(radio, {{radio.query, "\xFE\xFC\x01"}}), HasSubstr("Heard: FE FC 01. "));
    EXPECT_EQ(port.sent.size(), 2U) << "once more, and no more";
    // Lost, since the dial is being turned: asked again at 200 ms, right behind one of the frames.
    std::string frames = "\xFC";
    for (int i = 0; i < 40; ++i)
        frames += straysOf(radio).front();
    EXPECT_EQ(read(radio, {{radio.query, frames, 1, 441}, {radio.query, radio.reply(14'025'000)}}),
              on + "14.025");
    EXPECT_EQ(port.waited(), 10 + 1 + 19 * 11 + 1);
    port = {};
    settings.civAddress = "None";
    EXPECT_THAT(read(), HasSubstr("No address is chosen for the IC-7800"));
    settings.civAddress = "Hex 6a";
    EXPECT_EQ(icomCiv.query(settings), "\xFE\xFE\xE0\x03\xFD");
}

TEST_F(CatLink, PortsThatCannotBeOpenedOrAreOthersThanAtStartSayWhy) {
    settings = settingsFor(radioNamed("IcomCiv"));
    for (const bool notThere : {false, true}) {
        port.refusal = SerialPortError("why", notThere);
        EXPECT_EQ(read(), notThere ? " Incorrect COM Port \nwhy" : " AN ERROR HAS OCCURED \nwhy");
    }
    settings.baud = "None";
    EXPECT_THAT(read(), HasSubstr("com1: no baud rate is chosen"));
    settings.portDevice = "/dev/ttyUSB0";
    port.isDevice = "/dev/ttyUSB1";
    port.opened.clear();
    EXPECT_THAT(read(), HasSubstr("COM1 WAS /dev/ttyUSB0 AT START AND IS /dev/ttyUSB1 NOW"));
    EXPECT_TRUE(port.opened.empty());
    settings.rig = "FTdx5000"; // nothing is opened, so nothing is refused
    EXPECT_EQ(read(), on);
    settings.comPort = "None";
    EXPECT_EQ(read(), "AUTO READ OFF");
    EXPECT_EQ(withFrequencyUsed({"text", BoxIcon::critical, "why"}, "14.033").informative,
              "why\n14.033 MHz, AS IN THE BOX, IS USED");
}

} // namespace
} // namespace vantrel::test
