// SPDX-License-Identifier: MIT
#include "output/score/frmVantrelScore.h"

#include "base/fixedtext.h"
#include "forms/formbuilder.h"
#include "forms/stackedbars.h"
#include "log/outputfiles.h"
#include "output/score/contestpicture.h"
#include "output/score/scorereport.h"
#include "platform/files.h"
#include "platform/printjob.h"
#include "platform/qt/latin1.h"

#include <QGridLayout>
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
    Command1 = build.command("Command1", "E&XIT", "CLOSES THE SCORE");
    Command2 = build.command("Command2", "&PRINT", "PRINTS THE SCORE");
    Text1 = build.output("Text1");
    Text2 = build.output("Text2");
    Text3 = build.output("Text3");
    Text4 = build.output("Text4");
    Text9 = build.output("Text9");
    Text8 = build.output("Text8");
    Text5 = build.output("Text5");
    Text6 = build.output("Text6");
    Text7 = build.output("Text7");
    Label1 = build.label("Label1");
    Label4 = build.label("Label4");
    Label7 = build.label("Label7");
    Label13 = build.label("Label13");
    Label14 = build.label("Label14");
    m_picture = new StackedBars(this);
}

void frmVantrelScore::connectHandlers() {
    connectHandler(Command2, &QPushButton::clicked, this, &frmVantrelScore::Command2_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

QWidget* frmVantrelScore::firstFocus() {
    return Command1;
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
    Label1->setText(toQt(platform().files.path(shared().log.name())));
    Label4->setText(toQt(european ? "  DXCC Countries:" : "S/P/Cs:"));
    Label7->setText(toQt(european ? "      Regular Members Worked: " : "K9SKC QSOs:"));
    Label13->setText(toQt(settings.logsDupes() ? "DUPES ARE LOGGED" : "DUPES ARE NOT LOGGED"));
    Label14->setText(toQt(settings.logsDupes() ? "BUT NOT COUNTED" : " "));
}

void frmVantrelScore::showScore() {
    const auto show = [](QLineEdit* box, const Score::Figure& figure) {
        box->setText(toQt(figureText(figure)));
    };
    show(Text1, m_score.qsos);
    show(Text2, m_score.multipliers);
    show(Text3, m_score.centurions);
    show(Text4, m_score.tribunes);
    show(Text9, m_score.senators);
    show(Text8, m_score.bonusStationQsos);
    show(Text5, m_score.european ? m_score.regularMembersWorked : m_score.k9skcQsos);
    show(Text6, m_score.bonusPoints);
    show(Text7, m_score.total);
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

void frmVantrelScore::Command2_Click() {
    const std::string& log = shared().log.name();
    Files& files = platform().files;
    const std::string note = sendToPrinter(
        platform().printer, files, scoreReport(m_score, files.path(log)), scorePdfName(log));
    messages().show({"The File has been sent to the Printer!", BoxIcon::exclamation, note});
    Command1->setFocus();
}

// --- Layout ----------------------------------------------------------------------------------

void frmVantrelScore::layOut() {
    auto* dupes = new QVBoxLayout;
    dupes->addStretch();
    dupes->addWidget(Label13, 0, Qt::AlignHCenter);
    dupes->addWidget(Label14, 0, Qt::AlignHCenter);
    dupes->addStretch();
    auto* score = new QHBoxLayout;
    score->addStretch();
    score->addLayout(figures());
    score->addStretch();
    score->addLayout(dupes);
    score->addStretch();
    auto* commands = new QHBoxLayout;
    commands->addStretch();
    commands->addWidget(Command2);
    commands->addWidget(Command1);

    auto* page = new QVBoxLayout(this);
    page->addWidget(Label1);
    page->addLayout(score);
    page->addWidget(m_picture, 1);
    page->addStretch();
    page->addLayout(commands);
}

// Each figure behind its caption, in the order of the report.
QGridLayout* frmVantrelScore::figures() {
    FormBuilder build(this);
    const std::pair<QLabel*, QLineEdit*> rows[] = {{build.caption("QSOs:"), Text1},
                                                   {Label4, Text2},
                                                   {build.caption("Centurions:"), Text3},
                                                   {build.caption("Tribunes:"), Text4},
                                                   {build.caption("Senators:"), Text9},
                                                   {build.caption("Bonus Station QSOs:"), Text8},
                                                   {Label7, Text5},
                                                   {build.caption("Total Bonus Points:"), Text6},
                                                   {build.caption("TOTAL SCORE:"), Text7}};
    auto* grid = new QGridLayout;
    int row = 0;
    for (const auto& [caption, box] : rows) {
        if (box == Text7)
            for (QWidget* widget : {static_cast<QWidget*>(caption), static_cast<QWidget*>(box)})
                widget->setFont(enlargedFont(this, totalEnlargement));
        box->setAlignment(Qt::AlignRight);
        setColumns(box, figureColumns);
        grid->addWidget(caption, row, 0, Qt::AlignRight);
        grid->addWidget(box, row++, 1);
    }
    return grid;
}

} // namespace vantrel
