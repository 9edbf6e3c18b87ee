#include "parcours/Collectionneur.h"

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;
using testing::StartsWith;

class UnExport : public Collectionneur {
  protected:
    void attendQuestions(int enRTF, int parGenre) {
        demande(
            "Souhaitez-vous créer un fichier RTF (texte riche) ?\n\nDans le cas contraire, un simple fichier texte "
            "sera "
            "créé.",
            enRTF);
        demande(
            "Souhaitez-vous trier les titres par genre ?\n\nDans le cas contraire, un simple tri alphanumérique sera "
            "appliqué.",
            parGenre);
        execution->boites.attendInputBox(
            "Entrez le chemin et le nom du fichier à créer (sans l'extension)..\nExemple : C:\\FILMS",
            installation.chemin("Mes films"), "Créer la liste des titres");
    }
    [[nodiscard]] std::string ligne() { return etats().avis.lblAvis.Caption; }
};

// The sheet, both lists, and the line that leads back to the last of them.
TEST_F(UnExport, WritesTheSheetAndBothListsAndKeepsTheLastAtHand) {
    demarre();
    doubles::DialoguesScript& boites = execution->boites;
    importe(*execution, installation);
    static_cast<void>(changements());
    EXPECT_FALSE(etats().avis.frameAvis.Visible);

    zone(0);
    clique(*execution, "Été Violent");
    const std::string fiche = installation.chemin("Été.txt");
    boites.attendInputBox("Entrez le chemin de destination du fichier texte.", fiche, "Créer un fichier texte",
                          "Été Violent.txt");
    boites.attendMsgBox("Fichier créé !", dialogues::kInformation, dialogues::kOk, "Créer un fichier texte");
    session().GenereFichierTxt_Click();
    EXPECT_THAT(
        installation.lit("Été.txt"),
        StartsWith("Été Violent\r\nde Valerio Zurlini\r\nDurée : 100\r\nProduction (1959) - Italie\r\nDrame\r\n\r\n"
                   "\r\n\r\nAvec Acteur,Actrice\r\n-------------------\r\nRésumé :\r\n\r\nUn résumé.\r\n"));

    attendQuestions(dialogues::kNon, dialogues::kOui);
    boites.attendMsgBox("Le fichier texte " + installation.chemin("Mes films.txt") +
                            " a été créé.\nLes séparateurs de champs étant des tabulations, réglez-les avec votre "
                            "traitement de texte.",
                        dialogues::kInformation, dialogues::kOk, "Créer la liste des titres");
    session().cmdCreerListe_Click();
    EXPECT_EQ(
        installation.lit("Mes films.txt"),
        "Il y a 4 titres personnels\r\n\r\n 1. \tSans Rien\tNon défini\t\t\t\tDVD\r\n\r\n Genre : Drame\r\n 1. \tÉté "
        "Violent\t"
        "Valerio Zurlini\t1959\t\t\tDVD\r\n\r\n Genre : Policier\r\n 1. \tLe Cercle Rouge\tJean-Pierre Melville\t1970"
        "\t\t\tDVD\r\n 2. \tLe Samouraï\tJean-Pierre Melville\t1967\t\t\tDVD\r\n");

    attendQuestions(dialogues::kOui, dialogues::kNon);
    boites.attendMsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    session().cmdCreerListe_Click();
    EXPECT_THAT(installation.lit("Mes films.rtf"), StartsWith("{\\rtf1"));
    EXPECT_FALSE(installation.existe("tmp.rtf"));
    EXPECT_EQ(ligne(), "Fichier créé : " + installation.chemin("Mes films.rtf"));
    EXPECT_EQ(etats().nom.lblNom1.Caption + etats().nom.lblNom2.Caption, "Ambrelis");
    session().cmdAvis_Click(0);
    session().cmdAvis_Click(1);
    EXPECT_THAT(execution->documents.fichiers,
                ElementsAre(installation.chemin("Mes films.txt"), installation.chemin("Mes films.rtf"),
                            installation.chemin("Mes films.rtf"), installation.chemin()));
    EXPECT_EQ(changements(), std::vector<std::string>()) << "an export changes no row";
    execution->boites.verifie();
    session().Form_Unload();
}

}  // namespace
