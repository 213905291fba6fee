// SPDX-License-Identifier: MIT
// The backup screen: a copy of the log into a folder that the operator names.
#pragma once

#include "forms/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace vantrel {

class frmVantrelBackup : public Form, public PathReceiver {
    Q_OBJECT

public:
    explicit frmVantrelBackup(const FormContext& context);

    void receivePath(const std::string& path) override;

protected:
    void load() override;
    QWidget* firstFocus() override;

private:
    void layOut();
    void Command3_Click(); // browse
    void Command2_Click(); // backup, and Enter in the folder box

    QLabel* Label1;        // heading
    QLabel* Label4;        // caption of the log's path
    QLabel* Label5;        // the log's path
    QLabel* Label2;        // caption of the folder box
    QLineEdit* Text1;      // destination folder
    QPushButton* Command3; // browse
    QPushButton* Command2; // backup
    QPushButton* Command1; // exit
    QLabel* Label3;        // status
};

} // namespace vantrel
