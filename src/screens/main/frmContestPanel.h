// SPDX-License-Identifier: MIT
// What the main page shows of the contest while it runs: score, rate, bands.
#pragma once

#include "screens/main/bandtable.h"
#include "screens/main/pace.h"

#include <QWidget>

#include <string_view>

class QLabel;
class QTableWidget;

namespace vantrel {

class PaceBars;

class ContestPanel : public QWidget {
    Q_OBJECT

public:
    explicit ContestPanel(QWidget* page);

    void showScore(std::string_view total, std::string_view sum);
    void showPace(const Pace& pace);
    void showBands(const BandTable& table);

private:
    QLabel* m_totalLabel;
    QLabel* m_sumLabel;
    QLabel* m_rateLabel;
    QLabel* m_lastLabel;
    PaceBars* m_bars;
    QTableWidget* m_bandTable;
};

} // namespace vantrel
