#include "browse/AfficheTitres.h"
#include "db/cmdInfosBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "parcours/Gestes.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;

class UneCollection : public testing::Test {
  protected:
    UneCollection() {
        ecritFiches(installation);
        if (!execution.demarre()) ADD_FAILURE() << "the start failed";
        importe(execution, installation);
    }

    const Installation installation;
    Execution execution{installation.chemin()};
    app::Session& session = execution.session;
    app::Etats& etats = execution.etats;
};

TEST_F(UneCollection, IsGroupedByEachSort) {
    choisitZone(execution, 0);
    choisitTri(execution, 0);
    EXPECT_THAT(arbre(etats),
                ElementsAre("E", "  Été Violent", "L", "  Le Cercle Rouge", "  Le Samouraï", "S", "  Sans Rien"));
    choisitTri(execution, 2);
    EXPECT_THAT(arbre(etats), ElementsAre(" Hors tri !", "  Sans Rien", "1959", "  Été Violent", "1967",
                                          "  Le Samouraï", "1970", "  Le Cercle Rouge"));
    choisitTri(execution, 3);
    EXPECT_THAT(arbre(etats), ElementsAre("Jean-Pierre Melville", "  Le Cercle Rouge", "  Le Samouraï", "Non défini",
                                          "  Sans Rien", "Valerio Zurlini", "  Été Violent"));
    choisitTri(execution, 8);
    EXPECT_THAT(arbre(etats), ElementsAre("DVD", "  Été Violent", "  Le Cercle Rouge", "  Le Samouraï", "  Sans Rien"));
    etats.liste.AffStats.Value = 1;
    session.execute(browse::AffStats_Click);
    EXPECT_EQ(arbre(etats).front(), "DVD (100 %)");
}

TEST(Parcours, ACopiedFolderIsAnInstallationOfItsOwn) {
    const Installation installation;
    ecritFiches(installation);
    {
        Execution execution(installation.chemin());
        ASSERT_TRUE(execution.demarre());
        importe(execution, installation);
        execution.session.Form_Unload();
    }
    const doubles::DossierTemporaire ailleurs;
    std::filesystem::copy(installation.chemin(), ailleurs.chemin("Copie"), std::filesystem::copy_options::recursive);
    dao::DBEngine::OpenDatabase(ailleurs.chemin("Copie/Films.mdb"))
        .Execute("INSERT INTO Films (Titre) VALUES ('Seulement dans la copie')");
    Execution copie(ailleurs.chemin("Copie"));
    Execution originale(installation.chemin());
    ASSERT_TRUE(copie.demarre() && originale.demarre());
    EXPECT_EQ(copie.etats.liste.Label9[0].Caption, "5 titres");
    EXPECT_EQ(originale.etats.liste.Label9[0].Caption, "4 titres");
}

TEST_F(UneCollection, ItsBaseIsToldOfAndItsHoldingsAreGivenUp) {
    doubles::DialoguesScript& boites = execution.boites;
    boites.attendMsgBox(
        "Il y a 0 titre ayant un lien sur un fichier externe\nIl y a 1 titre ayant un lien sur un fichier interne",
        dialogues::kInformation);
    session.execute(db::cmdInfosBase_Click);
    boites.attendMsgBox(
        "Vous allez supprimer tout ce qui concerne les titres personnels (réservations, prêts, nom de fichiers, "
        "rangement...)\nVoulez-vous continuer ?",
        dialogues::kQuestion, dialogues::kOui, "Suppression des titres personnels");
    boites.attendMsgBox("Appartenance de 4 titres supprimée.", dialogues::kInformation);
    session.execute(db::cmdSupprInfosPerso_Click);
    EXPECT_EQ(etats.liste.Label9[1].Caption, "0 personnel");
    EXPECT_THAT(etats.fiche.Combo7[2].Items, ElementsAre());
}

}  // namespace
