// SPDX-License-Identifier: MIT
// What makes a screen reader speak, which is another thing on each kind of machine.
#pragma once

class QLabel;

namespace vantrel {

// The reader says the text of `notification`, a hidden label in `alert`.
void notifyReader(QLabel* alert, QLabel* notification);

} // namespace vantrel
