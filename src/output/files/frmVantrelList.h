// SPDX-License-Identifier: MIT
// The log or its ADIF file as text.
#pragma once

#include "forms/viewerform.h"

namespace vantrel {

class frmVantrelList : public ViewerForm {
public:
    explicit frmVantrelList(const FormContext& context);

    // Which file is shown when it opens.
    void choose(ListedFile file) { m_file = file; }

protected:
    void load() override;
    void closeEvent(QCloseEvent* event) override;

private:
    ListedFile m_file = ListedFile::log;
};

} // namespace vantrel
