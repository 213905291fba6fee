// SPDX-License-Identifier: MIT
// A label that shows some of its words in red and bold; its text is plain. What has
// no room ends in "...".
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

    // The label's text is the runs joined, without blanks between them.
    void setRuns(std::vector<Run> runs);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont fontOf(const Run& run) const;
    int widthOf(const Run& run) const;

    std::vector<Run> m_runs;
};

} // namespace vantrel
