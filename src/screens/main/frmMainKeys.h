// SPDX-License-Identifier: MIT
// The keys of the main page that belong to no button: what is typed anywhere on the page goes to
// the contact being entered, and from its call box lead keys to what stands below.
#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QWidget;

namespace vantrel {

struct MainControls;

class MainKeys : public QObject {
    Q_OBJECT

public:
    struct Actions {
        std::function<void()> anyKey; // before what it does
        std::function<void()> bringBack;
        std::function<void()> toCallBox;
        std::function<void(int)> correct; // a contact of the log, from 1
        std::function<void(int)> remove;
        std::function<bool()> nameIsMissing; // after a search of what is in the call box
    };

    MainKeys(QWidget* page, MainControls& controls, Actions actions);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool takes(QWidget& widget, const QKeyEvent& key);
    bool callBoxTakes(const QKeyEvent& key);
    bool workedListTakes(const QKeyEvent& key) const;
    bool toLastContact() const;
    bool toFirstEmptyBox() const;

    QWidget* m_page;
    MainControls& m_controls;
    Actions m_actions;
};

} // namespace vantrel
