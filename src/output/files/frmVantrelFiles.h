// SPDX-License-Identifier: MIT
// The file screen: each option button runs its job at once, on each click.
#pragma once

#include "forms/page.h"

#include <cstddef>
#include <utility>

namespace vantrel {

class frmVantrelFiles : public Form {
public:
    explicit frmVantrelFiles(const FormContext& context);

    // What stands beside the jobs may have changed while another page was in front.
    void bringToFront() override;

protected:
    void load() override { showResults(); }

private:
    struct Job {
        const char* name; // of its option
        const char* caption;
        const char* toolTip;
        std::function<void()> run;
        std::function<std::string()> result = {}; // how its file is now
    };
    struct Group {
        const char* title;
        std::vector<Job> jobs;
    };

    std::vector<Group> groups();
    QLayout* jobs(const Group& group);

    void run(QRadioButton* option, const std::function<void()>& job);
    void showResults();
    void showMembers(std::size_t number);
    void sortMembers();
    void exportLogStrictly();
    void showAdifFile(const std::string& path);
    std::string writtenNow(const std::string& name);
    void printLog();

    std::vector<std::pair<QLabel*, std::function<std::string()>>> m_results;
    AlertLabel* m_adifCaption;
    QLineEdit* m_adifPath;
    AlertLabel* m_adifContacts; // how many were written and left out
};

} // namespace vantrel
