// SPDX-License-Identifier: MIT
#include "output/score/frmVantrelScore.h"

#include "base/fixedtext.h"
#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/controltext.h"
#include "forms/formbuilder.h"
#include "forms/stackedbars.h"
#include "log/outputfiles.h"
#include "output/score/contestpicture.h"
#include "output/score/scorereport.h"
#include "platform/files.h"
#include "platform/printjob.h"
#include "platform/qt/latin1.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr int figureColumns = 6;
constexpr int minutesPerHour = 60;
constexpr double totalEnlargement = 2;

// The figure stands close behind its caption.
void keepNarrow(QLineEdit* figure) {
    setColumns(figure, figureColumns);
    figure->setMaximumWidth(figure->minimumWidth());
}

// A table to read: no frames, no numbers of rows, as large as what it holds.
QTableWidget* makeTable(QWidget* page, const char* name) {
    QTableWidget* table = FormBuilder::named(new QTableWidget(page), name);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    table->setShowGrid(false);
    table->setFrameShape(QFrame::NoFrame);
    QPalette flat(table->palette());
    flat.setColor(QPalette::Base, Qt::transparent);
    table->setPalette(flat);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(page->fontMetrics().height());
    table->verticalHeader()->setDefaultSectionSize(page->fontMetrics().height());
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    return table;
}

QTableWidgetItem* cell(std::string_view text) {
    auto* item = new QTableWidgetItem(toQt(text));
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}
} // namespace

frmVantrelScore::frmVantrelScore(const FormContext& context)
    : Form(context, "frmVantrelScore", "Vantrel - Score") {
    createControls();
    layOut();
    connectHandlers();
}

void frmVantrelScore::createControls() {
    FormBuilder build(this);
    m_printButton = build.command("Command2", "&PRINT", "PRINTS THE SCORE");
    m_copyButton = build.command("Command3", "&COPY", "COPIES THE REPORT AS TEXT");
    m_exitButton = build.command("Command1", "E&XIT", "CLOSES THE SCORE");
    m_qsos = build.output("Text1");
    m_multipliers = build.output("Text2");
    m_centurions = build.output("Text3");
    m_tribunes = build.output("Text4");
    m_senators = build.output("Text9");
    m_bonusStationQsos = build.output("Text8");
    m_contestFigure = build.output("Text5");
    m_bonusPoints = build.output("Text6");
    m_total = build.output("Text7");
    m_sum = build.alert("Label20");
    m_copied = build.label("Label21");
    m_logPath = build.label("Label1");
    m_multiplierCaption = build.label("Label4");
    m_contestFigureCaption = build.label("Label7");
    m_dupesLogged = build.label("Label13");
    m_dupesNotCounted = build.label("Label14");
    m_bands = makeTable(this, "Table1");
    m_bands->setAccessibleName(QStringLiteral("BANDS"));
    m_picture = new StackedBars(this);
}

void frmVantrelScore::connectHandlers() {
    connectHandler(m_printButton, &QPushButton::clicked, this, &frmVantrelScore::printClicked);
    connectHandler(m_copyButton, &QPushButton::clicked, this, &frmVantrelScore::copyClicked);
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
    const std::string sum = totalText(m_score);
    announce(m_sum, sum, "TOTAL SCORE " + figureText(m_score.total) + ": " + sum);
}

void frmVantrelScore::showBands() {
    const std::vector<BandScore> worked = bandScores(shared().log.contacts(), shared().settings);
    m_bands->setVisible(!worked.empty());
    m_bands->setColumnCount(3);
    m_bands->setHorizontalHeaderLabels(
        {QStringLiteral("BAND"), QStringLiteral("QSOs"),
         m_score.european ? QStringLiteral("NEW DXCC") : QStringLiteral("NEW S/P/C")});
    m_bands->setRowCount(static_cast<int>(worked.size()));
    for (int row = 0; row < m_bands->rowCount(); ++row) {
        const BandScore& band = worked[static_cast<std::size_t>(row)];
        m_bands->setItem(row, 0, cell(band.band));
        m_bands->setItem(row, 1, cell(std::to_string(band.qsos)));
        m_bands->setItem(row, 2, cell(std::to_string(band.newMultipliers)));
    }
}

void frmVantrelScore::showPicture() {
    const ContestPicture picture = contestPicture(shared().log.contacts());
    const bool byHours = picture.minutesPerBar == minutesPerHour;
    std::vector<QString> series;
    series.reserve(bands.size() + 1);
    for (const Band& band : bands)
        series.push_back(toQt(band.label));
    series.push_back(QStringLiteral("OTHER"));
    std::vector<StackedBar> bars;
    for (const PictureBar& bar : picture.bars) {
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

void frmVantrelScore::printClicked() {
    const std::string note =
        sendToPrinter(platform().printer, platform().files, wrappedForPaper(report()),
                      scorePdfName(shared().log.name()));
    messages().show({std::string(reportPrinted), BoxIcon::exclamation, note});
    m_exitButton->setFocus();
}

void frmVantrelScore::copyClicked() {
    QString text;
    for (const std::string& line : report())
        text += toQt(line) + QLatin1Char('\n');
    QApplication::clipboard()->setText(text);
    put(m_copied, "COPIED");
}

// --- Layout ----------------------------------------------------------------------------------

void frmVantrelScore::layOut() {
    FormBuilder build(this);
    auto* card = new QVBoxLayout;
    card->addWidget(m_bands);
    auto* score = new QHBoxLayout;
    score->addLayout(figures());
    score->addSpacing(fontMetrics().height());
    score->addLayout(build.section("BANDS", card));
    score->addSpacing(fontMetrics().height());
    score->addLayout(total());
    score->addStretch();
    auto* commands = new QHBoxLayout;
    commands->addWidget(m_printButton);
    commands->addWidget(m_copyButton);
    commands->addWidget(m_copied);
    commands->addStretch();
    commands->addWidget(m_exitButton);

    m_logPath->setWordWrap(true);
    auto* page = new QVBoxLayout(this);
    page->addWidget(m_logPath);
    page->addLayout(score);
    page->addWidget(m_picture, 1);
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
    for (QLabel* caption : {m_multiplierCaption, m_contestFigureCaption})
        setTextColour(caption, dimmedColour(palette()));
    m_multiplierCaption->setBuddy(m_multipliers);
    m_contestFigureCaption->setBuddy(m_contestFigure);
    for (int row = 0; row < form->rowCount(); ++row)
        keepNarrow(static_cast<QLineEdit*>(form->itemAt(row, QFormLayout::FieldRole)->widget()));
    return form;
}

// Large, how it comes about below it, and what became of the duplicates.
QLayout* frmVantrelScore::total() {
    FormBuilder build(this);
    m_total->setFont(enlargedFont(this, totalEnlargement));
    m_total->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    keepNarrow(m_total);
    auto* column = new QVBoxLayout;
    column->addWidget(build.caption("TOTAL SCORE:", m_total));
    column->addWidget(m_total);
    column->addWidget(m_sum);
    column->addSpacing(fontMetrics().height());
    column->addWidget(m_dupesLogged);
    column->addWidget(m_dupesNotCounted);
    column->addStretch();
    return column;
}

} // namespace vantrel
