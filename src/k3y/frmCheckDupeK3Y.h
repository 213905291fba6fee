// SPDX-License-Identifier: MIT
// The K3Y dupe box: the contact is in the log already, and the operator says whether it is
// logged once more.
#pragma once

#include "forms/page.h"

namespace vantrel {

class frmCheckDupeK3Y : public Form {
public:
    explicit frmCheckDupeK3Y(const FormContext& context);

    void ask(DupeQuestion question);

protected:
    void load() override;
    void closeEvent(QCloseEvent* event) override;

private:
    void logDupe();

    DupeQuestion m_question;
    bool m_logged = false;
};

} // namespace vantrel
