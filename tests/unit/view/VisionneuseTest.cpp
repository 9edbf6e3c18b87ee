#include "unit/browse/Fenetre.h"
#include "view/TouchesAffiche.h"
#include "view/cmdRemplacerImage_Click.h"
#include "view/cmdSauverImage_Click.h"

#include <sys/stat.h>

namespace {

constexpr int kT = view::kTwipsParPixel, kF1 = 112, kPagePrecedente = 33, kPageSuivante = 34;
const std::string kJpeg = "\xFF\xD8";  // how a picture begins

class Visionneuse : public Fenetre {
  protected:
    view::EtatAffiche etat;
    view::Visionneuse visionneuse{etat, chemins};
    browse::ChargeAffiche charge{fiche, afficheTemporaire, images, ecranMuet, &visionneuse};
    browse::AfficheVolet volet{fiche, demandes, charge};
    browse::AfficheFiche affiche{
        base,           liste, fiche, panneaux, film, images, afficheTemporaire, affichePossession, modifieNoteFilm,
        afficheAccueil, volet};
    browse::TreeView1 titresDeLArbre{liste, affiche, dialogues};
    view::TouchesAffiche touches{visionneuse, liste, film, affiche, demandes};
    view::cmdRemplacerImage_Click remplacer{base,   stockage,          chemins, film,
                                            images, afficheTemporaire, charge,  dialogues};

    void montreTitre(std::string_view titre) {
        for (int i = 1; i <= liste.TreeView1.Nodes.Count(); ++i)
            if (liste.TreeView1.Nodes.Text(i) == titre) titresDeLArbre.NodeClick(i);
        ASSERT_EQ(film.titre, titre);
        visionneuse.montre();
    }
    void chargeTaille(int largeur, int hauteur) { visionneuse.afficheChargee(ecran::TailleImage{largeur, hauteur}); }
};

TEST_F(Visionneuse, IsDraggedAsFarAsThereIsSomethingToUncover) {
    etat.largeurEcran = etat.hauteurEcran = 500 * kT;
    chargeTaille(1000, 1000);
    const int barre = etat.HScroll1.Height;
    visionneuse.deplace(-100 * kT, -200 * kT);
    EXPECT_EQ(etat.Picture1.Left, -100 * kT);
    EXPECT_EQ(etat.Picture1.Top, barre - 200 * kT);
    EXPECT_EQ(etat.HScroll1.Value, 20);
    visionneuse.deplace(-9000 * kT, -9000 * kT);
    EXPECT_EQ(etat.Picture1.Left, -500 * kT);
    EXPECT_EQ(etat.Picture1.Top, 500 * kT - barre - 1000 * kT) << "its foot on the lower edge";
    etat.HScroll1.Value = 100;
    visionneuse.HScroll1_Change();
    visionneuse.deplace(0, kT);
    EXPECT_EQ(etat.Picture1.Top, barre - 999 * kT) << "from where the bar had brought it";
    chargeTaille(100, 100);
    visionneuse.deplace(-50, -50);
    EXPECT_EQ(etat.Picture1.Top, barre) << "all of it is seen";
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

    touches.Picture1_KeyDown(kPageSuivante);
    EXPECT_EQ(film.titre, "Été");
    EXPECT_EQ(liste.TreeView1.SelectedItem, liste.noeudChoisi);
    EXPECT_EQ(fiche.captionAffiche, "Été");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), kJpeg + "Été");
    EXPECT_TRUE(etat.Visible);
    EXPECT_EQ(demandes.focus, "HScroll1");
    EXPECT_EQ(etat.presentations, 2);

    touches.HScroll1_KeyDown(kPageSuivante);
    EXPECT_FALSE(etat.Visible) << "no title below";
    EXPECT_EQ(film.titre, "Été") << "and the sheet's film stays the current one";
    visionneuse.montre();
    touches.HScroll1_KeyDown(kPagePrecedente);
    EXPECT_EQ(film.titre, "Alien");
    EXPECT_TRUE(etat.Visible);
    touches.HScroll1_KeyDown(kPagePrecedente);
    EXPECT_FALSE(etat.Visible) << "only headings above";
}

TEST_F(Visionneuse, StepsStayHiddenWhereThereIsNothingToShow) {
    for (const int touche : {kPageSuivante, kPagePrecedente}) {
        visionneuse.montre();
        touches.Picture1_KeyDown(touche);
        EXPECT_FALSE(etat.Visible) << "empty tree " << touche;
    }
    ajouteFilm("Un", {{"Realisateur", "R"}});
    ajouteFilm("Deux", {{"Realisateur", "R"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    montreTitre("Deux");
    base.base.Execute("DELETE FROM Films WHERE Titre = 'Un'");
    touches.HScroll1_KeyDown(kPageSuivante);
    EXPECT_FALSE(etat.Visible) << "deleted meanwhile";
    EXPECT_FALSE(film.estUnFilm());
}

TEST_F(Visionneuse, KeysHideOrLeadToTheBar) {
    struct Cas {
        void (view::TouchesAffiche::*touche)(int);
        int code;
        bool visible;
        const char* focus;
    };
    using Touches = view::TouchesAffiche;
    for (const Cas& cas :
         {Cas{&Touches::Picture1_KeyDown, kF1, false, ""}, Cas{&Touches::Form_KeyDown, kF1, false, ""},
          Cas{&Touches::HScroll1_KeyDown, kF1, true, ""}, Cas{&Touches::Picture1_KeyDown, 32, true, ""},
          Cas{&Touches::Picture1_KeyDown, 35, true, "HScroll1"}, Cas{&Touches::Picture1_KeyDown, 40, true, "HScroll1"},
          Cas{&Touches::Picture1_KeyDown, 41, true, ""}, Cas{&Touches::Form_KeyDown, 40, true, ""}}) {
        visionneuse.montre();
        demandes.focus.clear();
        (touches.*cas.touche)(cas.code);
        EXPECT_EQ(etat.Visible, cas.visible) << cas.code;
        EXPECT_EQ(demandes.focus, cas.focus) << cas.code;
    }
}

TEST_F(Visionneuse, TellsWhyThereIsNoPicture) {
    ajouteFilm("Sans", {{"Realisateur", "R"}});
    ajouteFilm("Abîmée", {{"Realisateur", "R"}, {"Affiche", dao::Valeur::octets("STOrien")}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    montreTitre("Sans");
    EXPECT_EQ(etat.lblTaille.Caption, "Pas d'image");
    montreTitre("Abîmée");
    EXPECT_EQ(etat.lblTaille.Caption, "Image illisible ou trop grande");
    EXPECT_TRUE(etat.Picture1.vide);
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
        const std::string fichier = view::cmdSauverImage_Click(fiche, chemins, dialogues);
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
        titresDeLArbre.NodeClick(1);
        if (film.realisateur == "L'autre") titresDeLArbre.NodeClick(2);
    }
    void choisit(const std::string& chemin) {
        dialogues.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", chemins.dossier}, chemin);
    }
    void refuse(const std::string& chemin, const std::string& message) {
        choisit(chemin);
        dialogues.attendMsgBox(message, dialogues::kExclamation);
        remplacer();
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
    remplacer();
    EXPECT_EQ(colonne("Moi \"\"je\"\": R"), "STO" + nouvelle);
    EXPECT_EQ(film.affiche, "STO");
    EXPECT_EQ(dossier.lit("Tmp/ImageTMP.jpg"), nouvelle);

    ecran::choisit(stockage.Option3, 1);
    const std::string large = kJpeg + std::string(300000, 'x');
    choisit(dossier.ecrit("choisie.jpg", large));
    remplacer();
    EXPECT_EQ(colonne("Moi \"\"je\"\": R"), "JPGMoi je R - AB.jpg") << "the director first";
    EXPECT_EQ(dossier.lit("Images/Moi je R - AB.jpg"), large);
    EXPECT_EQ(film.affiche, "JPGMoi je R - AB.jpg");

    choisit(dossier.chemin("Images/Moi je R - AB.jpg"));  // its own file, then the temporary one
    remplacer();
    choisit(chemins.afficheTmp);
    remplacer();
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
        remplacer();
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
    remplacer();
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
    remplacer();
}

}  // namespace
