#include "unit/view/FenetreVue.h"
#include "view/TouchesAffiche.h"
#include "view/cmdRemplacerImage_Click.h"
#include "view/cmdSauverImage_Click.h"

#include <sys/stat.h>

namespace {

constexpr int kT = view::kTwipsParPixel, kF1 = 112, kPagePrecedente = 33, kPageSuivante = 34;
const std::string kJpeg = "\xFF\xD8";  // how a picture begins

class Visionneuse : public FenetreVue {
  protected:
    void montreTitre(std::string_view titre) {
        clique(titre);
        ASSERT_EQ(film.titre, titre);
        visionneuse.montre();
    }
    void chargeTaille(int largeur, int hauteur) { visionneuse.afficheChargee(ecran::TailleImage{largeur, hauteur}); }
};

TEST_F(Visionneuse, IsDraggedAsFarAsThereIsSomethingToUncover) {
    affiche.largeurEcran = affiche.hauteurEcran = 500 * kT;
    chargeTaille(1000, 1000);
    const int barre = affiche.HScroll1.Height;
    deplaceAffiche(c, -100 * kT, -200 * kT);
    EXPECT_EQ(affiche.Picture1.Left, -100 * kT);
    EXPECT_EQ(affiche.Picture1.Top, barre - 200 * kT);
    EXPECT_EQ(affiche.HScroll1.Value, 20);
    deplaceAffiche(c, -9000 * kT, -9000 * kT);
    EXPECT_EQ(affiche.Picture1.Left, -500 * kT);
    EXPECT_EQ(affiche.Picture1.Top, 500 * kT - barre - 1000 * kT) << "its foot on the lower edge";
    affiche.HScroll1.Value = 100;
    HScroll1_Change(c);
    deplaceAffiche(c, 0, kT);
    EXPECT_EQ(affiche.Picture1.Top, barre - 999 * kT) << "from where the bar had brought it";
    chargeTaille(100, 100);
    deplaceAffiche(c, -50, -50);
    EXPECT_EQ(affiche.Picture1.Top, barre) << "all of it is seen";
}

TEST_F(Visionneuse, ZoomsAroundAPointAndComesBackWithEachPicture) {
    affiche.largeurEcran = affiche.hauteurEcran = 500 * kT;
    chargeTaille(400, 300);
    const int barre = affiche.HScroll1.Height;
    EXPECT_TRUE(affiche.imageEntiere());
    zoomeAffiche(c, 3, 250 * kT, barre + 150 * kT);
    EXPECT_EQ(affiche.zoom, 200);
    EXPECT_EQ(affiche.Picture1.Width, 800 * kT);
    EXPECT_EQ(affiche.lblTaille.Caption, "400 × 300 pixels · 200 %");
    EXPECT_EQ(affiche.Picture1.Left, -150 * kT) << "what was under the mouse still is";
    EXPECT_EQ(affiche.Picture1.Top, barre - 150 * kT);
    EXPECT_EQ(affiche.HScroll1.Value, 25);
    EXPECT_FALSE(affiche.imageEntiere());
    zoomeAffiche(c, 100, 0, 0);
    EXPECT_EQ(affiche.zoom, 400);
    EXPECT_EQ(affiche.Picture1.Left, -300 * kT);
    zoomeAffiche(c, -100, 0, 0);
    EXPECT_EQ(affiche.zoom, 25);
    EXPECT_EQ(affiche.Picture1.Left, 200 * kT) << "centred";
    EXPECT_EQ(affiche.Picture1.Top, barre);
    EXPECT_EQ(affiche.HScroll1.Value, 0);
    zoomeAffiche(c, 0, 0, 0);
    EXPECT_EQ(affiche.zoom, 100);
    zoomeAffiche(c, 1, 0, 0);
    chargeTaille(400, 300);
    EXPECT_EQ(affiche.zoom, 100);
    visionneuse.afficheChargee(std::nullopt);
    zoomeAffiche(c, 1, 0, 0);
    EXPECT_EQ(affiche.zoom, 100) << "no picture";
}

TEST(TailleAffiche, IsToldInPixelsAndBytes) {
    const ecran::TailleImage taille{400, 600};
    EXPECT_EQ(view::texteTaille(taille, 0, 100), "400 × 600 pixels");
    EXPECT_EQ(view::texteTaille(taille, 1, 100), "400 × 600 pixels · 1 octet");
    EXPECT_EQ(view::texteTaille(taille, 1023, 100), "400 × 600 pixels · 1023 octets");
    EXPECT_EQ(view::texteTaille(taille, 86016, 125), "400 × 600 pixels · 84 Ko · 125 %");
    EXPECT_TRUE(view::texteTaille(taille, 1572864, 100).ends_with("5 Mo")) << "1,5 Mo, as the locale writes it";
}

// Where the whole picture is seen there is nothing else that they could do.
TEST_F(Visionneuse, ArrowsAcrossGoFromFilmToFilmAndStayAtTheEnds) {
    constexpr int kGauche = 37, kDroite = 39;
    for (const char* titre : {"Alien", "Brazil"})
        ajouteFilm(titre, {{"Realisateur", "R"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    montreTitre("Alien");
    affiche.largeurEcran = affiche.hauteurEcran = 500 * kT;
    chargeTaille(100, 100);
    demandes.focus.clear();
    Picture1_KeyDown(c, kGauche);
    EXPECT_EQ(film.titre, "Alien");
    EXPECT_TRUE(affiche.Visible) << "it is the first one";
    Picture1_KeyDown(c, kDroite);
    EXPECT_EQ(film.titre, "Brazil");
    EXPECT_TRUE(affiche.Visible);
    frmAffiche_KeyDown(c, kGauche);
    EXPECT_EQ(film.titre, "Alien") << "without a picture the keys are the window's";
    EXPECT_EQ(demandes.focus, "");
    chargeTaille(100, 1000);
    Picture1_KeyDown(c, kDroite);
    EXPECT_EQ(film.titre, "Alien");
    EXPECT_EQ(demandes.focus, "HScroll1") << "there is something to scroll";
}

// Headings stand between the titles, and one at the end has lost its last film.
TEST_F(Visionneuse, StepsFromTitleToTitleOverTheHeadings) {
    for (const auto& [titre, genre] :
         {std::pair("Alien", "Angoisse"), std::pair("Été", "Drame"), std::pair("Fin", "Z")})
        ajouteFilm(titre,
                   {{"Realisateur", "R"}, {"Genre", genre}, {"Affiche", dao::Valeur::octets("STO" + kJpeg + titre)}});
    montre(browse::kZoneTous, browse::kTriGenre);
    browse::Arbre& noeuds = liste.TreeView1.Nodes;
    noeuds.retire(noeuds.Count());
    ASSERT_TRUE(noeuds.estGroupe(noeuds.Count()));
    montreTitre("Alien");

    Picture1_KeyDown(c, kPageSuivante);
    EXPECT_EQ(film.titre, "Été");
    EXPECT_EQ(liste.TreeView1.SelectedItem, liste.noeudChoisi);
    EXPECT_EQ(fiche.captionAffiche, "Été");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), kJpeg + "Été");
    EXPECT_TRUE(affiche.Visible);
    EXPECT_EQ(demandes.focus, "HScroll1");
    EXPECT_EQ(affiche.presentations, 2);

    HScroll1_KeyDown(c, kPageSuivante);
    EXPECT_FALSE(affiche.Visible) << "no title below";
    EXPECT_EQ(film.titre, "Été") << "and the sheet's film stays the current one";
    visionneuse.montre();
    HScroll1_KeyDown(c, kPagePrecedente);
    EXPECT_EQ(film.titre, "Alien");
    EXPECT_TRUE(affiche.Visible);
    vue.estVu = [&](int noeud) { return noeuds.Text(noeud) != "Été"; };
    HScroll1_KeyDown(c, kPageSuivante);
    EXPECT_FALSE(affiche.Visible) << "what the list hides is passed over";
    visionneuse.montre();
    HScroll1_KeyDown(c, kPagePrecedente);
    EXPECT_FALSE(affiche.Visible) << "only headings above";
}

TEST_F(Visionneuse, StepsStayHiddenWhereThereIsNothingToShow) {
    for (const int touche : {kPageSuivante, kPagePrecedente}) {
        visionneuse.montre();
        Picture1_KeyDown(c, touche);
        EXPECT_FALSE(affiche.Visible) << "empty tree " << touche;
    }
    ajouteFilm("Un", {{"Realisateur", "R"}});
    ajouteFilm("Deux", {{"Realisateur", "R"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    montreTitre("Deux");
    base.base.Execute("DELETE FROM Films WHERE Titre = 'Un'");
    HScroll1_KeyDown(c, kPageSuivante);
    EXPECT_FALSE(affiche.Visible) << "deleted meanwhile";
    EXPECT_FALSE(film.estUnFilm());
}

TEST_F(Visionneuse, KeysHideOrLeadToTheBar) {
    struct Cas {
        void (*touche)(const view::Contexte&, int);
        int code;
        bool visible;
        const char* focus;
    };
    for (const Cas& cas :
         {Cas{view::Picture1_KeyDown, kF1, false, ""}, Cas{view::frmAffiche_KeyDown, kF1, false, ""},
          Cas{view::HScroll1_KeyDown, kF1, true, ""}, Cas{view::Picture1_KeyDown, 32, true, ""},
          Cas{view::Picture1_KeyDown, 35, true, "HScroll1"}, Cas{view::Picture1_KeyDown, 40, true, "HScroll1"},
          Cas{view::Picture1_KeyDown, 41, true, ""}, Cas{view::frmAffiche_KeyDown, 40, true, ""}}) {
        visionneuse.montre();
        demandes.focus.clear();
        cas.touche(c, cas.code);
        EXPECT_EQ(affiche.Visible, cas.visible) << cas.code;
        EXPECT_EQ(demandes.focus, cas.focus) << cas.code;
    }
}

TEST_F(Visionneuse, IsShownByAPictureAloneAndHiddenByAClick) {
    fiche.Image1.vide = true;
    Image1_Click(c);
    EXPECT_FALSE(affiche.Visible);
    fiche.Image1.vide = false;
    Image1_Click(c);
    EXPECT_TRUE(affiche.Visible);
    Picture1_Click(c);
    EXPECT_FALSE(affiche.Visible);
}

TEST_F(Visionneuse, TellsWhyThereIsNoPicture) {
    ajouteFilm("Sans", {{"Realisateur", "R"}});
    ajouteFilm("Abîmée", {{"Realisateur", "R"}, {"Affiche", dao::Valeur::octets("STOrien")}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    montreTitre("Sans");
    EXPECT_EQ(affiche.lblTaille.Caption, "Pas d'image");
    montreTitre("Abîmée");
    EXPECT_EQ(affiche.lblTaille.Caption, "Image illisible ou trop grande");
    EXPECT_TRUE(affiche.Picture1.vide);
}

TEST_F(Visionneuse, SavesThePosterWhereTheUserSays) {
    static constexpr const char* kTitre = "Sauvegarde affiche JPG";
    dossier.ecrit("Tmp/ImageTMP.jpg", "octets");
    fiche.captionAffiche = "L'Été";
    const auto sauve = [&](const std::string& reponse) {
        dialogues.attendInputBox("Entrez un chemin de destination", reponse, kTitre, "L'Été.jpg");
        if (!reponse.empty() && dossier.existe("Tmp/ImageTMP.jpg") && reponse != dossier.chemin())
            dialogues.attendMsgBox("Fichier sauvegardé.", 64, dialogues::kOk, kTitre);
        else if (!reponse.empty())
            dialogues.attendMsgBox("Erreur lors de la sauvegarde.", 16, dialogues::kOk, kTitre);
        const std::string fichier = cmdSauverImage_Click(c);
        dialogues.verifie();
        return fichier;
    };
    EXPECT_EQ(sauve(""), "");
    EXPECT_EQ(sauve(dossier.chemin("ailleurs.jpg")), dossier.chemin("ailleurs.jpg"));
    EXPECT_EQ(dossier.lit("ailleurs.jpg"), "octets");
    EXPECT_EQ(sauve("nom seul.jpg"), dossier.chemin("nom seul.jpg"));
    EXPECT_EQ(dossier.lit("nom seul.jpg"), "octets");
    EXPECT_EQ(sauve(dossier.chemin()), "");
    std::filesystem::remove(chemins.afficheTmp);
    EXPECT_EQ(sauve(dossier.chemin("autre.jpg")), "");
}

class Remplacement : public Visionneuse {
  protected:
    void SetUp() override {
        Visionneuse::SetUp();
        for (const char* realisateur : {"L'autre", "Moi \"je\": R"})
            ajouteFilm("A/B",
                       {{"Realisateur", realisateur}, {"Affiche", dao::Valeur::octets("STO" + kJpeg + "vieille")}});
        montre(browse::kZoneTous, browse::kTriTitre2);
        TreeView1_NodeClick(c, 1);
        if (film.realisateur == "L'autre") TreeView1_NodeClick(c, 2);
    }
    void choisit(const std::string& chemin) {
        dialogues.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", chemins.dossier}, chemin);
    }
    void refuse(const std::string& chemin, const std::string& message) {
        choisit(chemin);
        dialogues.attendMsgBox(message, dialogues::kExclamation);
        cmdRemplacerImage_Click(c);
        dialogues.verifie();
        EXPECT_EQ(colonne("Moi \"\"je\"\": R"), "STO" + kJpeg + "vieille") << message;
        EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), kJpeg + "vieille") << message;
        EXPECT_EQ(images.courante, kJpeg + "vieille") << "the old poster is shown again";
    }
    [[nodiscard]] std::string colonne(const std::string& realisateur) {
        return base.base.OpenRecordset("SELECT * FROM films WHERE Realisateur =\"" + realisateur + "\"")
            .texte("Affiche");
    }
};

TEST_F(Remplacement, KeepsTheNewPosterAsTheStorageSays) {
    const std::string nouvelle = kJpeg + "nouvelle";
    const std::string chemin = dossier.ecrit("choisie.jpg", nouvelle);
    choisit(chemin);
    cmdRemplacerImage_Click(c);
    EXPECT_EQ(colonne("Moi \"\"je\"\": R"), "STO" + nouvelle);
    EXPECT_EQ(film.affiche, "STO");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), nouvelle);

    ecran::choisit(stockage.Option3, 1);
    const std::string large = kJpeg + std::string(300000, 'x');
    choisit(dossier.ecrit("choisie.jpg", large));
    cmdRemplacerImage_Click(c);
    EXPECT_EQ(colonne("Moi \"\"je\"\": R"), "JPGMoi je R - AB.jpg") << "the director first";
    EXPECT_EQ(dossier.lit("Images/Moi je R - AB.jpg"), large);
    EXPECT_EQ(film.affiche, "JPGMoi je R - AB.jpg");

    choisit(dossier.chemin("Images/Moi je R - AB.jpg"));  // its own file, then the temporary one
    cmdRemplacerImage_Click(c);
    choisit(chemins.afficheTmp);
    cmdRemplacerImage_Click(c);
    EXPECT_EQ(dossier.lit("Images/Moi je R - AB.jpg"), large);
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), large);
    EXPECT_EQ(colonne("L'autre"), "STO" + kJpeg + "vieille") << "the other film of that title";
}

// Its own file is the film's to replace, unless another film names it too.
TEST_F(Remplacement, NoOtherFilmsPosterChanges) {
    ecran::choisit(stockage.Option3, 1);
    dossier.ecrit("Images/Moi je R - AB.jpg", "d'un autre");
    base.base.Execute("UPDATE Films SET Affiche = 'JPGMoi je R - AB.jpg' WHERE Realisateur = 'L''autre'");
    const auto remplace = [&](const std::string& octets) {
        choisit(dossier.ecrit("choisie.jpg", kJpeg + octets));
        cmdRemplacerImage_Click(c);
        return colonne("Moi \"\"je\"\": R");
    };
    EXPECT_EQ(remplace("1"), "JPGMoi je R - AB (2).jpg");
    EXPECT_EQ(remplace("2"), "JPGMoi je R - AB (2).jpg");
    EXPECT_EQ(dossier.lit("Images/Moi je R - AB (2).jpg"), kJpeg + "2");
    base.base.Execute("UPDATE Films SET Affiche = 'JPGMoi je R - AB (2).jpg'");
    EXPECT_EQ(remplace("3"), "JPGMoi je R - AB.jpg") << "the first name is free again";
    EXPECT_EQ(dossier.lit("Images/Moi je R - AB (2).jpg"), kJpeg + "2");
    EXPECT_EQ(dossier.lit("Images/Moi je R - AB.jpg"), kJpeg + "3");
}

TEST_F(Remplacement, ARefusedOneLeavesEverythingAsItWas) {
    choisit("");
    cmdRemplacerImage_Click(c);
    refuse(dossier.chemin("absente.jpg"), "Image inexistante !");
    std::filesystem::create_directory(dossier.chemin("x.jpg"));
    refuse(dossier.chemin("x.jpg"), "Image inexistante !");
    for (const char* octets : {"", "GIF89a", "\xFF"}) {
        const std::string chemin = dossier.ecrit("mauvaise.jpg", octets);
        refuse(chemin, "Cette image est illisible ou trop grande (" + chemin + ") !");
    }
    ASSERT_EQ(mkfifo(dossier.chemin("tube.jpg").c_str(), 0600), 0);
    refuse(dossier.chemin("tube.jpg"),
           "Cette image est illisible ou trop grande (" + dossier.chemin("tube.jpg") + ") !");
    refuse(dossier.ecrit("large.jpg", kJpeg + std::string(229999, 'x')), "Image trop grande pour tenir en base !");

    ecran::choisit(stockage.Option3, 1);
    dossier.ecrit("Images", "a file where the folder should be");
    refuse(dossier.ecrit("bonne.jpg", kJpeg), "Le fichier image " + dossier.chemin("Images/Moi je R - AB.jpg") +
                                                  " n'a pas pu être écrit (Disque plein/Lecture seule ?)");
    base.base.Execute("DELETE FROM Films WHERE Realisateur LIKE 'Moi%'");
    choisit(dossier.chemin("bonne.jpg"));
    dialogues.attendMsgBox("Film non trouvé !", dialogues::kExclamation);
    cmdRemplacerImage_Click(c);
}

}  // namespace
