// SPDX-License-Identifier: MIT
// Makes the forms, keeps at most one of each screen, and passes what one screen asks of another.
#pragma once

#include "forms/form.h"
#include "forms/keyguard.h"

#include <QCoreApplication>

#include <map>

namespace vantrel {

class AppScreens : public Screens {
public:
    AppScreens(Module1& shared, Platform& platform) : m_shared(shared), m_platform(platform) {}
    ~AppScreens() override;
    AppScreens(const AppScreens&) = delete;
    AppScreens& operator=(const AppScreens&) = delete;

    void open(Screen screen) override;
    void replace(Screen current, Screen next) override;
    void openContact(Screen page, int contact, OpenAt at) override;
    void openList(ListedFile file) override;
    void openRoster(std::string path, std::vector<std::string> lines) override;
    void openFinder(Screen receiver) override;
    void openHelp(const std::string& page) override;
    void askAboutDupe(DupeQuestion question) override;
    void handBackPath(Screen receiver, const std::string& path) override;
    StartPage* startPage() override {
        return dynamic_cast<StartPage*>(m_slots[Screen::start].data());
    }
    MainPage* mainPage() override; // Windows' Qt gives the word main another meaning in main.cpp
    void quit() override { QCoreApplication::exit(0); }

private:
    // The screen's form; a new one when there is none.
    Form* formOf(Screen screen);
    // Throws std::bad_cast for a screen of another kind.
    template <typename Page>
    Page& formOf(Screen screen) {
        return dynamic_cast<Page&>(*formOf(screen));
    }
    void openFor(QWidget* opener, Screen screen);

    Module1& m_shared;
    Platform& m_platform;
    std::map<Screen, QPointer<Form>> m_slots;
    QPointer<Form> m_lastOpened;
    KeyGuard m_keyGuard;
};

} // namespace vantrel
