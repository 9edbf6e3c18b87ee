#include "acquire/ApercuFiches.h"
#include "acquire/FicheFilm.h"
#include "db/EnonceFilm.h"
#include "db/Sauvegardes.h"
#include "edit/Complement.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "unit/acquire/FenetreAcquisition.h"

#include <algorithm>
#include <filesystem>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using edit::SortDeLAffiche;
using edit::SortDuFilm;
using testing::ElementsAre;
using testing::IsEmpty;

// Says yes to whatever it is asked, and remembers it.
struct DitOui final : dialogues::Dialogues {
    std::vector<std::string> messages;

    int MsgBox(const std::string& texte, int, const std::string&) override {
        messages.push_back(texte);
        return dialogues::kOui;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return "DVD"; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return ""; }
    std::string choisitDossier(const std::string&, const std::string&) override { return ""; }
};

class ApercuTest : public FenetreAcquisition {
  protected:
    doubles::DossierTemporaire fiches;
    DitOui oui;
    db::Contexte accommodante = avec(oui);
    browse::Contexte autreFenetre{accommodante, liste, recherche, fiche, panneaux, film};
    edit::Contexte autreEdition{autreFenetre, ajout, multiSuppression, accompagnement};
    acquire::Contexte quiDitOui{autreEdition, chkLancerConnexion};

    ApercuTest() { ajout.txtCheminAjoutAuto.Text = fiches.chemin(); }

    std::vector<edit::FilmExamine> regarde() { return acquire::apercuDesFiches(c).value().films; }
    std::vector<std::string> dits() {
        std::vector<std::string> textes;
        for (const edit::FilmExamine& examen : regarde())
            textes.push_back(examen.provenance + " : " + texteDuSort(examen) + " | " + texteDeLAffiche(examen.affiche));
        return textes;
    }
    std::string champ(const db::CleFilm& cle, const std::string& nom) {
        return base.base.OpenRecordset(db::enonceFilm(cle)).texte(nom);
    }
    // All of the films, in order.
    std::vector<std::string> toutesLesLignes() {
        std::vector<std::string> valeurs;
        for (const char* nom : {"Titre", "Realisateur", "Annee", "Origine", "Genre", "Duree", "Acteurs", "Resume",
                                "Production", "Affiche", "DateAjout"})
            for (const std::string& valeur : colonne("Films", nom))
                valeurs.push_back(valeur);
        return valeurs;
    }
    void prends(const fs::path& source) {
        for (const auto& entree : fs::directory_iterator(source))
            fs::copy(entree.path(), fs::path(fiches.chemin()) / entree.path().filename());
        fiches.ecrit("zz double.FILM", "Solaris\nQuelqu'un\n");
        fiches.ecrit("zz double aussi.FILM", "SOLARIS\nQuelqu'un\n");
        fiches.ecrit("zz proche.FILM", "Solari\nQuelqu'un\n");
        fiches.ecrit("zz bruit.FILM", std::string("\x7F\x45LF\2\1\1\0\0\0\0\0\0", 13));
    }
    // Of the sheets' films some are in the base, lacking this and that, and some have a near namesake there.
    void remplitLaBase() {
        dao::Transaction toutes(base.base);
        int rang = 0;
        const acquire::DossierFiches leDossier(fiches.chemin());
        for (const std::string& nom : leDossier.fiches()) {
            const auto lue = acquire::litFiche(leDossier.chemin(nom));
            const int sorte = ++rang % 5;
            if (!lue || sorte > 2) continue;
            ajoute(base.films, {{"Titre", lue->titre + (sorte == 2 ? "s" : "")},
                                {"Realisateur", lue->realisateur},
                                {"Annee", sorte == 0 ? dao::Valeur() : dao::Valeur("1900")},
                                {"Genre", ""},
                                {"Duree", "9H99"},
                                {"Affiche", rang % 2 == 0 ? "JPGla sienne.jpg" : ""}});
        }
        toutes.confirme();
    }
    void importeEtCompare();
    void completeEtCompare();
};

// Sheet by sheet, what the preview says is what an import does that says yes to every question.
void ApercuTest::importeEtCompare() {
    const std::vector<edit::FilmExamine> films = regarde();
    const std::size_t avant = colonne("Films", "Titre").size();
    std::string refuses, manquantes;
    const auto suite = [](std::string& enumeration, const std::string& element) {
        enumeration += (enumeration.empty() ? "" : ", ") + element;
    };
    oui.messages.clear();
    cmdAjoutAuto_Click(quiDitOui);
    long ajoutes = 0, affichesDonnees = 0;
    for (const edit::FilmExamine& examen : films) {
        SCOPED_TRACE(examen.provenance);
        const std::string affiche = fiches.chemin(fs::path(examen.provenance).stem().string() + ".jpg");
        const auto questionSur = [&](const db::CleFilm& ancien) {
            return edit::questionRessemblance(examen.film, ancien);
        };
        const std::string debut = questionSur({}).substr(0, questionSur({}).find(" à un autre"));
        const auto deLui = [&](const std::string& message) { return message.starts_with(debut); };
        EXPECT_EQ(std::ranges::count_if(oui.messages, deLui),
                  examen.proche ? 1 + static_cast<long>(examen.autresProches) : 0);
        if (examen.proche) {
            EXPECT_THAT(oui.messages, testing::Contains(questionSur(examen.proche->film)));
        }
        if (examen.sort == SortDuFilm::Illisible) continue;
        if (examen.sort == SortDuFilm::DejaLa) suite(refuses, examen.film.titre);
        if (peutEtreAjoute(examen)) {
            ++ajoutes;
            EXPECT_EQ(champ(examen.film, "DateAjout"), "21/11/2026");
            EXPECT_EQ(champ(examen.film, "Affiche").empty(), examen.affiche != SortDeLAffiche::Prise);
            const bool tropGrande = examen.affiche == SortDeLAffiche::TropGrande;
            if (examen.affiche == SortDeLAffiche::Absente) suite(manquantes, affiche);
            if (tropGrande && fs::file_size(affiche) > 230000)
                suite(manquantes, affiche + " (trop grande pour la base) ");
        } else if (examen.affiche == SortDeLAffiche::Prise) {
            ++affichesDonnees;
            EXPECT_FALSE(champ(examen.film, "Affiche").empty());
        }
    }
    const std::string rapport = oui.messages.back();
    EXPECT_EQ(colonne("Films", "Titre").size(), avant + static_cast<std::size_t>(ajoutes));
    EXPECT_TRUE(rapport.starts_with(std::to_string(ajoutes) + " films ajoutés.")) << rapport;
    EXPECT_THAT(rapport,
                testing::HasSubstr("\n- Déjà existant : \n" + refuses + "\n- Fiche illisible :\n" +
                                   fiches.chemin("zz bruit.FILM") + "\n" + std::to_string(affichesDonnees) + " image"));
    const std::string lesManques = manquantes.empty() ? "" : "\n- Image manquante :\n" + manquantes;
    EXPECT_THAT(rapport, testing::HasSubstr(lesManques + "\n- Déjà"));
    for (const edit::FilmExamine& examen : regarde())
        EXPECT_FALSE(peutEtreAjoute(examen)) << examen.provenance;
}

// Of each film that is there, exactly the fields that are named are filled, and with what the sheet says.
void ApercuTest::completeEtCompare() {
    const std::vector<edit::FilmExamine> films = regarde();
    acquire::FichesChoisies choisies{fiches.chemin()};
    for (const edit::FilmExamine& examen : films)
        if (peutEtreComplete(examen)) choisies.noms.push_back(examen.provenance);
    ASSERT_GT(choisies.noms.size(), 5U);
    const std::vector<std::string> avant = toutesLesLignes();
    const std::size_t sauvegardes = db::sauvegardesDe(chemins.base).size();
    annulations.commence();
    EXPECT_EQ(acquire::completeLesFilms(quiDitOui, choisies), choisies.noms);
    ASSERT_EQ(annulations.termine(), db::Annulations::Fin::Annulable);
    EXPECT_EQ(db::sauvegardesDe(chemins.base).size(), sauvegardes + 1);
    for (const edit::FilmExamine& examen : films) {
        if (!peutEtreComplete(examen)) continue;
        SCOPED_TRACE(examen.provenance);
        const auto lue = acquire::litFiche(fiches.chemin(examen.provenance)).value();
        const auto donne = [&](const char* nom) { return std::ranges::count(examen.aCompleter, nom) > 0; };
        EXPECT_EQ(champ(lue, "Duree"), "9H99") << "nothing that says something changes";
        EXPECT_EQ(champ(lue, "Annee"), donne("Annee") ? lue.annee : "1900");
        EXPECT_EQ(champ(lue, "Genre"), lue.genre);
        EXPECT_EQ(champ(lue, "Resume"), lue.resume);
        EXPECT_EQ(donne("Genre"), !lue.genre.empty());
        if (donne("Affiche")) {
            EXPECT_FALSE(champ(lue, "Affiche").empty());
        }
    }
    for (const edit::FilmExamine& examen : regarde())
        EXPECT_THAT(examen.aCompleter, IsEmpty()) << examen.provenance;
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_EQ(toutesLesLignes(), avant);
    EXPECT_THAT(acquire::completeLesFilms(quiDitOui, choisies), testing::SizeIs(choisies.noms.size()));
}

TEST_F(ApercuTest, whatItSaysIsWhatTheImportThenDoes) {
    for (const fs::path& source : {fs::path(AMBRELIS_SOURCE_DIR "/samples"), doubles::donneesReelles("fiches")}) {
        if (!fs::is_directory(source)) continue;
        for (const std::size_t stockageDesAffiches : {0U, 1U}) {
            SCOPED_TRACE(source.string() + " " + std::to_string(stockageDesAffiches));
            for (const auto& entree : fs::directory_iterator(fiches.chemin()))
                fs::remove(entree.path());
            base.base.Execute("DELETE FROM Films");
            ecran::choisit(stockage.Option3, stockageDesAffiches);
            prends(source);
            remplitLaBase();
            const auto leProgramme = dossier.contenu(), lesFiches = fiches.contenu();
            const std::string reglage = stockage.Text4.Text;
            static_cast<void>(regarde());
            EXPECT_EQ(dossier.contenu(), leProgramme);
            EXPECT_EQ(fiches.contenu(), lesFiches);
            EXPECT_EQ(stockage.Text4.Text, reglage) << "no setting either";
            if (stockageDesAffiches == 0) importeEtCompare();
            completeEtCompare();
        }
    }
}

TEST_F(ApercuTest, tellsOfEachSheetWhatIsToBeKnown) {
    ajoute(base.films, {{"Titre", "Alien"}, {"Realisateur", "Ridley Scott"}, {"Annee", "1979"}, {"Affiche", "JPGa"}});
    ajoute(base.films, {{"Titre", "Brazil"}, {"Realisateur", "Terry Gilliam"}});
    fiches.ecrit("1.film", "ALIEN\nRidley Scott\n1980\n");
    fiches.ecrit("1.jpg", "image");
    fiches.ecrit("2.film", "Brazil\nTerry Gilliam\n1985\nGB\n");
    fiches.ecrit("2.jpg", "image");
    fiches.ecrit("3.film", "Aliens\nRidley Scott\n");
    fiches.ecrit("4.film", "Alienss\nRidley Scott\n");
    fiches.ecrit("5.film", "Solaris\nTarkovski\n");
    fiches.ecrit("5.jpg", std::string(230000, 'x'));
    fiches.ecrit("6.film", "Solaris\nTarkovski\n");
    fiches.ecrit("7.film", "");
    fs::resize_file(fiches.chemin("7.film"), 600 << 20);
    EXPECT_THAT(
        dits(),
        ElementsAre("1.film : Déjà là | ", "2.film : Déjà là, à compléter : année, origine, affiche | présente",
                    "3.film : Ressemble à « Alien » à 91 % | absente",
                    "4.film : Ressemble à « Aliens » à 92 % et à 1 autre film | absente",
                    "5.film : Nouveau | trop grande", "6.film : Déjà là : lu deux fois | ", "7.film : Illisible | "));
    EXPECT_EQ(bilan(regarde()),
              "7 films lus : 1 nouveau, 2 qui ressemblent à d'autres, 3 déjà là, dont 1 à compléter, "
              "1 illisible. Affiches : 2 absentes, 1 trop grande.");
    std::vector<std::string> aProbleme;
    for (const edit::FilmExamine& examen : regarde())
        if (estDuGenre(examen, edit::GenreDExamen::AProbleme)) aProbleme.push_back(examen.provenance);
    EXPECT_THAT(aProbleme, ElementsAre("3.film", "4.film", "5.film", "7.film"));
}

TEST_F(ApercuTest, stopsAtTheUsersWishAndImportsWhatIsChosen) {
    for (const char* nom : {"a", "b", "d", "e"})
        fiches.ecrit(std::string(nom) + ".film", std::string("Film ") + nom + "\nR");
    ecranMuet.arretApres = 1;
    ecranMuet.pendantSouffle = [&] { EXPECT_TRUE(ajout.ProgressBar1.Visible && ajout.lblProgression.Visible); };
    const auto apercu = acquire::apercuDesFiches(c).value();
    EXPECT_FALSE(apercu.complet);
    EXPECT_EQ(apercu.films.size(), 1U);
    EXPECT_EQ(ecranMuet.debuts, ecranMuet.fins);
    ecranMuet.arretApres = 0;
    // One of the chosen is gone since: the report says so.
    fs::remove(fiches.chemin("b.film"));
    attendQuestions(2, true, true, "DVD");
    dialogues.attendMsgBox("1 film ajouté.\n- Image manquante :\n" + fiches.chemin("d.jpg") +
                               "\n- Fiche illisible :\n" + fiches.chemin("b.film"),
                           dialogues::kInformation);
    annulations.commence();
    acquire::importeFichesChoisies(c, {fiches.chemin(), {"b.film", "d.film"}});
    EXPECT_EQ(annulations.termine(), db::Annulations::Fin::Annulable);
    EXPECT_THAT(colonne("Personnel", "Titre2"), ElementsAre("Film D"));
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_THAT(colonne("Films", "Titre"), IsEmpty());

    for (const char* nom : {"a", "d", "e"})
        fs::remove(fiches.chemin(std::string(nom) + ".film"));
    EXPECT_FALSE(acquire::apercuDesFiches(c));
    EXPECT_EQ(etatAvis.lblAvis.Caption, "Aucune fiche .FILM dans ce dossier : il n'y a rien à montrer.");
}

}  // namespace
