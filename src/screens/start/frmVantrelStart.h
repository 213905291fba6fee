// SPDX-License-Identifier: MIT
// The start page: contest, operator, log file, radio; START saves them and opens the log.
#pragma once

#include "forms/inputhold.h"
#include "forms/page.h"
#include "screens/start/startlists.h"
#include "screens/start/widgets/radiosection.h"

#include <memory>
#include <utility>

namespace vantrel {

class frmVantrelStart : public Form, public StartPage, public PathReceiver {
public:
    explicit frmVantrelStart(const FormContext& context);

    std::string logFileName() const override { return textOf(m_fileBox); }
    void setLogFileName(const std::string& name) override;
    std::string myCall() const override { return upper(trim(textOf(m_callBox))); }
    std::string gmtOffset() const override { return chosenValue(m_offsetBox); }
    void receivePath(const std::string& path) override;
    bool loadsAgain() const override { return true; }
    void bringToFront() override;

protected:
    void load() override;
    void escapePressed() override {}
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Which box a setting stands in.
    template <typename Box>
    using BoxOfSetting = std::pair<std::string OperatingSettings::*, Box*>;

    QLayout* contestPart();
    QLayout* operatorPart();
    QLayout* filePart();
    QLayout* radioPart();

    bool chooseContest(std::string_view code);
    void showNotes();
    void showLogNote();

    // In the order in which the operator meets them.
    void contestClicked();
    void showUtc();
    void secondPassed();
    void takeDefaultName();
    void newFileChosen();
    void testRadio();
    void start();

    std::vector<BoxOfSetting<QComboBox>> chosenSettings() const;
    OperatingSettings pageSettings() const;
    std::string contestCode() const;
    void startNewFile();

    std::vector<QRadioButton*> m_contestOptions;
    std::vector<BoxOfSetting<QLineEdit>> m_typed; // all settings that are typed
    QLineEdit* m_contestBox;
    QLineEdit* m_callBox;
    QComboBox* m_offsetBox;
    QLabel* m_utcLabel;
    QLineEdit* m_fileBox;
    QComboBox* m_newFileBox;
    QLabel* m_logLabel;
    QLabel* m_oldLogLabel;
    QComboBox* m_dupeModeBox;
    QLineEdit* m_bonusBox;
    std::unique_ptr<RadioSection> m_radio;
    QLabel* m_membersLabel;

    bool m_wasInFront = false;

    InputHold m_hold; // keeps what is typed while the radio is tried
};

} // namespace vantrel
