// SPDX-License-Identifier: MIT
// Who that may be, while he is being typed: calls worked on the left, members on the right, in
// one line that keeps its height.
#pragma once

#include "log/log.h"

#include <QWidget>

#include <string>
#include <string_view>

namespace vantrel {

class MarkedLabel;
class Roster;
class SuggestionList;

class WhoIsIt : public QWidget {
    Q_OBJECT

public:
    explicit WhoIsIt(QWidget* page);

    // In red who would be a duplicate on the band of the tag.
    void showWorked(const Contacts& contacts, std::string_view typed, std::string_view bandTag);
    // Throws as Roster::membersLike.
    void showMembers(Roster& roster, const Contacts& contacts, std::string_view typed,
                     std::string_view bandTag);

    SuggestionList* suggestions() { return m_suggestions; }

private:
    MarkedLabel* m_workedLabel;
    SuggestionList* m_suggestions;
};

} // namespace vantrel
