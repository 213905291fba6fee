// SPDX-License-Identifier: MIT
#include "output/score/frmCountBonus.h"

#include "forms/formbuilder.h"
#include "output/score/bonuscount.h"
#include "platform/qt/latin1.h"

#include <QVBoxLayout>

namespace vantrel {

namespace {
constexpr double totalEnlargement = 2;
} // namespace

frmCountBonus::frmCountBonus(const FormContext& context)
    : Form(context, "frmCountBonus", "Vantrel - Bonus") {
    FormBuilder build(this);
    Command1 = build.command("Command1", "E&XIT", "CLOSES THE BONUS COUNT");
    Label1 = build.label("Label1");
    Label1->setFont(enlargedFont(this, totalEnlargement));
    Label1->setAlignment(Qt::AlignCenter);

    auto* page = new QVBoxLayout(this);
    page->addWidget(build.caption("BONUS POINTS NOTED IN THE NAME FIELD AFTER A SLASH,\n"
                                  "ONCE PER STATION (JOHN/25 = 25 POINTS)"),
                    0, Qt::AlignCenter);
    page->addWidget(Label1, 1);
    page->addWidget(Command1, 0, Qt::AlignCenter);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

void frmCountBonus::load() {
    Label1->clear();
    shared().log.reread();
    Label1->setText(toQt("Total: " + countBonusPoints(shared().log.contacts()).text()));
}

QWidget* frmCountBonus::firstFocus() {
    return Command1;
}

} // namespace vantrel
