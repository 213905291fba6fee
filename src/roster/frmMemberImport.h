// SPDX-License-Identifier: MIT
// The two import screens, frmReadSKCCDATA and frmVantrelUpdate: one page in two editions.
#pragma once

#include "forms/form.h"
#include "roster/rosterimport.h"

#include <QElapsedTimer>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace vantrel {

// What differs between the two.
struct MemberImportPage {
    const char* name;
    const char* caption;
    MemberList list;
    std::string_view listFile; // what the path box is filled with, in the program folder
    const char* explanation;
    bool browses; // has Command3, which opens the finder
    const char* addTip;
};

extern const MemberImportPage dataImportPage;   // frmReadSKCCDATA
extern const MemberImportPage memberImportPage; // frmVantrelUpdate

class frmMemberImport : public Form, public PathReceiver {
    Q_OBJECT

public:
    frmMemberImport(const FormContext& context, const MemberImportPage& page);

    void receivePath(const std::string& path) override;

protected:
    void load() override;
    QWidget* firstFocus() override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createControls();
    void layOut();

    void Command3_Click(); // browse
    void Command2_Click(); // add members

    bool runImport();
    bool showStep(const ImportStep& step);
    void showResult(const ImportResult& result);
    void enableButtons(bool enabled);

    const MemberImportPage& m_page;
    QLineEdit* Text1;                // the list's path
    QPushButton* Command3 = nullptr; // browse
    QPushButton* Command2;           // add members
    QPushButton* Command1;           // exit
    QLabel* Label1;                  // phase
    QLabel* Label2;                  // running line number
    QLabel* Label3;                  // result
    QLabel* Label4 = nullptr;        // numbers fixed
    QLabel* Label5;                  // lines skipped
    QProgressBar* ProgressBar1;
    QElapsedTimer m_sinceShown;
    bool m_closed = false; // the import under way is given up
};

} // namespace vantrel
