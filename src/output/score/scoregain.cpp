// SPDX-License-Identifier: MIT
#include "output/score/scoregain.h"

#include "log/qsoline.h"
#include "shared/settings.h"

namespace vantrel {

namespace {

struct Gain {
    Score::Figure Score::*figure;
    const char* text;
};

constexpr Gain sprintGains[] = {{&Score::multipliers, "NEW S/P/C"},
                                {&Score::centurions, "+5 CENTURION"},
                                {&Score::tribunes, "+10 TRIBUNE"},
                                {&Score::senators, "+15 SENATOR"},
                                {&Score::bonusStationQsos, "+25 BONUS STATION"},
                                {&Score::k9skcQsos, "+25 K9SKC"}};
constexpr Gain europeanGains[] = {{&Score::multipliers, "NEW COUNTRY"},
                                  {&Score::centurions, "+5 CENTURION"},
                                  {&Score::tribunes, "+10 TRIBUNE"},
                                  {&Score::senators, "+15 SENATOR"},
                                  {&Score::bonusStationQsos, "+25 BONUS STATION"},
                                  {&Score::membersPoints, "+1 MEMBER"}};

template <typename Gains>
std::string grown(const Gains& gains, const Score& before, const Score& after) {
    std::string text;
    for (const auto& [figure, gain] : gains)
        if (*(after.*figure) > *(before.*figure))
            text += (text.empty() ? "" : "  ") + std::string(gain);
    return text;
}

} // namespace

std::string scoreSum(const Score& score) {
    if (score.stoppedBy)
        return "SEE SCORE";
    return score.qsos->text() + " QSOs x " + score.multipliers->text() +
           (score.european ? " DXCC + " : " S/P/C + ") + score.bonusPoints->text();
}

std::string scoreGain(const Contacts& contacts, const Score& before, std::string_view contact,
                      const OperatingSettings& settings) {
    Contacts more(contacts);
    more.push_back(contact);
    const Score after = computeScore(more, settings);
    if (before.stoppedBy || after.stoppedBy)
        return {};
    const std::string gain =
        after.european ? grown(europeanGains, before, after) : grown(sprintGains, before, after);
    if (!isDupe(contact)) // the number of one that is by its call alone may be new
        return gain;
    return gain.empty() ? "DUPE: +0" : "DUPE  " + gain;
}

} // namespace vantrel
