// SPDX-License-Identifier: MIT
// Starting another program without waiting for it.
#pragma once

#include <string>

namespace vantrel {

class Launcher {
public:
    virtual ~Launcher() = default;
    // Starts the program at `path` (a real path of the machine) in its own process and returns at
    // once. Throws RuntimeError 53 when there is no such file, 70 when it cannot be executed.
    virtual void start(const std::string& path) = 0;
};

} // namespace vantrel
