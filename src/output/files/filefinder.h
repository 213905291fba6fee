// SPDX-License-Identifier: MIT
// The file finder's state: the current folder, its content, and the path that is handed back.
#pragma once

#include "platform/folders.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vantrel {

class Files;

// What the names are for. As a log's name, one with a comma, a quote or a blank at its end is not
// offered: the configuration file cannot hold it, so START would open another file or none.
enum class FinderNames { anywhere, asLog };

// Texts are ISO 8859-1, as shown; indexes count from 0 in the list of that name. Files and folders
// whose names have other characters cannot be handed back and are not listed.
class FileFinder {
public:
    // Starts in the program folder. Throws as contentOf.
    explicit FileFinder(const Files& files, FinderNames names = FinderNames::anywhere);

    std::vector<std::string> drives() const;
    // Index of the drive on which the current folder lies.
    std::size_t currentDrive() const;
    // ".." first, except at the top.
    std::vector<std::string> folders() const;
    std::vector<std::string> files() const;

    // Both change the current folder and clear the file chosen. Throw as contentOf; folder
    // and choice are then as before.
    void openDrive(std::size_t index) { moveTo(m_drives.at(index)); }
    void enterFolder(std::size_t index);
    void chooseFile(std::size_t index) { m_chosen = m_content.files.at(index); }

    // The current folder and the file chosen in it, if any: what is shown and handed back. The
    // folder ends with the separator and is in upper case where that still leads to it.
    std::string selection() const;

private:
    void moveTo(const std::string& folder);
    void leaveOutUnsayable(std::vector<std::string>& names) const;

    const Files& m_files;
    FinderNames m_names;
    std::vector<std::string> m_drives; // this and the rest: real paths and names
    std::string m_folder;
    FolderContent m_content;
    std::string m_folderText; // as shown
    std::string m_chosen;     // a file's name; empty: none
};

} // namespace vantrel
