// SPDX-License-Identifier: MIT
#include "k3y/frmVantrelCallArea.h"

#include "forms/formbuilder.h"
#include "forms/linelistmodel.h"
#include "k3y/callarea.h"
#include "platform/clock.h"
#include "platform/qt/latin1.h"
#include "shared/utctime.h"

#include <QGridLayout>

namespace vantrel {

frmVantrelCallArea::frmVantrelCallArea(const FormContext& context)
    : Form(context, "frmVantrelCallArea", "Get Call Area") {
    FormBuilder build(this);
    List1 = build.list("List1");
    Command1 = build.command("Command1", "OK", "SETS NEW CALL AREA");
    Command2 = build.command("Command2", "ABORT", "NO CHANGE");
    Label1 = build.label("Label1", "SELECT YOUR CALL AREA");
    Label4 = build.label("Label4", "CLICK ON THE CALL AREA SELECTED");
    Label2 = build.label("Label2", "CALL AREA SELECTED:");
    Label3 = build.label("Label3");
    setFont(familyFont(this, "Arial Rounded MT Bold"));
    List1->setFont(font()); // its items are aligned for it
    std::vector<std::string> items;
    for (const CallArea& area : callAreas)
        items.emplace_back(area.item);
    auto* model = new LineListModel(this);
    model->setLines(std::move(items));
    List1->setModel(model);
    layOut();

    using Page = frmVantrelCallArea;
    connectHandler(List1, &QListView::clicked, this, &Page::List1_Click);
    connectHandler(List1, &QListView::activated, this, &Page::List1_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
    connectHandler(Command2, &QPushButton::clicked, this, &Page::Command2_Click);
}

void frmVantrelCallArea::load() {
    const StartPage* page = screens().startPage();
    if (page == nullptr)
        return;
    m_utcDate = utcTime(platform().clock.now(), page->gmtOffset()).date;
    m_savedName = page->logFileName();
}

QWidget* frmVantrelCallArea::firstFocus() {
    return List1;
}

void frmVantrelCallArea::List1_Click(const QModelIndex& index) {
    StartPage* page = screens().startPage();
    if (!index.isValid() || page == nullptr)
        return;
    const CallArea& area = callAreas.at(static_cast<std::size_t>(index.row()));
    Label3->setText(toQt(area.item));
    page->setLogFileName(k3yLogName(m_utcDate, area.code, page->myCall()));
}

// The name goes back to what it was.
void frmVantrelCallArea::Command2_Click() {
    if (StartPage* page = screens().startPage())
        page->setLogFileName(m_savedName);
    close();
}

void frmVantrelCallArea::layOut() {
    Label1->setAlignment(Qt::AlignCenter);
    Label4->setAlignment(Qt::AlignCenter);
    auto* grid = new QGridLayout(this);
    grid->addWidget(Label1, 0, 0, 1, 2);
    grid->addWidget(Label4, 1, 0, 1, 2);
    grid->addWidget(List1, 2, 0, 1, 2);
    grid->addWidget(Label2, 3, 0);
    grid->addWidget(Label3, 3, 1);
    grid->addWidget(Command1, 4, 0);
    grid->addWidget(Command2, 4, 1);
    resize(360, 480);
}

} // namespace vantrel
