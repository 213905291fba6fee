// SPDX-License-Identifier: MIT
#include "k3y/frmK3Ybox.h"

#include "base/fixedtext.h"
#include "forms/formbuilder.h"
#include "forms/layouts.h"
#include "platform/qt/latin1.h"

#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>

namespace vantrel {

namespace {
constexpr double stationEnlargement = 1.3;
// In the order of k3yStations.
constexpr const char* captions[] = {"EU  Europe",      "AF  Africa",        "AS  Asia",
                                    "OC  Oceania",     "NA  North America", "SA  South America",
                                    "NONE Add No Note"};
} // namespace

frmK3Ybox::frmK3Ybox(const FormContext& context) : Form(context, "frmK3Ybox", "K3Y") {
    setFont(familyFont(this, "Arial"));
    FormBuilder build(this);
    std::vector<Item> items{build.heading("Label1", "APPEND K3Y/xx TO ", stationEnlargement),
                            build.heading("Label2", " K3Y DX STATIONS", stationEnlargement)};
    for (std::size_t index = 0; index < m_options.size(); ++index) {
        const std::string name = "Option" + std::to_string(index + 1);
        m_options[index] =
            build.option(name.c_str(), captions[index], "", [this, index] { choose(index); });
        items.emplace_back(m_options[index]);
    }
    items.emplace_back(build.command("Command1", "OK",
                                     "E, F, A, O, N, S OR X (NONE) CHOOSES AND IS OK TOO",
                                     [this] { close(); }));
    page(this, items);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* enter = new QShortcut(key, this);
        enter->setAutoRepeat(false);
        connectHandler(enter, &QShortcut::activated, [this] { okPressed(); });
    }
}

// Shows no station as chosen, whatever tag is in force; NONE stays as it was.
void frmK3Ybox::load() {
    for (QRadioButton* option : m_options) {
        if (option == m_options.back())
            break;
        option->setAutoExclusive(false); // in the group one of them has to stay chosen
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
    m_inForce = k3yStations.size() - 1;
    for (std::size_t index = 0; index < k3yStations.size(); ++index)
        if (k3yStations[index].marker == shared().marker)
            m_inForce = index;
}

// On the tag in force: Enter alone leaves it as it is.
QWidget* frmK3Ybox::firstFocus() {
    return m_options[m_inForce];
}

void frmK3Ybox::keyPressEvent(QKeyEvent* event) {
    const std::string typed = upper(fromQt(event->text()));
    const auto chosen =
        std::find_if(k3yStations.begin(), k3yStations.end(), [&](const K3yStation& station) {
            return typed == std::string(1, station.letter);
        });
    if (chosen == k3yStations.end() || event->isAutoRepeat()) {
        Form::keyPressEvent(event);
        return;
    }
    runHandler([&] { choose(static_cast<std::size_t>(chosen - k3yStations.begin())); });
    close();
}

// The choice takes effect at once; OK only closes the box.
void frmK3Ybox::choose(std::size_t index) {
    m_inForce = index;
    const K3yStation& station = k3yStations.at(index);
    shared().marker = station.marker;
    if (MainPage* page = screens().mainPage())
        page->showStation(std::string(station.label));
}

// Enter on an option that Tab led to, and that is not chosen yet, chooses it.
void frmK3Ybox::okPressed() {
    const auto focused =
        std::find_if(m_options.begin(), m_options.end(),
                     [](const QRadioButton* option) { return option->hasFocus(); });
    const auto index = static_cast<std::size_t>(focused - m_options.begin());
    if (focused != m_options.end() && index != m_inForce)
        choose(index);
    close();
}

} // namespace vantrel
