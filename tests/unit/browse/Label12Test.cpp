#include "Fenetre.h"
#include "browse/Label12_Click.h"
#include "db/Affiches.h"

namespace {

// A film without a poster, shown, and the choice of a picture for it.
class Label12Test : public Fenetre {
  protected:
    const std::string image = "\xFF\xD8 une image";

    void SetUp() override {
        Fenetre::SetUp();
        ajouteFilm("Le \"titre\" : 1", {{"Realisateur", "R"}});
        ajouteFilm("Un autre", {{"Realisateur", "R"}, {"Affiche", "JPGautre.jpg"}});
        montre(browse::kZoneTous, browse::kTriTitre2);
        clique("Le \"titre\" : 1");
    }
    void choisitImage(const std::string& reponse) {
        dialogues.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", dossier.chemin()},
                                reponse);
    }
    void attache(const std::string& reponse) {
        choisitImage(reponse);
        Label12_Click(c);
        dialogues.verifie();
    }
    [[nodiscard]] std::string affiche(const char* titre = "Le \"\"titre\"\" : 1") {
        return base.base.OpenRecordset(std::string("SELECT * FROM films WHERE titre = \"") + titre + "\"")
            .texte("Affiche");
    }
};

TEST_F(Label12Test, ThePosterGoesIntoTheBaseAndIsShown) {
    attache(dossier.ecrit("choix.jpg", image));
    EXPECT_EQ(affiche(), "STO" + image);
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), image);
    EXPECT_TRUE(fiche.Image1.Visible);
    EXPECT_EQ(film.titre, "Le \"titre\" : 1");
    Label12_Click(c);  // the film has one now: no box
    EXPECT_EQ(affiche("Un autre"), "JPGautre.jpg");
}

TEST_F(Label12Test, ThePosterGoesIntoTheFolderUnderTheFilmsName) {
    ecran::choisit(stockage.Option3, 1);
    dossier.ecrit("Images/Le titre  1 - R.jpg", "l'ancienne");
    attache(dossier.ecrit("choix.jpg", image));
    EXPECT_EQ(affiche(), "JPGLe titre  1 - R.jpg");
    EXPECT_EQ(dossier.lit("Images/Le titre  1 - R.jpg"), image);
    EXPECT_EQ(stockage.Text4.Text, dossier.chemin("Images"));
    EXPECT_TRUE(fiche.Image1.Visible);
}

TEST_F(Label12Test, AnotherFilmsFileIsLeftAlone) {
    ecran::choisit(stockage.Option3, 1);
    dossier.ecrit("Images/Le titre  1 - R.jpg", "d'un autre");
    dossier.ecrit("Images/Le titre  1 - R (2).jpg", "à personne");
    base.base.Execute("UPDATE Films SET Affiche = 'JPGx\\LE TITRE  1 - r.jpg' WHERE Titre = 'Un autre'");
    attache(dossier.ecrit("choix.jpg", image));
    EXPECT_EQ(affiche(), "JPGLe titre  1 - R (2).jpg");
    EXPECT_EQ(dossier.lit("Images/Le titre  1 - R (2).jpg"), image);
    EXPECT_EQ(dossier.lit("Images/Le titre  1 - R.jpg"), "d'un autre");
}

// The sheet may be older than the film: its poster came since, or came back with its disk.
TEST_F(Label12Test, APosterThatTheFilmHasIsNeverReplaced) {
    const std::string choix = dossier.ecrit("choix.jpg", image);
    const std::string retrouvee = dossier.ecrit("Images/retrouvée.jpg", image);
    for (const std::size_t option : {0, 1})
        for (const char* valeur : {"CAST('STOautre' AS BLOB)", "'JPGretrouvée.jpg'"}) {
            ecran::choisit(stockage.Option3, option);
            base.base.Execute(std::string("UPDATE Films SET Affiche = ") + valeur);
            const std::string avant = affiche();
            choisitImage(choix);
            dialogues.attendMsgBox("Ce film a déjà une affiche : elle est gardée.", dialogues::kCritique);
            Label12_Click(c);
            dialogues.verifie();
            EXPECT_EQ(affiche(), avant);
        }
    EXPECT_FALSE(dossier.existe("Images/Le titre  1 - R.jpg"));
    std::filesystem::remove(retrouvee);
    attache(choix);
    EXPECT_EQ(affiche(), "JPGLe titre  1 - R.jpg") << "a reference that leads nowhere is no poster";
}

TEST_F(Label12Test, AFolderThatCannotTakeItLeavesTheFilm) {
    ecran::choisit(stockage.Option3, 1);
    const std::string barrage = dossier.ecrit("barrage", "") + "/Images", tmp = chemins.dossierTmp + "/Affiches";
    const std::pair<std::string, std::string> cas[]{
        {barrage, "Le fichier image " + barrage +
                      "/Le titre  1 - R.jpg n'a pas pu être écrit (Disque plein/Lecture "
                      "seule ?)"},
        {tmp, "Le dossier des images ne peut pas être " + tmp +
                  " : Ambrelis efface ce que contient « Tmp » chaque fois qu'il se ferme."}};
    for (const auto& [place, message] : cas) {
        stockage.Text4.Text = place;
        choisitImage(dossier.ecrit("choix.jpg", image));
        dialogues.attendMsgBox(message, dialogues::kCritique);
        Label12_Click(c);
        EXPECT_EQ(affiche(), "");
        EXPECT_FALSE(base.base.enTransaction());
    }
    EXPECT_TRUE(std::filesystem::is_empty(chemins.dossierTmp));
}

TEST_F(Label12Test, TheFilesOwnPlacesAreRecognised) {
    ecran::choisit(stockage.Option3, 1);
    attache(dossier.ecrit("Images/Le titre  1 - R.jpg", image));
    EXPECT_EQ(dossier.lit("Images/Le titre  1 - R.jpg"), image);
    EXPECT_EQ(affiche(), "JPGLe titre  1 - R.jpg");

    base.base.Execute("UPDATE Films SET Affiche = NULL");
    clique("Le \"titre\" : 1");
    ecran::choisit(stockage.Option3, 0);
    attache(dossier.ecrit("Tmp/ImageTMP.jpg", image + "temporaire"));
    EXPECT_EQ(affiche(), "STO" + image + "temporaire");
}

TEST_F(Label12Test, WhatCannotBeTakenIsRefused) {
    attache("");
    choisitImage(dossier.chemin("absent.jpg"));
    dialogues.attendMsgBox("Le fichier indiqué est inexistant !", dialogues::kExclamation);
    Label12_Click(c);
    choisitImage(dossier.ecrit("grande.jpg", std::string(230001, 'x')));
    dialogues.attendMsgBox("Image trop grande pour tenir en base !", dialogues::kExclamation);
    Label12_Click(c);
    EXPECT_EQ(affiche(), "");
    attache(dossier.ecrit("juste.jpg", std::string(230000, 'x')));
    EXPECT_EQ(affiche().size(), 230003U);
}

TEST_F(Label12Test, ALockedBaseLeavesTheFileThatStands) {
    ecran::choisit(stockage.Option3, 1);
    dossier.ecrit("Images/Le titre  1 - R.jpg", "l'ancienne");
    dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
    autre.BeginTrans();
    choisitImage(dossier.ecrit("choix.jpg", image));
    dialogues.attendMsgBox("Erreur 3260 : Mise à jour impossible : la base est verrouillée par un autre programme.",
                           dialogues::kCritique);
    Label12_Click(c);
    EXPECT_EQ(dossier.lit("Images/Le titre  1 - R.jpg"), "l'ancienne");
}

}  // namespace
