#include "ProgrammeDEssai.h"

#include <QAction>

namespace {

using essais::ProgrammeDEssai;

TEST(Export, TheLastFileIsOpenedFromItsLine) {
    ProgrammeDEssai essai;
    essai.demarre();
    essai.importe({{"L'Été", "Agnès Varda", "Drame", ""}});
    essai.cliqueTitre("L'Été");
    for (const char* nom : {"bouton.txt", "menu.txt"}) {
        essai.boites.reponse = essai.dossier.chemin(nom);
        if (nom == std::string("bouton.txt"))
            essai.clique("cmdCreeFichierTxt");
        else
            essai.fenetre().findChild<QAction*>("GenereFichierTxt")->trigger();
        EXPECT_TRUE(essai.dossier.lit(nom).starts_with("L'Été\r\nde Agnès Varda\r\n"));
        EXPECT_EQ(essai.texte("lblAvis"), "Fichier créé : " + essai.dossier.chemin(nom));
    }
    essai.clique("cmdAvis_0");
    essai.clique("cmdAvis_1");
    EXPECT_EQ(essai.documents.fichiers, (std::vector{essai.dossier.chemin("menu.txt"), essai.dossier.chemin()}));
    essai.clique("cmdFermerAvis");
    EXPECT_FALSE(essai.trouve("frameAvis").isVisible());

    essai.clique("cmdConfigurer");
    essai.boites.reponse = essai.dossier.chemin("liste");
    essai.clique("cmdCreerListe");
    EXPECT_TRUE(essai.dossier.lit("liste.rtf").starts_with("{\\rtf1"));
    EXPECT_EQ(essai.documents.fichiers.back(), essai.dossier.chemin("liste.rtf"));
    essai.boites.reponse = essai.dossier.chemin("absent/liste");
    essai.clique("cmdCreerListe");
    EXPECT_EQ(essai.texte("lblAvis"),
              "Le fichier " + essai.dossier.chemin("absent/liste.rtf") + " n'a pas pu être écrit.");
    EXPECT_FALSE(essai.trouve("cmdAvis_0").isVisible());
    EXPECT_EQ(essai.texte("lblNom1") + essai.texte("lblNom2"), "Ambrelis");
}

}  // namespace
