// SPDX-License-Identifier: MIT
#include "roster/frmSelectUpdateList.h"

#include "forms/formbuilder.h"
#include "platform/files.h"
#include "platform/launcher.h"
#include "roster/memberlist.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

frmSelectUpdateList::frmSelectUpdateList(const FormContext& context)
    : Form(context, "frmSelectUpdateList", "SELSCT FILE TO UPDATE SKSDBx FILES") {
    FormBuilder build(this);
    Option3 = build.jobOption("Option3", "DOWNLOAD AND SAVE SKCCDATA.TXT AND SKCCLIST.TXT",
                              "STARTS THE FETCHER, WHICH DOWNLOADS BOTH LISTS");
    Option1 = build.jobOption("Option1", "UPDATE  USING  SKCCDATA.TXT   (First Choice)");
    Option2 = build.jobOption("Option2", "UPDATE  USING  SKCCLIST.TXT    (Second Choice)");
    Command1 = build.command("Command1", "E&XIT", "QUIT THIS PAGE");

    auto* first = new QHBoxLayout;
    first->addWidget(Option3);
    first->addWidget(build.caption("DO THIS FIRST"));
    first->addStretch();
    auto* page = new QVBoxLayout(this);
    page->addLayout(first);
    page->addWidget(Option1);
    page->addWidget(Option2);
    page->addStretch();
    page->addWidget(Command1, 0, Qt::AlignRight);

    using Page = frmSelectUpdateList;
    connectHandler(Option1, &QRadioButton::clicked, this, &Page::Option1_Click);
    connectHandler(Option2, &QRadioButton::clicked, this, &Page::Option2_Click);
    connectHandler(Option3, &QRadioButton::clicked, this, &Page::Option3_Click);
    connect(Command1, &QPushButton::clicked, this, [this] { close(); });
}

QWidget* frmSelectUpdateList::firstFocus() {
    return Option3;
}

// An option here is a job, not a choice that stays.
void frmSelectUpdateList::Option1_Click() {
    Option1->setChecked(false);
    screens().open(Screen::readData);
}

void frmSelectUpdateList::Option2_Click() {
    Option2->setChecked(false);
    screens().open(Screen::memberUpdate);
}

void frmSelectUpdateList::Option3_Click() {
    Option3->setChecked(false);
    platform().launcher.start(platform().files.nativePath(fetcherProgram));
}

} // namespace vantrel
