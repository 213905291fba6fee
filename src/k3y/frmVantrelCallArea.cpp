// SPDX-License-Identifier: MIT
#include "k3y/frmVantrelCallArea.h"

#include "log/logfile.h"
#include "shared/utctime.h"

#include <QGridLayout>
#include <QPainter>
#include <QStyledItemDelegate>

namespace vantrel {

namespace {

constexpr int areaColumns = 36;

// The blanks inside the items line up the codes in one font only; this draws them as a column in
// any font.
class AreaDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const CallArea& area = callAreas.at(static_cast<std::size_t>(index.row()));
        QStyleOptionViewItem part(option);
        initStyleOption(&part, index);
        const QString code = toQt(area.code);
        part.text = part.text.chopped(code.size()).simplified();
        QStyle* style = part.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &part, painter, part.widget);
        const bool selected = part.state.testFlag(QStyle::State_Selected);
        const QRect column = part.rect.adjusted(part.rect.width() / 2, 0, 0, 0);
        style->drawItemText(painter, column, Qt::AlignCenter, part.palette, true, code,
                            selected ? QPalette::HighlightedText : QPalette::Text);
    }
};

} // namespace

frmVantrelCallArea::frmVantrelCallArea(const FormContext& context)
    : Form(context, "frmVantrelCallArea", "Get Call Area") {
    setFont(familyFont(this, "Arial Rounded MT Bold"));
    FormBuilder build(this);
    auto* grid = new QGridLayout(this);
    QLabel* heading = build.label("Label1", "SELECT YOUR CALL AREA");
    QLabel* instruction = build.label("Label4", "CLICK ON THE CALL AREA SELECTED");
    heading->setAlignment(Qt::AlignCenter);
    instruction->setAlignment(Qt::AlignCenter);
    createAreas();
    instruction->setBuddy(m_areas);
    m_chosenArea = build.label("Label3");
    m_chosenArea->setMinimumWidth(m_areas->minimumWidth() / 2);
    grid->addWidget(heading, 0, 0, 1, 2);
    grid->addWidget(instruction, 1, 0, 1, 2);
    grid->addWidget(m_areas, 2, 0, 1, 2);
    grid->addWidget(build.label("Label2", "CALL AREA SELECTED:"), 3, 0);
    grid->addWidget(m_chosenArea, 3, 1);
    grid->addWidget(build.command("Command1", "OK", "SETS NEW CALL AREA", [this] { close(); }), 4,
                    0);
    grid->addWidget(build.command("Command2", "ABORT", "NO CHANGE", [this] { abort(); }), 4, 1);
}

void frmVantrelCallArea::createAreas() {
    FormBuilder build(this);
    m_areas = focusFirst(build.list("List1"));
    m_areas->setAccessibleName(QStringLiteral("CALL AREAS"));
    m_areas->setFont(font()); // its items are aligned for it
    std::vector<std::string> items;
    items.reserve(callAreas.size());
    for (const CallArea& area : callAreas)
        items.emplace_back(area.item);
    m_areas->lines()->setLines(std::move(items));
    m_areas->setItemDelegate(new AreaDelegate(m_areas));
    const int rowHeight = fontMetrics().height() + 1;
    m_areas->setMinimumSize(fontMetrics().averageCharWidth() * areaColumns,
                            rowHeight * static_cast<int>(callAreas.size()) +
                                2 * m_areas->frameWidth());
    FormBuilder::onChoice(m_areas, [this](std::size_t row) { choose(callAreas.at(row)); });
}

void frmVantrelCallArea::load() {
    const StartPage* page = screens().startPage();
    if (page == nullptr)
        return;
    m_utcDate = utcTime(platform().clock.now(), page->gmtOffset()).date;
    m_savedName = page->logFileName();
}

void frmVantrelCallArea::choose(const CallArea& area) {
    StartPage* page = screens().startPage();
    if (page == nullptr)
        return;
    put(m_chosenArea, area.item);
    page->setLogFileName(k3yLogName(m_utcDate, area.code, page->myCall()));
}

// The name goes back to what it was.
void frmVantrelCallArea::abort() {
    if (StartPage* page = screens().startPage())
        page->setLogFileName(m_savedName);
    close();
}

} // namespace vantrel
