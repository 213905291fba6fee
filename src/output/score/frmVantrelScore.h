// SPDX-License-Identifier: MIT
// The claimed score of the log, printed or copied on request, with its bands and hours.
#pragma once

#include "forms/page.h"
#include "output/score/score.h"

#include <utility>

namespace vantrel {

class ReadTable;
class StackedBars;

class frmVantrelScore : public Form {
public:
    explicit frmVantrelScore(const FormContext& context);

    // Opened again it computes again.
    bool loadsAgain() const override { return true; }

protected:
    void load() override;

private:
    QFormLayout* figures();
    QLayout* total();

    void print();
    void copyToClipboard();

    void showLabels();
    void showScore();
    void showBands();
    void showPicture();
    std::vector<std::string> report() const;

    std::vector<std::pair<QLineEdit*, Score::Figure Score::*>> m_figures;
    QLineEdit* m_total;
    AlertLabel* m_sum; // what the total is the sum of
    QLabel* m_copied;
    QLabel* m_logPath;
    QLabel* m_multiplierCaption;
    QLabel* m_contestFigureCaption;
    QLabel* m_dupesLogged;
    QLabel* m_dupesNotCounted;
    ReadTable* m_bands;
    StackedBars* m_picture;
    Score m_score; // as shown
};

} // namespace vantrel
