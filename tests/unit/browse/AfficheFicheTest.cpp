#include "Fenetre.h"
#include "browse/AfficheVolet.h"
#include "browse/ChargeAffiche.h"
#include "browse/ModifieNoteFilm.h"
#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace {

const std::string kPasDImage = "Pas d'image \r\n(Cliquez pour ajouter)";
const std::string kJpeg("\xFF\xD8\xFF\0\x80image", 10);

class AfficheFicheTest : public Fenetre {
  protected:
    void montreFilm(const char* titre) {
        montre(browse::kZoneTous, browse::kTriTitre2);
        clique(titre);
    }
    // The rating in the base, as it is after everything was shown.
    [[nodiscard]] dao::Valeur noteEnBase() {
        base.films.MoveFirst();
        return base.films.valeur("Note");
    }
};

TEST_F(AfficheFicheTest, TheSheetShowsWhatTheRowHolds) {
    ajouteFilm("L'\"Été\"", {{"Realisateur", "Rohmer"},
                             {"Annee", "1996"},
                             {"Production", "Losange"},
                             {"Origine", "France"},
                             {"Duree", "1h53"},
                             {"Genre", "Comédie"},
                             {"Acteurs", "Poupaud;Langlet;Simon"},
                             {"Resume", "À Dinard.\r\nL'été."},
                             {"Note", 8}});
    panneaux.montre(panneaux.frameListeFonctions);
    montreFilm("L'\"Été\"");
    EXPECT_EQ(fiche.Label1[0].Caption, "L'\"Été\"");
    EXPECT_EQ(fiche.lblRealisateur.Caption, "de Rohmer");
    EXPECT_EQ(fiche.Label1[1].Caption, "de Rohmer");
    EXPECT_EQ(fiche.Label1[2].Caption, "Losange (1996)");
    EXPECT_EQ(fiche.Label1[4].Caption, "France");
    EXPECT_EQ(fiche.Label1[5].Caption, "1h53");
    EXPECT_EQ(fiche.Label1[6].Caption, "Comédie");
    EXPECT_EQ(fiche.lblInfosActeurs.Caption, "Poupaud\r\nLanglet\r\nSimon");
    EXPECT_EQ(fiche.Text1.Text, "À Dinard.\r\nL'été.");
    EXPECT_EQ(fiche.lblNote.Caption, "Note : 8/10");
    EXPECT_EQ(fiche.captionAffiche, "L'\"Été\"");
    EXPECT_EQ(film.cle, "K1");
    EXPECT_EQ(film.titre, "L'\"Été\"");
    EXPECT_TRUE(panneaux.frameFiche.Visible);
    EXPECT_FALSE(panneaux.frameListeFonctions.Visible || panneaux.framePresentation.Visible);
}

TEST_F(AfficheFicheTest, OldRatingsAreBroughtToTheNewScale) {
    const struct {
        dao::Valeur avant, apres;
        const char* texte;
    } cas[]{{100, 9, "Note : 9/10"},     {20, 1, "Note : 1/10"},      {15, {}, "Pas de notation"},
            {11, {}, "Pas de notation"}, {75, 6, "Note : 6/10"},      {10, 10, "Note : 10/10"},
            {0, 0, "Pas de notation"},   {{}, {}, "Pas de notation"}, {101, 101, "Pas de notation"}};
    ajouteFilm("Film \"noté\"", {{"Realisateur", "R"}});
    for (const auto& [avant, apres, texte] : cas) {
        base.films.MoveFirst();
        base.films.Edit();
        base.films.assigne("Note", avant);
        base.films.Update();
        montreFilm("Film \"noté\"");
        EXPECT_EQ(fiche.lblNote.Caption, texte) << avant.texte();
        EXPECT_EQ(noteEnBase(), apres) << avant.texte();
    }
}

TEST_F(AfficheFicheTest, AnOldRatingThatCannotBeWrittenHidesNoSheet) {
    ajouteFilm("Ancien", {{"Note", 80}});
    dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
    autre.BeginTrans();
    montreFilm("Ancien");
    EXPECT_TRUE(panneaux.frameFiche.Visible);
    EXPECT_EQ(fiche.lblNote.Caption, "Note : 7/10");
    EXPECT_EQ(etatAvis.lblAvis.Caption,
              "La note de « Ancien », sur 100, n'a pas pu passer sur 10 : Mise à jour impossible : la base est "
              "verrouillée par un autre programme.");
    autre.Rollback();
    clique("Ancien");
    EXPECT_EQ(noteEnBase(), dao::Valeur(7));
}

TEST_F(AfficheFicheTest, AnOldRatingIsNoReasonToChangeThatOfAFilmOfTheSameName) {
    ajouteFilm("Double", {{"Realisateur", "R"}, {"Note", 7}});
    ajouteFilm("Double", {{"Realisateur", "R"}, {"Note", 100}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    TreeView1_NodeClick(c, 2);
    EXPECT_EQ(fiche.lblNote.Caption, "Note : 9/10");
    EXPECT_EQ(noteEnBase(), dao::Valeur(7));
}

TEST_F(AfficheFicheTest, ARatingNeedsItsFilm) {
    film.titre = "Parti";
    dialogues.attendMsgBox("Film non trouvé !", 48);
    ModifieNoteFilm(c, 5);
    EXPECT_EQ(fiche.lblNote.Caption, "");
}

TEST_F(AfficheFicheTest, PostersComeFromTheBaseOrFromTheirFolder) {
    ajouteFilm("En base", {{"Affiche", db::valeurAfficheDansLaBase(kJpeg)}});
    ajouteFilm("En fichier", {{"Affiche", db::valeurAfficheFichier("Fichier.jpg")}});
    ajouteFilm("Sans");
    dossier.ecrit("Images/FICHIER.JPG", kJpeg + "2");  // copied from a system that ignores case
    montreFilm("En base");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), kJpeg);
    EXPECT_EQ(film.affiche, "STO");
    EXPECT_TRUE(fiche.Image1.Visible);
    EXPECT_FALSE(fiche.Image1.vide || fiche.Label12.Visible);
    const int numero = fiche.Image1.numero;
    clique("En fichier");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), kJpeg + "2");
    EXPECT_EQ(film.affiche, "JPGFichier.jpg");
    EXPECT_EQ(stockage.Text4.Text, dossier.chemin("Images"));
    EXPECT_GT(fiche.Image1.numero, numero);
    clique("Sans");  // never the poster of the film before
    EXPECT_FALSE(dossier.existe("Tmp/ImageTMP.jpg"));
    EXPECT_EQ(images.courante, "");
    EXPECT_TRUE(fiche.Image1.vide);
    EXPECT_FALSE(fiche.Image1.Visible);
    EXPECT_EQ(fiche.Label12.Caption, kPasDImage);
    EXPECT_TRUE(fiche.Label12.Visible);
    EXPECT_EQ(film.affiche, "");
}

// It came with the base, and is only read.
TEST_F(AfficheFicheTest, APosterThatLiesBesideTheBaseIsShown) {
    stockage.Text4.Text = dossier.chemin("Affiches");
    ajouteFilm("Venue", {{"Affiche", "JPGC:\\Films\\Images\\VENUE.jpg"}});
    dossier.ecrit("Images/Venue.jpg", "l'affiche");
    montreFilm("Venue");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), "l'affiche");
    EXPECT_EQ(dossier.lit("Images/Venue.jpg"), "l'affiche");
}

TEST_F(AfficheFicheTest, APosterThatIsGoneOrBrokenShowsAsNone) {
    ajouteFilm("Perdue", {{"Affiche", "JPGPerdue.jpg"}});
    ajouteFilm("Abîmée", {{"Affiche", db::valeurAfficheDansLaBase("pas une image")}});
    ajouteFilm("Vide", {{"Affiche", "STO"}});
    stockage.Text4.Text = dossier.chemin("Affiches");
    dialogues.attendMsgBox("Le fichier image n'existe plus (" + dossier.chemin("Affiches/Perdue.jpg") + ") !", 48);
    montreFilm("Perdue");
    EXPECT_EQ(film.affiche, "JPGPerdue.jpg");
    EXPECT_EQ(fiche.Label12.Caption, kPasDImage);
    for (const auto& [titre, statut] :
         {std::pair("Abîmée", "Image illisible ou trop grande \r\n(Cliquez pour remplacer)"),
          std::pair("Vide", kPasDImage.c_str())}) {
        clique(titre);
        EXPECT_TRUE(fiche.Image1.vide);
        EXPECT_FALSE(fiche.Image1.Visible);
        EXPECT_EQ(fiche.Label12.Caption, statut);
        EXPECT_TRUE(panneaux.frameFiche.Visible);
    }
}

// The film has its poster: that "Tmp" cannot take it is told, and is no invitation to add another.
TEST_F(AfficheFicheTest, APosterThatTmpCannotTakeIsToldAndNotOfferedToBeReplaced) {
    ajouteFilm("En base", {{"Affiche", db::valeurAfficheDansLaBase(kJpeg)}});
    ajouteFilm("Sans");
    montreFilm("En base");
    std::filesystem::remove_all(chemins.dossierTmp);
    montreFilm("En base");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), kJpeg) << "a folder that went is made again";
    EXPECT_TRUE(fiche.Image1.Visible);

    std::filesystem::remove_all(chemins.dossierTmp);
    dossier.ecrit("Tmp", "in its place");
    montreFilm("En base");
    EXPECT_FALSE(fiche.Image1.Visible);
    EXPECT_EQ(fiche.Label12.Caption, "L'affiche ne peut pas être montrée");
    EXPECT_TRUE(etatAvis.frameAvis.Visible);
    EXPECT_EQ(etatAvis.lblAvis.Caption, "L'affiche ne peut pas être montrée : " + chemins.dossierTmp +
                                            " n'a pas pu être écrit (Disque plein/Lecture seule ?).");
    AfficheVolet(c, browse::kVoletAutresInfos);  // which loads it again
    EXPECT_EQ(fiche.Label12.Caption, "L'affiche ne peut pas être montrée");
    montreFilm("Sans");
    EXPECT_EQ(fiche.Label12.Caption, kPasDImage);
}

TEST_F(AfficheFicheTest, APosterOutsideTheImagesFolderIsNeverShown) {
    dossier.ecrit("coffre/victime.jpg", kJpeg);
    dossier.ecrit("Images/vraie.jpg", kJpeg + "vraie");
    std::filesystem::create_symlink(dossier.chemin("coffre/victime.jpg"), dossier.chemin("Images/lien.jpg"));
    ajouteFilm("Dehors", {{"Affiche", "JPG../coffre/victime.jpg"}});
    ajouteFilm("Lien", {{"Affiche", "JPGlien.jpg"}});
    ajouteFilm("Dedans", {{"Affiche", "JPG..\\x\\VRAIE.jpg"}});
    ajouteFilm("Nulle part", {{"Affiche", "JPGperdue.jpg"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    for (const auto& [titre, nom] : {std::pair("Dehors", "victime.jpg"), std::pair("Lien", "lien.jpg")}) {
        dialogues.attendMsgBox("Le fichier image n'existe plus (" + dossier.chemin("Images/") + nom + ") !", 48);
        clique(titre);
        EXPECT_FALSE(dossier.existe("Tmp/ImageTMP.jpg"));
    }
    clique("Dedans");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), kJpeg + "vraie");
    stockage.Text4.Text = "C:\\Affiches";
    dialogues.attendMsgBox("Le fichier image n'existe plus (C:\\Affiches/perdue.jpg) !", 48);
    clique("Nulle part");
}

TEST_F(AfficheFicheTest, AReferenceOfMegabytesIsShortenedInItsMessage) {
    const std::string dessus = util::remplace(std::string(85, 'x'), "x", "../");
    ajouteFilm("A", {{"Affiche", "JPG" + util::remplace(std::string(5'000'000, 'x'), "x", "../")}});
    dialogues.attendMsgBox("Le fichier image n'existe plus (" + dossier.chemin("Images/") + dessus + ") !", 48);
    montreFilm("A");
}

TEST_F(AfficheFicheTest, PostersFillTheirBoxAndKeepTheirShape) {
    const struct {
        ecran::TailleImage image;
        int largeur, hauteur, gauche, haut;
    } cas[]{{{300, 400}, 2895, 3860, 0, 297},   // wider than the box
            {{10, 40}, 1114, 4455, 890, 0},     // higher, and small: enlarged
            {{2895, 4455}, 2895, 4455, 0, 0}};  // of its very shape
    dossier.ecrit("Tmp/ImageTMP.jpg", kJpeg);
    for (const auto& [taille, largeur, hauteur, gauche, haut] : cas) {
        images.taille = taille;
        ChargeAffiche(c);
        EXPECT_EQ(fiche.Image1.Width, largeur);
        EXPECT_EQ(fiche.Image1.Height, hauteur);
        EXPECT_EQ(fiche.Image1.Left, gauche);
        EXPECT_EQ(fiche.Image1.Top, haut);
    }
}

TEST_F(AfficheFicheTest, TheHoldingIsShownWithItsFiles) {
    ajouteFilm("A", {{"Realisateur", "R"}});
    ajouteFilm("B", {{"Realisateur", "R"}});
    ajouteFilm("C", {{"Realisateur", "R"}});
    possede("A", "R",
            {{"Rangement", "Étagère"},
             {"Fichier1", "a.avi"},
             {"Fichier2", "b.avi"},
             {"Pret", "Luc"},
             {"Reserve", "Ève"},
             {"Date", "21/11/2026"},
             {"Support", "DVD"},
             {"Divers", "rayé"}});
    possede("B", "R", {{"Fichier2", "b.avi"}});
    montreFilm("A");
    EXPECT_TRUE(fiche.Option1[1].Value && fiche.framePossession.Visible && fiche.cmdRaffraichirListe.Visible);
    const std::array<const char*, 7> attendus{"a.avi", "b.avi", "", "Étagère", "rayé", "", "21/11/2026"};
    for (std::size_t i = 0; i < attendus.size(); ++i)
        EXPECT_EQ(fiche.Text10[i].Text, attendus[i]) << i;
    EXPECT_EQ(fiche.Combo7[0].Text + "," + fiche.Combo7[1].Text + "," + fiche.Combo7[2].Text, "Luc,Ève,DVD");
    EXPECT_TRUE(film.fichiersPresents && fiche.cmdFichiersFilm.Visible);
    EXPECT_EQ(film.fichiers[1], "b.avi");
    EXPECT_EQ(fiche.captionFichiers, "A");

    fiche.cmdValiderInfosPossessions.Visible = true;  // pending edits go with their film
    clique("B");
    EXPECT_FALSE(fiche.cmdValiderInfosPossessions.Visible);
    EXPECT_TRUE(film.fichiersPresents && fiche.cmdFichiersFilm.Visible) << "the first slot may be the empty one";
    EXPECT_TRUE(!fiche.Command1[0].Enabled && fiche.Command1[1].Enabled);
    EXPECT_EQ(fiche.Text10[1].Text, "b.avi");
    EXPECT_EQ(fiche.Combo7[2].Text, "");
    clique("C");
    EXPECT_FALSE(film.fichiersPresents || fiche.cmdFichiersFilm.Visible || fiche.Command1[1].Enabled);
    EXPECT_EQ(fiche.captionFichiers, "C");
    EXPECT_TRUE(fiche.Option1[0].Value);
    EXPECT_FALSE(fiche.framePossession.Visible || fiche.cmdRaffraichirListe.Visible);
    EXPECT_EQ(fiche.Text10[1].Text, "");
}

TEST_F(AfficheFicheTest, TheUserStaysOnThePageThatWasOpen) {
    ajouteFilm("A");
    ajouteFilm("B");
    montreFilm("A");
    EXPECT_TRUE(fiche.frameGeneralites[1].Visible && fiche.cmdGeneralites.FontBold);
    EXPECT_FALSE(fiche.frameAutresInfos[0].Visible || fiche.cmdAutresInfos.FontBold);
    AfficheVolet(c, browse::kVoletAutresInfos);
    EXPECT_EQ(demandes.boutonParDefaut, "cmdAutresInfos");
    clique("B");
    EXPECT_TRUE(fiche.frameAutresInfos[1].Visible && fiche.cmdAutresInfos.FontBold);
    EXPECT_FALSE(fiche.frameGeneralites[0].Visible || fiche.cmdGeneralites.FontBold);
    fiche.cmdGeneralites.Visible = fiche.cmdAutresInfos.Visible = false;  // a wide window
    clique("A");
    EXPECT_TRUE(fiche.frameAutresInfos[0].Visible && fiche.frameGeneralites[0].Visible);
}

TEST_F(AfficheFicheTest, AHeadingAndADeletedFilmShowThePresentation) {
    ajouteFilm("Avatar");
    montre(browse::kZoneTous, browse::kTriTitre1);
    clique("Avatar");
    fiche.Text10[3].Text = "Salon";
    EXPECT_EQ(TreeView1_MouseUp(c, 2), browse::MenuArbre::Film);
    EXPECT_EQ(fiche.Text10[3].Text, "Salon") << "the menu of the film shown reads nothing again";
    clique("A");
    EXPECT_TRUE(panneaux.framePresentation.Visible);
    EXPECT_EQ(film.cle, "TA");
    base.films.MoveFirst();
    base.films.Delete();
    clique("Avatar");
    EXPECT_TRUE(panneaux.framePresentation.Visible);
    EXPECT_FALSE(panneaux.frameFiche.Visible);
    EXPECT_EQ(etatAvis.lblAvis.Caption, "« Avatar » n'est plus dans la base.");
    EXPECT_EQ(film.titre, "");  // no command reaches the film shown before
    EXPECT_EQ(TreeView1_MouseUp(c, 2), browse::MenuArbre::Aucun);
}

}  // namespace
