#include "parcours/Collectionneur.h"

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using namespace std::string_literals;
using testing::ElementsAre;

using UneVersionPrecedente = Collectionneur;

// A user who comes from another folder, copied from a machine where its settings named other paths.
TEST_F(UneVersionPrecedente, BringsAPreviousVersionAlong) {
    const Installation ancienne;
    ecritFiches(ancienne);
    {
        Execution laBas(ancienne.chemin());
        ASSERT_TRUE(laBas.demarre());
        ecran::choisit(laBas.etats.stockage.Option3, 1);
        laBas.session.Option3_Click();
        importe(laBas, ancienne);
        laBas.session.Form_Unload();
    }
    ancienne.ecrit("Ambrelis.ini", "1\r\nC:\\Ambrelis\\IMAGES\\\r\n9000\r\n6000\r\n0\r\nC:\\Ambrelis\\films.mdb\r\n");
    for (const char* rapport : {"4 films ajoutés, dont 4 possédés.", "0 film ajouté.\n4 films déjà présents."}) {
        demarre();
        session().cmdAfficherFonctions_Click();
        demande(
            "Cette fonction permet de récupérer la base de données et les images d'une précédente version.\n"
            "Souhaitez-vous continuer ?",
            dialogues::kOui);
        execution->boites.attendDossier("Dossier de la précédente version", "", ancienne.chemin());
        const std::string origine =
            "Base : " + ancienne.chemin("Films.mdb") + "\nImages : " + ancienne.chemin("Images/");
        demande(origine + "\n\nSouhaitez-vous importer cette base ?", dialogues::kOui);
        execution->boites.attendMsgBox(rapport + "\n"s + origine, dialogues::kInformation);
        session().Command13_Click(2);
        EXPECT_TRUE(etats().ajout.Command13[2].FontBold && etats().panneaux.frameListeFonctions.Visible);
        EXPECT_EQ(comptes(), "4 titres, 4 personnels");
        EXPECT_THAT(arbre(etats()),
                    ElementsAre("E", "  Été Violent", "L", "  Le Cercle Rouge", "  Le Samouraï", "S", "  Sans Rien"));
        EXPECT_THAT(etats().fiche.Combo7[2].Items, ElementsAre("DVD"));
        clique(*execution, "Le Cercle Rouge");
        EXPECT_EQ(execution->images.courante, installation.lit("Tmp/ImageTMP.jpg"));
        session().Form_Unload();
    }
    EXPECT_FALSE(installation.existe("Images"));  // here posters go into the base
}

}  // namespace
