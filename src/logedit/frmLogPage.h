// SPDX-License-Identifier: MIT
// What correction, deletion and editor have in common: they find a contact by its call, change
// the one found, and take the change back.
#pragma once

#include "forms/form.h"
#include "logedit/logedit.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vantrel {

class frmLogPage : public Form {
    Q_OBJECT

public:
    // The contact, 1 to the log's count, that the page opens on; see Screens::openContact.
    void startAt(int contact, bool shown);

protected:
    frmLogPage(const FormContext& context, const char* name, const char* caption);

    QWidget* firstFocus() override;

    // The controls of all pages; a page makes them where they stand in its tab order.
    void createSearch(QLineEdit* callBox, const char* searchAgainTip);
    QRadioButton* createDupeOption(QLineEdit* markerBox);
    void createChange(const char* caption, const char* toolTip, const char* exitTip);
    void createMessage(const char* name);

    // Their rows, for the page's layout.
    QLabel* heading(const char* text);
    QHBoxLayout* searchButtons();
    QHBoxLayout* searchRow(const char* caption); // call box and search buttons
    QHBoxLayout* changeButtons();
    QLabel* messageLabel() { return m_messageLabel; }

    // What a page does its own way.
    virtual void searchStarts() {}
    virtual void showFound(const std::string& key) = 0; // the contact is log().line()
    virtual void foundNone(const std::string& /*key*/) {}
    virtual std::string notFoundText(const std::string& key) const = 0;
    virtual std::string_view lastEntryText() const { return "LAST ENTRY"; }
    virtual void change() = 0; // of the contact found
    virtual void clearBoxes() {}
    virtual void say(std::string_view message);
    // Shows what can be done; the next call may be typed.
    virtual void followLog();

    // Whether the change was made. If so the open log follows it; its notice is shown.
    bool made(const ChangeResult& result);
    // The end of what was done to the log.
    void finish(std::string_view message);

    LogEdit& log() { return m_log; }

private:
    void searchClicked();
    void searchAgainClicked();
    void changeClicked();
    void undoClicked();

    // The call box's text tidied, put back into it.
    std::string takeKey();
    // The contact that a search found, or that there is `none`.
    void showOutcome(SearchResult result, const std::string& key, std::string_view none);

    QLineEdit* m_callBox = nullptr;
    QPushButton* m_searchButton = nullptr;
    QPushButton* m_searchAgainButton = nullptr;
    QPushButton* m_changeButton = nullptr;
    QPushButton* m_undoButton = nullptr;
    QPushButton* m_exitButton = nullptr;
    QLabel* m_messageLabel = nullptr;

    LogEdit m_log;
    int m_startContact = 0; // 0: none
    bool m_startShown = false;
};

} // namespace vantrel
