// SPDX-License-Identifier: MIT
// The claimed score of the log, printed on request, with a picture of the contest's hours.
#pragma once

#include "forms/form.h"
#include "output/score/score.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

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
    QGridLayout* figures();
    void connectHandlers();

    void Command2_Click(); // print

    void showLabels();
    void showScore();
    void showPicture();

    QLineEdit* Text1;      // QSOs
    QLineEdit* Text2;      // S/P/Cs, or DXCC countries
    QLineEdit* Text3;      // Centurions
    QLineEdit* Text4;      // Tribunes
    QLineEdit* Text9;      // Senators
    QLineEdit* Text8;      // bonus-station QSOs
    QLineEdit* Text5;      // K9SKC QSOs, or regular members worked
    QLineEdit* Text6;      // total bonus points
    QLineEdit* Text7;      // TOTAL SCORE
    QLabel* Label1;        // log file
    QLabel* Label4;        // caption of Text2
    QLabel* Label7;        // caption of Text5
    QLabel* Label13;       // dupes logged or not
    QLabel* Label14;       // but not counted
    QPushButton* Command2; // print
    QPushButton* Command1; // exit

    StackedBars* m_picture; // contacts per hour by band
    Score m_score;          // as shown
};

} // namespace vantrel
