// SPDX-License-Identifier: MIT
// The start page: contest, operator, log file, radio; START saves them and opens the log.
#pragma once

#include "forms/form.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vantrel {

class frmVantrelStart : public Form, public StartPage, public PathReceiver {
    Q_OBJECT

public:
    explicit frmVantrelStart(const FormContext& context);

    std::string logFileName() const override;
    void setLogFileName(const std::string& name) override;
    std::string myCall() const override;
    std::string gmtOffset() const override;
    void receivePath(const std::string& path) override;
    bool loadsAgain() const override { return true; }

protected:
    void load() override;
    void escapePressed() override {}
    QWidget* firstFocus() override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createControls();
    void layOut();
    QLayout* contestBox();
    QLayout* operatorBox();
    QLayout* fileBox();
    QLayout* radioBox();
    void connectHandlers();

    // In the order in which the operator meets them.
    void Option1_Click(); // SKS, and so on: the code goes into the contest name
    void Option2_Click();
    void Option3_Click();
    void Option4_Click();  // K3Y: asks for the call area
    void Command4_Click(); // default file name
    void Command3_Click(); // browse
    void Combo7_Change();  // start a new file
    void Combo5_Change();  // GMT offset: the time shown follows
    void Combo2_Change();  // port: its device follows
    void Command6_Click(); // clear the bonus station
    void Command5_Click(); // update the database
    void Command2_Click(); // START

    OperatingSettings pageSettings() const;
    std::string contestCode() const;
    void chooseContest(std::string_view code);
    void upperCaseBoxes();
    void startNewFile();
    void openMainPage();

    QRadioButton* Option1; // SKS
    QRadioButton* Option2; // SKSE
    QRadioButton* Option3; // WES
    QRadioButton* Option4; // K3Y
    QLineEdit* Text1;      // contest name
    QLineEdit* Text2;      // my call
    QLineEdit* Text6;      // my name
    QLineEdit* Text7;      // my state
    QLineEdit* Text8;      // my SKCC number
    QComboBox* Combo5;     // GMT offset
    QLabel* Label12;       // UTC time and date
    QLineEdit* Text9;      // log file name
    QPushButton* Command4; // default file name
    QPushButton* Command3; // browse
    QComboBox* Combo7;     // start a new file: NO, YES
    QLabel* Label14;       // what became of an old log
    QComboBox* Combo6;     // log dupes: NO, YES
    QLineEdit* Text10;     // bonus station
    QPushButton* Command6; // clear the bonus station
    QComboBox* Combo1;     // rig
    QComboBox* Combo2;     // COM port
    QLabel* Label13;       // the device that the port stands for now
    QComboBox* Combo3;     // baud
    QComboBox* Combo4;     // CI-V address
    QPushButton* Command5; // update the database
    QPushButton* Command2; // START
    QPushButton* Command1; // exit
};

} // namespace vantrel
