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

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont fontOf(const Run& run) const;

    std::vector<Run> m_runs;
};

} // namespace vantrel
