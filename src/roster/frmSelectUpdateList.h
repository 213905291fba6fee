// SPDX-License-Identifier: MIT
// The choice of how to bring the roster up to date.
#pragma once

#include "forms/page.h"

namespace vantrel {

class frmSelectUpdateList : public Form {
public:
    explicit frmSelectUpdateList(const FormContext& context);

private:
    void download();
};

} // namespace vantrel
