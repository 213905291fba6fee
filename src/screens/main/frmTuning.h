// SPDX-License-Identifier: MIT
// The frequency on the main page: its box, the band that follows from it, the radio.
#pragma once

#include "forms/form.h"
#include "rig/catlink.h"

#include <functional>
#include <string>
#include <string_view>

namespace vantrel {

struct Band;
struct Entry;
struct MainControls;

class Tuning {
public:
    // Who asks the radio: the last one also while AUTO READ is off.
    enum class Asks { search, log, operatorHimself };

    // follow: told the band tag whenever a frequency is shown; false when the contact being
    // entered is refused there.
    Tuning(const FormContext& context, MainControls& controls,
           std::function<bool(const std::string& bandTag)> follow);

    // As the page opens: 20 meters, the radio not read yet.
    void start();
    // What Enter, leaving the box and each command do first to what is typed in it.
    void enter() { show(frequencyInBox()); }
    // Shows the frequency and its band; false when the contact is refused there.
    bool show(const std::string& mhz);
    // Takes what is typed, then the next band's frequency.
    void step(const Band& (*next)(std::string_view bandText));
    // Reads the radio, if there is one, into box and entry. One that does not answer is reported
    // and the frequency in the box stands. False when the program is being closed, or the contact
    // is refused on the band that the radio is on: the handler then ends at once.
    bool read(Entry& typed, Asks asks);
    // Off, a dead radio costs no more boxes.
    void toggleAutoRead();
    // Of the frequency as it stands in the box.
    std::string bandTag() const;

private:
    std::string frequencyInBox() const;
    void showOutcome(ReadOutcome outcome) const;

    FormContext m_context;
    MainControls& m_controls;
    std::function<bool(const std::string&)> m_follow;
    bool m_autoReads = true;
};

} // namespace vantrel
