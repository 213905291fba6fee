// SPDX-License-Identifier: MIT
// Starts another program and does not wait for it.
#pragma once

#include "platform/launcher.h"

namespace vantrel {

class QtLauncher : public Launcher {
public:
    void start(const std::string& path) override;
};

} // namespace vantrel
