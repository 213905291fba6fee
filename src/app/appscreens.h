// SPDX-License-Identifier: MIT
// One slot per screen: makes the forms, keeps each at most once, finds them for each other.
#pragma once

#include "platform/qt/form.h"
#include "shared/screens.h"

#include <QPointer>

#include <map>

namespace vantrel {

class AppScreens : public Screens {
public:
    AppScreens(Module1& module, Platform& platform) : m_module(module), m_platform(platform) {}
    ~AppScreens() override;
    AppScreens(const AppScreens&) = delete;
    AppScreens& operator=(const AppScreens&) = delete;

    void open(Screen screen) override;
    void replace(Screen current, Screen next) override;
    StartPage* startPage() override;
    MainPage* mainPage() override;
    void handBackPath(FinderMode mode, const std::string& path) override;
    void quit() override;

private:
    Form* make(Screen screen);
    void openFor(QWidget* opener, Screen screen);

    Module1& m_module;
    Platform& m_platform;
    std::map<Screen, QPointer<Form>> m_slots;
    QPointer<Form> m_lastOpened;
};

} // namespace vantrel
