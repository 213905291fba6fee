// SPDX-License-Identifier: MIT
#include "k3y/frmK3Ybox.h"

#include "base/fixedtext.h"
#include "forms/formbuilder.h"
#include "platform/qt/latin1.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrel {

namespace {
constexpr double headlineEnlargement = 1.3;
} // namespace

frmK3Ybox::frmK3Ybox(const FormContext& context) : Form(context, "frmK3Ybox", "K3Y") {
    createControls();
    connectHandlers();
}

void frmK3Ybox::createControls() {
    setFont(familyFont(this, "Arial"));
    FormBuilder build(this);
    QLabel* const headlines[] = {build.label("Label1", "APPEND K3Y/xx TO "),
                                 build.label("Label2", " K3Y DX STATIONS")};
    m_options = {
        build.option("Option1", "EU  Europe"),        build.option("Option2", "AF  Africa"),
        build.option("Option3", "AS  Asia"),          build.option("Option4", "OC  Oceania"),
        build.option("Option5", "NA  North America"), build.option("Option6", "SA  South America"),
        build.option("Option7", "NONE Add No Note")};
    m_okButton =
        build.command("Command1", "OK", "E, F, A, O, N, S OR X (NONE) CHOOSES AND IS OK TOO");

    auto* page = new QVBoxLayout(this);
    for (QLabel* headline : headlines) {
        headline->setFont(enlargedFont(this, headlineEnlargement));
        headline->setAlignment(Qt::AlignCenter);
        page->addWidget(headline);
    }
    for (QRadioButton* option : m_options)
        page->addWidget(option);
    page->addWidget(m_okButton);
}

void frmK3Ybox::connectHandlers() {
    for (std::size_t index = 0; index < m_options.size(); ++index)
        connect(m_options[index], &QRadioButton::clicked, this,
                [this, index] { runHandler([&] { choose(index); }); });
    connect(m_okButton, &QPushButton::clicked, this, &QWidget::close);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* enter = new QShortcut(key, this);
        enter->setAutoRepeat(false);
        connectHandler(enter, &QShortcut::activated, this, &frmK3Ybox::okPressed);
    }
}

// No station is chosen, whatever tag is in force; NONE stays as it was.
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

// A choice holds at once; OK only closes the box.
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
