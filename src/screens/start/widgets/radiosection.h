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

// The combo, with these entries.
QComboBox* filled(QComboBox* combo, const ValueList& list);
// The value of the entry that a combo shows, as the settings hold it.
std::string chosenValue(const QComboBox* combo);
// Shows the first entry with that value; false when there is none.
bool chooseValue(QComboBox* combo, std::string_view value);

class RadioSection {
public:
    // Makes its controls as children of the page.
    RadioSection(QWidget* page, const Files& files, std::function<void()> testClicked);
    RadioSection(const RadioSection&) = delete;
    RadioSection& operator=(const RadioSection&) = delete;

    QFormLayout* layout() const { return m_layout; }
    // The boxes hold the saved settings now.
    void loaded();
    // What the chosen port stands for now: adapters are plugged in and out.
    void showDevice();
    // An Icom brings its usual address, unless the operator has chosen one himself.
    void rigChosen();
    // Another port, baud rate or address, or what the port stands for.
    void lineChosen();
    // START was pressed: from now on another device at the port is told of.
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
    std::string m_broughtAddress; // the last Icom's usual one
};

} // namespace vantrel
