// SPDX-License-Identifier: MIT
// The roster viewer: the lines of one roster file.
#pragma once

#include "forms/viewerform.h"

namespace vantrel {

class frmVantrelShowDB : public ViewerForm {
public:
    explicit frmVantrelShowDB(const FormContext& context);

    // What is shown when it opens.
    void take(std::string path, std::vector<std::string> lines);

protected:
    void load() override { showLines(m_path, m_rosterLines); }

private:
    std::string m_path;
    std::vector<std::string> m_rosterLines;
};

} // namespace vantrel
