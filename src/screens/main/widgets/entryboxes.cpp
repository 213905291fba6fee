// SPDX-License-Identifier: MIT
#include "screens/main/widgets/entryboxes.h"

#include "base/fixedtext.h"
#include "forms/accessible.h"
#include "forms/colours.h"
#include "forms/formbuilder.h"
#include "forms/markedlabel.h"

#include <QGridLayout>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace vantrel {

namespace {

constexpr int numberBoxWidth = 10; // a lookup fills ten
constexpr int frequencyBoxWidth = 10;
constexpr double callPoints = 20;
constexpr double otherPoints = 12;
constexpr int frequencyColumns = 5; // as wide as "14.050"
constexpr int countColumns = 4;     // as wide as five digits
constexpr const char* reports[] = {usualReport, "589", "579", "569", "559", "549",
                                   "539",       "529", "519", "449", "339"};

// Turns what is typed into upper case; the cursor keeps its place.
void keepUpperCase(QLineEdit* box) {
    QObject::connect(box, &QLineEdit::textEdited, box, [box](const QString& typed) {
        const QString shown = toQt(upper(fromQt(typed)));
        if (shown == typed)
            return;
        const int cursor = box->cursorPosition();
        box->setText(shown);
        box->setCursorPosition(cursor);
    });
}

QComboBox* reportBox(FormBuilder& build, const char* name) {
    QComboBox* box = build.editableCombo(name, "Click on Arrow - Then Select");
    for (const char* report : reports)
        box->addItem(QString::fromLatin1(report));
    return box;
}

// As Tab would: what the next box holds is selected, and typing replaces it.
void nextOnEnter(QLineEdit* box, QWidget* next) {
    QObject::connect(box, &QLineEdit::returnPressed, next,
                     [next] { next->setFocus(Qt::TabFocusReason); });
}

// Room for so many capitals, and for the arrow of a list.
int widthOf(const QWidget* box, int columns) {
    const QFontMetrics metrics(box->font());
    const int arrow = qobject_cast<const QComboBox*>(box) != nullptr ? metrics.height() : 0;
    return metrics.horizontalAdvance(QString(columns, QLatin1Char('N'))) +
           metrics.averageCharWidth() * 2 + arrow;
}

// By tone: the colours of the hint's text, of its background and of the bar before it.
struct ToneColours {
    Colour text, ground, bar;
};
constexpr ToneColours toneColours[] = {
    {nullptr, tintColour<accentColour>, accentColour},
    {onTintColour<cautionColour>, tintColour<cautionColour>, cautionColour},
    {onTintColour<warningColour>, tintColour<warningColour>, warningColour},
};

} // namespace

bool isTyping(const QKeyEvent& key) {
    const bool modified = (key.modifiers() & ~Qt::KeypadModifier & ~Qt::ShiftModifier) != 0;
    return key.text().size() == 1 && key.text().front().isPrint() && !modified &&
           key.key() != Qt::Key_Space;
}

EntryBoxes::EntryBoxes(QWidget* form) {
    FormBuilder build(form);
    call = build.text("Text2", qso::hisCall.width,
                      "ENTER HIS CALL OR HIS SKCC#=10 CHARACTERS & DIGITS");
    rstSent = reportBox(build, "Combo1");
    rstReceived = reportBox(build, "Combo2");
    name = build.text("Text3", qso::hisName.width, "10 CHARACTERS");
    state = build.text("Text4", qso::hisState.width, "3 CHARACTERS");
    number = build.text("Text5", numberBoxWidth, "Enter as: 1234T or 100W or NONE");
    frequency =
        build.text("Text7", frequencyBoxWidth,
                   "THIS FREQ WILL BE PUT INTO THE LOG-->TYPE OVER TO CHANGE - 4 OR 5 DIGITS ");
    band = build.label("Label10");
    autoRead = build.label("Label11");
    readSign = build.caption("");
    setRole(readSign, QAccessible::Graphic);
    station = build.label("Label23");
    worked = FormBuilder::named(new MarkedLabel(form), "Label24");
    worked->setTextFormat(Qt::PlainText);
    marker = build.label("Label25");
    hint = build.alert("Label26");
    hintBar = new QWidget(form);
    band->setFont(glanceFont(form, otherPoints));
    frequency->setFont(glanceFont(form, otherPoints));
    frequency->setFixedWidth(widthOf(frequency, frequencyColumns));
    for (QLineEdit* box :
         {call, rstSent->lineEdit(), rstReceived->lineEdit(), name, state, number, frequency})
        keepUpperCase(box);
    nextOnEnter(rstSent->lineEdit(), rstReceived);
    nextOnEnter(rstReceived->lineEdit(), name);
    nextOnEnter(name, state);
    nextOnEnter(state, number);
}

Entry EntryBoxes::entry() const {
    return {textOf(call),    textOf(name),        textOf(state),    textOf(number),
            textOf(rstSent), textOf(rstReceived), textOf(frequency)};
}

void EntryBoxes::show(const EntryView& view) const {
    showBoxes(view);
    showFrequency(view);
    showHint(view.hint);
    put(station, view.station);
    put(marker, view.nextMarker);
    marker->setVisible(!view.nextMarker.empty());
    std::vector<MarkedLabel::Run> runs;
    for (const WorkedCall& like : view.worked) {
        const bool joins = runs.empty() || like.call.empty();
        runs.push_back({toQt((joins ? "" : "  ") + like.text), like.dupe});
    }
    worked->setRuns(std::move(runs));
}

void EntryBoxes::showBoxes(const EntryView& view) const {
    const Entry& entry = view.boxes;
    for (const auto& [box, text] : {std::pair{call, &entry.call},
                                    {name, &entry.name},
                                    {state, &entry.state},
                                    {number, &entry.number},
                                    {frequency, &entry.frequency}})
        if (textOf(box) != *text)
            put(box, *text);
    for (const auto& [box, text] :
         {std::pair{rstSent, &entry.rstSent}, {rstReceived, &entry.rstReceived}})
        if (textOf(box) != *text) {
            box->setCurrentIndex(std::max(0, box->findText(toQt(*text))));
            box->setEditText(toQt(*text));
        }
    for (std::size_t i = 0; i < view.lookedUp.size(); ++i)
        if (QLineEdit* box = filledByLookup()[i]; box->font().italic() != view.lookedUp[i])
            setLookedUp(box, view.lookedUp[i]);
}

// Outside the sprint bands the band label keeps its text, struck out. A green dot: the radio was
// read; a red cross: it was not.
void EntryBoxes::showFrequency(const EntryView& view) const {
    put(band, view.bandText);
    setTextColour(band, view.onBand ? nullptr : cautionColour);
    QFont font = band->font();
    font.setStrikeOut(!view.onBand);
    band->setFont(font);
    put(autoRead, view.autoRead);
    const bool read = view.lastRead == ReadOutcome::read;
    const bool failed = view.lastRead == ReadOutcome::failed;
    readSign->setText(read ? QString(QChar(0x25CF)) : failed ? QString(QChar(0xD7)) : QString());
    readSign->setAccessibleName(read ? QStringLiteral("RADIO READ")
                                     : QStringLiteral("RADIO NOT READ"));
    setTextColour(readSign, read ? goodColour : warningColour);
}

// A screen reader repeats it only when the text is another one.
void EntryBoxes::showHint(const Hint& shown) const {
    if (textOf(hint) == shown.text)
        return;
    hint->announce(shown.text, spokenHint(shown));
    const ToneColours& tone = toneColours[static_cast<std::size_t>(shown.tone)];
    const bool says = !shown.text.empty();
    setTextColour(hint, tone.text);
    setColour(hint, QPalette::Window, says ? tone.ground : nullptr);
    setColour(hintBar, QPalette::Window, says ? tone.bar : nullptr);
}

QHBoxLayout* EntryBoxes::hintRow() const {
    constexpr int barWidth = 5;
    constexpr int margin = 4;
    hint->setFont(glanceFont(hint->parentWidget(), otherPoints));
    hint->setContentsMargins(2 * margin, margin, 2 * margin, margin);
    // A long text must not widen the page, nor make it jump.
    hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    hint->setFixedHeight(hint->fontMetrics().size(0, QStringLiteral("X")).height() + 2 * margin);
    hintBar->setFixedWidth(barWidth);
    for (QWidget* part : {hintBar, static_cast<QWidget*>(hint)})
        part->setAutoFillBackground(true);
    QHBoxLayout* strip = row({hintBar, {hint, 1}});
    strip->setSpacing(0);
    return strip;
}

void EntryBoxes::toFirstEmpty() const {
    const auto boxes = filledByLookup();
    const auto empty =
        std::ranges::find_if(boxes, [](const QLineEdit* box) { return trim(textOf(box)).empty(); });
    if (empty != boxes.end())
        (*empty)->setFocus(Qt::TabFocusReason);
}

QGridLayout* EntryBoxes::exchangeRow(QWidget* form, QLineEdit* count) const {
    const struct {
        const char* caption;
        QWidget* box;
        int columns;
    } boxes[] = {{"HIS CALL", call, qso::hisCall.width}, {"RST SENT", rstSent, 3},
                 {"RST RCVD", rstReceived, 3},           {"NAME", name, qso::hisName.width},
                 {"STATE", state, qso::hisState.width},  {"SKCC#", number, qso::hisNumber.width}};
    FormBuilder build(form);
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(1);
    int column = 0;
    call->setFont(glanceFont(form, callPoints, true));
    for (const auto& [caption, box, columns] : boxes) {
        if (box != call)
            box->setFont(glanceFont(form, otherPoints));
        box->setFixedSize(widthOf(box, columns), call->sizeHint().height());
        grid->addWidget(build.caption(caption, box), 0, column);
        grid->addWidget(box, 1, column++);
    }
    count->setFont(glanceFont(form, callPoints, true));
    count->setFixedWidth(widthOf(count, countColumns));
    grid->setColumnStretch(column++, 1);
    grid->addWidget(build.caption("QSOs", count), 0, column, Qt::AlignRight);
    grid->addWidget(count, 1, column);
    return grid;
}

} // namespace vantrel
