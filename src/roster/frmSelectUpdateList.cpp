// SPDX-License-Identifier: MIT
#include "roster/frmSelectUpdateList.h"

#include "platform/files.h"
#include "roster/memberlist.h"

namespace vantrel {

frmSelectUpdateList::frmSelectUpdateList(const FormContext& context)
    : Form(context, "frmSelectUpdateList", "SELSCT FILE TO UPDATE SKSDBx FILES") {
    FormBuilder build(this);
    // An option here runs a job and is not left chosen.
    const auto job = [&](const char* name, const char* caption, const char* toolTip, auto work) {
        QRadioButton* option = build.jobOption(name, caption, toolTip);
        connectHandler(option, &QRadioButton::clicked, [this, option, work] {
            option->setChecked(false);
            focusFirst(option);
            work();
        });
        return option;
    };
    QRadioButton* first =
        job("Option3", "DOWNLOAD AND SAVE SKCCDATA.TXT AND SKCCLIST.TXT",
            "STARTS THE FETCHER, WHICH DOWNLOADS BOTH LISTS", [this] { download(); });
    QLabel* address =
        build.caption(("The club publishes its lists at " + std::string(listsAddress)).c_str());
    address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    page(this, {row({focusFirst(first), build.caption("DO THIS FIRST"), Item::room()}),
                job("Option1", "UPDATE  USING  SKCCDATA.TXT   (First Choice)", "",
                    [this] { screens().open(Screen::readData); }),
                job("Option2", "UPDATE  USING  SKCCLIST.TXT    (Second Choice)", "",
                    [this] { screens().open(Screen::memberUpdate); }),
                address,
                Item::room(),
                {build.exit("QUIT THIS PAGE"), 0, Qt::AlignRight}});
}

void frmSelectUpdateList::download() {
    const Files& files = platform().files;
    try {
        platform().launcher.start(files.nativePath(fetcherProgram));
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.code(), error.detail() + "\n\n" + downloadByHand(files.path("")));
    }
}

} // namespace vantrel
