// SPDX-License-Identifier: MIT
// The one place where text crosses between the forms (QString) and the rules (ISO 8859-1).
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace vantrel {

inline QString toQt(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// A character outside ISO 8859-1 becomes `?`.
inline std::string fromQt(const QString& text) {
    return text.toLatin1().toStdString();
}

} // namespace vantrel
