// SPDX-License-Identifier: MIT
// The call areas of the K3Y event and the log's name for each.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vantrel {

struct CallArea {
    std::string_view item; // as listed
    std::string_view code;
};

// In the list's order: area zero stands last of the numbered ones.
inline constexpr std::array<CallArea, 19> callAreas{{
    {"USA         01", "01"},   {"USA         02", "02"},    {"USA         03", "03"},
    {"USA         04", "04"},   {"USA         05", "05"},    {"USA         06", "06"},
    {"USA         07", "07"},   {"USA         08", "08"},    {"USA         09", "09"},
    {"USA         00", "00"},   {"KH6          KH", "KH"},   {"KL7           KL", "KL"},
    {"KP4           KP", "KP"}, {"N. AM (Not W)  NA", "NA"}, {"South AM   SA", "SA"},
    {"Europe       EU", "EU"},  {"Africa         AF", "AF"}, {"Asia            AS", "AS"},
    {"Oceania\t   OC", "OC"},
}};

// "2010-01-05-K3Y-03-W1ABC.CBR". utcDate as contacts carry it; the call in upper case, a `/` in
// it (it would name a folder) as `-`.
std::string k3yLogName(std::string_view utcDate, std::string_view code, std::string_view myCall);

} // namespace vantrel
