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

class Folders {
public:
    virtual ~Folders() = default;
    // Where volumes are mounted: "/" first, then the others sorted.
    virtual std::vector<std::string> drives() const = 0;
    // Throws RuntimeError 70 when the folder may not be read, 76 when there is none, 75 else.
    virtual FolderContent content(const std::string& folder) const = 0;
};

class SystemFolders : public Folders {
public:
    // mountTable: where the system lists what is mounted.
    explicit SystemFolders(std::string mountTable = "/proc/self/mounts");
    std::vector<std::string> drives() const override;
    FolderContent content(const std::string& folder) const override;

private:
    std::string m_mountTable;
};

} // namespace vantrel
