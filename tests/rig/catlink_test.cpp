// SPDX-License-Identifier: MIT
// Every radio family against a scripted radio: what is sent, what is read, what the operator
// is told when there is no good reply, and how long that takes.
#include "fakes/fakeserialport.h"
#include "fakes/radios.h"
#include "rig/catlink.h"
#include "rig/radiofamily.h"
#include "shared/module1.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr int mostMilliseconds = 2000;

struct CatLink : ::testing::Test {
    CatLink() {
        module.frequency = "3.550";
        module.bandText = "80 Meters ";
    }

    void chooseRadio(const std::string& name) { module.settings = settingsFor(radioNamed(name)); }

    ReadResult read() {
        const ReadResult result = readFrequency(module, port);
        EXPECT_FALSE(port.isOpen());
        EXPECT_LE(port.waited(), mostMilliseconds);
        return result;
    }

    void expectFailure(const ReadResult& result, const std::string& text) {
        EXPECT_EQ(result.outcome, ReadOutcome::failed);
        EXPECT_EQ(result.message.text, text);
        EXPECT_EQ(result.message.icon, BoxIcon::critical);
        EXPECT_EQ(module.frequency, "3.550");
        EXPECT_EQ(module.bandText, "80 Meters ");
    }

    Module1 module;
    FakeSerialPort port;
};

// --- Each family -----------------------------------------------------------------------------

struct EachFamily : CatLink, ::testing::WithParamInterface<Radio> {
    EachFamily() { module.settings = settingsFor(GetParam()); }

    Answer answer(long hertz) const { return {GetParam().query, GetParam().reply(hertz)}; }
};

TEST_P(EachFamily, ReadsFrequenciesWithThreeDecimalsAndTheirBand) {
    for (const Reading& reading : readings) {
        SCOPED_TRACE(reading.mhz);
        module.bandText = "20 Meters ";
        port.answers = {answer(reading.hertz)};
        EXPECT_EQ(read().outcome, ReadOutcome::read);
        EXPECT_EQ(module.frequency, reading.mhz);
        EXPECT_EQ(module.bandText, reading.bandText);
    }
    EXPECT_THAT(port.opened, Each("com1 " + GetParam().lineSettings));
}

TEST_P(EachFamily, AsksOnceAndWaitsNoLongerThanTheReplyTakes) {
    port.answers = {answer(14'025'000)};
    read();
    EXPECT_THAT(port.sent, ElementsAre(GetParam().query));
    EXPECT_LE(port.waited(), 12);
}

TEST_P(EachFamily, TakesReplyInPiecesAndLate) {
    Answer late = answer(14'025'000);
    late.pass = 100; // 300 ms
    late.pieces = 5;
    port.answers = {late};
    EXPECT_EQ(read().outcome, ReadOutcome::read);
    EXPECT_EQ(module.frequency, "14.025");
}

TEST_P(EachFamily, SilentRadioIsGivenUpWithItsMessage) {
    expectFailure(read(), GetParam().noReplyText);
    EXPECT_EQ(port.sent, std::vector<std::string>(static_cast<std::size_t>(GetParam().queries),
                                                  GetParam().query));
    EXPECT_GE(port.waited(), 1400) << "slow radios need their time";
}

TEST_P(EachFamily, ReplyCutShortIsNoFrequency) {
    std::string reply = GetParam().reply(14'025'000);
    reply.resize(GetParam().name == "ElecraftK2" ? 17 : reply.size() - 2);
    port.answers = {{GetParam().query, reply}};
    expectFailure(read(), GetParam().noReplyText);
}

TEST_P(EachFamily, FrequencyOfZeroIsNoFrequency) {
    for (const long hertz : {0L, 999L}) {
        port.answers = {answer(hertz)};
        expectFailure(read(), GetParam().noReplyText);
    }
}

TEST_P(EachFamily, UnpluggedMidReplyIsAMessageNotACrash) {
    Answer half = answer(14'025'000);
    half.reply.resize(4);
    half.vanishes = true;
    port.answers = {half};
    const bool icom = GetParam().name == "IcomCiv";
    const ReadResult result = read();
    expectFailure(result, icom ? " AN ERROR HAS OCCURED " : GetParam().noReplyText);
    EXPECT_THAT(result.message.informative, HasSubstr("unplugged"));
}

TEST_P(EachFamily, ClosingTheProgramEndsTheReadAtOnce) {
    port.closesOnWait = 3;
    EXPECT_EQ(read().outcome, ReadOutcome::cancelled);
    EXPECT_EQ(port.waits, 3);
    EXPECT_EQ(module.frequency, "3.550");
}

INSTANTIATE_TEST_SUITE_P(Radios, EachFamily, ::testing::ValuesIn(radios()),
                         [](const auto& row) { return row.param.name; });

// --- Garbled replies -------------------------------------------------------------------------

struct Garbled {
    const char* name;
    const char* radio;
    std::string reply;
};

void PrintTo(const Garbled& row, std::ostream* out) {
    *out << row.name;
}

struct GarbledReply : CatLink, ::testing::WithParamInterface<Garbled> {};

TEST_P(GarbledReply, IsNoFrequency) {
    const Radio& radio = radioNamed(GetParam().radio);
    chooseRadio(radio.name);
    port.answers = {{radio.query, GetParam().reply}};
    while (static_cast<int>(port.answers.size()) < radio.queries)
        port.answers.push_back({radio.query, ""});
    expectFailure(read(), radio.noReplyText);
}

const std::string civHead = "\xFE\xFE\x6A\xE0\x03\xFD\xFE\xFE\xE0\x6A\x03";

const Garbled garbledReplies[] = {
    {"KenwoodBusy", "Kenwood", "?;"},
    {"KenwoodOtherCommand", "Kenwood", "IF00014025000;"},
    {"KenwoodLetterAmongDigits", "Kenwood", "FA000140x5000;"},
    {"KenwoodTooFewDigits", "Kenwood", "FA0014025000;"},
    {"KenwoodNoiseFirst", "Kenwood",
     "\xFF"
     "FA00014025000;"},
    {"YaesuTooManyDigits", "YaesuAscii", "FA014025000;"},
    {"YaesuBlankInside", "YaesuAscii", "FA140 5000;"},
    {"K3VfoB", "ElecraftK3", "FB00014025000;"},
    {"K2NoVfo", "ElecraftK2", "FT2;FA00014025000;FB00021050000;MD3;"},
    {"K2VfoBMissing", "ElecraftK2", "FT1;FA00014025000;?;MD3;"},
    {"OrionOtherVfo", "TenTecAscii", "@BF14025000\r"},
    {"OrionBadFirstCharacter", "TenTecAscii", "#AF14025000\r"},
    {"OrionNoEnd", "TenTecAscii", "@AF140250000"},
    {"OmniOtherLetter", "TenTecBinary", "B\x01\x02\x03\x04\r"},
    {"OmniNoEnd", "TenTecBinary", "A\x01\x02\x03\x04\x05"},
    {"CivOtherRadioAnswers", "IcomCiv",
     "\xFE\xFE\x6A\xE0\x03\xFD\xFE\xFE\xE0\x58\x03" + std::string("\x00\x50\x02\x14\x00\xFD", 6)},
    {"CivNoEcho", "IcomCiv",
     "\xFE\xFE\xE0\x6A\x03" + std::string("\x00\x50\x02\x14\x00\xFD\x00\x00\x00\x00\x00", 11)},
    {"CivHexInDigits", "IcomCiv", civHead + std::string("\x00\x5A\x02\x14\x00\xFD", 6)},
    {"CivCollision", "IcomCiv", std::string(17, '\xFC')},
    {"StatusBlockOfZeros", "YaesuBinary", std::string(16, '\0')},
    {"StatusBlockOfNoise", "YaesuBinary", std::string(16, '\xFF')},
};

INSTANTIATE_TEST_SUITE_P(Replies, GarbledReply, ::testing::ValuesIn(garbledReplies),
                         [](const auto& row) { return row.param.name; });

// --- One family's own ways -------------------------------------------------------------------

TEST(StatusBlock, KnownBlocksGiveTheirFrequency) {
    const auto block = [](const char* frequency) {
        return '\x19' + std::string(frequency, 4) + std::string(11, '\x11');
    };
    EXPECT_EQ(yaesuBinary.parse(std::string("\x19\x02\x5F\xDC\x80\x00\x00\x01\x11\x00\x11\x80"
                                            "\x11\x11\x11\x00",
                                            16)),
              "24.898");
    EXPECT_EQ(yaesuBinary.parse(block("\x00\x2C\x6F\x00")), "1.820");
    EXPECT_EQ(yaesuBinary.parse(block("\x01\x57\x04\x80")), "14.050");
    EXPECT_EQ(yaesuBinary.parse(block("\x02\xAC\xD0\x80")), "28.050");
}

TEST(TenTecBinaryReply, CarriageReturnInsideTheFrequencyIsData) {
    // 7,015,693 Hz is 00 6B 0D 0D.
    const std::string reply("A\x00\x6B\x0D\x0D\r", 6);
    EXPECT_FALSE(tenTecBinary.complete(reply.substr(0, 5)));
    EXPECT_EQ(tenTecBinary.parse(reply), "7.015");
}

// 144.025 MHz must not be logged as 44.025.
TEST(DigitReply, FrequenciesFrom100MHzAreRefused) {
    EXPECT_FALSE(kenwood.parse("FA00144025000;"));
    EXPECT_FALSE(elecraftK3.parse("FA00144025000;"));
    EXPECT_EQ(kenwood.parse("FA00050313000;"), "50.313");
}

TEST(K2Reply, TheTransmittingVfoIsRead) {
    EXPECT_EQ(elecraftK2.parse("FT1;FA00014025000;FB00007025000;MD3;"), "7.025");
    EXPECT_EQ(elecraftK2.parse("FT0;FA00014025000;FB00007025000;MD3;"), "14.025");
}

// The oldest radios of the list send four pairs only.
TEST(CivReply, FourPairsAreEnough) {
    EXPECT_EQ(icomCiv.parse(civHead + std::string("\x00\x50\x02\x14\xFD", 5)), "14.025");
}

TEST_F(CatLink, CivAddressesOutsideTheListAreLeftOut) {
    chooseRadio("IcomCiv");
    for (const char* address : {"None", "Hex 94", "Hex 6a", ""}) {
        module.settings.civAddress = address;
        EXPECT_EQ(icomCiv.query(module.settings), "\xFE\xFE\xE0\x03\xFD") << address;
    }
    module.settings.civAddress = "Hex 04";
    EXPECT_EQ(icomCiv.query(module.settings), "\xFE\xFE\x04\xE0\x03\xFD");
}

TEST_F(CatLink, CivTrafficBeforeTheQueryIsDiscarded) {
    chooseRadio("IcomCiv");
    const Radio& radio = radioNamed("IcomCiv");
    port.noise = std::string("\xFE\xFE\x00\x6A\x00\x00\x50\x02\x14\x00\xFD", 11);
    port.answers = {{radio.query, radio.reply(7'025'000)}};
    EXPECT_EQ(read().outcome, ReadOutcome::read);
    EXPECT_EQ(module.frequency, "7.025");
}

TEST_F(CatLink, OrionIsAskedAgainUntilItAnswers) {
    chooseRadio("TenTecAscii");
    const Radio& radio = radioNamed("TenTecAscii");
    port.answers = {{radio.query, ""},
                    {radio.query, "@AF140"}, // cut off by the time-out, and dropped
                    {radio.query, radio.reply(14'025'000)}};
    EXPECT_EQ(read().outcome, ReadOutcome::read);
    EXPECT_EQ(module.frequency, "14.025");
    EXPECT_EQ(port.opened.size(), 3u);
}

// The bad reply is kept, so the good ones behind it do not count: no more waiting either.
TEST_F(CatLink, OrionWithABadFirstReplyFailsAllAttempts) {
    chooseRadio("TenTecAscii");
    const Radio& radio = radioNamed("TenTecAscii");
    port.answers = {{radio.query, "#AF14025000\r"}};
    for (int attempt = 2; attempt <= radio.queries; ++attempt)
        port.answers.push_back({radio.query, radio.reply(14'025'000)});
    expectFailure(read(), radio.noReplyText);
    EXPECT_EQ(port.sent.size(), 5u);
    EXPECT_EQ(port.waits, 1);
}

// --- Choosing the family, telling the operator -----------------------------------------------

TEST_F(CatLink, WithoutRigOrPortNothingIsSent) {
    chooseRadio("Kenwood");
    for (std::string OperatingSettings::*missing :
         {&OperatingSettings::rig, &OperatingSettings::comPort}) {
        module.settings = settingsFor(radioNamed("Kenwood"));
        module.settings.*missing = "None";
        EXPECT_EQ(read().outcome, ReadOutcome::noRadio);
    }
    EXPECT_TRUE(port.opened.empty());
    EXPECT_EQ(autoReadText(ReadOutcome::noRadio), "AUTO READ OFF");
}

TEST_F(CatLink, RigsOfNoFamilyAreNotRead) {
    chooseRadio("YaesuAscii");
    for (const char* rig : {"FTdx5000", "FTdx3000", "ft-950", "IC-910", "TS-2000X"}) {
        module.settings.rig = rig;
        EXPECT_EQ(read().outcome, ReadOutcome::noReader) << rig;
    }
    EXPECT_TRUE(port.opened.empty());
    EXPECT_EQ(autoReadText(ReadOutcome::noReader), "AUTO READ ON ");
}

TEST(Models, HaveTheirFamily) {
    EXPECT_EQ(familyOf("Orion"), &tenTecAscii);
    EXPECT_EQ(familyOf("Jupiter"), &tenTecBinary);
    EXPECT_EQ(familyOf("K-3"), &elecraftK3);
    EXPECT_EQ(familyOf("K-2"), &elecraftK2);
    EXPECT_EQ(familyOf("FT-1000MP"), &yaesuBinary);
    for (const char* rig : {"IC-7800", "IC-781", "IC-735", "IC-718", "IC-706MKIIG", "IC-703"})
        EXPECT_EQ(familyOf(rig), &icomCiv) << rig;
    for (const char* rig : {"FTdx-5000", "FTdx-3000", "FT-2000", "FT-950", "FT-450"})
        EXPECT_EQ(familyOf(rig), &yaesuAscii) << rig;
    for (const char* rig : {"TS-990S", "TS-590S", "TS-480S", "TS-2000"})
        EXPECT_EQ(familyOf(rig), &kenwood) << rig;
}

TEST_F(CatLink, NoGoodReplyFromKenwoodAndYaesuIsTheirErrorText) {
    const std::string expected =
        "                       AN ERROR HAS OCCURED: Invalid procedure call or argument";
    for (const char* name : {"Kenwood", "YaesuAscii"}) {
        chooseRadio(name);
        EXPECT_EQ(read().message.informative, expected) << name;
        port = {};
    }
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
        chooseRadio(row.radio);
        port.refusal = SerialPortError(row.reason, "why");
        const ReadResult result = read();
        expectFailure(result, row.text);
        EXPECT_EQ(result.message.informative, row.informative);
    }
}

} // namespace
} // namespace vantrel::test
