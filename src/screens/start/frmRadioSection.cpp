// SPDX-License-Identifier: MIT
#include "screens/start/frmRadioSection.h"

#include "base/runtimeerror.h"
#include "forms/accessible.h"
#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "platform/serialnames.h"
#include "rig/rigs.h"
#include "screens/start/startlists.h"
#include "shared/settings.h"

#include <QHBoxLayout>
#include <QTimer>

namespace vantrel {

namespace {
constexpr int lookAgainAfter = 1000; // milliseconds
} // namespace

std::string stored(const QComboBox* combo) {
    return fromQt(combo->currentData().toString());
}

RadioSection::RadioSection(QWidget* page, const Files& files)
    : m_page(page), m_files(files), m_timer(new QTimer(page)) {
    FormBuilder build(page);
    rig = build.combo("Combo1");
    port = build.combo("Combo2");
    baud = build.combo("Combo3");
    civ = build.combo("Combo4");
    test = build.command("Command8", "&TEST", "READS THE FREQUENCY FROM THE RADIO ONCE");
    m_needsLabel = build.alert("Label17");
    m_deviceLabel = build.label("Label13");
    QObject::connect(m_timer, &QTimer::timeout, page, [this] { tick(); });
}

QLayout* RadioSection::layout() const {
    FormBuilder build(m_page);
    m_needsLabel->setWordWrap(true);
    m_deviceLabel->setWordWrap(true);
    auto* needs = new QHBoxLayout;
    needs->addWidget(m_needsLabel, 1);
    needs->addWidget(test);
    auto* form = new QFormLayout;
    build.row(form, "RIG:", rig);
    form->addRow(needs);
    build.row(form, "COM:", port);
    form->addRow(m_deviceLabel);
    build.row(form, "BAUD RATE:", baud);
    build.row(form, "ICOM      HEX:", civ);
    return form;
}

void RadioSection::loaded() {
    m_broughtAddress = usualCivAddress(stored(rig));
    lineChosen();
    m_timer->start(lookAgainAfter);
}

void RadioSection::rigChosen() {
    const std::string usual(usualCivAddress(stored(rig)));
    const std::string chosen = stored(civ);
    if (!usual.empty()) {
        if (chosen == noneSetting || chosen == m_broughtAddress)
            civ->setCurrentIndex(positionOf(civList(), usual, noneSetting));
        m_broughtAddress = usual;
    }
    showNeeds();
}

void RadioSection::lineChosen() {
    showNeeds();
    if (m_page->isVisible()) // while it is being loaded, the device comes later
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
        announce(m_needsLabel, result.frequency + " MHz");
    else
        showNeeds();
}

RadioSection::Device RadioSection::device() const {
    const std::string name = stored(port);
    try {
        return {name, serialDeviceShown(m_files, name), serialIdentity(m_files, name)};
    } catch (const RuntimeError& error) { // two entries of the program folder are called so
        return {name, error.detail(), {}};
    }
}

// Adapters that are plugged in another order change places: the radio may be on another port
// than it was an hour ago.
void RadioSection::showDevice() {
    const Device now = device();
    const bool changed = now.port == m_started.port && !now.identity.empty() &&
                         !m_started.identity.empty() && now.identity != m_started.identity;
    put(m_deviceLabel,
        changed ? now.shown + " - WAS " + m_started.shown + " AT THE LAST START" : now.shown);
}

void RadioSection::showNeeds() {
    const std::string name = stored(rig);
    put(m_needsLabel, rigNeeds(name));
    test->setEnabled(familyOf(name) != nullptr && stored(port) != noneSetting);
}

void RadioSection::tick() {
    if (m_page->isVisible())
        showDevice();
    else
        m_timer->stop();
}

} // namespace vantrel
