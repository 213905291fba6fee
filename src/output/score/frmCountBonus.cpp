// SPDX-License-Identifier: MIT
#include "output/score/frmCountBonus.h"

#include "output/score/score.h"

namespace vantrel {

namespace {
constexpr double totalEnlargement = 2;
} // namespace

frmCountBonus::frmCountBonus(const FormContext& context)
    : Form(context, "frmCountBonus", "Vantrel - Bonus") {
    FormBuilder build(this);
    m_total = build.label("Label1");
    m_total->setFont(enlargedFont(this, totalEnlargement));
    m_total->setAlignment(Qt::AlignCenter);
    page(this, {{build.caption("BONUS POINTS NOTED IN THE NAME FIELD AFTER A SLASH,\n"
                               "ONCE PER STATION (JOHN/25 = 25 POINTS)"),
                 0, Qt::AlignCenter},
                {m_total, 1},
                {focusFirst(build.exit("CLOSES THE BONUS COUNT")), 0, Qt::AlignCenter}});
}

void frmCountBonus::load() {
    m_total->clear();
    shared().log.reread();
    put(m_total, "Total: " + countBonusPoints(shared().log.contacts()).text());
}

} // namespace vantrel
