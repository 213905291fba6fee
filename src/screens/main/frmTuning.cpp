// SPDX-License-Identifier: MIT
#include "screens/main/frmTuning.h"

#include "forms/colours.h"
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
    // Outside the six bands the label stays as it was, struck out.
    QLabel* band = m_controls.bandLabel;
    const bool named = !bandTextOf(mhz, "").empty();
    put(band, bandTextOf(mhz, textOf(band)));
    setTextColour(band, named ? QColor() : cautionColour(band->window()->palette()));
    QFont font = band->font();
    font.setStrikeOut(!named);
    band->setFont(font);
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
        if (!show(typed.frequency))
            return false;
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

// Before the label: a green dot after a good read, a red cross after a failed one, none when off.
void Tuning::showOutcome(ReadOutcome outcome) const {
    const bool on = m_autoReads && m_context.shared.settings.hasRadio();
    put(m_controls.autoReadLabel, autoReadText(on ? ReadOutcome::read : ReadOutcome::noRadio));
    const bool read = outcome == ReadOutcome::read;
    QLabel* sign = m_controls.readSign;
    sign->setText(read                             ? QString(QChar(0x25CF))
                  : outcome == ReadOutcome::failed ? QString(QChar(0xD7))
                                                   : QString());
    sign->setAccessibleName(read ? QStringLiteral("RADIO READ") : QStringLiteral("RADIO NOT READ"));
    const QPalette palette = sign->window()->palette();
    setTextColour(sign, read ? goodColour(palette) : warningColour(palette));
}

} // namespace vantrel
