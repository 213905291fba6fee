// SPDX-License-Identifier: MIT
// What the file screen says beside its jobs: how the file of each is now.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantrel {

class Files;

inline constexpr std::string_view noSuchFileYet = "NO SUCH FILE YET";

// "145 MEMBERS" of roster file 1 to 5; of all five together. Throw as Files::read.
std::string membersText(const Files& files, std::size_t number);
std::string allMembersText(const Files& files);

// "SKS112126.ADI 1423": the last part of the name, and when it was written, by UTC; the date too
// when that was on another day than `utcToday` (as contacts carry it).
std::string writtenText(const Files& files, std::string_view name, std::string_view utcToday);

// "SKS112126.CBR 28 QSOS".
std::string logText(std::string_view name, int contacts);

} // namespace vantrel
