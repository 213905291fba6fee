// SPDX-License-Identifier: MIT
// The tour's end of a contest: score, ADIF files, print, lists.
#pragma once

namespace vantrel::test {

class Stage;

// From the main page on the sprint's finished log: looks at the score and the bonus count and
// runs the jobs of the file screen.
void playAfterContest(Stage& stage);

} // namespace vantrel::test
