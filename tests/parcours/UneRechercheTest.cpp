#include "app/Commandes.h"
#include "app/RaccourcisClavier.h"
#include "db/cmdCompacter_Click.h"
#include "edit/ModifieGroupe.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "parcours/Gestes.h"
#include "parcours/Photo.h"

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;
using testing::IsEmpty;

// Films as other tools may have left them: signs that mean something elsewhere, and fields without a value.
constexpr const char* kFilms = R"(
INSERT INTO Films (Titre, Realisateur, Annee, Acteurs) VALUES
  ('Dites "33"', 'Léonce Perret', '1933', 'Max'),
  ('L''Argent de poche', 'François O''Truffaut', '1976', 'Geory'),
  ('100 % coton', 'A_B', '1989', '*'),
  ('M*A*S*H', 'Robert Altman', '1970', 'Sutherland;Gould'),
  ('[Rec', 'Jaume Balagueró', '2007', 'Velasco'),
  ('La Fête 🎉', 'Un [inconnu]', '2018', 'Bacri'),
  ('Muet', 'Personne', '1921', NULL),
  ('Orphelin', NULL, NULL, NULL);
INSERT INTO Personnel (Titre2, Realisateur2, Pret, Reserve, Support) VALUES
  ('M*A*S*H', 'Robert Altman', '', 'Ève', 'DVD'),
  ('[REC', 'jaume balagueró', 'Luc', '', 'DVD'),
  ('Muet', 'Personne', NULL, NULL, NULL),
  ('Orphelin', NULL, '', '', 'DVD');
)";

class UneRecherche : public testing::Test {
  protected:
    UneRecherche() {
        dao::DBEngine::CreateDatabase(base, db::schema());
        dao::DBEngine::OpenDatabase(base).Execute(kFilms);
        if (!execution.demarre()) ADD_FAILURE() << "the start failed";
    }

    const Installation installation;
    const std::string base = installation.chemin("Films.mdb");
    Execution execution{installation.chemin()};
    app::Session& session = execution.session;
    app::Etats& etats = execution.etats;
};

TEST_F(UneRecherche, FindsEverySignAsItIs) {
    const struct {
        const char* texte;
        std::array<int, 4> champs;
        std::vector<std::string> trouves;
    } cas[]{
        {"\"33\"", {1, 0, 0, 0}, {"Dites \"33\""}},
        {"l'arg", {1, 0, 0, 0}, {"L'Argent de poche"}},
        {"o't", {0, 1, 0, 0}, {"L'Argent de poche"}},
        {"%", {1, 1, 1, 1}, {"100 % coton"}},
        {"_", {0, 1, 0, 0}, {"100 % coton"}},
        {"*", {1, 0, 0, 0}, {"M*A*S*H"}},
        {"*", {1, 1, 1, 1}, {"100 % coton", "M*A*S*H"}},
        {"[", {1, 0, 0, 0}, {"[Rec"}},
        {"[", {1, 1, 0, 0}, {"[Rec", "La Fête 🎉"}},
        {"[i-n]", {1, 1, 1, 1}, {}},
        {"?", {1, 1, 1, 1}, {}},
        {"🎉", {1, 0, 0, 0}, {"La Fête 🎉"}},
        {"FÊTE", {1, 0, 0, 0}, {"La Fête 🎉"}},
        {"fete", {1, 0, 0, 0}, {}},
        {"FE\u0302TE", {1, 0, 0, 0}, {"La Fête 🎉"}},
        {"197", {0, 0, 1, 0}, {"L'Argent de poche", "M*A*S*H"}},
    };
    for (const auto& [texte, champs, trouves] : cas) {
        cherche(execution, texte, champs);
        EXPECT_EQ(arbre(etats), trouves) << texte;
        EXPECT_EQ(etats.liste.ChoixZone.ListCount(), 7);
    }
}

// One checked field without a value, and the film is not found by the others; left out, it hides nothing.
TEST_F(UneRecherche, AFieldWithoutAValueHidesItsFilm) {
    const struct {
        const char* texte;
        std::array<int, 4> champs;
        std::size_t portee, nombre;
    } cas[]{{"muet", {1, 0, 0, 1}, 0, 0},     {"muet", {1, 1, 1, 0}, 0, 1},     {"muet", {1, 0, 0, 0}, 1, 1},
            {"muet", {1, 0, 0, 0}, 2, 0},     {"orphelin", {1, 1, 0, 0}, 0, 0}, {"orphelin", {1, 0, 0, 0}, 2, 0},
            {"orphelin", {1, 0, 0, 0}, 1, 1}, {"33", {1, 0, 0, 0}, 2, 1}};
    for (const auto& [texte, champs, portee, nombre] : cas) {
        cherche(execution, texte, champs, portee);
        EXPECT_EQ(arbre(etats).size(), nombre) << texte << " " << portee;
    }
}

TEST_F(UneRecherche, AZoneTakesNoFilmWhoseConditionHasNoValue) {
    choisitTri(execution, 1);
    const std::vector<std::string> zones[]{
        {"[Rec", "M*A*S*H", "Muet", "Orphelin"}, {}, {"M*A*S*H", "Orphelin"}, {"[Rec"}, {"M*A*S*H"}};
    for (const int zone : {0, 2, 3, 4}) {
        choisitZone(execution, zone);
        EXPECT_EQ(arbre(etats), zones[zone]) << zone;
    }
    choisitZone(execution, 5);
    EXPECT_EQ(arbre(etats).size(), 4U);

    // Stored again from the sheet, the holding has its values and its zone.
    choisitZone(execution, 0);
    clique(execution, "Muet");
    session.execute(edit::cmdValiderInfosPossessions_Click);
    EXPECT_EQ(filmMontre(etats), "Muet de Personne");
    choisitZone(execution, 2);
    EXPECT_THAT(arbre(etats), ElementsAre("M*A*S*H", "Muet", "Orphelin"));
}

// Other tools leave a director Null, which no text of a statement can name.
TEST_F(UneRecherche, AFilmWithoutADirectorIsKeptLikeAnyOther) {
    choisitZone(execution, 1);
    choisitTri(execution, 1);
    clique(execution, "Orphelin");
    EXPECT_TRUE(etats.fiche.Option1[1].Value);
    execution.boites.attendInputBox("Quelle note (entre 1 et 10) voulez vous attribuer au film \"Orphelin\" de  ?",
                                    "8");
    session.execute(edit::cmdModifieNote_Click);
    EXPECT_EQ(etats.fiche.lblNote.Caption, "Note : 8/10");
    etats.fiche.Combo7[2].Text = "K7";
    session.execute(edit::cmdValiderInfosPossessions_Click);
    execution.boites.attendFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", installation.chemin()},
                                   installation.ecrit("a.jpg", "\xFF\xD8"));
    session.execute(app::Label12_Click);
    execution.boites.attendMsgBox("Compactage effectué.", dialogues::kInformation);
    session.execute(db::cmdCompacter_Click);
    EXPECT_EQ(etats.liste.Label9[1].Caption, "4 personnels");
    clique(execution, "Orphelin");
    EXPECT_EQ(etats.fiche.Combo7[2].Text, "K7");
    EXPECT_EQ(etats.fiche.lblNote.Caption, "Note : 8/10");
    session.execute(app::cmdModifierTitre_Click);
    etats.ajout.Text3[1].Text = "Un autre";
    session.execute(edit::cmdAjoutFilm_Click);
    EXPECT_EQ(filmMontre(etats), "Orphelin de Un autre");
    EXPECT_TRUE(etats.fiche.Option1[1].Value);
    dao::DBEngine::OpenDatabase(base).Execute("UPDATE Films SET Realisateur=NULL WHERE Titre='Orphelin'");
    choisitZone(execution, 1);
    clique(execution, "Orphelin");
    execution.boites.attendMsgBox("Voulez-vous vraiment supprimer ce titre ?", dialogues::kQuestion, dialogues::kOui);
    session.execute(edit::cmdSupprimerTitre_Click);
    EXPECT_EQ(etats.liste.Label9[0].Caption, "7 titres");
}

TEST_F(UneRecherche, TheFilmsOutOfTheSortGetTheirGenreTogether) {
    choisitZone(execution, 0);
    choisitTri(execution, 4);
    const Photo avant(base);
    session.execute(app::TreeView1_MouseUpDroit, noeud(etats, " Hors tri !"));
    execution.boites.attendInputBox("Entrez le nom du nouveau genre", "Inclassable", "Modifier le genre");
    session.execute(edit::RenommerGenreFilms_Click);
    EXPECT_THAT(arbre(etats), ElementsAre("Inclassable", "  [Rec", "  M*A*S*H", "  Muet", "  Orphelin"));
    EXPECT_THAT(Photo(base).depuis(avant),
                testing::UnorderedElementsAre("*Films : [Rec de Jaume Balagueró", "*Films : M*A*S*H de Robert Altman",
                                              "*Films : Muet de Personne", "*Films : Orphelin de Null"));
}

// A corrected film may match its search no more: nothing is shown then, and no command reaches another film.
TEST_F(UneRecherche, AFilmThatLeavesTheResultIsCurrentNoMore) {
    cherche(execution, "197", {0, 0, 1, 0});
    clique(execution, "M*A*S*H");
    session.execute(app::cmdModifierTitre_Click);
    etats.ajout.Text3[2].Text = "1969";
    session.execute(edit::cmdAjoutFilm_Click);
    EXPECT_THAT(arbre(etats), ElementsAre("L'Argent de poche"));
    EXPECT_EQ(filmMontre(etats), "");
    const Photo avant(base);
    session.execute(edit::cmdSupprimerTitre_Click);
    session.execute(edit::cmdModifieNote_Click);
    session.execute(edit::cmdValiderInfosPossessions_Click);
    EXPECT_THAT(Photo(base).depuis(avant), IsEmpty());
    execution.boites.attendMsgBox(
        "Le tri par support n'est pas possible pour ce cas-là : il faut que la recherche soit sur les titres possédés "
        "(Mes Films).",
        dialogues::kExclamation);
    choisitTri(execution, 8);
    EXPECT_THAT(arbre(etats), ElementsAre("L'Argent de poche"));
}

}  // namespace
