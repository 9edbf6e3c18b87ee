#include "acquire/cmdAjoutAuto_Click.h"
#include "unit/app/Export.h"
#include "voisins/ImporteCollection.h"

#include <random>
#include <set>
#include <sstream>

namespace {

using app::Etendue;
using parcours::Execution;

constexpr std::array kDansLaFiche{"Titre", "Realisateur", "Annee",  "Origine",   "Genre",
                                  "Duree", "Acteurs",     "Resume", "Production"};

std::string numeroDe(const std::string& titre) {
    return titre.substr(titre.find_last_not_of("0123456789") + 1);
}

struct NonATout final : dialogues::Dialogues {
    int MsgBox(const std::string&, int style, const std::string&) override {
        return style == dialogues::kQuestion ? dialogues::kNon : dialogues::kOk;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return {}; }
    std::string choisitDossier(const std::string&, const std::string&) override { return {}; }
};

// Another session, which takes films in without a question.
struct Ailleurs {
    parcours::Installation installation;
    NonATout boites;
    Execution execution{installation.chemin(), boites};
};

std::string auHasard(std::mt19937& hasard, std::size_t auPlus, const std::vector<std::string>& morceaux) {
    std::string texte;
    for (std::size_t i = hasard() % (auPlus + 1); i > 0; --i)
        texte += morceaux[hasard() % morceaux.size()];
    return texte;
}

// Sheets and posters come back through the import as they were; what a sheet cannot say is told, film by film.
TEST_F(Export, SheetsAreImportedAgainAsTheSameFilms) {
    std::mt19937 hasard(20);
    const std::vector<std::string> morceaux{"Été", "œ", "日本",   "\r\n",   "\n",     "\t",   "<b>",
                                            "\"",  ";", " ",      "l'an",   "\u2019", "A",    "zz",
                                            "=a",  "é", "\u0301", "\u00A0", "\uFEFF", "/\\:*"};
    const auto texte = [&](std::size_t auPlus, bool simple) {
        return auHasard(hasard, auPlus, simple ? std::vector<std::string>{"é;\u2019"} : morceaux);
    };
    constexpr int kFilms = 300;
    std::map<std::string, std::map<std::string, std::string>> avant;
    std::vector<Ligne> tous;
    for (int i = 0; i < kFilms; ++i) {
        Ligne valeurs;
        const bool simple = i % 3 == 0;
        for (const char* champ : kDansLaFiche)
            valeurs[champ] = texte(champ == std::string("Resume")  ? 30
                                   : champ == std::string("Annee") ? 1
                                   : simple                        ? 2
                                                                   : 3,
                                   simple);
        valeurs["Titre"] = (simple ? "Film " : texte(2, false)) + std::to_string(i);
        if (simple) valeurs["Realisateur"] = "Ève " + std::to_string(i);
        if (i % 2 == 0) valeurs["Affiche"] = db::valeurAfficheDansLaBase(affiche + std::to_string(i));
        for (const auto& [champ, valeur] : valeurs)
            avant[std::to_string(i)][champ] = valeur.texte();
        tous.push_back(std::move(valeurs));
    }
    ajoute("Films", tous);
    ASSERT_TRUE(exporte(kFiches, Etendue::Base, "sortie"));
    std::set<std::string> dits;  // the numbers of the films that remarks are made of
    std::istringstream remarques(installation.lit(std::string("sortie/") + exportation::kFichierRemarques));
    for (std::string ligne; std::getline(remarques, ligne);)
        if (const std::size_t fin = ligne.find(" - ");
            fin != std::string::npos && ligne.find(" : ") != std::string::npos)
            dits.insert(numeroDe(ligne.substr(0, fin)));
    EXPECT_TRUE(avis().ends_with("ne disent pas tout : voir « Remarques.txt »."));

    Ailleurs ailleurs;
    Execution& autre = ailleurs.execution;
    ASSERT_TRUE(autre.demarre());
    autre.etats.ajout.txtCheminAjoutAuto.Text = installation.chemin("sortie");
    autre.session.execute(acquire::cmdAjoutAuto_Click);
    int identiques = 0, revenus = 0;
    autre.session.execute([&](const app::Contexte& c) {
        for (dao::Recordset films = c.base.base.OpenRecordset("Films"); !films.Eof(); films.MoveNext(), ++revenus) {
            const std::string titre = films.texte("Titre"), numero = numeroDe(titre);
            std::map<std::string, std::string>& film = avant.at(numero);
            const bool pareil = std::all_of(kDansLaFiche.begin(), kDansLaFiche.end(),
                                            [&](const char* champ) { return films.texte(champ) == film[champ]; });
            EXPECT_EQ(pareil, !dits.contains(numero)) << titre;
            identiques += pareil ? 1 : 0;
            EXPECT_EQ(films.texte("Affiche"), film["Affiche"]) << titre;
        }
    });
    EXPECT_EQ(revenus, kFilms);
    EXPECT_GT(identiques, kFilms / 4);
    EXPECT_LT(identiques, kFilms);
    EXPECT_EQ(noms().size(), static_cast<std::size_t>(kFilms + kFilms / 2 + 1));
}

// A table comes back as the films and the holdings that left, field by field. What it cannot say: a poster of the base,
// Null apart from "", a director of no name (which is then "Non défini").
TEST_F(Export, TablesAreImportedAgainAsTheSameFilms) {
    std::mt19937 hasard(27);
    const std::vector<std::string> morceaux{"Été",    "œ", "🎬",  "\r\n",   "\n", "\t",   "'", "\"",
                                            ";",      ",", " ",  "=1",     "+a", "-",    "@", "＝",
                                            "\u00A0", "<", "\r", "\uFEFF", "|",  "Drama"};
    const auto texte = [&](std::size_t auPlus) { return auHasard(hasard, auPlus, morceaux); };
    const auto contenu = [](Execution& celle) {
        std::multiset<std::string> lignes;
        celle.session.execute([&](const app::Contexte& c) {
            for (const char* table : {"Films", "Personnel"})
                for (dao::Recordset ligne = c.base.base.OpenRecordset(table); !ligne.Eof(); ligne.MoveNext()) {
                    std::string tout = table;
                    for (const auto& champ : exportation::kChamps) {
                        const std::string nom = champ.colonne;
                        const bool duFilm = &champ < &exportation::kChamps[exportation::kChampsDuFilm];
                        if (duFilm == (*table == 'F')) tout += "\x01" + ligne.texte(nom);
                    }
                    lignes.insert(tout + (*table == 'F' ? "" : "\x01" + ligne.texte("Realisateur2")));
                }
        });
        return lignes;
    };
    constexpr int kFilms = 400;
    std::vector<Ligne> tous;
    std::vector<Ligne> possessions;
    for (int i = 0; i < kFilms; ++i) {
        Ligne film;
        for (const char* champ : kDansLaFiche)
            film[champ] = texte(champ == std::string("Resume") ? 40 : 4);
        film["Titre"] = texte(4) + std::to_string(i);
        film["Realisateur"] = texte(3) + "R";
        if (i % 3 == 0) film["Note"] = dao::Valeur(static_cast<int>(hasard() % 10) + 1);
        if (i % 4 != 0) film["DateAjout"] = i % 4 == 1 ? "07/09/2009" : texte(2);
        for (int exemplaires = static_cast<int>(hasard() % 4); exemplaires > 0; --exemplaires) {
            Ligne possession{{"Titre2", film["Titre"]}, {"Realisateur2", film["Realisateur"]}};
            for (std::size_t n = exportation::kChampsDuFilm + 1; n < exportation::kNombreDeChamps; ++n)
                possession[exportation::kChamps[n].colonne] = texte(2);
            possessions.push_back(std::move(possession));
        }
        tous.push_back(std::move(film));
    }
    ajoute("Films", tous);
    ajoute("Personnel", possessions);
    ASSERT_TRUE(exporte(kTableau, Etendue::Base, "sortie.csv"));
    Ailleurs ailleurs;
    Execution& autre = ailleurs.execution;
    ASSERT_TRUE(autre.demarre());
    autre.session.execute([&](const app::Contexte& c) {
        const auto tableau = voisins::litTableauChoisi(c, installation.chemin("sortie.csv"));
        ASSERT_TRUE(tableau);
        const auto examen = voisins::examineTableau(c, *tableau);
        ASSERT_TRUE(examen);
        EXPECT_EQ(examen->nombre(edit::SortDuFilm::DejaLa), 0);
        voisins::Examen voulu = *examen;
        for (voisins::Jugement& celui : voulu.jugements)
            celui.aAjouter = true;
        voisins::importeCollection(c, voulu);
    });
    EXPECT_TRUE(contenu(autre) == contenu(execution));
}

}  // namespace
