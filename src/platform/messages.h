// SPDX-License-Identifier: MIT
// The door to modal message boxes.
#pragma once

#include <string>

namespace vantrel {

enum class BoxIcon { none, exclamation, critical };

struct Message {
    std::string text; // the system's own text, alone
    BoxIcon icon = BoxIcon::none;
    std::string informative{}; // what we add: file, device, reason, remedy
    std::string title{};       // "Vantrel" when empty
};

class Messages {
public:
    virtual ~Messages() = default;
    // Shows a modal box with an OK button and returns when it is closed.
    virtual void show(const Message& message) = 0;
    // Shows a modal box with Yes and No, which is the default; true for Yes, false for No and
    // Esc.
    virtual bool ask(const Message& message) = 0;
};

} // namespace vantrel
