#include "platform/texteriche/TexteRiche.h"

#include <string>
#include <string_view>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::Not;
using texteriche::Alignement;
using texteriche::enRtf;
using texteriche::Style;
using texteriche::TexteRiche;

// What follows the tables.
std::string corps(const TexteRiche& texte) {
    const std::string rtf = enRtf(texte);
    const std::string_view debut = "\r\n\\pard";
    return rtf.substr(rtf.find(debut) + 2);
}
std::string corps(const std::string& texte) {
    return corps(TexteRiche{texte, {}, {}, {}});
}

TEST(TexteRiche, TheTablesHoldEachFontAndColourOnce) {
    const TexteRiche texte{"aéb", {{"Arial", 18, 0x0000FF}, {"Été;{", 9, 0xFF8001}, {"Arial", 9, 0x0000FF}}, {}, {}};
    EXPECT_THAT(enRtf(texte),
                testing::StartsWith("{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fnil Arial;}"
                                    "{\\f1\\fnil \\u201\\'c9t\\u233\\'e9\\{;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;"
                                    "\\red1\\green128\\blue255;\\red0\\green0\\blue0;}\r\n\\pard"));
}

TEST(TexteRiche, EveryCharacterOfUnicodeIsKept) {
    const std::string debut = "\\pard\\ql\\f0\\cf1\\fs16";
    EXPECT_EQ(corps("L'œuvre"), debut + " L'\\u339\\'9cuvre}\r\n");
    EXPECT_EQ(corps("\xF0\x9F\x8E\xAC"), debut + "\\u-10180\\'3f\\u-8276\\'3f}\r\n");  // U+1F3AC, two halves
    EXPECT_EQ(corps("a{b}\\c\td"), debut + " a\\{b\\}\\\\c\\tab d}\r\n");
    EXPECT_EQ(corps("\xC2\xA0-5"), debut + "\\u160\\'a0-5}\r\n");
    EXPECT_EQ(corps(" x"), debut + "  x}\r\n");  // the first blank ends the word before it
}

TEST(TexteRiche, WhatIsNoTextDoesNoHarm) {
    const std::string debut = "\\pard\\ql\\f0\\cf1\\fs16";
    EXPECT_EQ(corps(std::string("a\0\x01\x7F\x0B\xC2\x85z", 8)), debut + " az}\r\n");
    EXPECT_EQ(corps("\xE2\x82"), debut + "\\u-3\\'3f\\u-3\\'3f}\r\n") << "a character cut short: one for each byte";
    EXPECT_EQ(corps("a\xFFz\xC3"), debut + " a\\u-3\\'3fz\\u-3\\'3f}\r\n");
    EXPECT_EQ(corps("\xED\xA0\x80").find("\\u-10240"), std::string::npos);  // half a pair is no character
    EXPECT_EQ(corps(TexteRiche{"abc", {}, {{9, 7}, {2, 0}}, {}}), debut + " abc}\r\n");
}

TEST(TexteRiche, OnlyWhatChangesIsWritten) {
    TexteRiche texte{"abcdef", {{}, {"Arial", 8, 0, true}, {"Arial", 11, 0, true, true, true}}, {}, {}};
    texte.passages = {{1, 0}, {2, 1}, {2, 0}, {3, 1}, {4, 2}, {5, 0}};
    EXPECT_EQ(corps(texte), "\\pard\\ql\\f0\\cf1\\fs16 a\\b bc\\i\\ul\\fs22 d\\b0\\i0\\ulnone\\fs16 ef}\r\n");
}

TEST(TexteRiche, ParagraphsEndAtAnyLineEndAndKeepTheirAlignment) {
    TexteRiche texte{"a\r\nb\nc\rd\r\n\ne", {}, {}, {}};
    texte.alignements = {Alignement::Centre, Alignement::Droite, Alignement::Droite, Alignement::Gauche};
    texte.passages = {{2, 0}};  // between the CR and its LF
    EXPECT_EQ(corps(texte),
              "\\pard\\qc\\f0\\cf1\\fs16 a\\par\r\n\\pard\\qr b\\par\r\nc\\par\r\n\\pard\\ql "
              "d\\par\r\n\\par\r\ne}\r\n");
}

}  // namespace
