// SPDX-License-Identifier: MIT
#include "output/score/frmVantrelScore.h"

#include "forms/readtable.h"
#include "forms/stackedbars.h"
#include "log/logfile.h"
#include "output/score/ratesheet.h"
#include "output/score/scoretext.h"
#include "platform/files.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

namespace vantrel {

namespace {
constexpr int figureColumns = 6;
constexpr int minutesPerHour = 60;
constexpr double scoreEnlargement = 2;
} // namespace

frmVantrelScore::frmVantrelScore(const FormContext& context)
    : Form(context, "frmVantrelScore", "Vantrel - Score") {
    FormBuilder build(this);
    m_logPath = build.label("Label1");
    m_logPath->setWordWrap(true);
    m_bands = build.table("Table1", "BANDS");
    m_bands->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_bands->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_picture = new StackedBars(this);
    const Item gap = Item::gap(fontMetrics().height());
    page(this, {m_logPath,
                row({figures(), gap, build.section("BANDS", column({m_bands})), gap, total(),
                     Item::room()}),
                {m_picture, 1},
                row({build.command("Command2", "&PRINT", "PRINTS THE SCORE", [this] { print(); }),
                     build.command("Command3", "&COPY", "COPIES THE REPORT AS TEXT",
                                   [this] { copyToClipboard(); }),
                     m_copied = build.label("Label21"), Item::room(),
                     focusFirst(build.exit("CLOSES THE SCORE"))})});
}

// Each figure behind its caption, in the order of the report.
QFormLayout* frmVantrelScore::figures() {
    FormBuilder build(this);
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight);
    const auto add = [&](QLabel* caption, const char* name, Score::Figure Score::*figure) {
        QLineEdit* box = build.output(name);
        setColumns(box, figureColumns); // close behind its caption
        FormBuilder::tie(caption, box);
        form->addRow(caption, box);
        m_figures.emplace_back(box, figure);
    };
    m_multiplierCaption = build.label("Label4");
    m_contestFigureCaption = build.label("Label7");
    add(build.caption("QSOs:"), "Text1", &Score::qsos);
    add(m_multiplierCaption, "Text2", &Score::multipliers);
    add(build.caption("Centurions:"), "Text3", &Score::centurions);
    add(build.caption("Tribunes:"), "Text4", &Score::tribunes);
    add(build.caption("Senators:"), "Text9", &Score::senators);
    add(build.caption("Bonus Station QSOs:"), "Text8", &Score::bonusStationQsos);
    add(m_contestFigureCaption, "Text5", &Score::contestFigure);
    add(build.caption("Total Bonus Points:"), "Text6", &Score::bonusPoints);
    return form;
}

// The total in large figures, its sum below it, and whether duplicates are logged and counted.
QLayout* frmVantrelScore::total() {
    FormBuilder build(this);
    m_total = build.output("Text7");
    m_total->setFont(enlargedFont(this, scoreEnlargement));
    m_total->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setColumns(m_total, figureColumns);
    return column({build.caption("TOTAL SCORE:", m_total), m_total, m_sum = build.alert("Label20"),
                   Item::gap(fontMetrics().height()), m_dupesLogged = build.label("Label13"),
                   m_dupesNotCounted = build.label("Label14"), Item::room()});
}

// --- Opening ---------------------------------------------------------------------------------

void frmVantrelScore::load() {
    m_score = Score();
    showLabels();
    showScore();
    m_bands->hide();
    m_picture->hide();
    m_copied->clear();
    shared().log.reread();
    m_score = computeScore(shared().log.contacts(), shared().settings);
    showScore();
    showBands();
    showPicture();
    if (m_score.stoppedBy)
        throw RuntimeError(*m_score.stoppedBy);
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
    for (const auto& [box, figure] : m_figures)
        put(box, figureText(m_score.*figure));
    put(m_total, figureText(m_score.total));
    const std::string sum = totalText(m_score);
    m_sum->announce(sum, "TOTAL SCORE " + figureText(m_score.total) + ": " + sum);
}

void frmVantrelScore::showBands() {
    const std::vector<BandScore> worked = bandScores(shared().log.contacts(), shared().settings);
    m_bands->setVisible(!worked.empty());
    m_bands->setHeadings({{"BAND"}, {"QSOs"}, {m_score.european ? "NEW DXCC" : "NEW S/P/C"}});
    std::vector<std::vector<ReadTable::Cell>> rows;
    rows.reserve(worked.size());
    for (const BandScore& band : worked)
        rows.push_back({{std::string(band.band)},
                        {std::to_string(band.qsos)},
                        {std::to_string(band.newMultipliers)}});
    m_bands->setRows(rows);
}

void frmVantrelScore::showPicture() {
    const RateSheet sheet = rateSheet(shared().log.contacts());
    const bool byHours = sheet.minutesPerBar == minutesPerHour;
    std::vector<QString> series;
    series.reserve(bands.size() + 1);
    for (const Band& band : bands)
        series.push_back(toQt(band.label));
    series.push_back(QStringLiteral("OTHER"));
    std::vector<StackedBar> bars;
    for (const RateSheetBar& bar : sheet.bars) {
        const std::string hour = zeroPadded(bar.minuteOfDay / minutesPerHour, 2);
        const std::string minute = zeroPadded(bar.minuteOfDay % minutesPerHour, 2);
        bars.push_back({toQt(hour + (byHours ? "Z" : minute)),
                        {bar.contacts.begin(), bar.contacts.end()},
                        bar.afterBreak});
    }
    m_picture->setVisible(!bars.empty());
    m_picture->setBars(byHours ? QStringLiteral("CONTACTS PER HOUR (UTC)")
                               : QStringLiteral("CONTACTS PER 10 MINUTES (UTC)"),
                       series, bars);
}

// --- The report ------------------------------------------------------------------------------

std::vector<std::string> frmVantrelScore::report() const {
    return scoreReport(m_score, textOf(m_logPath));
}

void frmVantrelScore::print() {
    const std::string note =
        sendToPrinter(platform().printer, platform().files, wrappedForPaper(report()),
                      nameBeside(shared().log.name(), "-SCORE.PDF"));
    messages().show({"The File has been sent to the Printer!", BoxIcon::exclamation, note});
    firstFocus()->setFocus(); // EXIT
}

void frmVantrelScore::copyToClipboard() {
    QString text;
    for (const std::string& line : report())
        text += toQt(line) + QLatin1Char('\n');
    QApplication::clipboard()->setText(text);
    put(m_copied, "COPIED");
}

} // namespace vantrel
