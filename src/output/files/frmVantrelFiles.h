// SPDX-License-Identifier: MIT
// The file screen: each option button runs its job at once, on each click.
#pragma once

#include "forms/form.h"

#include <array>
#include <cstddef>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vantrel {

class frmVantrelFiles : public Form {
    Q_OBJECT

public:
    explicit frmVantrelFiles(const FormContext& context);

protected:
    QWidget* firstFocus() override;

private:
    void createControls();
    void layOut();
    void connectHandlers();

    void Option1_Click(); // the roster files, and so on to Option5
    void Option2_Click();
    void Option3_Click();
    void Option4_Click();
    void Option5_Click();
    void Option6_Click();  // ADIF file
    void Option7_Click();  // list the ADIF file
    void Option8_Click();  // list the log
    void Option9_Click();  // log file editor
    void Option10_Click(); // start page
    void Option11_Click(); // roster update
    void Option12_Click(); // print the log
    void Option13_Click(); // sort the roster files
    void Option14_Click(); // ADIF file for other loggers

    void viewRosterFile(std::size_t number);
    void showAdifPath(const std::string& path);

    static constexpr std::size_t optionCount = 14;
    std::array<QRadioButton*, optionCount> m_options; // Option1 to Option14
    QLabel* Label5;                                   // "ADIF FILE CREATED AT:"
    QLineEdit* Text2;                                 // its full path
    QPushButton* Command1;                            // back to the main page
};

} // namespace vantrel
