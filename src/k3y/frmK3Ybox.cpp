// SPDX-License-Identifier: MIT
#include "k3y/frmK3Ybox.h"

#include "forms/formbuilder.h"

#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr double headlineEnlargement = 1.3;
} // namespace

// Every opening makes a fresh box: no option is chosen, whatever tag is in force.
frmK3Ybox::frmK3Ybox(const FormContext& context) : Form(context, "frmK3Ybox", "K3Y") {
    openSmall();
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
    m_okButton = build.command("Command1", "OK");

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
                [this, index] { runHandler([&] { choose(k3yStations[index]); }); });
    connect(m_okButton, &QPushButton::clicked, this, &QWidget::close);
}

QWidget* frmK3Ybox::firstFocus() {
    return m_options.front();
}

// A choice holds at once; OK only closes the box.
void frmK3Ybox::choose(const K3yStation& station) {
    shared().marker = station.marker;
    if (MainPage* page = screens().mainPage())
        page->showStation(std::string(station.label));
}

} // namespace vantrel
