// SPDX-License-Identifier: MIT
#include "output/score/frmVantrelScore.h"

#include "base/fixedtext.h"
#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/stackedbars.h"
#include "log/outputfiles.h"
#include "output/score/contestpicture.h"
#include "output/score/scorereport.h"
#include "platform/files.h"
#include "platform/printjob.h"
#include "platform/qt/latin1.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr int figureColumns = 8;
constexpr double totalEnlargement = 1.5;
} // namespace

frmVantrelScore::frmVantrelScore(const FormContext& context)
    : Form(context, "frmVantrelScore", "Vantrel - Score") {
    createControls();
    layOut();
    connectHandlers();
    openAtPageSize();
}

void frmVantrelScore::createControls() {
    FormBuilder build(this);
    m_exitButton = build.command("Command1", "E&XIT", "CLOSES THE SCORE");
    m_printButton = build.command("Command2", "&PRINT", "PRINTS THE SCORE");
    m_qsos = build.output("Text1");
    m_multipliers = build.output("Text2");
    m_centurions = build.output("Text3");
    m_tribunes = build.output("Text4");
    m_senators = build.output("Text9");
    m_bonusStationQsos = build.output("Text8");
    m_contestFigure = build.output("Text5");
    m_bonusPoints = build.output("Text6");
    m_total = build.output("Text7");
    m_logPath = build.label("Label1");
    m_multiplierCaption = build.label("Label4");
    m_contestFigureCaption = build.label("Label7");
    m_dupesLogged = build.label("Label13");
    m_dupesNotCounted = build.label("Label14");
    m_picture = new StackedBars(this);
}

void frmVantrelScore::connectHandlers() {
    connectHandler(m_printButton, &QPushButton::clicked, this, &frmVantrelScore::printClicked);
    connect(m_exitButton, &QPushButton::clicked, this, &QWidget::close);
}

QWidget* frmVantrelScore::firstFocus() {
    return m_exitButton;
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelScore::load() {
    m_score = Score();
    showLabels();
    showScore();
    m_picture->hide();
    shared().log.reread();
    m_score = computeScore(shared().log.contacts(), shared().settings);
    showScore();
    showPicture();
    if (m_score.stoppedBy)
        throw *m_score.stoppedBy;
}

void frmVantrelScore::showLabels() {
    const OperatingSettings& settings = shared().settings;
    const bool european = settings.contestCode == contestSkse;
    put(m_logPath, platform().files.path(shared().log.name()));
    put(m_multiplierCaption, european ? "  DXCC Countries:" : "S/P/Cs:");
    put(m_contestFigureCaption, european ? "      Regular Members Worked: " : "K9SKC QSOs:");
    put(m_dupesLogged, settings.logsDupes() ? "DUPES ARE LOGGED" : "DUPES ARE NOT LOGGED");
    put(m_dupesNotCounted, settings.logsDupes() ? "BUT NOT COUNTED" : " ");
}

void frmVantrelScore::showScore() {
    const auto show = [](QLineEdit* box, const Score::Figure& figure) {
        put(box, figureText(figure));
    };
    show(m_qsos, m_score.qsos);
    show(m_multipliers, m_score.multipliers);
    show(m_centurions, m_score.centurions);
    show(m_tribunes, m_score.tribunes);
    show(m_senators, m_score.senators);
    show(m_bonusStationQsos, m_score.bonusStationQsos);
    show(m_contestFigure, m_score.european ? m_score.regularMembersWorked : m_score.k9skcQsos);
    show(m_bonusPoints, m_score.bonusPoints);
    show(m_total, m_score.total);
}

void frmVantrelScore::showPicture() {
    std::vector<QString> series;
    for (const Band& band : bands)
        series.push_back(toQt(band.label));
    series.push_back(QStringLiteral("OTHER"));
    std::vector<StackedBar> bars;
    for (const PictureHour& hour : contactsPerHour(shared().log.contacts()))
        bars.push_back({toQt(zeroPadded(hour.hour, 2) + "Z"),
                        {hour.contacts.begin(), hour.contacts.end()},
                        hour.afterBreak});
    m_picture->setVisible(!bars.empty());
    m_picture->setBars(QStringLiteral("CONTACTS PER HOUR (UTC)"), series, bars);
}

// --- Printing --------------------------------------------------------------------------------

void frmVantrelScore::printClicked() {
    const std::string& log = shared().log.name();
    Files& files = platform().files;
    const std::string note = sendToPrinter(
        platform().printer, files, scoreReport(m_score, files.path(log)), scorePdfName(log));
    messages().show({std::string(reportPrinted), BoxIcon::exclamation, note});
    m_exitButton->setFocus();
}

// --- Layout ----------------------------------------------------------------------------------

void frmVantrelScore::layOut() {
    auto* dupes = new QVBoxLayout;
    dupes->addStretch();
    dupes->addWidget(m_dupesLogged, 0, Qt::AlignHCenter);
    dupes->addWidget(m_dupesNotCounted, 0, Qt::AlignHCenter);
    dupes->addStretch();
    auto* score = new QHBoxLayout;
    score->addStretch();
    score->addLayout(figures());
    score->addStretch();
    score->addLayout(dupes);
    score->addStretch();
    auto* commands = new QHBoxLayout;
    commands->addStretch();
    commands->addWidget(m_printButton);
    commands->addWidget(m_exitButton);

    auto* page = new QVBoxLayout(this);
    page->addWidget(m_logPath);
    page->addLayout(score);
    page->addWidget(m_picture, 1);
    page->addStretch();
    page->addLayout(commands);
}

// Each figure behind its caption, in the order of the report.
QFormLayout* frmVantrelScore::figures() {
    FormBuilder build(this);
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight);
    build.row(form, "QSOs:", m_qsos);
    form->addRow(m_multiplierCaption, m_multipliers);
    build.row(form, "Centurions:", m_centurions);
    build.row(form, "Tribunes:", m_tribunes);
    build.row(form, "Senators:", m_senators);
    build.row(form, "Bonus Station QSOs:", m_bonusStationQsos);
    form->addRow(m_contestFigureCaption, m_contestFigure);
    build.row(form, "Total Bonus Points:", m_bonusPoints);
    build.row(form, "TOTAL SCORE:", m_total);
    m_multiplierCaption->setBuddy(m_multipliers);
    m_contestFigureCaption->setBuddy(m_contestFigure);
    for (QWidget* widget : {form->labelForField(m_total), static_cast<QWidget*>(m_total)})
        widget->setFont(enlargedFont(this, totalEnlargement));
    for (int row = 0; row < form->rowCount(); ++row) {
        auto* box = static_cast<QLineEdit*>(form->itemAt(row, QFormLayout::FieldRole)->widget());
        box->setAlignment(Qt::AlignRight);
        setColumns(box, figureColumns);
    }
    return form;
}

} // namespace vantrel
