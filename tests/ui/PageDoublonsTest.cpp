#include "ProgrammeDEssai.h"

#include <QTreeView>

namespace {

class PageDoublons : public testing::Test {
  protected:
    essais::ProgrammeDEssai essai;

    void ouvre(const std::vector<essais::Film>& films) {
        essai.demarre();
        essai.importe(films);
        essai.clique("cmdCollection");
        essai.clique("OngletDoublons");
    }
    int paires() { return essai.trouve<QTreeView>("lstDoublons").model()->rowCount(); }
    QString valeur(int ligne, int colonne) {
        return essai.trouve<QTreeView>("lstComparaison").model()->index(ligne, colonne).data().toString();
    }
    // The comparison follows what is chosen and what was done between two events.
    bool compare(const char* gauche) {
        return essais::attends(
            [&] { return essai.trouve("lstComparaison").isVisible() && valeur(0, 1) == QString::fromUtf8(gauche); });
    }
    void presse(const char* nom) { essai.trouve<QAbstractButton>(nom).click(); }  // wherever it stands by now
    bool enReste(int combien) {
        return essais::attends([&] { return paires() == combien; });
    }
};

constexpr const char* kLong = "Le Fabuleux Destin D'Amélie Poulain";

TEST_F(PageDoublons, APairIsMergedAsChosenAndTakenBack) {
    ouvre({{kLong, "Jean-Pierre Jeunet", "Comédie", {}},
           {"Fabuleux Destin D'Amélie Poulain", "Jean-Pierre Jeunet", "Romance", essais::octetsDImage(Qt::red)},
           {"Brazil", "Terry Gilliam", "SF", {}}});
    EXPECT_TRUE(essai.trouve("lblInviteDoublons").isVisible());
    presse("cmdChercherDoublons");
    EXPECT_EQ(essai.texte("lblBilanChercherDoublons"), "1 paire de films se ressemble.");
    ASSERT_TRUE(compare("Fabuleux Destin D'Amélie Poulain"));
    EXPECT_EQ(essai.texte("lblRessemblances"), "Ressemblance titre : 95 %   Ressemblance réali : 100 %");
    EXPECT_EQ(valeur(0, 0), "≠ Titre");
    EXPECT_EQ(valeur(1, 0), "Réalisateur");
    presse("cmdIntervertir");
    ASSERT_TRUE(compare(kLong));

    auto& champs = essai.trouve<QTreeView>("lstComparaison");
    champs.setCurrentIndex(champs.model()->index(4, 0));
    EXPECT_EQ(valeur(4, 2), "Romance");
    champs.setFocus();
    QTest::keyClick(&champs, Qt::Key_Space);
    essai.boites.messages.clear();
    presse("cmdFusionner");
    ASSERT_EQ(essai.boites.messages.size(), 1U);
    EXPECT_NE(essai.boites.messages[0].find("Elle en reçoit : genre, affiche."), std::string::npos)
        << essai.boites.messages[0];
    ASSERT_TRUE(enReste(0));
    EXPECT_EQ(essai.texte("Label9_0"), "2 titres");
    EXPECT_TRUE(essai.trouve("PageDoublons").isVisible());
    QTest::keyClick(&essai.fenetre(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(enReste(1)) << "both films are there again";
    EXPECT_EQ(essai.texte("Label9_0"), "3 titres");
    EXPECT_TRUE(essai.trouve("lblPerimeChercherDoublons").isVisible());
}

TEST_F(PageDoublons, APairIsLeftAsideOrLosesOneOfItsFilms) {
    ouvre({{"Alien, Le Huitième Passager", "Ridley Scott", "SF", {}},
           {"Alien, Le Huitième Passagers", "Ridley Scott", "SF", {}},
           {"Autant En Emporte Le Vent", "Victor Fleming", "Drame", {}},
           {"Autant En Emporte Les Vents", "Victor Fleming", "Drame", {}}});
    presse("cmdChercherDoublons");
    ASSERT_EQ(paires(), 2);
    ASSERT_TRUE(compare("Alien, Le Huitième Passager"));
    presse("cmdLaisser");
    ASSERT_TRUE(compare("Autant En Emporte Le Vent"));
    essai.boites.messages.clear();
    presse("cmdSupprimerDroite");
    EXPECT_EQ(essai.boites.messages.size(), 1U) << "the deletion's own question";
    EXPECT_EQ(essai.texte("lblAvis"), "« Autant En Emporte Les Vents » supprimé.");
    EXPECT_TRUE(essai.trouve("PageDoublons").isVisible());
    ASSERT_TRUE(enReste(0));
    presse("cmdChercherDoublons");
    EXPECT_EQ(paires(), 0) << "left aside for this session";
    EXPECT_EQ(essai.texte("lblBilanChercherDoublons"), "1 paire de films se ressemble. Toutes ont été vues.");
}

}  // namespace
