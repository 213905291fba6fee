// SPDX-License-Identifier: MIT
// The file screen: each option button runs its job at once, on each click.
#pragma once

#include "forms/form.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace vantrel {

class frmVantrelFiles : public Form {
    Q_OBJECT

public:
    explicit frmVantrelFiles(const FormContext& context);

protected:
    QWidget* firstFocus() override;

private:
    struct Job {
        const char* name; // of its option
        const char* caption;
        const char* toolTip;
        std::function<void()> run;
    };
    struct Group {
        const char* title;
        std::vector<Job> jobs;
    };

    std::vector<Group> groups();
    void createOptions(QHBoxLayout* page);

    void showMembers(std::size_t number);
    void sortMembers();
    void exportLog();
    void exportLogStrictly();
    void showAdifPath(const std::string& path);
    void printLog();

    QRadioButton* m_firstOption = nullptr;
    QLabel* m_adifCaption;
    QLineEdit* m_adifPath;
    QPushButton* m_mainPageButton;
};

} // namespace vantrel
