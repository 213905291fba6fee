// SPDX-License-Identifier: MIT
// The backup screen: a copy of the log into a folder that the operator names.
#pragma once

#include "forms/page.h"

namespace vantrel {

class frmVantrelBackup : public Form, public PathReceiver {
public:
    explicit frmVantrelBackup(const FormContext& context);

    void receivePath(const std::string& path) override;
    // The log may have become another one while another page was in front.
    void bringToFront() override;

protected:
    void load() override;

private:
    void backUp();

    void showLog();
    void showCopyThere();

    QLineEdit* m_folderBox;
    QPushButton* m_backupButton;
    QLabel* m_logPath;
    AlertLabel* m_status;
    QLabel* m_copy; // there already, or what was written
};

} // namespace vantrel
