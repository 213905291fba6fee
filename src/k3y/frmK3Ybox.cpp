// SPDX-License-Identifier: MIT
#include "k3y/frmK3Ybox.h"

#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>
#include <span>

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
    for (QRadioButton* option : std::span(m_options).first(m_options.size() - 1)) {
        option->setAutoExclusive(false); // in the group one of them has to stay chosen
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
    // On the tag in force: Enter alone leaves it as it is.
    focusFirst(m_options.back());
    for (std::size_t index = 0; index < k3yStations.size(); ++index)
        if (k3yStations[index].marker == shared().marker)
            focusFirst(m_options[index]);
}

void frmK3Ybox::keyPressEvent(QKeyEvent* event) {
    const std::string typed = upper(fromQt(event->text()));
    const auto* const chosen = std::ranges::find(k3yStations, typed, &K3yStation::letter);
    if (chosen == k3yStations.end() || event->isAutoRepeat()) {
        Form::keyPressEvent(event);
        return;
    }
    runHandler([&] { choose(static_cast<std::size_t>(chosen - k3yStations.begin())); });
    close();
}

// The choice takes effect at once; OK only closes the box.
void frmK3Ybox::choose(std::size_t index) {
    focusFirst(m_options.at(index));
    const K3yStation& station = k3yStations.at(index);
    shared().marker = station.marker;
    if (MainPage* page = screens().mainPage())
        page->showStation(std::string(station.label));
}

// Enter on an option that Tab led to, and that is not chosen yet, chooses it.
void frmK3Ybox::okPressed() {
    const auto focused = std::ranges::find_if(
        m_options, [](const QRadioButton* option) { return option->hasFocus(); });
    if (focused != m_options.end() && *focused != firstFocus())
        choose(static_cast<std::size_t>(focused - m_options.begin()));
    close();
}

} // namespace vantrel
