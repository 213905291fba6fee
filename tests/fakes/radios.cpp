// SPDX-License-Identifier: MIT
#include "fakes/radios.h"

namespace vantrel::test {

namespace {

std::string digits(long value, std::size_t count) {
    const std::string text = std::to_string(value);
    return std::string(count - text.size(), '0') + text;
}

std::string bytes(long value) {
    std::string result;
    for (int shift = 24; shift >= 0; shift -= 8)
        result += static_cast<char>((value >> shift) & 0xFF);
    return result;
}

std::string elevenDigits(long hertz) {
    return "FA" + digits(hertz, 11) + ";";
}

// Echo of the query, then the reply; two digits a byte, the lowest pair first.
std::string civ(long hertz) {
    std::string reply = "\xFE\xFE\x6A\xE0\x03\xFD\xFE\xFE\xE0\x6A\x03";
    for (int pair = 0; pair < 5; ++pair, hertz /= 100)
        reply += static_cast<char>(hertz % 100 / 10 * 16 + hertz % 10);
    return reply + '\xFD';
}

// What surrounds the frequency in a real block: flags, clarifier, mode.
std::string statusBlock(long hertz) {
    return '\x19' + bytes(hertz * 16 / 10) +
           std::string("\x00\x00\x01\x11\x00\x11\x80\x11\x11\x11\x00", 11);
}

} // namespace

const std::vector<Radio>& radios() {
    constexpr const char* catText = "ERROR READING FREQUENCY FROM THE CAT PORT";
    static const std::vector<Radio> all{
        {"TenTecAscii", "Orion", "None", "None", "57600,n,8,1", "?AF\r",
         [](long hertz) { return "@AF" + digits(hertz, 8) + "\r"; },
         "A File Error has Occured - The freq was not read", 5},
        {"TenTecBinary", "Omni7", "None", "None", "57600,n,8,1", "?A\r",
         [](long hertz) { return "A" + bytes(hertz) + "\r"; }, "COM Port not read"},
        {"ElecraftK3", "K-3", "9600", "None", "38400,n,8,2", "FA;", elevenDigits,
         " Com Port Not Read "},
        {"ElecraftK2", "K-2", "9600", "None", "4800,n,8,2", "FT;FA;FB;MD;",
         [](long hertz) { return "FT0;" + elevenDigits(hertz) + "FB00021050000;MD3;"; },
         " Com Port Not Read "},
        {"IcomCiv", "IC-7800", "1200", "Hex 6A", "1200,n,8,1", "\xFE\xFE\x6A\xE0\x03\xFD", civ,
         "COM PORT NOT READ"},
        {"YaesuAscii", "FT-950", "4800", "None", "4800,n,8,2", "FA;",
         [](long hertz) { return "FA" + digits(hertz, 8) + ";"; }, catText},
        {"YaesuBinary", "FT-1000MP", "4800", "None", "4800,n,8,2",
         std::string("\x00\x00\x00\x02\x10", 5), statusBlock, " THE COM PORT HAS NOT BEEN READ  "},
        {"Kenwood", "TS-2000", "57600", "None", "57600,n,8,1", "FA;", elevenDigits, catText},
    };
    return all;
}

const Radio& radioNamed(const std::string& name) {
    return *std::find_if(radios().begin(), radios().end(),
                         [&](const Radio& radio) { return radio.name == name; });
}

std::vector<std::string> straysOf(const Radio& radio) {
    using namespace std::string_literals;
    if (radio.query.ends_with(';')) // busy, a report nobody asked for, the tail of an answer
        return {"?;", "IF00014020000     -000000 0003000000 ;", "5000;", "\r\n", radio.query};
    if (radio.name == "IcomCiv") // the dial turned, another radio, a late answer, a tail
        return {"\xFE\xFE\x00\x6A\x00\x00\x00\x02\x14\x00\xFD"s,
                "\xFE\xFE\xE0\x58\x03\x00\x00\x02\x14\x00\xFD"s,
                "\xFE\xFE\xE0\x6A\x03\x00\x00\x02\x14\x00\xFD"s, "\x02\x14\x00\xFD"s, "\r\n"};
    if (radio.name == "TenTecBinary")
        return {"\r\n", "\x01\x02\r", radio.query};
    return {radio.name == "TenTecAscii" ? "\r\n" : radio.query};
}

OperatingSettings settingsFor(const Radio& radio) {
    OperatingSettings settings;
    settings.rig = radio.rig;
    settings.comPort = "com1";
    settings.baud = radio.baud;
    settings.civAddress = radio.civAddress;
    return settings;
}

} // namespace vantrel::test
