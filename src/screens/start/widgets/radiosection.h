// SPDX-License-Identifier: MIT
// The radio's part of the start page: rig, port, baud rate and address, what the chosen rig
// needs, and a read to try them.
#pragma once

#include "rig/catlink.h"
#include "screens/start/startlists.h"

#include <QComboBox>

#include <functional>

class QFormLayout;
class QLabel;
class QPushButton;

namespace vantrel {

class AlertLabel;
class Files;

// Adds the entries and returns the combo.
QComboBox* filled(QComboBox* combo, const ValueList& list);
// The settings' value of the entry chosen.
std::string chosenValue(const QComboBox* combo);
// Chooses the first entry with that value; false when there is none.
bool chooseValue(QComboBox* combo, std::string_view value);

class RadioSection {
public:
    // Makes its controls as children of the page.
    RadioSection(QWidget* page, const Files& files, std::function<void()> testClicked);
    RadioSection(const RadioSection&) = delete;
    RadioSection& operator=(const RadioSection&) = delete;

    QFormLayout* layout() const { return m_layout; }
    // Call when the boxes have been filled from the saved settings.
    void loaded();
    // Shows which device the chosen port is now.
    void showDevice();
    // Another rig: an Icom sets its usual address, unless the operator has chosen one himself.
    void rigChosen();
    // Another port, baud rate or address was chosen.
    void lineChosen();
    // START was pressed: a later change of the port's device is pointed out from now on.
    void started();
    void showReading();
    void showRead(const ReadResult& result);

    QComboBox* rig;
    QComboBox* port;
    QComboBox* baud;
    QComboBox* civ;

private:
    struct Device {
        std::string port;
        std::string shown;
        std::string identity;
    };
    Device device() const;
    void showNeeds();

    QWidget* m_page;
    const Files& m_files;
    QFormLayout* m_layout;
    QPushButton* m_testButton;
    AlertLabel* m_needsLabel;
    QLabel* m_deviceLabel;
    Device m_started;             // at the last START of this run
    std::string m_broughtAddress; // the usual one of the Icom chosen last
};

} // namespace vantrel
