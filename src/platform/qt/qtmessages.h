// SPDX-License-Identifier: MIT
// Message boxes as real windows over the form that is active.
#pragma once

#include "platform/platform.h"

namespace vantrel {

class QtMessages : public Messages {
public:
    void show(const Message& message) override;
    bool ask(const Message& message) override;
};

} // namespace vantrel
