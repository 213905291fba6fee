// SPDX-License-Identifier: MIT
#include "screens/main/frmTuning.h"

#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "log/bands.h"
#include "screens/main/frequency.h"
#include "screens/main/frmMainControls.h"

#include <utility>

namespace vantrel {

namespace {
constexpr const char* startFrequency = "14.050";
} // namespace

Tuning::Tuning(const FormContext& context, MainControls& controls,
               std::function<bool(const std::string& bandTag)> follow)
    : m_context(context), m_controls(controls), m_follow(std::move(follow)) {}

void Tuning::start() {
    show(startFrequency);
    m_autoReads = true;
    showOutcome(ReadOutcome::noRadio);
}

std::string Tuning::frequencyInBox() const {
    return frequencyAsEntered(textOf(m_controls.boxes.frequency));
}

std::string Tuning::bandTag() const {
    return bandTagOf(completedFrequency(frequencyInBox()));
}

bool Tuning::show(const std::string& mhz) {
    QLineEdit* box = m_controls.boxes.frequency;
    if (textOf(box) != mhz)
        put(box, mhz);
    // Outside the six bands the label stays as it was, and says so by its colour.
    QLabel* band = m_controls.bandLabel;
    const bool named = !bandTextOf(mhz, "").empty();
    put(band, bandTextOf(mhz, textOf(band)));
    setTextColour(band, named ? QColor() : cautionColour(band->window()->palette()));
    return m_follow(bandTagOf(completedFrequency(mhz)));
}

void Tuning::step(const Band& (*next)(std::string_view bandText)) {
    enter();
    show(std::string(next(textOf(m_controls.bandLabel)).defaultFrequency));
}

bool Tuning::read(Entry& typed, Asks asks) {
    const ReadResult result =
        m_autoReads || asks == Asks::operatorHimself
            ? readFrequency(m_context.shared.settings, m_context.platform.serialPort)
            : ReadResult{ReadOutcome::noRadio};
    if (result.outcome == ReadOutcome::cancelled)
        return false;
    showOutcome(result.outcome);
    if (result.outcome == ReadOutcome::read) {
        typed.frequency = result.frequency;
        show(typed.frequency);
    }
    if (result.outcome == ReadOutcome::failed)
        m_context.platform.messages.show(asks == Asks::log
                                             ? withFrequencyUsed(result.message, typed.frequency)
                                             : result.message);
    return true;
}

void Tuning::toggleAutoRead() {
    m_autoReads = !m_autoReads;
    showOutcome(ReadOutcome::noRadio);
}

// A dot before the label: green after a good read, red after a failed one, none when off.
void Tuning::showOutcome(ReadOutcome outcome) {
    const bool on = m_autoReads && m_context.shared.settings.hasRadio();
    put(m_controls.autoReadLabel, autoReadText(on ? ReadOutcome::read : ReadOutcome::noRadio));
    const bool read = outcome == ReadOutcome::read;
    QLabel* dot = m_controls.readDot;
    dot->setText(read || outcome == ReadOutcome::failed ? QString(QChar(0x25CF)) : QString());
    const QPalette palette = dot->window()->palette();
    setTextColour(dot, read ? goodColour(palette) : warningColour(palette));
}

} // namespace vantrel
