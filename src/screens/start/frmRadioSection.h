// SPDX-License-Identifier: MIT
// The radio's part of the start page: rig, port, baud rate and address, what the chosen rig
// needs, and a read to try them.
#pragma once

#include "rig/catlink.h"

#include <QComboBox>

class QLabel;
class QLayout;
class QPushButton;
class QTimer;

namespace vantrel {

class Files;

// The value of the entry that a combo shows, as the settings hold it.
std::string stored(const QComboBox* combo);

class RadioSection {
public:
    // Makes its controls as children of the page, in tab order.
    RadioSection(QWidget* page, const Files& files);
    RadioSection(const RadioSection&) = delete;
    RadioSection& operator=(const RadioSection&) = delete;

    QLayout* layout() const;
    // The boxes hold the saved settings now; from here to its hiding the page follows what is
    // plugged in and out.
    void loaded();
    void showDevice();
    // An Icom brings its usual address, unless the operator has chosen one himself.
    void rigChosen();
    // Another port, baud rate or address, or what the port stands for.
    void lineChosen();
    // START was pressed: what the port stands for now is what the operator has seen working.
    void started();
    void showReading();
    void showRead(const ReadResult& result);

    QComboBox* rig;
    QComboBox* port;
    QComboBox* baud;
    QComboBox* civ;
    QPushButton* test;

private:
    struct Device {
        std::string port;
        std::string shown;
        std::string identity;
    };
    Device device() const;
    void showNeeds();
    void tick();

    QWidget* m_page;
    const Files& m_files;
    QLabel* m_needsLabel;
    QLabel* m_deviceLabel;
    QTimer* m_timer;
    Device m_started;             // at the last START of this run
    std::string m_broughtAddress; // the last Icom's usual one
};

} // namespace vantrel
