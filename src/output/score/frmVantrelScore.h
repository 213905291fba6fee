// SPDX-License-Identifier: MIT
// The claimed score of the log, printed or copied on request, with its bands and hours.
#pragma once

#include "forms/form.h"
#include "output/score/score.h"

#include <string>
#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;
class QLayout;
class QPushButton;
class QTableWidget;

namespace vantrel {

class StackedBars;

class frmVantrelScore : public Form {
    Q_OBJECT

public:
    explicit frmVantrelScore(const FormContext& context);

    // Opened again it computes again.
    bool loadsAgain() const override { return true; }

protected:
    void load() override;
    QWidget* firstFocus() override;

private:
    void createControls();
    void layOut();
    QFormLayout* figures();
    QLayout* total();
    void connectHandlers();

    void printClicked();
    void copyClicked();

    void showLabels();
    void showScore();
    void showBands();
    void showPicture();
    std::vector<std::string> report() const;

    QLineEdit* m_qsos;
    QLineEdit* m_multipliers; // S/P/Cs, or DXCC countries
    QLineEdit* m_centurions;
    QLineEdit* m_tribunes;
    QLineEdit* m_senators;
    QLineEdit* m_bonusStationQsos;
    QLineEdit* m_contestFigure; // K9SKC QSOs, or regular members worked
    QLineEdit* m_bonusPoints;
    QLineEdit* m_total;
    QLabel* m_sum; // how the total comes about
    QLabel* m_copied;
    QLabel* m_logPath;
    QLabel* m_multiplierCaption;
    QLabel* m_contestFigureCaption;
    QLabel* m_dupesLogged;
    QLabel* m_dupesNotCounted;
    QPushButton* m_printButton;
    QPushButton* m_copyButton;
    QPushButton* m_exitButton;

    QTableWidget* m_bands;
    StackedBars* m_picture;
    Score m_score; // as shown
};

} // namespace vantrel
