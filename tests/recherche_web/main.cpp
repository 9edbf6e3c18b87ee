#include "ui/Apparence.h"

#include <QApplication>

#include <gtest/gtest.h>

// Headless, dressed as the program is.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ui::habille("");
    return RUN_ALL_TESTS();
}
