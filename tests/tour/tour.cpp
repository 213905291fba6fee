// SPDX-License-Identifier: MIT
// Plays an operator through the program in real windows, takes a picture of each screen and
// compares the files that come of it byte for byte.
#include "tour/scenes.h"
#include "tour/stage.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

// The looks that pictures are taken in: VANTREL_TOUR_POINTS, the font's size, and
// VANTREL_TOUR_PALETTE=dark.
void dress(QApplication& application) {
    if (const int points = qEnvironmentVariableIntValue("VANTREL_TOUR_POINTS")) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    if (qgetenv("VANTREL_TOUR_PALETTE") != "dark")
        return;
    application.setStyle(QStringLiteral("Fusion"));
    const QColor window(0x2B, 0x2B, 0x2B);
    QPalette dark(QColor(0x3C, 0x3C, 0x3C), window);
    dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    dark.setColor(QPalette::ToolTipBase, window);
    QApplication::setPalette(dark);
}

} // namespace

int main(int argc, char** argv) {
    using namespace vantrel::test;
    if (std::getenv("QT_QPA_PLATFORM") == nullptr && std::getenv("DISPLAY") == nullptr)
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    dress(application);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tour FOLDER (emptied first)\n");
        return 2;
    }
    try {
        Stage stage(argv[1]);
        for (const auto scene :
             {playContest, playAfterContest, playUpkeep, playK3yEvent, playRadioEvening})
            scene(stage);
        std::printf("tour: log and pictures are in %s\n", stage.folder.c_str());
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tour: %s\n", error.what());
        return 1;
    }
}
