// SPDX-License-Identifier: MIT
// The tour's upkeep of the contest log: roster import, correction, deletion, editor, backup.
#pragma once

namespace vantrel::test {

class Stage;

// With the contest's log on the main page: imports a member, corrects a name and undoes it,
// deletes a contact, edits a report, backs the log up and finds its folder in the finder.
void playUpkeep(Stage& stage);

} // namespace vantrel::test
