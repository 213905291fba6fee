// SPDX-License-Identifier: MIT
// From names without case to real files. The rules' names are ISO 8859-1; the machine's are
// UTF-8.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace vantrel {

// ISO 8859-1 to UTF-8.
std::string nativeText(std::string_view latin1);
// UTF-8 to ISO 8859-1; nothing when a character is outside it or the bytes are no UTF-8.
std::optional<std::string> latin1Text(std::string_view native);
// The same for showing: `?` for whatever does not fit.
std::string shownText(std::string_view native);

// A real path for std::filesystem, which would take bytes for text in the user's own code page on
// Windows. What it gives back as string() is UTF-8 everywhere.
inline std::filesystem::path pathOf(std::string_view native) {
    return std::u8string(native.begin(), native.end());
}

// The real path that `name` stands for: relative to `folder` (a real path) unless it begins
// with `/`; `\` and `/` both separate, doubled ones count once; each part is matched exactly
// first, then without regard to case; a part that matches nothing stays as given. Throws
// RuntimeError 75 naming both when a part matches two entries and neither exactly.
std::string resolveName(const std::string& folder, std::string_view name);

// All entries of a folder, hidden ones too, in no order; those met before `error` if it could
// not be read to the end.
std::vector<std::filesystem::directory_entry> entriesOf(const std::filesystem::path& folder,
                                                        std::error_code& error);

} // namespace vantrel
