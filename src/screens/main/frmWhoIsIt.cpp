// SPDX-License-Identifier: MIT
#include "screens/main/frmWhoIsIt.h"

#include "base/fixedtext.h"
#include "forms/formbuilder.h"
#include "forms/markedlabel.h"
#include "platform/qt/latin1.h"
#include "roster/rosterlookup.h"
#include "screens/main/dupecheck.h"
#include "screens/main/frmSuggestionList.h"
#include "screens/main/workedbefore.h"

#include <QHBoxLayout>

namespace vantrel {

namespace {

constexpr double enlargement = 1.1;
constexpr int workedColumns = 80;
constexpr std::size_t mostMembers = 12;
constexpr int fewestTyped = 2;

} // namespace

WhoIsIt::WhoIsIt(QWidget* page) : QWidget(page) {
    m_workedLabel = FormBuilder::named(new MarkedLabel(this), "Label24");
    m_workedLabel->setTextFormat(Qt::PlainText);
    m_workedLabel->setFont(enlargedFont(this, enlargement, false));
    m_suggestions = FormBuilder::named(new SuggestionList(this), "List2",
                                       "MEMBERS LIKE THE CALL - DOWN AND ENTER TAKES ONE");
    m_workedLabel->setFixedHeight(m_suggestions->height());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_workedLabel);
    row->addWidget(m_suggestions, 1);
}

void WhoIsIt::showWorked(const Contacts& contacts, std::string_view typed,
                         std::string_view bandTag) {
    std::vector<MarkedLabel::Run> runs;
    for (const WorkedCall& call : workedBefore(contacts, typed, bandTag, workedColumns)) {
        const bool joins = runs.empty() || call.text == moreWorked;
        runs.push_back({toQt((joins ? "" : "  ") + call.text), call.dupe});
    }
    m_workedLabel->setRuns(std::move(runs));
}

void WhoIsIt::showMembers(Roster& roster, const Contacts& contacts, std::string_view typed,
                          std::string_view bandTag) {
    std::vector<SuggestionList::Line> shown;
    if (length(typed) >= fewestTyped)
        for (const Member& member : roster.membersLike(typed, mostMembers)) {
            const std::string call(trim(member.call));
            std::string text = call;
            for (const std::string& field : {member.name, member.state, member.number})
                text += ' ' + std::string(trim(field));
            const bool dupe = !duplicateOf(contacts, call + ' ', bandTag).empty();
            shown.push_back({call, text, dupe});
        }
    m_suggestions->setLines(shown);
}

} // namespace vantrel
