// SPDX-License-Identifier: GPL-3.0-or-later
// The shell's tests run under one application object, without a display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    // A screen of a chosen size may be given, as "offscreen:configfile=FILE".
    if (!qEnvironmentVariable("QT_QPA_PLATFORM").startsWith(QLatin1String("offscreen")))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
