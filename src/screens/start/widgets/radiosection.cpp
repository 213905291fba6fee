// SPDX-License-Identifier: MIT
#include "screens/start/widgets/radiosection.h"

#include "base/runtimeerror.h"
#include "forms/formbuilder.h"
#include "platform/serialnames.h"
#include "rig/rigs.h"
#include "shared/settings.h"

#include <utility>

namespace vantrel {

QComboBox* filled(QComboBox* combo, const ValueList& list) {
    for (const ListEntry& entry : list)
        combo->addItem(toQt(entry.shown), toQt(entry.savedAs));
    return combo;
}

std::string chosenValue(const QComboBox* combo) {
    return fromQt(combo->currentData().toString());
}

bool chooseValue(QComboBox* combo, std::string_view value) {
    const int entry = combo->findData(toQt(value));
    if (entry >= 0)
        combo->setCurrentIndex(entry);
    return entry >= 0;
}

RadioSection::RadioSection(QWidget* page, const Files& files, std::function<void()> testClicked)
    : m_page(page), m_files(files), m_layout(new QFormLayout) {
    FormBuilder build(page);
    rig = build.row(m_layout, "RIG:", filled(build.combo("Combo1"), rigList()));
    m_needsLabel = build.alert("Label17");
    m_needsLabel->setMinimumHeight(
        2 * page->fontMetrics().lineSpacing()); // room for two lines from the start
    m_testButton = build.command("Command8", "&TEST", "READS THE FREQUENCY FROM THE RADIO ONCE",
                                 std::move(testClicked));
    m_layout->addRow(row({{wrapped(m_needsLabel), 1}, m_testButton}));
    port = build.row(m_layout, "COM:", filled(build.combo("Combo2"), portList()));
    m_layout->addRow(m_deviceLabel = wrapped(build.label("Label13")));
    baud = build.row(m_layout, "BAUD RATE:", filled(build.combo("Combo3"), baudList()));
    civ = build.row(m_layout, "ICOM      HEX:", filled(build.combo("Combo4"), civList()));
}

void RadioSection::loaded() {
    m_broughtAddress = usualCivAddress(chosenValue(rig));
    lineChosen();
}

void RadioSection::rigChosen() {
    const std::string usual(usualCivAddress(chosenValue(rig)));
    const std::string chosen = chosenValue(civ);
    if (!usual.empty()) {
        if (chosen == noneSetting || chosen == m_broughtAddress)
            chooseValue(civ, usual);
        m_broughtAddress = usual;
    }
    showNeeds();
}

void RadioSection::lineChosen() {
    showNeeds();
    if (m_page->isVisible()) // otherwise the page shows the device after its first paint
        showDevice();
}

void RadioSection::started() {
    m_started = device();
    showDevice();
}

void RadioSection::showReading() {
    put(m_needsLabel, "READING THE RADIO");
}

void RadioSection::showRead(const ReadResult& result) {
    if (result.outcome == ReadOutcome::read)
        m_needsLabel->announce(result.frequency + " MHz");
    else
        showNeeds();
}

RadioSection::Device RadioSection::device() const {
    const std::string name = chosenValue(port);
    try {
        return {name, serialDeviceShown(m_files, name), serialIdentity(m_files, name)};
    } catch (const RuntimeError& error) { // two files of that name, in different case
        return {name, error.detail(), {}};
    }
}

// USB adapters change places when they are plugged in another order, and then the radio is on
// another port.
void RadioSection::showDevice() {
    const Device now = device();
    const bool changed = now.port == m_started.port && !now.identity.empty() &&
                         !m_started.identity.empty() && now.identity != m_started.identity;
    put(m_deviceLabel,
        changed ? now.shown + " - WAS " + m_started.shown + " AT THE LAST START" : now.shown);
}

void RadioSection::showNeeds() {
    const std::string name = chosenValue(rig);
    put(m_needsLabel, rigNeeds(name));
    m_testButton->setEnabled(familyOf(name) != nullptr && chosenValue(port) != noneSetting);
}

} // namespace vantrel
