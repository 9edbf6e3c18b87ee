#include "ui/ImagesQt.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace {

std::string octets(const QSize& taille, const char* format) {
    QImage image(taille, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray resultat;
    QBuffer tampon(&resultat);
    image.save(&tampon, format);
    return resultat.toStdString();
}

// A JPEG that asks to be turned a quarter (EXIF orientation 6).
std::string couchee(const QSize& taille) {
    const std::string exif(
        "\xff\xe1\x00\x22"
        "Exif\0\0"
        "MM\0\x2a\0\0\0\x08"
        "\0\x01"
        "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"
        "\0\0\0\0",
        36);
    return octets(taille, "JPG").insert(2, exif);
}

// A bitmap whose header tells a size that is not worth the memory.
std::string demesuree() {
    const std::string taille("\x30\x75\0\0\x30\x75\0\0", 8);  // 30,000 by 30,000
    return octets({8, 8}, "BMP").replace(18, 8, taille);
}

TEST(ImagesQt, LoadsByContentUprightAndDecodesAtTheSizeShown) {
    ui::ImagesQt images;
    struct Cas {
        std::string octets;
        int largeur, hauteur;
    };
    for (const Cas& cas : {Cas{octets({400, 600}, "JPG"), 400, 600}, Cas{octets({40, 60}, "PNG"), 40, 60},
                           Cas{couchee({600, 400}), 400, 600}}) {
        const auto taille = images.charge(cas.octets);
        ASSERT_TRUE(taille.has_value());
        EXPECT_EQ(taille->largeur, cas.largeur);
        EXPECT_EQ(taille->hauteur, cas.hauteur);
    }
    EXPECT_EQ(images.affiche({193, 297}).size(), QSize(193, 289)) << "scaled while decoding, upright";
    EXPECT_EQ(images.affiche({386, 594}).size(), QSize(386, 579)) << "decoded again when shown larger";
}

// A small JPEG whose frame header declares the largest size there is.
std::string bombe() {
    std::string resultat = octets({8, 8}, "JPG");
    const std::size_t entete = resultat.find("\xff\xc0");
    return resultat.replace(entete + 5, 4, "\xff\xdc\xff\xdc");
}

// A progressive JPEG whose last scan comes so many times more.
std::string progressive(const QSize& taille, int fois) {
    QImage image(taille, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray resultat;
    QBuffer tampon(&resultat);
    QImageWriter auteur(&tampon, "JPG");
    auteur.setProgressiveScanWrite(true);
    auteur.write(image);
    const qsizetype dernier = resultat.lastIndexOf("\xff\xda");
    return resultat.insert(dernier, resultat.mid(dernier, resultat.size() - 2 - dernier).repeated(fois)).toStdString();
}

TEST(ImagesQt, APictureOfHundredsOfScansIsNotWaitedFor) {
    ui::ImagesQt images;
    EXPECT_TRUE(images.charge(progressive({3000, 4000}, 0)));
    EXPECT_TRUE(images.charge(progressive({30, 40}, 500))) << "small: done at once";
    EXPECT_FALSE(images.charge(progressive({3000, 4000}, 500)));
    const std::string apercu = progressive({30, 40}, 500);
    const std::string segment = std::string("\xff\xe1") + static_cast<char>((apercu.size() + 2) >> 8) +
                                static_cast<char>(apercu.size() + 2) + apercu;
    EXPECT_TRUE(images.charge(octets({3000, 4000}, "JPG").insert(2, segment)))
        << "the scans of a preview are no scans of the picture";
}

TEST(ImagesQt, TheWholePictureComesUprightInBoundedMemory) {
    ui::ImagesQt images;
    ASSERT_TRUE(images.charge(couchee({600, 400})));
    EXPECT_EQ(images.entiere().size(), QSize(400, 600));
    const auto grande = images.charge(octets({8000, 4000}, "JPG"));
    ASSERT_TRUE(grande);
    EXPECT_EQ(grande->largeur, 8000);
    const QSize decodee = images.entiere().size();
    EXPECT_EQ(decodee.width(), 2 * decodee.height());
    EXPECT_LE(decodee.width() * decodee.height(), 16'100'000);
    images.vide();
    EXPECT_TRUE(images.entiere().isNull());
}

// By content, before any decoder has a look: some work without end on a few bytes.
TEST(ImagesQt, OnlyPhotographsAreHandedToADecoder) {
    for (const char* format : {"jpeg", "png", "bmp"})
        EXPECT_EQ(ui::formatDePhoto(QByteArray::fromStdString(octets({9, 9}, format))), format);
    EXPECT_EQ(ui::formatDePhoto("RIFF....WEBPVP8 "), "webp");
    EXPECT_EQ(ui::formatDePhoto("GIF89a..."), "gif");
    for (const char* autre :
         {"", "\xff\xd8", "<svg xmlns='http://www.w3.org/2000/svg'/>", "<?xml version='1.0'?><svg/>", "\x1f\x8b\x08\0",
          "P6 9 9 255", "/* XPM */", "RIFF....WAVE", "%PDF-1.4", "II*"})
        EXPECT_EQ(ui::formatDePhoto(autre), "") << autre;
}

TEST(ImagesQt, APictureThatCannotBeDecodedSmallerIsNotWaitedFor) {
    ui::ImagesQt images;
    EXPECT_TRUE(images.charge(octets({2000, 3000}, "PNG")));
    EXPECT_FALSE(images.charge(octets({4000, 3000}, "PNG")));
    EXPECT_TRUE(images.charge(octets({4000, 3000}, "JPG")));
}

// Cut off anywhere, or with bytes of the head written over: a picture of the size told, within the bounds, or none.
TEST(ImagesQt, ADamagedPictureIsBoundedOrNone) {
    ui::ImagesQt images;
    std::minstd_rand hasard(1);
    for (const char* format : {"JPG", "PNG", "BMP"}) {
        const std::string saine = octets({90, 60}, format);
        for (int i = 0; i < 200; ++i) {
            std::string abimee = saine;
            if (i % 4 == 0) abimee.resize(hasard() % saine.size());
            for (int j = 0; j < 3 && !abimee.empty(); ++j)
                abimee[hasard() % std::min<std::size_t>(abimee.size(), 300)] = static_cast<char>(hasard());
            const auto taille = images.charge(abimee);
            ASSERT_EQ(images.estVide(), !taille) << format << i;
            const qint64 surface = taille ? qint64{taille->largeur} * taille->hauteur : 0;
            EXPECT_LE(surface, 64'000'000) << format << i;
            const QSize montree = images.affiche({193, 297}).size(), entiere = images.entiere().size();
            EXPECT_LE(montree.width() * montree.height(), 193 * 297) << format << i;
            EXPECT_LE(qint64{entiere.width()} * entiere.height(), 16'100'000) << format << i;
        }
    }
}

TEST(ImagesQt, WhatCannotBeDecodedIsNoPicture) {
    ui::ImagesQt images;
    const std::string bonne = octets({30, 40}, "JPG");
    for (const std::string& mauvaise :
         {std::string(), std::string("pas une image"), bonne.substr(0, 20), demesuree(), bombe(),
          std::string("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>")}) {
        ASSERT_TRUE(images.charge(bonne));
        EXPECT_FALSE(images.charge(mauvaise)) << mauvaise.size();
        EXPECT_TRUE(images.estVide()) << "the picture before must not stay";
    }
}

}  // namespace
