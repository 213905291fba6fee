// SPDX-License-Identifier: MIT
#include "output/score/scoretext.h"

#include "log/qsoline.h"

#include <algorithm>

namespace vantrel {

namespace {

// The labels of a sprint and of the European one.
// "Tribumes": the manager who reads printed reports knows them by that spelling.
constexpr struct {
    std::string_view sprint;
    std::string_view european;
    Score::Figure Score::*figure;
} reportLines[] = {
    {"       Number of QSOs: ", "            Number of QSOs: ", &Score::qsos},
    {"     Number of S/P/Cs: ", "  Number of DXCC Countries: ", &Score::multipliers},
    {" Number of Centurions: ", "      Number of Centurions: ", &Score::centurions},
    {"   Number of Tribumes: ", "        Number of Tribumes: ", &Score::tribunes},
    {"   Number of Senators: ", "        Number of Senators: ", &Score::senators},
    {"Number Bonus Stn QSOs: ", "  Number of Bonus Stn QSOs: ", &Score::bonusStationQsos},
    {" Number of K9SKC QSOs: ", "    Regular Members Worked: ", &Score::contestFigure},
    {"   Total Bonus Points: ", "        Total Bonus Points: ", &Score::bonusPoints},
    {"         TOTAL SCORE: ", "               TOTAL SCORE: ", &Score::total},
};

constexpr std::size_t paperColumns = 72; // of 12 points, on the narrower of the two papers

struct Gain {
    Score::Figure Score::*figure;
    const char* brief;
    const char* word;
};
constexpr Gain awardGains[] = {{&Score::centurions, "+5", " CENTURION"},
                               {&Score::tribunes, "+10", " TRIBUNE"},
                               {&Score::senators, "+15", " SENATOR"},
                               {&Score::bonusStationQsos, "+25", " BONUS STATION"}};
constexpr Gain sprintGain{&Score::contestFigure, "+25", " K9SKC"};
constexpr Gain europeanGain{&Score::membersPoints, "+1", " MEMBER"};

std::string grown(const Score& before, const Score& after, GainText text) {
    const bool full = text == GainText::full;
    std::string grown;
    const auto add = [&](const Gain& gain) {
        if (after.*gain.figure > before.*gain.figure)
            grown.append(grown.empty() ? ""
                         : full        ? "  "
                                       : " ")
                .append(gain.brief)
                .append(full ? gain.word : "");
    };
    add({&Score::multipliers, after.european ? "NEW COUNTRY" : "NEW S/P/C", ""});
    std::ranges::for_each(awardGains, add);
    add(after.european ? europeanGain : sprintGain);
    return grown;
}

std::string sum(const Score& score, const char* qsos, const char* multipliers) {
    return score.qsos->text() + qsos + " x " + score.multipliers->text() + multipliers + " + " +
           score.bonusPoints->text();
}

} // namespace

std::string figureText(const Score::Figure& figure) {
    return figure ? figure->text() : std::string();
}

std::string totalText(const Score& score) {
    return score.total ? sum(score, "", "") : std::string();
}

std::string scoreSum(const Score& score) {
    return score.total ? sum(score, " QSOs", score.european ? " DXCC" : " S/P/C") : "SEE SCORE";
}

std::string scoreGain(const ScoreTally& tally, std::string_view contact, GainText text) {
    ScoreTally more(tally);
    more.add(contact);
    const Score before = tally.score();
    const Score after = more.score();
    if (before.stoppedBy || after.stoppedBy)
        return {};
    const std::string gain = grown(before, after, text);
    if (!isDupe(contact))
        return gain;
    return gain.empty() ? "DUPE: +0" : "DUPE  " + gain;
}

std::vector<std::string> scoreReport(const Score& score, std::string_view logPath) {
    std::vector<std::string> lines{"", "", std::string(logPath), ""};
    for (const auto& [sprint, european, figure] : reportLines)
        lines.push_back(std::string(score.european ? european : sprint) +
                        figureText(score.*figure));
    lines.insert(lines.end() - 1, ""); // above the total
    return lines;
}

std::vector<std::string> wrappedForPaper(const std::vector<std::string>& lines) {
    std::vector<std::string> wrapped;
    for (std::string_view rest : lines) {
        while (rest.size() > paperColumns) {
            const std::size_t separator = rest.substr(0, paperColumns).find_last_of("/\\");
            const std::size_t cut =
                separator == std::string_view::npos ? paperColumns : separator + 1;
            wrapped.emplace_back(rest.substr(0, cut));
            rest.remove_prefix(cut);
        }
        wrapped.emplace_back(rest);
    }
    return wrapped;
}

} // namespace vantrel
