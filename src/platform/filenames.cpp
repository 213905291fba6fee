// SPDX-License-Identifier: MIT
#include "platform/filenames.h"

#include "base/fixedtext.h"
#include "base/runtimeerror.h"
#include "platform/machine.h"

#include <algorithm>

namespace vantrel {

namespace fs = std::filesystem;

namespace {

bool isSeparator(char character) {
    return character == '/' || character == '\\';
}

std::vector<std::string_view> partsOf(std::string_view name) {
    std::vector<std::string_view> parts;
    while (!name.empty()) {
        const auto* const end = std::ranges::find_if(name, isSeparator);
        const auto size = static_cast<std::size_t>(end - name.begin());
        if (size > 0)
            parts.push_back(name.substr(0, size));
        name.remove_prefix(std::min(size + 1, name.size()));
    }
    return parts;
}

bool matchesWithoutCase(const fs::path& entry, std::string_view part) {
    const std::optional<std::string> entryName = latin1Text(entry.filename().string());
    return entryName && upper(*entryName) == upper(part);
}

fs::path matchPart(const fs::path& folder, std::string_view part) {
    requireFileName(part);
    std::error_code error;
    const fs::path exact = folder / pathOf(nativeText(part));
    if (fs::exists(fs::symlink_status(exact, error)))
        return asOnDisk(exact);
    fs::path found;
    for (const fs::path& entry : entriesOf(folder, error)) {
        if (!matchesWithoutCase(entry, part))
            continue;
        if (!found.empty())
            throw RuntimeError(ErrorCode::pathFileAccess, shownText(exact.string()) + " could be " +
                                                              shownText(found.string()) + " or " +
                                                              shownText(entry.string()));
        found = entry;
    }
    return found.empty() ? exact : found;
}

} // namespace

std::string nativeText(std::string_view latin1) {
    std::string result;
    for (const char character : latin1) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            result += character;
        } else {
            result += static_cast<char>(0xC0 | (byte >> 6));
            result += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return result;
}

std::optional<std::string> latin1Text(std::string_view native) {
    std::string result;
    for (std::size_t i = 0; i < native.size(); ++i) {
        const auto byte = static_cast<unsigned char>(native[i]);
        if (byte < 0x80) {
            result += native[i];
            continue;
        }
        // Two bytes led by C2 or C3 are the only UTF-8 forms of an ISO 8859-1 character.
        const bool two = (byte == 0xC2 || byte == 0xC3) && i + 1 < native.size() &&
                         (static_cast<unsigned char>(native[i + 1]) & 0xC0) == 0x80;
        if (!two)
            return std::nullopt;
        ++i;
        result += static_cast<char>(((byte & 0x03) << 6) |
                                    (static_cast<unsigned char>(native[i]) & 0x3F));
    }
    return result;
}

std::string shownText(std::string_view native) {
    std::string result;
    for (std::size_t i = 0; i < native.size();) {
        std::size_t next = i + 1;
        while (next < native.size() && (static_cast<unsigned char>(native[next]) & 0xC0) == 0x80)
            ++next;
        result += latin1Text(native.substr(i, next - i)).value_or("?");
        i = next;
    }
    return result;
}

std::string resolveName(const std::string& folder, std::string_view name) {
    const std::string_view root = rootOf(name);
    fs::path current = pathOf(folder);
    if (root.size() == 1)
        current = current.root_path(); // on Windows the folder's drive
    else if (!root.empty())
        current = pathOf(nativeText(root)).make_preferred();
    for (const std::string_view part : partsOf(name.substr(root.size())))
        current = matchPart(current, part);
    return current.string();
}

std::vector<fs::directory_entry> entriesOf(const fs::path& folder, std::error_code& error) {
    std::vector<fs::directory_entry> entries;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        entries.push_back(*entry);
    return entries;
}

} // namespace vantrel
