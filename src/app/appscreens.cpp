// SPDX-License-Identifier: MIT
#include "app/appscreens.h"

#include "k3y/frmCheckDupeK3Y.h"
#include "k3y/frmK3YStandings.h"
#include "k3y/frmK3Ybox.h"
#include "k3y/frmVantrelCallArea.h"
#include "logedit/frmVantrelCorrect.h"
#include "logedit/frmVantrelDelete.h"
#include "logedit/frmVantrelEDITcbr.h"
#include "output/frmCountBonus.h"
#include "output/frmFileFinder.h"
#include "output/frmVantrelBackup.h"
#include "output/frmVantrelFiles.h"
#include "output/frmVantrelList.h"
#include "output/frmVantrelScore.h"
#include "output/frmVantrelShowDB.h"
#include "roster/frmMemberImport.h"
#include "roster/frmSelectUpdateList.h"
#include "screens/main/frmVantrelDupe.h"
#include "screens/main/frmVantrelMain.h"
#include "screens/start/frmVantrelStart.h"

#include <QApplication>

namespace vantrel {

AppScreens::~AppScreens() {
    for (const auto& [screen, form] : m_slots)
        delete form.data();
}

Form* AppScreens::make(Screen screen) {
    const FormContext context{m_module, m_platform, *this};
    switch (screen) {
    case Screen::start:
        return new frmVantrelStart(context);
    case Screen::main:
        return new frmVantrelMain(context);
    case Screen::dupe:
        return new frmVantrelDupe(context);
    case Screen::correct:
        return new frmVantrelCorrect(context);
    case Screen::deletion:
        return new frmVantrelDelete(context);
    case Screen::editor:
        return new frmVantrelEDITcbr(context);
    case Screen::standings:
        return new frmK3YStandings(context, areaPage);
    case Screen::standings2:
        return new frmK3YStandings(context, regionPage);
    case Screen::checkDupeK3y:
        return new frmCheckDupeK3Y(context);
    case Screen::k3yBox:
        return new frmK3Ybox(context);
    case Screen::score:
        return new frmVantrelScore(context);
    case Screen::bonus:
        return new frmCountBonus(context);
    case Screen::files:
        return new frmVantrelFiles(context);
    case Screen::list:
        return new frmVantrelList(context);
    case Screen::showDb:
        return new frmVantrelShowDB(context);
    case Screen::backup:
        return new frmVantrelBackup(context);
    case Screen::finder:
        return new frmFileFinder(context);
    case Screen::updateList:
        return new frmSelectUpdateList(context);
    case Screen::readData:
        return new frmMemberImport(context, dataImportPage);
    case Screen::memberUpdate:
        return new frmMemberImport(context, memberImportPage);
    case Screen::callArea:
        return new frmVantrelCallArea(context);
    }
    return nullptr;
}

void AppScreens::open(Screen screen) {
    // Not every platform says at once which window is active.
    QWidget* active = QApplication::activeWindow();
    openFor(active != nullptr ? active : m_lastOpened.data(), screen);
}

void AppScreens::replace(Screen current, Screen next) {
    Form* leaving = m_slots[current];
    QWidget* opener = leaving->opener();
    leaving->close();
    openFor(opener, next);
}

void AppScreens::openFor(QWidget* opener, Screen screen) {
    QPointer<Form>& slot = m_slots[screen];
    if (slot && slot->isVisible() && !slot->loadsAgain()) {
        slot->bringToFront();
        return;
    }
    if (!slot || slot->isGone())
        slot = make(screen);
    if (!slot)
        return;
    if (slot->windowType() != Qt::ToolTip) // nothing returns to the dupe screen
        m_lastOpened = slot;
    slot->open(opener);
}

StartPage* AppScreens::startPage() {
    return dynamic_cast<StartPage*>(m_slots[Screen::start].data());
}

MainPage* AppScreens::mainPage() {
    return dynamic_cast<MainPage*>(m_slots[Screen::main].data());
}

void AppScreens::handBackPath(FinderMode mode, const std::string& path) {
    const std::map<FinderMode, Screen> receivers{{FinderMode::memberList, Screen::memberUpdate},
                                                 {FinderMode::backup, Screen::backup},
                                                 {FinderMode::start, Screen::start}};
    const auto receiver = receivers.find(mode);
    if (receiver == receivers.end())
        return;
    Form* const form = m_slots[receiver->second];
    if (auto* const taker = dynamic_cast<PathReceiver*>(form)) {
        form->bringToFront();
        taker->receivePath(path);
    }
}

void AppScreens::quit() {
    QCoreApplication::exit(0);
}

} // namespace vantrel
