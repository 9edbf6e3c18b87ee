#include "ProgrammeDEssai.h"
#include "ui/ChargeurAffiches.h"

namespace {

using essais::octetsDImage;

constexpr qsizetype kOctets = 100'000;
constexpr QSize kTaille{60, 90};

struct Chargeur : testing::Test {
    ui::ChargeurAffiches chargeur{nullptr, kOctets};

    // False where it never comes.
    [[nodiscard]] bool prends(const QByteArray& film, const std::string& octets, const QSize& taille = kTaille) {
        if (!essais::attends([&] { return chargeur.peutPrendre(); })) return false;
        chargeur.prends(film, {octets, ""}, taille);
        return essais::attends([&] { return chargeur.estAJour(film, taille); });
    }
};

TEST_F(Chargeur, KeepsWhatItsRoomAllowsAndNoMore) {
    int accueillies = 0;
    for (; chargeur.peutPrendre(); ++accueillies)
        chargeur.prends(QByteArray::number(accueillies), {octetsDImage(Qt::red), ""}, kTaille);
    EXPECT_LE(accueillies, 8) << "what is wanted first may change meanwhile";
    for (int i = 0; i < 30; ++i) {
        ASSERT_TRUE(prends(QByteArray::number(i), octetsDImage(Qt::red)));
        static_cast<void>(chargeur.affiche("0"));  // used all along
        EXPECT_LE(chargeur.octets(), kOctets);
    }
    EXPECT_TRUE(chargeur.affiche("0") && chargeur.affiche("29"));
    EXPECT_FALSE(chargeur.affiche("1")) << "the one used longest ago goes";
}

TEST_F(Chargeur, DecodesAgainOnlyWhatChangedOrIsShownAtAnotherSize) {
    ASSERT_TRUE(prends("a", octetsDImage(Qt::red, {200, 300})));
    EXPECT_EQ(chargeur.affiche("a")->size(), kTaille);
    chargeur.perime();
    EXPECT_FALSE(chargeur.estAJour("a", kTaille));
    EXPECT_TRUE(chargeur.affiche("a")) << "shown as long as there is no other";
    ASSERT_TRUE(prends("a", octetsDImage(Qt::red, {200, 300})));
    EXPECT_EQ(chargeur.decodees(), 1);
    ASSERT_TRUE(prends("a", octetsDImage(Qt::red, {200, 300}), kTaille * 2));
    EXPECT_EQ(chargeur.affiche("a")->size(), kTaille * 2);
    chargeur.perime();
    ASSERT_TRUE(prends("a", octetsDImage(Qt::blue, {200, 300}), kTaille * 2));
    EXPECT_GT(chargeur.affiche("a")->toImage().pixelColor(9, 9).blue(), 200);
    EXPECT_EQ(chargeur.decodees(), 3);

    for (const std::string& sans : {std::string(), std::string("<svg xmlns='http://www.w3.org/2000/svg'/>")}) {
        chargeur.perime();
        ASSERT_TRUE(prends("a", sans));
        EXPECT_TRUE(chargeur.affiche("a")->isNull()) << sans;
    }
}

}  // namespace
