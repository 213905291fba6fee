// SPDX-License-Identifier: MIT
// The operator's hands and eyes: finds forms and controls by name, types, clicks, reads.
#pragma once

#include "support/testing.h"

#include <QWidget>

namespace vantrel::test {

// Every function throws std::runtime_error when the form or control is not there.
class Hands {
public:
    // The visible form of that objectName; throws when there is none.
    QWidget* form(const char* name) const;
    bool isOpen(const char* name) const;

    // The control of that objectName on the form; throws when there is none.
    template <typename Control = QWidget>
    Control* control(const char* formName, const char* name) const {
        auto* found = form(formName)->findChild<Control*>(QString::fromLatin1(name));
        if (found == nullptr)
            throw std::runtime_error(std::string("no ") + name + " on " + formName);
        return found;
    }

    // What a line edit, label, combo or button shows (ISO 8859-1).
    std::string shown(const char* formName, const char* name) const;
    // The same of several, named in a row: "JOE|CT|".
    std::string texts(const char* formName, const std::string& names) const;
    // The lines of a list.
    std::vector<std::string> lines(const char* formName, const char* name) const;
    // Selects all in the box (or the combo's) and types the text, key by key.
    void type(const char* formName, const char* name, std::string_view text);
    // Chooses the combo's entry that shows this text.
    void choose(const char* formName, const char* name, std::string_view entry);
    void click(const char* formName, const char* name);
    // One after the other: "Text2=k1abc" types, "Text2!" presses Enter there, "Text2=k1abc!" does
    // both, "Command3" clicks. What is typed so holds no blank; "_" stands for one.
    void work(const char* formName, const std::string& steps);
    // Presses a key in the control.
    void press(const char* formName, const char* name, Qt::Key key,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Lets queued events and zero timers run.
    static void settle();
};

} // namespace vantrel::test
