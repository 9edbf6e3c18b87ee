#include "app/Extensions.h"

#include <gtest/gtest.h>

namespace {

using app::litExtensions;
using app::TableExtensions;
using app::texteExtensions;

std::vector<std::string> paires(int nombre) {
    std::vector<std::string> lignes;
    for (int i = 0; i < nombre; ++i) {
        lignes.push_back("ext" + std::to_string(i));
        lignes.push_back("/usr/bin/programme" + std::to_string(i));
    }
    return lignes;
}

TEST(Extensions, ReadPairsAndWriteThemBack) {
    TableExtensions table;
    ASSERT_EQ(litExtensions({"avi/ mpg", "/usr/bin/mpv --fs", "mkv", "/usr/bin/vidéo"}, table), 2u);
    EXPECT_EQ(texteExtensions(table, 2), "avi/ mpg\n/usr/bin/mpv --fs\nmkv\n/usr/bin/vidéo\n");
}

TEST(Extensions, TheLastOfAnOddFileHasNoProgram) {
    TableExtensions table;
    ASSERT_EQ(litExtensions({"avi", "/usr/bin/mpv", "mkv"}, table), 2u);
    EXPECT_EQ(texteExtensions(table, 2), "avi\n/usr/bin/mpv\nmkv\n\n");
}

TEST(Extensions, WhatIsLongerThanAnyPathIsNoValue) {
    TableExtensions table;
    ASSERT_EQ(litExtensions({std::string(5'000'000, 'x'), std::string(4096, 'y'), "mkv", "/usr/bin/mpv"}, table), 2u);
    EXPECT_EQ(texteExtensions(table, 2), "\n" + std::string(4096, 'y') + "\nmkv\n/usr/bin/mpv\n");
}

TEST(Extensions, NoMoreThanFifteenPairsAreRead) {
    TableExtensions table;
    EXPECT_EQ(litExtensions({}, table), 0u);
    EXPECT_EQ(litExtensions(paires(15), table), 15u);
    EXPECT_EQ(litExtensions(paires(16), table), 15u);
    EXPECT_EQ(table.lignes[14][1], "/usr/bin/programme14");
    EXPECT_EQ(table.lignes[15][0], "");
}

TEST(Extensions, NoRowBeyondTheTableIsWritten) {
    TableExtensions table;
    table.lignes[15] = {"dernier", "p"};
    const std::string texte = texteExtensions(table, 40);
    EXPECT_EQ(std::count(texte.begin(), texte.end(), '\n'), 32);
    EXPECT_TRUE(texte.ends_with("dernier\np\n"));
}

}  // namespace
