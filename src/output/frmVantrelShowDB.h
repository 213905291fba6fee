// SPDX-License-Identifier: MIT
// The roster file that was read last, as text.
#pragma once

#include "platform/qt/viewerform.h"

namespace vantrel {

class frmVantrelShowDB : public ViewerForm {
    Q_OBJECT

public:
    explicit frmVantrelShowDB(const FormContext& context);

protected:
    void Form_Load() override;
};

} // namespace vantrel
