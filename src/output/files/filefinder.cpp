// SPDX-License-Identifier: MIT
#include "output/files/filefinder.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/filenames.h"
#include "platform/files.h"

#include <algorithm>

namespace vantrel {

namespace {

const std::string upwards = "..";

// An empty name gives the folder with the separator behind it.
std::string inside(const std::string& folder, const std::string& name) {
    return (pathOf(folder) / pathOf(name)).string();
}

// Whether the name can be handed back: it is ISO 8859-1 and has no `\`, which would separate.
bool canBeNamed(const std::string& name, FinderNames names) {
    const auto said = latin1Text(name);
    if (!said || name.find('\\') != std::string::npos)
        return false;
    return names == FinderNames::anywhere ||
           (withoutSeparatorsAndQuotes(*said) == *said && trimRight(*said) == *said);
}

std::vector<std::string> shown(const std::vector<std::string>& names) {
    std::vector<std::string> texts;
    std::ranges::transform(names, std::back_inserter(texts), shownText);
    return texts;
}

// The folder in upper case where that still leads to it, otherwise in its true case.
std::string folderText(const Files& files, const std::string& folder) {
    const std::string text = inside(shownText(folder), "");
    try {
        if (files.nativePath(upper(text)) == folder)
            return upper(text);
    } catch (const RuntimeError&) {
    }
    return text;
}

} // namespace

FileFinder::FileFinder(const Files& files, FinderNames names)
    : m_files(files), m_names(names), m_drives(vantrel::drives()) {
    leaveOutUnsayable(m_drives);
    moveTo(files.nativePath(""));
}

std::vector<std::string> FileFinder::drives() const {
    return shown(m_drives);
}

std::size_t FileFinder::currentDrive() const {
    std::size_t current = 0;
    for (std::size_t i = 0; i < m_drives.size(); ++i) {
        const bool holdsFolder = inside(m_folder, "").starts_with(inside(m_drives[i], ""));
        if (holdsFolder && m_drives[i].size() > m_drives[current].size())
            current = i;
    }
    return current;
}

std::vector<std::string> FileFinder::folders() const {
    return shown(m_content.folders);
}

std::vector<std::string> FileFinder::files() const {
    return shown(m_content.files);
}

void FileFinder::enterFolder(std::size_t index) {
    const std::string& name = m_content.folders.at(index);
    moveTo(name == upwards ? pathOf(m_folder).parent_path().string() : inside(m_folder, name));
}

std::string FileFinder::selection() const {
    return m_folderText + shownText(m_chosen);
}

void FileFinder::leaveOutUnsayable(std::vector<std::string>& names) const {
    std::erase_if(names, [this](const std::string& name) { return !canBeNamed(name, m_names); });
}

void FileFinder::moveTo(const std::string& folder) {
    FolderContent content = contentOf(folder);
    leaveOutUnsayable(content.folders);
    leaveOutUnsayable(content.files);
    if (pathOf(folder).has_relative_path())
        content.folders.insert(content.folders.begin(), upwards);
    m_folder = folder;
    m_content = std::move(content);
    m_folderText = folderText(m_files, folder);
    m_chosen.clear();
}

} // namespace vantrel
