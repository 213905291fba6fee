// SPDX-License-Identifier: MIT
// Runs the forms' tests on the offscreen platform; a handler outside the guard fails the run.
#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <gtest/gtest.h>

namespace {

class TestApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "handler without a boundary: %s\n", error.what());
            std::abort();
        }
    }
};

} // namespace

int main(int argc, char** argv) {
    // Before anything else: the tests are also listed at build time, without a display.
    if (std::getenv("QT_QPA_PLATFORM") == nullptr)
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::testing::InitGoogleTest(&argc, argv);
    TestApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
