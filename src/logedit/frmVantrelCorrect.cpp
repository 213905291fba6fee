// SPDX-License-Identifier: MIT
#include "logedit/frmVantrelCorrect.h"

#include <QScopeGuard>

namespace vantrel {

frmVantrelCorrect::frmVantrelCorrect(const FormContext& context)
    : frmLogPage(context, "frmVantrelCorrect", "CORRECTION PAGE") {
    FormBuilder build(this);
    makeBoxes(correctionFields);
    QLineEdit* callBox = boxes().front();
    // Once something is typed in it, it holds no search key any more but the contact's call.
    connectHandler(callBox, &QLineEdit::textEdited, [this] {
        if (log().found())
            unchanged().front() = trim(qso::hisCall.of(log().line()));
    });
    page(this, {build.heading("", "MAKE CORRECTIONS", headingEnlargement),
                searchRow(correctionFields.front().label, callBox,
                          "CLICK HERE TO FIND ADDITIONAL ENTRIES"),
                {row({build.section("CONTACT", fieldRows(1, boxes().size())),
                      {matchesSection("Label13"), 1}}),
                 1},
                messageRows("Label11", "Label12"),
                changeButtons("&SAVE CHANGES", "SAVE WITH CHANGES", "EXIT THIS ROUTINE")});
}

// What is searched for, even in vain, is no correction of the call that is found already.
void frmVantrelCorrect::searchStarts(const std::string& key) {
    unchanged().front() = key;
    setStatus("");
}

void frmVantrelCorrect::change() {
    if (!keepsFindable(unchanged(), typed())) {
        messages().show({"A CALL NEEDS AT LEAST THREE CHARACTERS", BoxIcon::exclamation});
        return;
    }
    const Correction correction = corrected(log().line(), unchanged(), typed());
    const ChangeResult result = rewritten(correction.line);
    if (!publish(result))
        return;
    showBoxes(correction.boxes);
    finish(" Done....Click EXIT ", result,
           {correction.cut.empty() ? "" : "CUT TO WIDTH: " + correction.cut,
            correction.wrong.empty() ? "" : "LOOKS WRONG: " + correction.wrong});
}

ChangeResult frmVantrelCorrect::rewritten(const std::string& line) {
    setStatus("    < WORKING >     ");
    const QScopeGuard atWorkNoMore([this] { setStatus(""); });
    return log().replaceLine(line);
}

std::string frmVantrelCorrect::placeText(int place, int count) const {
    return "FOUND: " + std::string(trim(qso::hisCall.of(log().line()))) + ", " +
           frmLogPage::placeText(place, count);
}

} // namespace vantrel
