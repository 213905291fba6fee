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

namespace {

// editions: which of its screens a class makes that makes several.
template <typename Page, const auto&... editions>
Form* make(const FormContext& context) {
    return new Page(context, editions...);
}

const std::map<Screen, Form* (*)(const FormContext&)> makers{
    {Screen::start, make<frmVantrelStart>},
    {Screen::main, make<frmVantrelMain>},
    {Screen::dupe, make<frmVantrelDupe>},
    {Screen::correct, make<frmVantrelCorrect>},
    {Screen::deletion, make<frmVantrelDelete>},
    {Screen::editor, make<frmVantrelEDITcbr>},
    {Screen::score, make<frmVantrelScore>},
    {Screen::bonus, make<frmCountBonus>},
    {Screen::files, make<frmVantrelFiles>},
    {Screen::list, make<frmVantrelList>},
    {Screen::showDb, make<frmVantrelShowDB>},
    {Screen::backup, make<frmVantrelBackup>},
    {Screen::finder, make<frmFileFinder>},
    {Screen::updateList, make<frmSelectUpdateList>},
    {Screen::readData, make<frmMemberImport, dataImportPage>},
    {Screen::memberUpdate, make<frmMemberImport, memberImportPage>},
    {Screen::callArea, make<frmVantrelCallArea>},
    {Screen::standings, make<frmK3YStandings, areaPage>},
    {Screen::standings2, make<frmK3YStandings, regionPage>},
    {Screen::checkDupeK3y, make<frmCheckDupeK3Y>},
    {Screen::k3yBox, make<frmK3Ybox>},
    {Screen::help, make<frmVantrelHelp>},
};

} // namespace

AppScreens::~AppScreens() {
    for (const auto& [screen, form] : m_slots)
        delete form.data();
}

Form* AppScreens::formOf(Screen screen) {
    QPointer<Form>& slot = m_slots[screen];
    if (!slot || slot->isGone())
        slot = makers.at(screen)({m_shared, m_platform, *this});
    return slot;
}

MainPage* AppScreens::mainPage() {
    return dynamic_cast<MainPage*>(m_slots[Screen::main].data());
}

void AppScreens::open(Screen screen) {
    QWidget* opener = QApplication::activeWindow();
    // Some platforms know no active window for a moment after another one closed.
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
    // The second page of the standings gives way to the first.
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
    if (form->windowType() != Qt::ToolTip) // the dupe screen opens no other
        m_lastOpened = form;
    form->open(opener);
}

void AppScreens::openContact(Screen page, int contact, OpenAt at) {
    if (contact > 0)
        formOf<frmLogPage>(page).startAt(contact, at);
    open(page);
}

void AppScreens::openList(ListedFile file) {
    formOf<frmVantrelList>(Screen::list).choose(file);
    open(Screen::list);
}

void AppScreens::openRoster(std::string path, std::vector<std::string> lines) {
    formOf<frmVantrelShowDB>(Screen::showDb).take(std::move(path), std::move(lines));
    open(Screen::showDb);
}

void AppScreens::openFinder(Screen receiver) {
    formOf<frmFileFinder>(Screen::finder).handTo(receiver);
    open(Screen::finder);
}

void AppScreens::openHelp(const std::string& page) {
    formOf<frmVantrelHelp>(Screen::help).choose(page);
    open(Screen::help);
}

void AppScreens::askAboutDupe(DupeQuestion question) {
    formOf<frmCheckDupeK3Y>(Screen::checkDupeK3y).ask(std::move(question));
    open(Screen::checkDupeK3y);
}

void AppScreens::handBackPath(Screen receiver, const std::string& path) {
    Form* const form = m_slots[receiver];
    if (auto* const taker = dynamic_cast<PathReceiver*>(form)) {
        form->bringToFront();
        taker->receivePath(path);
    }
}

} // namespace vantrel
