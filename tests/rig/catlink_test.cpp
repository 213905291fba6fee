// SPDX-License-Identifier: MIT
// Every radio family against a scripted radio: what is sent, what is read, what the operator
// is told when there is no good reply, and how long that takes.
#include "fakes/fakeserialport.h"
#include "fakes/radios.h"
#include "rig/catlink.h"
#include "rig/radiofamily.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::SizeIs;

constexpr int mostMilliseconds = 2000;

struct CatLink : ::testing::Test {
    const Radio& choose(const std::string& name) {
        const Radio& radio = radioNamed(name);
        settings = settingsFor(radio);
        return radio;
    }

    ReadResult read() {
        const ReadResult result = readFrequency(settings, port);
        EXPECT_FALSE(port.isOpen());
        EXPECT_LE(port.waited(), mostMilliseconds);
        return result;
    }

    ReadResult expectFailure(const std::string& text) {
        ReadResult result = read();
        EXPECT_EQ(result.outcome, ReadOutcome::failed);
        EXPECT_EQ(result.message.text, text);
        EXPECT_EQ(result.message.icon, BoxIcon::critical);
        EXPECT_EQ(result.frequency, "");
        return result;
    }

    OperatingSettings settings;
    FakeSerialPort port;
};

struct EachFamily : CatLink, ::testing::WithParamInterface<Radio> {
    EachFamily() { settings = settingsFor(GetParam()); }

    Answer answer(long hertz) const { return {GetParam().query, GetParam().reply(hertz)}; }
};

TEST_P(EachFamily, IsAskedOnceAndReadOnEveryBandAsSoonAsItsReplyIsIn) {
    for (const Reading& reading : readings) {
        SCOPED_TRACE(reading.mhz);
        port.answers = {answer(reading.hertz)};
        EXPECT_EQ(read().frequency, reading.mhz);
    }
    EXPECT_THAT(port.opened, Each("com1 " + GetParam().lineSettings));
    EXPECT_THAT(port.sent, SizeIs(readings.size()));
    EXPECT_LE(port.waited(), 12 * static_cast<int>(readings.size()));
}

TEST_P(EachFamily, TakesReplyInPiecesAndLate) {
    Answer late = answer(14'025'000);
    late.pass = 100; // 300 ms
    late.pieces = 5;
    port.answers = {late};
    EXPECT_EQ(read().frequency, "14.025");
}

TEST_P(EachFamily, SilentRadioIsGivenUpWithItsMessage) {
    const ReadResult result = expectFailure(GetParam().noReplyText);
    const bool tellsError = GetParam().noReplyText == radioNamed("Kenwood").noReplyText;
    EXPECT_THAT(result.message.informative,
                tellsError ? "                       AN ERROR HAS OCCURED: Invalid procedure call "
                             "or argument"
                           : "The " + GetParam().rig +
                                 " on com1 did not answer. Is it on, and at this baud rate?");
    EXPECT_EQ(port.sent, std::vector<std::string>(static_cast<std::size_t>(GetParam().queries),
                                                  GetParam().query));
    EXPECT_GE(port.waited(), 1400) << "slow radios need their time";
}

TEST_P(EachFamily, ReplyCutShortOrOfZeroIsNoFrequency) {
    Answer cut = answer(14'025'000);
    cut.reply.resize(GetParam().name == "ElecraftK2" ? 17 : cut.reply.size() - 2);
    for (const Answer& bad : {cut, answer(999)}) {
        port = {};
        port.answers = {bad};
        expectFailure(GetParam().noReplyText);
    }
}

TEST_P(EachFamily, UnpluggedMidReplyIsAMessageNotACrash) {
    Answer half = answer(14'025'000);
    half.reply.resize(4);
    half.vanishes = true;
    port.answers = {half};
    const bool icom = GetParam().name == "IcomCiv";
    const ReadResult result =
        expectFailure(icom ? " AN ERROR HAS OCCURED " : GetParam().noReplyText);
    EXPECT_THAT(result.message.informative, HasSubstr("unplugged"));
}

TEST_P(EachFamily, ClosingTheProgramEndsTheReadAtOnce) {
    port.closesOnWait = 3;
    EXPECT_EQ(read().outcome, ReadOutcome::cancelled);
    EXPECT_EQ(port.waits, 3);
}

INSTANTIATE_TEST_SUITE_P(Radios, EachFamily, ::testing::ValuesIn(radios()),
                         [](const auto& row) { return row.param.name; });

const std::string civHead = "\xFE\xFE\x6A\xE0\x03\xFD\xFE\xFE\xE0\x6A\x03";
constexpr const char* none = nullptr;

TEST(Reply, OfTheRightFormIsAFrequencyAndNoOtherIs) {
    struct Row {
        const char* name;
        const RadioFamily* family;
        std::string reply;
        const char* mhz;
    };
    const Row rows[] = {
        {"busy", &kenwood, "?;", none},
        {"another command", &kenwood, "IF00014025000;", none},
        {"letter among the digits", &kenwood, "FA0001402500x;", none},
        {"too many digits", &yaesuAscii, "FA014025000;", none},
        // 144.025 MHz must not be logged as 44.025.
        {"from 100 MHz", &kenwood, "FA00144025000;", none},
        {"below", &kenwood, "FA00050313000;", "50.313"},
        {"K2 without VFO", &elecraftK2, "FT2;FA00014025000;FB00021050000;MD3;", none},
        {"K2 on VFO B", &elecraftK2, "FT1;FA00014025000;FB00007025000;MD3;", "7.025"},
        {"Omni of another letter", &tenTecBinary, "B\x01\x02\x03\x04\r", none},
        {"Omni without end", &tenTecBinary, "A\x01\x02\x03\x04\x05", none},
        // 7,015,693 Hz is 00 6B 0D 0D: ends that are data.
        {"Omni with CRs", &tenTecBinary, std::string("A\x00\x6B\x0D\x0D\r", 6), "7.015"},
        {"CI-V of another radio", &icomCiv,
         "\xFE\xFE\x6A\xE0\x03\xFD\xFE\xFE\xE0\x58\x03" +
             std::string("\x00\x50\x02\x14\x00\xFD", 6),
         none},
        {"CI-V without echo", &icomCiv,
         "\xFE\xFE\xE0\x6A\x03" + std::string("\x00\x50\x02\x14\x00\xFD\0\0\0\0\0", 11), none},
        {"hex in CI-V digits", &icomCiv, civHead + std::string("\x00\x5A\x02\x14\x00\xFD", 6),
         none},
        // The oldest radios of the list send four pairs only.
        {"CI-V of four pairs", &icomCiv, civHead + std::string("\x00\x50\x02\x14\xFD", 5),
         "14.025"},
        {"status block", &yaesuBinary,
         std::string("\x19\x02\x5F\xDC\x80\0\0\x01\x11\0\x11\x80\x11\x11\x11\0", 16), "24.898"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::optional<std::string> parsed = row.family->parse(row.reply);
        EXPECT_EQ(parsed.value_or("none"), row.mhz == none ? "none" : row.mhz);
    }
    EXPECT_FALSE(tenTecBinary.complete(std::string("A\x00\x6B\x0D\x0D", 5)));
}

TEST_F(CatLink, CivAddressesOutsideTheListAreLeftOut) {
    choose("IcomCiv");
    for (const char* address : {"None", "Hex 94", "Hex 6a", ""}) {
        settings.civAddress = address;
        EXPECT_EQ(icomCiv.query(settings), "\xFE\xFE\xE0\x03\xFD") << address;
    }
    settings.civAddress = "Hex 04";
    EXPECT_EQ(icomCiv.query(settings), "\xFE\xFE\x04\xE0\x03\xFD");
}

TEST_F(CatLink, CivTrafficBeforeTheQueryIsDiscarded) {
    const Radio& radio = choose("IcomCiv");
    port.noise = std::string("\xFE\xFE\x00\x6A\x00\x00\x50\x02\x14\x00\xFD", 11);
    port.answers = {{radio.query, radio.reply(7'025'000)}};
    EXPECT_EQ(read().frequency, "7.025");
}

TEST_F(CatLink, OrionIsAskedAgainUntilItAnswers) {
    const Radio& radio = choose("TenTecAscii");
    port.answers = {{radio.query, ""},
                    {radio.query, "@AF140"}, // cut off by the time-out, and dropped
                    {radio.query, radio.reply(14'025'000)}};
    EXPECT_EQ(read().frequency, "14.025");
    EXPECT_THAT(port.opened, SizeIs(3));
}

// The bad reply is kept, so the good ones behind it do not count: no more waiting either.
TEST_F(CatLink, OrionWithABadFirstReplyFailsAllAttempts) {
    const Radio& radio = choose("TenTecAscii");
    port.answers = {{radio.query, "#AF14025000\r"}};
    for (int attempt = 2; attempt <= radio.queries; ++attempt)
        port.answers.push_back({radio.query, radio.reply(14'025'000)});
    expectFailure(radio.noReplyText);
    EXPECT_THAT(port.sent, SizeIs(5));
    EXPECT_EQ(port.waits, 1);
}

TEST_F(CatLink, WithoutRigOrPortOrForARigOfNoFamilyNothingIsSent) {
    for (std::string OperatingSettings::*missing :
         {&OperatingSettings::rig, &OperatingSettings::comPort}) {
        choose("Kenwood");
        settings.*missing = "None";
        EXPECT_EQ(read().outcome, ReadOutcome::noRadio);
    }
    choose("YaesuAscii");
    settings.rig = "FTdx5000";
    EXPECT_EQ(read().outcome, ReadOutcome::noReader);
    EXPECT_TRUE(port.opened.empty());
    EXPECT_EQ(autoReadText(ReadOutcome::noRadio), "AUTO READ OFF");
    EXPECT_EQ(autoReadText(ReadOutcome::noReader), "AUTO READ ON ");
}

TEST_F(CatLink, PortsThatCannotBeOpenedSayWhy) {
    using Reason = SerialPortError::Reason;
    struct Row {
        const char* radio;
        Reason reason;
        std::string text;
        std::string informative;
    };
    const Row rows[] = {
        {"ElecraftK3", Reason::notThere, " Com Port Not Read ", "why"},
        {"Kenwood", Reason::inUse, "ERROR READING FREQUENCY FROM THE CAT PORT",
         "                       AN ERROR HAS OCCURED: why"},
        {"IcomCiv", Reason::notThere, " Incorrect COM Port ", "why"},
        {"IcomCiv", Reason::noPermission, " AN ERROR HAS OCCURED ", "why"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.radio);
        choose(row.radio);
        port.refusal = SerialPortError(row.reason, "why");
        EXPECT_EQ(expectFailure(row.text).message.informative, row.informative);
    }
}

} // namespace
} // namespace vantrel::test
