// SPDX-License-Identifier: MIT
// The log or its ADIF file as text.
#pragma once

#include "platform/qt/viewerform.h"

namespace vantrel {

class frmVantrelList : public ViewerForm {
    Q_OBJECT

public:
    explicit frmVantrelList(const FormContext& context);

protected:
    void Form_Load() override;
    void closeEvent(QCloseEvent* event) override;
};

} // namespace vantrel
