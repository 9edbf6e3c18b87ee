#include "doubles/CollectionJet.h"
#include "parcours/Gestes.h"

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;

// A collector comes with years of typing: the settings name a Jet base. Refused, it stays as it is and the program
// ends; accepted, it is browsed, and the next start opens the converted one without a question.
TEST(UneBaseJet, NamedByTheSettingsItIsConvertedOnceAndBrowsed) {
    const Installation installation;
    const std::string octets = doubles::collectionJet(3).octets();
    const std::string base = installation.ecrit("Vieux/Été.mdb", octets);
    installation.ecrit("Ambrelis.ini", "0\n\n0\n0\n0\n" + base + "\n0\n0\n");
    const auto demande = [&](Execution& execution, int reponse) {
        execution.boites.attendMsgBox("Le fichier " + base +
                                          " est une base Jet (Access). Voulez-vous la convertir pour l'ouvrir ?\n"
                                          "L'original sera conservé sous le nom « Été (Jet).mdb ».",
                                      dialogues::kQuestion, reponse);
    };
    {
        Execution refusee(installation.chemin());
        demande(refusee, dialogues::kNon);
        refusee.boites.attendMsgBox("Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)",
                                    dialogues::kCritique);
        refusee.boites.attendMsgBox("La base " + base +
                                        " n'a pas pu être ouverte : c'est une base Jet (Access) qui n'a pas été "
                                        "convertie.\nVoulez-vous en choisir une autre ?",
                                    dialogues::kQuestion, dialogues::kNon);
        EXPECT_FALSE(refusee.demarre());
        EXPECT_EQ(installation.lit("Vieux/Été.mdb"), octets);
    }
    {
        Execution execution(installation.chemin());
        demande(execution, dialogues::kOui);
        execution.boites.attendMsgBox(
            "La base a été convertie.\n3 films, 2 possessions, 3 affiches dans la base.\nTable non reprise : Notes "
            "diverses.\nChamp non repris : Films.Format.\nL'original est conservé sous le nom « Été (Jet).mdb ».",
            dialogues::kInformation);
        ASSERT_TRUE(execution.demarre());
        EXPECT_EQ(execution.ecran.soufflesHorsTravail, 0);
        EXPECT_EQ(execution.etats.liste.Label9[1].Caption, "2 personnels");
        choisitZone(execution, 1);
        clique(execution, "Été 2");
        EXPECT_EQ(installation.lit("Tmp/ImageTMP.jpg"), doubles::imageJet(2));
        EXPECT_EQ(execution.images.courante, installation.lit("Tmp/ImageTMP.jpg"));
        execution.session.Form_Unload();
    }
    EXPECT_EQ(installation.lit("Vieux/Été (Jet).mdb"), octets);
    Execution suivante(installation.chemin());
    ASSERT_TRUE(suivante.demarre());
    EXPECT_EQ(suivante.etats.liste.Label9[0].Caption, "3 titres");
}

}  // namespace
