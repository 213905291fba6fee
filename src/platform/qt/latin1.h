// SPDX-License-Identifier: MIT
// The one place where text crosses between the forms (QString) and the rules (ISO 8859-1).
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

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

// Text into and out of controls, so that no form converts any.
template <typename Control>
void put(Control* control, std::string_view text) {
    control->setText(toQt(text));
}
inline std::string textOf(const QLabel* label) {
    return fromQt(label->text());
}
inline std::string textOf(const QLineEdit* box) {
    return fromQt(box->text());
}
inline std::string textOf(const QComboBox* box) {
    return fromQt(box->currentText());
}

} // namespace vantrel
