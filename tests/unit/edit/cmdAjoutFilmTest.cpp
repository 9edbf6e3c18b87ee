#include "db/EnonceFilm.h"
#include "edit/Command13_Click.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifierTitre_Click.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kDoublon = "Un film ayant le même titre et du même réalisateur existe déjà !";

class cmdAjoutFilm : public FenetreEdition {
  protected:
    void ouvreSaisie(const std::string& titre, const std::string& realisateur) {
        Command13_Click(c, 1);
        saisis(titre, realisateur);
    }
    void modifie(const char* noeud, const std::string& titre, const std::string& realisateur) {
        clique(noeud);
        cmdModifierTitre_Click(c);
        saisis(titre, realisateur);
    }
    void attendChoix(const std::string& reponse) {
        dialogues.attendFichier(
            {"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", dossier.chemin("Images") + "/"}, reponse);
    }
    void attendRefus(const std::string& texte) { dialogues.attendMsgBox(texte, dialogues::kExclamation); }
    std::string filmChoisi() {  // the selected node, and the sheet
        const browse::Arbre& noeuds = liste.TreeView1.Nodes;
        const int noeud = liste.TreeView1.SelectedItem;
        return (noeud == 0 ? "" : std::string(noeuds.Text(noeud))) + "/" + film.titre;
    }
};

TEST_F(cmdAjoutFilm, asksForThePosterUntilItCanBeTaken) {
    const std::string octets = "\xFF\xD8" + std::string(229997, 'x');  // 229,999 bytes
    const std::string bonne = dossier.ecrit("bonne.jpg", octets), limite = dossier.ecrit("limite.jpg", octets + "x"),
                      grande = dossier.ecrit("grande.jpg", octets + "xx");
    ouvreSaisie("Premier", "R");
    attendChoix(dossier.chemin("absente.jpg"));
    attendRefus("Le fichier indiqué est inexistant !");
    attendChoix(grande);
    attendRefus("Image trop grande pour tenir en base !");
    attendChoix(bonne);
    cmdAjoutFilm_Click(c);
    EXPECT_EQ(images.courante, octets) << "the new film's sheet is ready, with its poster";

    // The dialog takes one byte more than the base does.
    saisis("Second", "R");
    attendChoix(limite);
    cmdAjoutFilm_Click(c);
    EXPECT_EQ(etatAvis.lblAvis.Caption, "« Second » ajouté, sans son affiche, trop grande pour tenir en base.");
    saisis("Troisième", "R");
    attendChoix("");
    cmdAjoutFilm_Click(c);

    // No limit for files.
    ecran::choisit(stockage.Option3, 1);
    saisis("Quatrième", "R");
    attendChoix(grande);
    cmdAjoutFilm_Click(c);
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("STO" + octets, "", "", "JPGQuatrième - R.jpg"));
    EXPECT_EQ(dossier.lit("Images/Quatrième - R.jpg").size(), 230001u);
}

TEST_F(cmdAjoutFilm, addsNothingWhenThePosterCannotBeStored) {
    ecran::choisit(stockage.Option3, 1);
    stockage.Text4.Text = dossier.ecrit("un fichier", "") + "/Images";
    const std::string image = dossier.ecrit("image.jpg", "octets");
    ouvreSaisie("Alien", "R");
    dialogues.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", stockage.Text4.Text + "/"},
                            image);
    attendRefus("Le fichier image " + stockage.Text4.Text +
                "/Alien - R.jpg n'a pas pu être écrit (Disque plein/Lecture seule ?)");
    cmdAjoutFilm_Click(c);
    EXPECT_THAT(colonne("Films", "Affiche"), IsEmpty());
    EXPECT_EQ(base.personnel.RecordCount(), 0);
    EXPECT_EQ(ajout.Text3[0].Text, "Alien") << "the page stays filled";
    EXPECT_EQ(accompagnement.filmsStockes, 0);

    // A base that refuses takes the poster's file back.
    stockage.Text4.Text = dossier.chemin("Images");
    dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
    autre.BeginTrans();
    attendChoix(image);
    EXPECT_THROW(cmdAjoutFilm_Click(c), dao::ErreurDao);
    EXPECT_TRUE(std::filesystem::is_empty(dossier.chemin("Images")));
}

TEST_F(cmdAjoutFilm, addsTheFilmWithItsHoldingAndShowsTheDay) {
    ajouteFilm("Hier", {{"Realisateur", "R"}, {"DateAjout", "20/11/2026"}});
    ajouteFilm("Non possédé", {{"Realisateur", "R"}, {"DateAjout", "21/11/2026"}});
    const std::string titre = repete("é", 99) + "👨‍👩‍👧", realisateur = repete("É", 100);
    accompagnement.montreVoletAjout();
    ouvreSaisie(titre + "coupé", realisateur + "coupé");
    ajout.Text3[2].Text = "19795";
    ajout.Combo2.Text = "Péplum";
    ajout.txtResume.Text = "Un \"résumé\"";
    attendChoix("");
    cmdAjoutFilm_Click(c);
    EXPECT_EQ(accompagnement.filmsStockes, 1);
    EXPECT_THAT(titres(), ElementsAre(titre, "Non possédé"));
    EXPECT_EQ(liste.critereRecherche, "DateAjout = \"21/11/2026\"");
    EXPECT_EQ(liste.zoneRecherche, browse::kZoneTous);
    EXPECT_EQ(liste.ChoixZone.Text, "Recherche");
    EXPECT_EQ(liste.Label9[0].Caption, "3 titres");
    EXPECT_EQ(liste.Label9[1].Caption, "1 personnel");
    EXPECT_THAT(colonne("Films", "Annee"), ElementsAre("", "", "1979"));
    EXPECT_THAT(colonne("Films", "Resume"), ElementsAre("", "", "Un \"résumé\""));
    EXPECT_THAT(colonne("Personnel", "Titre2"), ElementsAre(titre));
    EXPECT_THAT(colonne("Personnel", "Realisateur2"), ElementsAre(realisateur));
    for (const char* champ :
         {"Rangement", "Fichier1", "Fichier2", "Fichier3", "Pret", "Reserve", "Date", "Support", "Divers"})
        EXPECT_EQ(base.base.OpenRecordset("Personnel").valeur(champ), dao::Valeur("")) << champ;

    // The film is chosen behind the page, which is empty for the next one and knows the new genre.
    EXPECT_EQ(filmChoisi(), titre + "/" + titre);
    EXPECT_TRUE(panneaux.frameListeFonctions.Visible && ajout.Frame13.Visible && !panneaux.frameFiche.Visible);
    EXPECT_EQ(ajout.Text3[0].Text + ajout.Text3[2].Text + ajout.Combo2.Text + ajout.txtResume.Text, "");
    EXPECT_THAT(ajout.Combo2.Items, ElementsAre("Péplum"));
    EXPECT_EQ(etatAvis.lblAvis.Caption, "« " + repete("é", 60) + "… » ajouté.");

    // "Afficher" finds it wherever the listing went; what was cut is the same film.
    montre(browse::kZoneNonPossedes, browse::kTriTitre1);
    avis.cmdAvis_Click(0);
    EXPECT_EQ(filmChoisi(), titre + "/" + titre);
    EXPECT_TRUE(panneaux.frameFiche.Visible);
    EXPECT_EQ(liste.ChoixZone.ListIndex, browse::kZoneTous);
    saisis(titre + "autre", realisateur);
    attendRefus(kDoublon);
    cmdAjoutFilm_Click(c);
}

TEST_F(cmdAjoutFilm, takesOverTheHoldingThatAFilmOfThatNameLeft) {
    possede("L'ŒUVRE ", "Clouzot", {{"Support", "DVD"}, {"Pret", "Zoé"}, {"Fichier2", "/films/oeuvre.avi"}});
    possede("Rien noté", "Clouzot");
    accompagnement.montreVoletAjout();
    ouvreSaisie("L'œuvre", "Clouzot");
    attendChoix("");
    cmdAjoutFilm_Click(c);
    EXPECT_EQ(etatAvis.lblAvis.Caption,
              "« L'œuvre » ajouté, avec la possession que ce titre avait déjà (DVD, prêté à "
              "Zoé, oeuvre.avi).");
    ouvreSaisie("Rien noté", "Clouzot");
    attendChoix("");
    cmdAjoutFilm_Click(c);
    EXPECT_EQ(etatAvis.lblAvis.Caption, "« Rien noté » ajouté.");
    EXPECT_THAT(colonne("Personnel", "Titre2"), ElementsAre("L'œuvre", "Rien noté"));
    EXPECT_THAT(colonne("Personnel", "Support"), ElementsAre("DVD", ""));
}

TEST_F(cmdAjoutFilm, correctsTheFilmWithItsHoldingAndShowsItAgain) {
    const std::string titre = R"(L'"œuvre")";
    ajouteFilm(titre.c_str(), {{"Realisateur", "Clouzot"},
                               {"Annee", "1956"},
                               {"Duree", "78"},
                               {"Acteurs", "Picasso;Renoir"},
                               {"Genre", "Documentaire"},
                               {"Origine", "France"},
                               {"Production", "Filmsonor"},
                               {"Resume", "Un peintre."},
                               {"Affiche", "JPGLœuvre - Clouzot.jpg"},
                               {"Note", 9},
                               {"DateAjout", "01/01/2001"}});
    dossier.ecrit("Images/Lœuvre - Clouzot.jpg", "\xFF\xD8");
    ajouteFilm("Alien", {{"Realisateur", "Ridley Scott"}, {"Genre", "Horreur"}});
    possede(titre.c_str(), "Clouzot", {{"Support", "DVD"}, {"Pret", "Zoé"}});
    montre(browse::kZoneMesFilms, browse::kTriGenre);

    clique(titre);
    cmdModifierTitre_Click(c);
    EXPECT_TRUE(panneaux.frameListeFonctions.Visible && ajout.Frame13.Visible && ajout.modeModifier());
    EXPECT_FALSE(panneaux.frameFiche.Visible);
    std::vector<std::string> saisie;
    for (const auto& zone : ajout.Text3)
        saisie.push_back(zone.Text);
    EXPECT_THAT(saisie, ElementsAre(titre, "Clouzot", "1956", "78", "Picasso;Renoir"));
    EXPECT_EQ(ajout.Combo2.Text + "/" + ajout.Combo3.Text + "/" + ajout.Combo4.Text + "/" + ajout.txtResume.Text,
              "Documentaire/France/Filmsonor/Un peintre.");
    EXPECT_THAT(ajout.Combo2.Items, ElementsAre("Documentaire", "Horreur"));
    EXPECT_EQ(ajout.Label5.Caption, "Modifier : « " + titre + " »");

    saisis("Le Mystère Picasso" + repete("!", 100), "H.-G. Clouzot");
    cmdAjoutFilm_Click(c);
    const std::string nouveau = "Le Mystère Picasso" + repete("!", 82);
    EXPECT_EQ(accompagnement.filmsStockes, 1);
    EXPECT_EQ(filmChoisi(), nouveau + "/" + nouveau);
    EXPECT_TRUE(panneaux.frameFiche.Visible);
    EXPECT_EQ(fiche.Combo7[0].Text, "Zoé");
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre(nouveau, "Alien"));
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("JPGLœuvre - Clouzot.jpg", ""));
    EXPECT_THAT(colonne("Films", "Note"), ElementsAre("9", ""));
    EXPECT_THAT(colonne("Films", "DateAjout"), ElementsAre("01/01/2001", ""));
    EXPECT_THAT(colonne("Personnel", "Titre2"), ElementsAre(nouveau));
    EXPECT_THAT(colonne("Personnel", "Realisateur2"), ElementsAre("H.-G. Clouzot"));
    EXPECT_THAT(colonne("Personnel", "Support"), ElementsAre("DVD"));
}

TEST_F(cmdAjoutFilm, testsForADuplicateOnlyWhatIsMoreThanAChangeOfCase) {
    ajouteFilm("été", {{"Realisateur", "Zurlini"}});
    ajouteFilm("ÉTÉ", {{"Realisateur", "Zurlini"}});  // twice already: a change of case is not tested all the same
    ajouteFilm("Alien", {{"Realisateur", "Ridley Scott"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    modifie("été", "Été", "ZURLINI");
    cmdAjoutFilm_Click(c);
    EXPECT_EQ(filmChoisi(), "Été/Été");
    EXPECT_EQ(base.personnel.RecordCount(), 0);  // a modification makes no holding

    // Nor is what the base holds for the same name: a film is no duplicate of itself.
    ajouteFilm("L'oeuvre", {{"Realisateur", "Clouzot "}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    modifie("L'oeuvre", "L'œuvre", "Clouzot");
    cmdAjoutFilm_Click(c);
    EXPECT_EQ(filmChoisi(), "L'œuvre/L'œuvre");

    modifie("Été", "alien", "ridley SCOTT");
    attendRefus(kDoublon);
    cmdAjoutFilm_Click(c);
    EXPECT_TRUE(panneaux.frameListeFonctions.Visible && ajout.modeModifier());
    saisis("Été", "");
    attendRefus("Le réalisateur du film est obligatoire !");
    cmdAjoutFilm_Click(c);
    EXPECT_THAT(colonne("Films", "Realisateur"), ElementsAre("ZURLINI", "Zurlini", "Ridley Scott", "Clouzot"));
}

TEST_F(cmdAjoutFilm, addsAFilmThatWentWhileItWasBeingCorrected) {
    ajouteFilm("Alien", {{"Realisateur", "Ridley Scott"}});
    montre(browse::kZoneTous, browse::kTriTitre2);
    modifie("Alien", "Aliens", "James Cameron");
    base.base.Execute("DELETE FROM Films");
    cmdAjoutFilm_Click(c);
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("Aliens"));
    EXPECT_EQ(filmChoisi(), "Aliens/Aliens");

    // Gone before the page opens: it is named there all the same.
    base.base.Execute("DELETE FROM Films");
    cmdModifierTitre_Click(c);
    EXPECT_EQ(ajout.Text3[0].Text + "/" + ajout.Text3[1].Text, "Aliens/James Cameron");
    EXPECT_EQ(etatAvis.lblAvis.Caption, "« Aliens » n'est plus dans la base : « Modifier » l'ajoutera de nouveau.");
}

TEST_F(cmdAjoutFilm, opensNoCorrectionWithoutAFilm) {
    ajouteFilm("", {{"Realisateur", ""}, {"Genre", "Drame"}});
    montre(browse::kZoneTous, browse::kTriGenre);
    clique("Drame");
    cmdModifierTitre_Click(c);
    EXPECT_FALSE(panneaux.frameListeFonctions.Visible || ajout.modeModifier());
}

TEST_F(cmdAjoutFilm, leavesBothRowsAsTheyWereWhenOneCannotBeWritten) {
    ajouteFilm("Alien", {{"Realisateur", "Ridley Scott"}, {"Genre", "Horreur"}});
    possede("Alien", "Ridley Scott");
    possede("Aliens", "Un autre");
    montre(browse::kZoneTous, browse::kTriTitre2);
    base.base.Execute("CREATE UNIQUE INDEX obstacle ON Personnel(Titre2)");  // the second row is refused
    modifie("Alien", "Aliens", "James Cameron");
    EXPECT_THROW(cmdAjoutFilm_Click(c), dao::ErreurDao);
    ouvreSaisie("Aliens", "James Cameron");
    attendChoix("");
    EXPECT_THROW(cmdAjoutFilm_Click(c), dao::ErreurDao);
    EXPECT_FALSE(base.base.enTransaction());
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("Alien"));
    EXPECT_THAT(colonne(db::enonceFilm({"Alien", "Ridley Scott"}), "Genre"), ElementsAre("Horreur"));
    EXPECT_THAT(colonne("Personnel", "Titre2"), ElementsAre("Alien", "Aliens"));
    EXPECT_EQ(base.films.RecordCount(), 1);

    // The entry is still there, to be stored once the base takes it again.
    base.base.Execute("DROP INDEX obstacle");
    attendChoix("");
    cmdAjoutFilm_Click(c);
    EXPECT_THAT(colonne("Personnel", "Realisateur2"), ElementsAre("Ridley Scott", "Un autre", "James Cameron"));
    EXPECT_THAT(titres(), ElementsAre("Aliens"));
}

}  // namespace
