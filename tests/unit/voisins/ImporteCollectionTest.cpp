#include "db/Sauvegardes.h"
#include "parcours/Photo.h"
#include "unit/acquire/FenetreAcquisition.h"
#include "voisins/ImporteCollection.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kJpeg = "\xFF\xD8\xFF\xE0 affiche";

class ImporteCollection : public FenetreAcquisition {
  protected:
    doubles::DossierTemporaire ailleurs;

    std::string collection(const std::string& items) {
        ailleurs.ecrit("films_images/a.jpg", kJpeg);
        ailleurs.ecrit("films_images/grande.jpg", kJpeg + std::string(230000, 'x'));
        ailleurs.ecrit("films.gcs", "<collection type=\"GCfilms\">" + items + "</collection>");
        return ailleurs.chemin("films.gcs");
    }
    voisins::Examen examen(const std::string& items) {
        auto examen = voisins::examineCollection(c, collection(items));
        EXPECT_TRUE(examen);
        return examen.value_or(voisins::Examen());
    }
    std::vector<std::string> sorts(const voisins::Examen& examen) {
        std::vector<std::string> dits;
        for (const voisins::Jugement& celui : examen.jugements)
            dits.push_back(edit::texteDuSort(celui) + (celui.aAjouter ? " +" : ""));
        return dits;
    }
};

TEST_F(ImporteCollection, WhatIsShownBeforeIsWhatIsThenDone) {
    ajouteFilm("Cléo de 5 à 7", {{"Realisateur", "Agnès Varda"}, {"Resume", "à moi"}, {"Affiche", ""}});
    ajouteFilm("Le Parrain", {{"Realisateur", "Francis Ford Coppola"}});
    const parcours::Photo avant(chemins.base);
    auto lu = examen(
        "<item title=\"CLÉO DE 5 À 7\" director=\"agnès varda\" image=\"a.jpg\" date=\"1962\" synopsis=\"à eux\" "
        "format=\"DVD\" borrower=\"Léa\" "
        "lendDate=\"02/01/2020\"/>"
        "<item title=\"Le Parrain 2\" director=\"Francis Ford Coppola\"/>"
        "<item title=\"L'Œil «noir»\" director=\"D'Arc\" image=\"grande.jpg\" added=\"07/09/2009\" rating=\"9\" "
        "place=\"B\"/>"
        "<item title=\"Sans affiche\" image=\"absente.jpg\"/>");
    EXPECT_THAT(sorts(lu), ElementsAre("Déjà là, à compléter : année, affiche", "Ressemble à « Le Parrain » à 91 %",
                                       "Nouveau +", "Nouveau +"));
    EXPECT_THAT(parcours::Photo(chemins.base).depuis(avant), IsEmpty()) << "nothing is written by a look";
    annulations.commence();
    dialogues.attendMsgBox(
        "2 films ajoutés.\n1 film non ajouté car déjà dans la base.\n- Image manquante :\nL'Œil «noir» (trop grande "
        "pour la "
        "base) , Sans affiche\n- Déjà existant : \nCLÉO DE 5 À 7\n1 image ajoutée à un film déjà présent.\n"
        "2 films ajoutés sont possédés.\n1 film déjà présent est maintenant possédé.\n1 film déjà présent a reçu des "
        "champs qui lui "
        "manquaient.\n1 film est prêté.",
        dialogues::kInformation);
    voisins::importeCollection(c, lu);
    EXPECT_EQ(annulations.termine(), db::Annulations::Fin::Annulable);
    dialogues.verifie();
    EXPECT_THAT(titresDesFilms(), ElementsAre("Cléo de 5 à 7", "Le Parrain", "L'Œil «noir»", "Sans affiche"));
    EXPECT_THAT(colonne("Films", "Annee"), ElementsAre("1962", "", "", ""));
    EXPECT_THAT(colonne("Films", "Resume"), ElementsAre("à moi", "", "", "")) << "what was there stays as it was";
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("STO" + kJpeg, "", "", ""));
    EXPECT_THAT(colonne("Films", "DateAjout"), ElementsAre("", "", "07/09/2009", horloge.dateDuJour()));
    EXPECT_THAT(colonne("Films", "Note"), ElementsAre("", "", "9", ""));
    EXPECT_THAT(titresPossedes(), ElementsAre("CLÉO DE 5 À 7", "L'Œil «noir»", "Sans affiche"));
    EXPECT_THAT(colonne("Personnel", "Pret"), ElementsAre("Léa", "", ""));
    EXPECT_THAT(colonne("Personnel", "Date"), ElementsAre("02/01/2020", "", ""));
    EXPECT_THAT(colonne("Personnel", "Rangement"), ElementsAre("", "B", ""));
    const auto copie = db::derniereSauvegarde(chemins.base);
    ASSERT_TRUE(copie);
    EXPECT_EQ(db::libelle(copie->nom.avant), "import d'une autre collection");
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_THAT(parcours::Photo(chemins.base).depuis(avant), IsEmpty()) << "one command takes all of it back";
}

TEST_F(ImporteCollection, AStopKeepsWholeFilmsAndASecondPassDoesTheRest) {
    std::string items;
    for (int i = 0; i < 30; ++i)
        items += "<item title=\"Film " + std::string(1, static_cast<char>('A' + i)) + std::to_string(i * 7919) +
                 "\" image=\"a.jpg\"/>";
    const auto lu = examen(items);
    ecranMuet.souffles = 0;
    ecranMuet.arretApres = 1;
    dialogues.attendMsgBox(
        "1 film ajouté.\n1 film ajouté est possédé.\nL'import a été interrompu : relancez-le pour ajouter les 29 films "
        "qui restent.",
        dialogues::kInformation);
    voisins::importeCollection(c, lu);
    EXPECT_EQ(titresDesFilms().size(), 1U);
    ecranMuet.arretApres = 0;
    auto reste = examen(items);
    EXPECT_EQ(reste.aAjouter(), 29);
    reste.complete = false;
    dialogues.attendMsgBox("29 films ajoutés.\n29 films ajoutés sont possédés.", dialogues::kInformation);
    voisins::importeCollection(c, reste);
    EXPECT_EQ(titresDesFilms().size(), 30U);
    EXPECT_EQ(titresPossedes().size(), 30U);
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
    dialogues.verifie();
}

TEST_F(ImporteCollection, WhatCannotBeReadIsToldAndChangesNothing) {
    ailleurs.ecrit("casse.gcs", "<collection type=\"GCfilms\"><item title=\"A\"/><item");
    dialogues.attendMsgBox(
        "La collection " + ailleurs.chemin("casse.gcs") +
            " ne peut pas être lue : casse.gcs est abîmé, coupé ou démesuré (ligne 1).\nRien n'a été importé.",
        dialogues::kExclamation);
    EXPECT_FALSE(voisins::examineCollection(c, ailleurs.chemin("casse.gcs")));
    EXPECT_THAT(titresDesFilms(), IsEmpty());
    dialogues.verifie();
}

}  // namespace
