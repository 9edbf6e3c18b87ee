#include "platform/fichiers/CheminTape.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

using fichiers::cheminTape;
using fichiers::estCheminWindows;

TEST(CheminTape, IsMadeWhole) {
    const char* avant = std::getenv("HOME");
    const std::string personnel = avant ? avant : "";
    setenv("HOME", "/home/Zoé", 1);
    EXPECT_EQ(cheminTape("~/Affiches/a.jpg", "/prog/"), "/home/Zoé/Affiches/a.jpg");
    EXPECT_EQ(cheminTape("~", "/prog/"), "/home/Zoé");
    EXPECT_EQ(cheminTape("~zoe.txt", "/prog/"), "/prog/~zoe.txt");
    EXPECT_EQ(cheminTape("affiches/a.jpg", "/prog"), "/prog/affiches/a.jpg");
    EXPECT_EQ(cheminTape("/ici/a.jpg", "/prog/"), "/ici/a.jpg");
    EXPECT_EQ(cheminTape("C:\\FILMS", "/prog/"), "C:\\FILMS");
    EXPECT_EQ(cheminTape("", "/prog/"), "");
    unsetenv("HOME");
    EXPECT_TRUE(cheminTape("~/a", "/prog/").ends_with("/a"));
    EXPECT_NE(cheminTape("~/a", "/prog/"), "/prog/~/a") << "the system knows the user too";
    if (avant) setenv("HOME", personnel.c_str(), 1);
}

TEST(CheminTape, OfWindowsIsKnownFromATitle) {
    for (const char* chemin : {"C:\\FILMS", "d:/films", "\\\\nas\\films"})
        EXPECT_TRUE(estCheminWindows(chemin)) << chemin;
    for (const char* chemin : {"", "C", "C:", "M: le maudit", "M : le maudit", "/C:\\a", "É:\\a", "\\a"})
        EXPECT_FALSE(estCheminWindows(chemin)) << chemin;
}

}  // namespace
