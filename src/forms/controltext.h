// SPDX-License-Identifier: MIT
// Text into and out of controls as the rules have it (ISO 8859-1), so that no form converts any.
#pragma once

#include "platform/qt/latin1.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <string>
#include <string_view>

namespace vantrel {

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
