// SPDX-License-Identifier: MIT
// What the main page shows of the contest while it runs: score, rate, bands.
#pragma once

#include "screens/main/rate.h"
#include "screens/main/workedcalls.h"

#include <QWidget>

#include <string_view>

class QLabel;

namespace vantrel {

class LogTally;
class ReadTable;
struct OperatingSettings;
struct UtcTime;

// The contacts of the last hour, a bar for five minutes; the five minutes that run now stand out.
class RateBars : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    void setRate(const Rate& rate);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    decltype(Rate::perFiveMinutes) m_contacts{};
};

class ContestPanel : public QWidget {
    Q_OBJECT

public:
    explicit ContestPanel(QWidget* parent);

    // Shows score and rate of the log; in the event, which has no score, the standings' total.
    void followLog(const Log& log, const OperatingSettings& settings, const LogTally& score);
    // Shows the rate at this minute.
    void followClock(const UtcTime& utc);
    void showBands(const BandTable& table);

private:
    void showScore(std::string_view total, std::string_view sum);

    QLabel* m_totalLabel;
    QLabel* m_sumLabel;
    QLabel* m_rateLabel;
    QLabel* m_lastLabel;
    RateBars* m_bars;
    ReadTable* m_bandTable;

    std::vector<UtcMinute> m_contactMinutes; // of the contacts
    std::optional<UtcMinute> m_shownAt;      // the minute whose rate is shown
};

} // namespace vantrel
