#include "app/ChoixFonction.h"
#include "app/Commandes.h"
#include "app/RaccourcisClavier.h"
#include "app/Sauvegardes.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "browse/lblRealisateur_Click.h"
#include "edit/ModifieGroupe.h"
#include "edit/SaisiePossession.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "edit/cmdPonctuation_Click.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "parcours/Collectionneur.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const std::string kRouge = "Le Cercle Rouge de Jean-Pierre Melville", kEte = "Été Violent de Valerio Zurlini",
                  kMonstres = "Les \"Nouveaux\" Monstres de Dino Risi", kRien = "Sans Rien de Non défini";

// A collector's work from an empty folder to the next day. Each step leaves to the next what it made, and tells by
// changements() the rows that its commands changed.
class UneSession : public Collectionneur {
  protected:
    void attendAffiche(const std::string& choix) {
        execution->boites.attendFichier(
            {"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", installation.chemin("Images/")}, choix);
    }
    void ouvreSaisie(const std::string& titre, const std::string& realisateur) {
        session().execute(app::cmdAfficherFonctions_Click);
        session().execute(app::Command13_Click, 1);
        etats().ajout.Text3[0].Text = titre;
        etats().ajout.Text3[1].Text = realisateur;
    }
    void saisisPret(const std::string& nom) {
        etats().fiche.Combo7[0].Text = nom;
        session().execute(edit::Combo7_Change, 0);
        session().execute(edit::cmdValiderInfosPossessions_Click);
    }

    void importeLesFiches() {
        attendRefus("Aucun enregistrement déjà disponible !");
        cherche(*execution, "rouge");
        importe(*execution, installation);
        EXPECT_EQ(changements().size(), 8U);
        EXPECT_EQ(comptes(), "4 titres, 4 personnels");
    }

    void ajouteALaMain() {
        ouvreSaisie("", "");
        attendRefus("Le titre du film est obligatoire !");
        session().execute(edit::cmdAjoutFilm_Click);
        ouvreSaisie("le cercle ROUGE", "");
        attendRefus("Le réalisateur du film est obligatoire !");
        session().execute(edit::cmdAjoutFilm_Click);
        etats().ajout.Text3[1].Text = "jean-pierre melville";
        attendRefus("Un film ayant le même titre et du même réalisateur existe déjà !");
        session().execute(edit::cmdAjoutFilm_Click);
        EXPECT_THAT(changements(), IsEmpty());

        ouvreSaisie("Les \"Nouveaux\" Monstres", "Dino Risi");
        EXPECT_THAT(etats().ajout.Combo2.Items, ElementsAre("Drame", "Policier"));
        etats().ajout.Combo2.Text = "Comédie";
        attendAffiche(installation.ecrit("bonne.jpg", "\xFF\xD8 une autre image"));
        session().execute(edit::cmdAjoutFilm_Click);
        EXPECT_THAT(changements(), UnorderedElementsAre("+Films : " + kMonstres, "+Personnel : " + kMonstres));
        EXPECT_THAT(etats().ajout.Combo2.Items, ElementsAre("Comédie", "Drame", "Policier"));

        ouvreSaisie("le parrain ii", "Francis Ford Coppola");
        attendAffiche("");
        session().execute(edit::cmdAjoutFilm_Click);
        EXPECT_EQ(changements().size(), 2U);
        EXPECT_THAT(arbre(etats()), ElementsAre("Été Violent", "Le Cercle Rouge", "le parrain ii", "Le Samouraï",
                                                "Les \"Nouveaux\" Monstres", "Sans Rien"));
        EXPECT_EQ(comptes(), "6 titres, 6 personnels");
        EXPECT_EQ(filmMontre(etats()), "");
    }

    void chercheEtEstRefuse() {
        attendRefus("Aucun texte à rechercher !");
        cherche(*execution, "");
        attendRefus("Aucune zone de recherche précisée !");
        cherche(*execution, "rouge", {0, 0, 0, 0});
        EXPECT_EQ(arbre(etats()).size(), 6U);
        cherche(*execution, "\"nouv");
        EXPECT_THAT(arbre(etats()), ElementsAre("Les \"Nouveaux\" Monstres"));
        clique(*execution, "Les \"Nouveaux\" Monstres");
        EXPECT_EQ(filmMontre(etats()), kMonstres);
        EXPECT_EQ(execution->images.courante, installation.lit("Tmp/ImageTMP.jpg"));
        session().execute(browse::lblRealisateur_Click);
        EXPECT_EQ(etats().recherche.Text2.Text, "Dino Risi");
        EXPECT_EQ(arbre(etats()).size(), 1U);
    }

    void modifie() {
        zone(0);
        tri(4);
        clique(*execution, "Le Samouraï");
        session().execute(app::cmdModifierTitre_Click);
        etats().ajout.Text3[0].Text = "LE CERCLE ROUGE";
        attendRefus("Un film ayant le même titre et du même réalisateur existe déjà !");
        session().execute(edit::cmdAjoutFilm_Click);
        EXPECT_THAT(changements(), IsEmpty());

        const std::string costello = "Costello \"le Samouraï\" de Jean-Pierre Melville";
        etats().ajout.Text3[0].Text = "Costello \"le Samouraï\"";
        etats().ajout.Combo2.Text = "Drame";
        session().execute(edit::cmdAjoutFilm_Click);
        EXPECT_EQ(filmMontre(etats()), costello);
        EXPECT_EQ(groupeChoisi(etats()), "Drame");
        EXPECT_THAT(changements(), UnorderedElementsAre("*Films : " + costello, "*Personnel : " + costello));

        const std::string criard = "COSTELLO \"LE SAMOURAÏ\" de Jean-Pierre Melville";
        session().execute(app::cmdModifierTitre_Click);
        etats().ajout.Text3[0].Text = "COSTELLO \"LE SAMOURAÏ\"";
        session().execute(edit::cmdAjoutFilm_Click);
        EXPECT_EQ(filmMontre(etats()), criard);
        EXPECT_THAT(changements(), UnorderedElementsAre("*Films : " + criard, "*Personnel : " + criard));
    }

    void prete() {
        zone(2);
        tri(1);
        clique(*execution, "Le Cercle Rouge");
        EXPECT_FALSE(etats().fiche.cmdValiderInfosPossessions.Visible);
        saisisPret("Chloé");
        EXPECT_THAT(changements(), ElementsAre("*Personnel : " + kRouge));
        EXPECT_EQ(arbre(etats()).size(), 5U);
        EXPECT_EQ(filmMontre(etats()), "");  // it is in this zone no more
        clique(*execution, "Les \"Nouveaux\" Monstres");
        EXPECT_THAT(etats().fiche.Combo7[0].Items, ElementsAre("Chloé"));
        saisisPret("L'ami \"Jo\"");
        zone(3);
        EXPECT_THAT(arbre(etats()), ElementsAre("Le Cercle Rouge", "Les \"Nouveaux\" Monstres"));
        clique(*execution, "Le Cercle Rouge");
        EXPECT_EQ(etats().fiche.Combo7[0].Text, "Chloé");
        saisisPret("");  // returned
        EXPECT_THAT(arbre(etats()), ElementsAre("Les \"Nouveaux\" Monstres"));
        EXPECT_THAT(changements(), UnorderedElementsAre("*Personnel : " + kMonstres, "*Personnel : " + kRouge));
    }

    void reserve() {
        zone(0);
        clique(*execution, "Le Cercle Rouge");
        etats().fiche.Combo7[1].Text = "Zo";
        session().execute(edit::Combo7_Change, 1);
        session().execute(browse::RaffraichitBoitesDeroulantes);
        EXPECT_EQ(etats().fiche.Combo7[1].Text, "Zo");  // what is being typed stays
        EXPECT_THAT(etats().fiche.Combo7[1].Items, IsEmpty());
        EXPECT_TRUE(etats().fiche.cmdValiderInfosPossessions.Visible);
        etats().fiche.Combo7[1].Text = "Zoé";
        session().execute(edit::cmdValiderInfosPossessions_Click);
        EXPECT_EQ(filmMontre(etats()), kRouge);
        EXPECT_EQ(etats().fiche.Combo7[1].Text, "Zoé");
        EXPECT_THAT(etats().fiche.Combo7[1].Items, ElementsAre("Zoé"));
        EXPECT_THAT(changements(), ElementsAre("*Personnel : " + kRouge));
        zone(4);
        EXPECT_THAT(arbre(etats()), ElementsAre("Le Cercle Rouge"));
    }

    void possede() {
        zone(0);
        clique(*execution, "Sans Rien");
        ecran::choisit(etats().fiche.Option1, 0);
        session().execute(edit::Option1_Click);
        EXPECT_FALSE(etats().fiche.framePossession.Visible);
        session().execute(edit::cmdValiderInfosPossessions_Click);
        EXPECT_THAT(changements(), ElementsAre("-Personnel : " + kRien));
        EXPECT_EQ(arbre(etats()).size(), 5U);
        EXPECT_EQ(comptes(), "6 titres, 5 personnels");

        zone(5);
        clique(*execution, "Sans Rien");
        ecran::choisit(etats().fiche.Option1, 1);
        session().execute(edit::Option1_Click);
        etats().fiche.Combo7[2].Text = "K7 enregistrée à la télé";
        session().execute(edit::cmdValiderInfosPossessions_Click);
        EXPECT_THAT(changements(), ElementsAre("+Personnel : " + kRien));
        EXPECT_THAT(arbre(etats()), IsEmpty());
        EXPECT_THAT(etats().fiche.Combo7[2].Items, ElementsAre("DVD", "K7 enregistrée à la "));
    }

    void note() {
        const std::string question =
            "Quelle note (entre 1 et 10) voulez vous attribuer au film \"Été Violent\" de Valerio Zurlini ?";
        zone(1);
        tri(7);
        clique(*execution, "Été Violent");
        for (const char* reponse : {"10", "7,5", "11"}) {
            execution->boites.attendInputBox(question, reponse);
            session().execute(edit::cmdModifieNote_Click);
            EXPECT_EQ(filmMontre(etats()), kEte);
        }
        EXPECT_EQ(etats().fiche.lblNote.Caption, "Note : 8/10");
        EXPECT_EQ(groupeChoisi(etats()), "8");
        EXPECT_THAT(changements(), ElementsAre("*Films : " + kEte));
        EXPECT_THAT(arbre(etats()), testing::Contains(" Hors tri !"));
    }

    void renommeDesGroupes() {
        tri(4);
        session().execute(app::TreeView1_MouseUpDroit, noeud(etats(), "Drame"));
        EXPECT_EQ(etats().menu, app::MenuContextuel::MenuClicDroitGenre);
        execution->boites.attendInputBox("Entrez le nom du nouveau genre", "Mélodrame", "Modifier le genre", "Drame");
        session().execute(edit::RenommerGenreFilms_Click);
        EXPECT_THAT(changements(), UnorderedElementsAre("*Films : " + kEte,
                                                        "*Films : COSTELLO \"LE SAMOURAÏ\" de Jean-Pierre Melville"));
        EXPECT_THAT(
            arbre(etats()),
            ElementsAre(" Hors tri !", "  le parrain ii", "  Sans Rien", "Comédie", "  Les \"Nouveaux\" Monstres",
                        "Mélodrame", "  COSTELLO \"LE SAMOURAÏ\"", "  Été Violent", "Policier", "  Le Cercle Rouge"));
        zone(0);
        tri(8);
        session().execute(app::TreeView1_MouseUpDroit, noeud(etats(), "DVD"));
        EXPECT_EQ(etats().menu, app::MenuContextuel::MenuClicDroitSupport);
        execution->boites.attendInputBox("Entrez le nom du nouveau support", "Blu-ray", "Modifier le support", "DVD");
        session().execute(edit::RenommeSupportFilms_Click);
        EXPECT_THAT(changements(),
                    UnorderedElementsAre("*Personnel : " + kEte, "*Personnel : " + kRouge,
                                         "*Personnel : COSTELLO \"LE SAMOURAÏ\" de Jean-Pierre Melville"));
        EXPECT_THAT(etats().fiche.Combo7[2].Items, ElementsAre("Blu-ray", "K7 enregistrée à la "));
    }

    void cocheEtSupprime() {
        tri(4);
        zone(1);
        clique(*execution, "Le Cercle Rouge");  // owned: the holdings of the ticked films go too
        session().execute(app::ChoixFonction2_Outils);
        session().execute(edit::cmdMultiSuppress_Click);
        ecran::choisit(etats().multiSuppression.Option4, 1);
        session().execute(edit::Option4_Click);
        EXPECT_TRUE(etats().liste.TreeView1.Checkboxes && etats().multiSuppression.cmdSupprTitresSelect.Visible);
        attendRefus("Aucun film n'a été coché !");
        session().execute(edit::cmdSupprTitresSelect_Click);
        attendRefus("Choisissez un titre plutôt qu'une catégorie.");
        session().execute(app::TreeView1_NodeCheck, noeud(etats(), "Policier"), true);
        session().execute(app::TreeView1_NodeCheck, noeud(etats(), "Le Cercle Rouge"), true);
        session().execute(app::TreeView1_NodeCheck, noeud(etats(), "Sans Rien"), true);
        EXPECT_EQ(filmMontre(etats()), "");  // a tick shows no sheet
        EXPECT_EQ(etats().multiSuppression.lblCoches.Caption, "2 films cochés");
        demande("Voulez-vous vraiment supprimer ces 2 titres ?", dialogues::kNon);
        session().execute(edit::cmdSupprTitresSelect_Click);
        EXPECT_EQ(etats().liste.TreeView1.coches.size(), 2U);
        EXPECT_THAT(changements(), IsEmpty());

        demande("Voulez-vous vraiment supprimer ces 2 titres ?", dialogues::kOui);
        execution->boites.attendMsgBox("2 titres supprimés.", dialogues::kInformation);
        session().execute(edit::cmdSupprTitresSelect_Click);
        EXPECT_THAT(changements(), UnorderedElementsAre("-Films : " + kRouge, "-Personnel : " + kRouge,
                                                        "-Films : " + kRien, "-Personnel : " + kRien));
        EXPECT_EQ(comptes(), "4 titres, 4 personnels");
        EXPECT_TRUE(etats().liste.TreeView1.Checkboxes && etats().liste.TreeView1.coches.empty());
        EXPECT_EQ(etats().multiSuppression.lblCoches.Caption, "0 film coché");
        ecran::choisit(etats().multiSuppression.Option4, 0);
        session().execute(edit::Option4_Click);
        EXPECT_FALSE(etats().liste.TreeView1.Checkboxes);
    }

    void supprimeLeFilmMontre() {
        clique(*execution, "Été Violent");
        for (const int reponse : {dialogues::kNon, dialogues::kOui}) {
            demande("Voulez-vous vraiment supprimer ce titre ?", reponse);
            session().execute(edit::cmdSupprimerTitre_Click);
        }
        EXPECT_THAT(changements(), UnorderedElementsAre("-Films : " + kEte, "-Personnel : " + kEte));
        EXPECT_EQ(comptes(), "3 titres, 3 personnels");
        session().execute(edit::cmdSupprimerTitre_Click);  // no film is current: nothing to ask
        // The nodes that stay, of a listing where a slot is empty, still lead to their films.
        EXPECT_THAT(arbre(etats()),
                    ElementsAre(" Hors tri !", "  le parrain ii", "Comédie", "  Les \"Nouveaux\" Monstres", "Mélodrame",
                                "  COSTELLO \"LE SAMOURAÏ\""));
        for (const char* titre : {"COSTELLO \"LE SAMOURAÏ\"", "Les \"Nouveaux\" Monstres", "le parrain ii"}) {
            clique(*execution, titre);
            EXPECT_THAT(filmMontre(etats()), testing::StartsWith(titre));
        }
    }

    void corrigeLesTitres() {
        session().execute(app::ChoixFonction2_Outils);
        for (const char* rapport : {"2 titres modifiés.", "Aucun titre modifié."}) {
            demande("Êtes-vous sûr(e) de vouloir corriger tous les titres de la base ?", dialogues::kOui);
            execution->boites.attendMsgBox(rapport, dialogues::kInformation);
            session().execute(edit::cmdPonctuation_Click);
        }
        const std::string parrain = "Le Parrain II de Francis Ford Coppola",
                          costello = "Costello \"Le Samouraï\" de Jean-Pierre Melville";
        EXPECT_THAT(changements(), UnorderedElementsAre("*Films : " + parrain, "*Personnel : " + parrain,
                                                        "*Films : " + costello, "*Personnel : " + costello));
        zone(0);
        tri(1);
        EXPECT_THAT(arbre(etats()),
                    ElementsAre("Costello \"Le Samouraï\"", "Le Parrain II", "Les \"Nouveaux\" Monstres"));
    }

    void ouvreUneAutreBaseEtRevient() {
        listesLaissees = toutesLesListes();
        zone(0);
        tri(3);
        clique(*execution, "Le Parrain II");
        const std::string series = installation.chemin("Séries.mdb");
        execution->boites.attendFichier(demandeBase(installation), installation.chemin("Séries"));
        demande("Le fichier " + series + " n'existe pas. Voulez-vous le créer ?", dialogues::kOui);
        session().execute(app::cmdChargeOuvreBase_Click);
        EXPECT_EQ(comptes() + filmMontre(etats()), "0 titre, 0 personnel");
        EXPECT_THAT(arbre(etats()), IsEmpty());
        EXPECT_THAT(etats().fiche.Combo7[2].Items, IsEmpty());
        session().execute(edit::cmdModifieNote_Click);  // the film of the other base is current no more
        session().execute(edit::cmdSupprimerTitre_Click);
        arrete();
        demarre();
        EXPECT_EQ(comptes(), "0 titre, 0 personnel");
        execution->boites.attendFichier(demandeBase(installation), installation.chemin("Films.mdb"));
        session().execute(app::cmdChargeOuvreBase_Click);
        EXPECT_EQ(comptes(), "3 titres, 3 personnels");
        EXPECT_THAT(changements(), IsEmpty());
    }

    void arrete() {
        EXPECT_THROW(session().cmdStop_Click(), systeme::FinDuProgramme);
        execution.reset();
        EXPECT_TRUE(std::filesystem::is_empty(installation.chemin("Tmp")));
        EXPECT_FALSE(installation.existe("Films.mdb-journal"));
    }

    void retrouveTout() {
        EXPECT_EQ(etats().liste.ChoixTri.Text, "Tri par réalisateur");
        EXPECT_EQ(comptes(), "3 titres, 3 personnels");
        EXPECT_EQ(toutesLesListes(), listesLaissees);
        EXPECT_THAT(changements(), IsEmpty());
        zone(3);
        clique(*execution, "Les \"Nouveaux\" Monstres");
        EXPECT_EQ(filmMontre(etats()), kMonstres);
        EXPECT_EQ(etats().fiche.Combo7[0].Text, "L'ami \"Jo\"");
        EXPECT_EQ(execution->images.courante, installation.lit("Tmp/ImageTMP.jpg"));
        EXPECT_THAT(etats().fiche.Combo7[2].Items, ElementsAre("Blu-ray"));
    }

    // Each command that changed many films has a copy from before it, the last one first.
    void retrouveSesSauvegardes() {
        session().execute(app::cmdSauvegardes_Click);
        std::vector<std::string> copies;
        for (const auto& ligne : etats().sauvegardes.lignes)
            copies.push_back(ligne.films + ", " + ligne.avant);
        EXPECT_THAT(copies, ElementsAre("3, correction des titres", "3, correction des titres",
                                        "6, suppression de plusieurs films", "6, renommage d'un groupe",
                                        "6, renommage d'un groupe", "0, import de fiches"));
    }

    std::vector<std::vector<std::string>> listesLaissees;
};

TEST_F(UneSession, FromAnEmptyFolderToTheNextDay) {
    ASSERT_NO_FATAL_FAILURE(demarre());
    importeLesFiches();
    ajouteALaMain();
    chercheEtEstRefuse();
    modifie();
    prete();
    reserve();
    possede();
    note();
    renommeDesGroupes();
    cocheEtSupprime();
    supprimeLeFilmMontre();
    corrigeLesTitres();
    ouvreUneAutreBaseEtRevient();
    arrete();
    ASSERT_NO_FATAL_FAILURE(demarre());
    retrouveTout();
    retrouveSesSauvegardes();
}

}  // namespace
