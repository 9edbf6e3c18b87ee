#include "ui/Apparence.h"

#include <QApplication>

#include <gtest/gtest.h>

// Headless, on a small notebook's screen, dressed as the program is.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" AMBRELIS_SOURCE_DIR "/tests/ui/ecran.json");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ui::habille("");
    return RUN_ALL_TESTS();
}
