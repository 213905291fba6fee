// SPDX-License-Identifier: MIT
// What a test can make where files have owners and entries of a folder need be no files.
#pragma once

#include <filesystem>

namespace vantrel::test {

inline constexpr unsigned nobody = 65534;

// A pipe "PIPE", and links that lead nowhere: "LOOP" and "DANGLING". False where there is nothing
// of the kind.
bool makePipeAndLinks(const std::filesystem::path& folder);

// Whether the test is the administrator of a system that knows owners.
bool mayGiveFilesAway();
void give(const std::filesystem::path& path, unsigned owner);

// The test is nobody while this lives.
class AsNobody {
public:
    AsNobody();
    ~AsNobody();
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
};

} // namespace vantrel::test
