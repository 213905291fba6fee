// SPDX-License-Identifier: MIT
#include <QApplication>

#include <cstdlib>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Before anything else: the tests are also listed at build time, without a display.
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
