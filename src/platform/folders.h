// SPDX-License-Identifier: MIT
// Looking into the machine's folders. All paths and names are real ones of the machine.
#pragma once

#include <string>
#include <vector>

namespace vantrel {

// Names in a folder, each list in the alphabet's order regardless of case; hidden ones are out.
struct FolderContent {
    std::vector<std::string> folders;
    std::vector<std::string> files; // regular files only
};

// Where volumes are mounted, sorted: "/" first.
std::vector<std::string> drives();
// Throws RuntimeError 70 when the folder may not be read, 76 when there is none, 75 else.
FolderContent contentOf(const std::string& folder);

} // namespace vantrel
