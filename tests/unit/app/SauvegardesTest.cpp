#include "app/Sauvegardes.h"
#include "db/RetourASauvegarde.h"
#include "edit/SaisiePossession.h"
#include "parcours/Collectionneur.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class SauvegardesTest : public Collectionneur {
  protected:
    [[nodiscard]] std::vector<std::string> commandes() {
        std::vector<std::string> toutes;
        for (const app::EtatSauvegardes::Ligne& ligne : etats().sauvegardes.lignes)
            toutes.push_back(ligne.films + " " + ligne.possessions + " " + ligne.avant);
        return toutes;
    }
    [[nodiscard]] db::Sauvegarde derniere() const { return *db::derniereSauvegarde(base); }
    void abime() const { installation.ecrit("Films.mdb", "rien de lisible"); }
    // The two boxes that a start with that base has always shown.
    void attendLeRefus(int reponse) {
        execution->boites.attendMsgBox("Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)",
                                       dialogues::kCritique);
        demande(
            "La base " + base +
                " n'a pas pu être ouverte : le fichier est endommagé ou n'est pas une base d'Ambrelis.\nVoulez-vous "
                "en choisir une autre ?",
            reponse);
    }

    const std::string base = installation.chemin("Films.mdb");
};

TEST_F(SauvegardesTest, AreListedComparedAndGoneBackToAndForth) {
    demarre();
    session().execute(app::cmdSauvegardes_Click);
    EXPECT_TRUE(etats().sauvegardes.frmSauvegardes.Visible && etats().sauvegardes.lignes.empty());
    EXPECT_THAT(etats().sauvegardes.lblSauvegardes.Caption, StartsWith("Aucune sauvegarde pour l'instant"));
    importe(*execution, installation);
    clique(*execution, "Le Cercle Rouge");
    session().execute(app::cmdSauvegardes_Click);
    EXPECT_THAT(commandes(), ElementsAre("0 0 import de fiches"));
    EXPECT_THAT(etats().sauvegardes.lignes[0].date, testing::MatchesRegex("21/11/2026 à [0-9]+:[0-9]+|22/11.*"));
    session().execute(app::cmdComparerSauvegarde_Click, 0);
    EXPECT_THAT(etats().sauvegardes.txtComparaison.Text,
                HasSubstr("4 films ne sont que dans la base d'aujourd'hui :\n    Le Cercle Rouge - "));

    const std::string question =
        "Voulez-vous revenir à la sauvegarde du " + db::dateDe(derniere()) +
        ", 0 film (avant : import de fiches) ?\nLa base d'aujourd'hui sera d'abord sauvegardée.";
    demande(question, dialogues::kNon);
    session().execute(app::cmdRevenirSauvegarde_Click, 0);
    EXPECT_EQ(comptes(), "4 titres, 4 personnels");
    demande(question, dialogues::kOui);
    session().execute(app::cmdRevenirSauvegarde_Click, 0);
    EXPECT_EQ(comptes() + filmMontre(etats()), "0 titre, 0 personnel");
    EXPECT_THAT(commandes(), ElementsAre("4 4 retour à une sauvegarde", "0 0 import de fiches"));
    EXPECT_THAT(etats().avis.lblAvis.Caption, StartsWith("La base est revenue à la sauvegarde du "));
    session().execute(app::cmdAvis_Click, 0);
    EXPECT_EQ(comptes(), "4 titres, 4 personnels");

    // The list was read before that: it names the copy by its line, and the copy is gone.
    std::filesystem::remove(etats().sauvegardes.copies.at(0).chemin);
    attendRefus("Cette sauvegarde n'est plus là.");
    session().execute(app::cmdComparerSauvegarde_Click, 0);
    EXPECT_THAT(commandes(), ElementsAre("0 0 retour à une sauvegarde", "0 0 import de fiches"));
    for (const int ligne : {-1, 2}) {
        session().execute(app::cmdComparerSauvegarde_Click, ligne);
        session().execute(app::cmdRevenirSauvegarde_Click, ligne);
    }
}

TEST_F(SauvegardesTest, WhatIsTypedIsAskedForBeforeTheBaseGoes) {
    demarre();
    importe(*execution, installation);
    clique(*execution, "Le Cercle Rouge");
    etats().fiche.Combo7[0].Text = "Chloé";
    session().execute(edit::Combo7_Change, 0);
    session().execute(app::cmdSauvegardes_Click);
    demande("Voulez-vous revenir à la sauvegarde du " + db::dateDe(derniere()) +
                ", 0 film (avant : import de fiches) ?\nLa base d'aujourd'hui sera d'abord sauvegardée.",
            dialogues::kOui);
    demande("La possession de « Le Cercle Rouge » n'est pas validée.\nVoulez-vous abandonner votre saisie ?",
            dialogues::kNon);
    session().execute(app::cmdRevenirSauvegarde_Click, 0);
    EXPECT_EQ(comptes(), "4 titres, 4 personnels");
    EXPECT_EQ(etats().fiche.Combo7[0].Text, "Chloé");
}

TEST_F(SauvegardesTest, ADamagedBaseIsOfferedItsLastCopyOnceAnotherOneIsOpen) {
    demarre();
    importe(*execution, installation);
    clique(*execution, "Le Cercle Rouge");
    EXPECT_THROW(session().cmdStop_Click(), systeme::FinDuProgramme);
    const db::Sauvegarde copie = derniere();
    std::filesystem::copy_file(base, copie.chemin, std::filesystem::copy_options::overwrite_existing);
    abime();
    dao::DBEngine::CreateDatabase(installation.chemin("Autre.mdb"), db::schema());
    execution.emplace(installation.chemin());
    attendLeRefus(dialogues::kOui);
    execution->boites.attendFichier(demandeBase(installation), installation.chemin("Autre.mdb"));
    ASSERT_TRUE(execution->demarre());
    EXPECT_EQ(comptes(), "0 titre, 0 personnel");
    EXPECT_EQ(etats().avis.lblAvis.Caption,
              "La base " + base + " ne s'ouvre pas. Dernière sauvegarde : " + db::dateDe(copie) + ", 4 films.");
    session().execute(app::cmdAvis_Click, 0);
    EXPECT_EQ(comptes(), "4 titres, 4 personnels");
    EXPECT_THAT(etats().avis.lblAvis.Caption, HasSubstr("gardée sous le nom « Films (endommagée).mdb »"));
    EXPECT_EQ(installation.lit("Films (endommagée).mdb"), "rien de lisible");
}

TEST_F(SauvegardesTest, WhereTheProgramWouldEndABoxOffersTheLastCopy) {
    demarre();
    importe(*execution, installation);
    EXPECT_THROW(session().cmdStop_Click(), systeme::FinDuProgramme);
    const std::string question = "La base " + base +
                                 " ne s'ouvre pas. Dernière sauvegarde : " + db::dateDe(derniere()) +
                                 ", 0 film.\nVoulez-vous y revenir ? Le fichier actuel sera gardé à côté.";
    abime();
    execution.emplace(installation.chemin());
    attendLeRefus(dialogues::kNon);
    demande(question, dialogues::kNon);
    EXPECT_FALSE(execution->demarre());
    EXPECT_EQ(installation.lit("Films.mdb"), "rien de lisible");
    execution.emplace(installation.chemin());
    attendLeRefus(dialogues::kNon);
    demande(question, dialogues::kOui);
    ASSERT_TRUE(execution->demarre());
    EXPECT_EQ(comptes(), "0 titre, 0 personnel");
    EXPECT_EQ(installation.lit("Films (endommagée).mdb"), "rien de lisible");
    EXPECT_THROW(session().cmdStop_Click(), systeme::FinDuProgramme);

    // A base that is not damaged but in use has nothing to go back for.
    dao::Database autre = dao::DBEngine::OpenDatabase(base, true);
    execution.emplace(installation.chemin());
    execution->boites.attendMsgBox("Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)",
                                   dialogues::kCritique);
    demande("La base " + base +
                " n'a pas pu être ouverte : elle est utilisée par un autre programme.\nVoulez-vous en choisir une "
                "autre ?",
            dialogues::kNon);
    EXPECT_FALSE(execution->demarre());
}

TEST_F(SauvegardesTest, AnEmptyBaseInThePlaceOfALostOneOffersItsCopy) {
    demarre();
    importe(*execution, installation);
    EXPECT_THROW(session().cmdStop_Click(), systeme::FinDuProgramme);
    std::filesystem::copy_file(base, derniere().chemin, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::remove(base);
    demarre();
    EXPECT_THAT(etats().avis.lblAvis.Caption, testing::EndsWith(", 4 films."));
    session().execute(app::cmdAvis_Click, 0);
    EXPECT_EQ(comptes(), "4 titres, 4 personnels");
}

}  // namespace
