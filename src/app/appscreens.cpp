// SPDX-License-Identifier: MIT
#include "app/appscreens.h"

#include "forms/frmVantrelHelp.h"
#include "k3y/frmCheckDupeK3Y.h"
#include "k3y/frmK3YStandings.h"
#include "k3y/frmK3Ybox.h"
#include "k3y/frmVantrelCallArea.h"
#include "logedit/frmLogPage.h"
#include "logedit/frmVantrelCorrect.h"
#include "logedit/frmVantrelDelete.h"
#include "logedit/frmVantrelEDITcbr.h"
#include "output/files/frmFileFinder.h"
#include "output/files/frmVantrelBackup.h"
#include "output/files/frmVantrelFiles.h"
#include "output/files/frmVantrelList.h"
#include "output/score/frmCountBonus.h"
#include "output/score/frmVantrelScore.h"
#include "roster/frmMemberImport.h"
#include "roster/frmSelectUpdateList.h"
#include "roster/frmVantrelShowDB.h"
#include "screens/main/frmVantrelDupe.h"
#include "screens/main/frmVantrelMain.h"
#include "screens/start/frmVantrelStart.h"

#include <QApplication>

#include <utility>

namespace vantrel {

AppScreens::~AppScreens() {
    for (const auto& [screen, form] : m_slots)
        delete form.data();
}

Form* AppScreens::make(Screen screen) {
    const FormContext context{m_shared, m_platform, *this};
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
    case Screen::help:
        return new frmVantrelHelp(context);
    case Screen::callArea:
        return new frmVantrelCallArea(context);
    }
    return nullptr;
}

Form* AppScreens::formOf(Screen screen) {
    QPointer<Form>& slot = m_slots[screen];
    if (!slot || slot->isGone())
        slot = make(screen);
    return slot;
}

void AppScreens::open(Screen screen) {
    QWidget* opener = QApplication::activeWindow();
    // Not every platform says at once which window is active.
    for (Form* page :
         {m_lastOpened.data(), m_slots[Screen::main].data(), m_slots[Screen::start].data()})
        if (opener == nullptr && page != nullptr && page->isVisible())
            opener = page;
    openFor(opener, screen);
}

void AppScreens::replace(Screen current, Screen next) {
    Form* leaving = m_slots[current];
    QWidget* opener = leaving->opener();
    leaving->close();
    openFor(opener, next);
}

void AppScreens::openFor(QWidget* opener, Screen screen) {
    // Of the two pages of the standings one shows.
    const Form* const second = m_slots[Screen::standings2];
    if (screen == Screen::standings && second != nullptr && second->isVisible()) {
        replace(Screen::standings2, Screen::standings);
        return;
    }
    Form* const form = formOf(screen);
    if (form->isVisible() && !form->loadsAgain()) {
        form->bringToFront();
        return;
    }
    if (form->windowType() != Qt::ToolTip) // nothing returns to the dupe screen
        m_lastOpened = form;
    form->open(opener);
}

void AppScreens::openContact(Screen page, int contact, bool shown) {
    static_cast<frmLogPage*>(formOf(page))->startAt(contact, shown);
    open(page);
}

void AppScreens::openList(ListedFile file) {
    static_cast<frmVantrelList*>(formOf(Screen::list))->choose(file);
    open(Screen::list);
}

void AppScreens::openRoster(std::string path, std::vector<std::string> lines) {
    static_cast<frmVantrelShowDB*>(formOf(Screen::showDb))->take(std::move(path), std::move(lines));
    open(Screen::showDb);
}

void AppScreens::openFinder(Screen receiver) {
    static_cast<frmFileFinder*>(formOf(Screen::finder))->handTo(receiver);
    open(Screen::finder);
}

void AppScreens::openHelp(const std::string& page) {
    static_cast<frmVantrelHelp*>(formOf(Screen::help))->choose(page);
    open(Screen::help);
}

void AppScreens::askAboutDupe(DupeQuestion question) {
    static_cast<frmCheckDupeK3Y*>(formOf(Screen::checkDupeK3y))->ask(std::move(question));
    open(Screen::checkDupeK3y);
}

void AppScreens::handBackPath(Screen receiver, const std::string& path) {
    Form* const form = m_slots[receiver];
    if (auto* const taker = dynamic_cast<PathReceiver*>(form)) {
        form->bringToFront();
        taker->receivePath(path);
    }
}

StartPage* AppScreens::startPage() {
    return dynamic_cast<StartPage*>(m_slots[Screen::start].data());
}

MainPage* AppScreens::mainPage() {
    return dynamic_cast<MainPage*>(m_slots[Screen::main].data());
}

void AppScreens::quit() {
    QCoreApplication::exit(0);
}

} // namespace vantrel
