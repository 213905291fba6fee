// SPDX-License-Identifier: MIT
#include "roster/frmSelectUpdateList.h"

#include "forms/formbuilder.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "roster/memberlist.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace vantrel {

frmSelectUpdateList::frmSelectUpdateList(const FormContext& context)
    : Form(context, "frmSelectUpdateList", "SELSCT FILE TO UPDATE SKSDBx FILES") {
    FormBuilder build(this);
    m_downloadOption = build.jobOption("Option3", "DOWNLOAD AND SAVE SKCCDATA.TXT AND SKCCLIST.TXT",
                                       "STARTS THE FETCHER, WHICH DOWNLOADS BOTH LISTS");
    m_lastRun = m_downloadOption;
    m_dataOption = build.jobOption("Option1", "UPDATE  USING  SKCCDATA.TXT   (First Choice)");
    m_membersOption = build.jobOption("Option2", "UPDATE  USING  SKCCLIST.TXT    (Second Choice)");
    QPushButton* exit = build.command("Command1", "E&XIT", "QUIT THIS PAGE");

    auto* first = new QHBoxLayout;
    first->addWidget(m_downloadOption);
    first->addWidget(build.caption("DO THIS FIRST"));
    first->addStretch();
    auto* page = new QVBoxLayout(this);
    page->addLayout(first);
    page->addWidget(m_dataOption);
    page->addWidget(m_membersOption);
    QLabel* address =
        build.caption(("The club publishes its lists at " + std::string(listsAddress)).c_str());
    address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    page->addWidget(address);
    page->addStretch();
    page->addWidget(exit, 0, Qt::AlignRight);

    using Page = frmSelectUpdateList;
    connectHandler(m_dataOption, &QRadioButton::clicked, this, &Page::importDataClicked);
    connectHandler(m_membersOption, &QRadioButton::clicked, this, &Page::importMembersClicked);
    connectHandler(m_downloadOption, &QRadioButton::clicked, this, &Page::downloadClicked);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
}

QWidget* frmSelectUpdateList::firstFocus() {
    return m_lastRun;
}

// An option here is a job, not a choice that stays; the next one is likely to be beside it.
void frmSelectUpdateList::run(QRadioButton* option) {
    option->setChecked(false);
    m_lastRun = option;
}

void frmSelectUpdateList::importDataClicked() {
    run(m_dataOption);
    screens().open(Screen::readData);
}

void frmSelectUpdateList::importMembersClicked() {
    run(m_membersOption);
    screens().open(Screen::memberUpdate);
}

void frmSelectUpdateList::downloadClicked() {
    run(m_downloadOption);
    const Files& files = platform().files;
    try {
        platform().launcher.start(files.nativePath(fetcherProgram));
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.code(), error.detail() + "\n\n" + downloadByHand(files.path("")));
    }
}

} // namespace vantrel
