// SPDX-License-Identifier: MIT
// A label of which some words stand out: its text is plain all the same.
#pragma once

#include <QLabel>

#include <vector>

namespace vantrel {

class MarkedLabel : public QLabel {
    Q_OBJECT

public:
    struct Run {
        QString text;
        bool marked; // red and bold
    };

    using QLabel::QLabel;

    // The runs follow each other as they stand.
    void setRuns(std::vector<Run> runs);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<Run> m_runs;
};

} // namespace vantrel
