// SPDX-License-Identifier: MIT
// The two import screens, frmReadSKCCDATA and frmVantrelUpdate: one page in two editions.
#pragma once

#include "forms/page.h"
#include "roster/rosterimport.h"

#include <QElapsedTimer>

class QProgressBar;

namespace vantrel {

// What differs between the two.
struct MemberImportPage {
    const char* name;
    const char* caption;
    MemberList list;
    std::string_view listFile; // what the path box is filled with, in the program folder
    const char* explanation;
    const char* browseTip;
    Screen screen; // to which the finder hands a path back
    const char* addTip;
    const char* changedLabel; // tells how many members' numbers changed
    std::string (*changedText)(int changed);
};

extern const MemberImportPage dataImportPage;   // frmReadSKCCDATA
extern const MemberImportPage memberImportPage; // frmVantrelUpdate

class frmMemberImport : public Form, public PathReceiver {
public:
    frmMemberImport(const FormContext& context, const MemberImportPage& edition);

    void receivePath(const std::string& path) override;

protected:
    void load() override;

private:
    QLayout* texts();
    QLayout* progressPart();
    QLayout* resultPart();

    void addMembers();
    bool runImport();
    void showRunning(bool running);
    bool showStep(const ImportStep& step);
    void showResult(const ImportResult& result);

    const MemberImportPage& m_page;
    QLineEdit* m_pathBox;
    QPushButton* m_browseButton;
    QPushButton* m_addButton;
    QPushButton* m_exitButton;
    QLabel* m_phase;
    QLabel* m_lineNumber;
    AlertLabel* m_added;
    QLabel* m_linesRead;
    QLabel* m_changed;
    QLabel* m_skipped;
    QProgressBar* m_progress;
    QElapsedTimer m_sinceShown;
};

} // namespace vantrel
