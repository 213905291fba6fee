// SPDX-License-Identifier: MIT
// What the main page shows of the contest while it runs: score, rate, bands.
#pragma once

#include "output/score/score.h"
#include "screens/main/bandtable.h"
#include "screens/main/pace.h"

#include <QWidget>

#include <string_view>

class QLabel;
class QTableWidget;

namespace vantrel {

class PaceBars;
struct OperatingSettings;
struct UtcTime;

class ContestPanel : public QWidget {
    Q_OBJECT

public:
    explicit ContestPanel(QWidget* page);

    // Score and pace of the log as it stands now.
    void followLog(const Contacts& contacts, const OperatingSettings& settings);
    // The pace as of this minute.
    void followClock(const UtcTime& utc);
    void showBands(const BandTable& table);
    // Of the sprint; as followLog() found it.
    const Score& score() const { return m_score; }

private:
    void showBand(int row, const BandRow& band);
    void showScore(std::string_view total, std::string_view sum);

    QLabel* m_totalLabel;
    QLabel* m_sumLabel;
    QLabel* m_rateLabel;
    QLabel* m_lastLabel;
    PaceBars* m_bars;
    QTableWidget* m_bandTable;

    Score m_score;
    std::vector<Moment> m_moments;   // of the contacts
    std::optional<Moment> m_shownAt; // the minute whose pace is shown
};

} // namespace vantrel
