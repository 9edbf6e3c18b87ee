#include "acquire/cmdAjoutAuto_Click.h"
#include "app/Exporter.h"
#include "db/Affiches.h"
#include "parcours/Gestes.h"
#include "util/Csv.h"
#include "util/Texte.h"
#include "voisins/ImporteCollection.h"

#include <random>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

namespace {

using app::DemandeDExport;
using app::Etendue;
using exportation::Champ;
using exportation::Champs;
using exportation::FilmExporte;
using parcours::Execution;
using parcours::Installation;
using Table = std::vector<std::vector<std::string>>;

constexpr std::array kDansLaFiche{"Titre", "Realisateur", "Annee",  "Origine",   "Genre",
                                  "Duree", "Acteurs",     "Resume", "Production"};

// A reader of tables of its own: quotes, ";" and CR LF alone count.
Table litTableau(std::string_view texte) {
    Table lignes;
    EXPECT_TRUE(texte.starts_with("\uFEFF"));
    texte.remove_prefix(3);
    for (bool nouvelle = true; !texte.empty();) {
        if (nouvelle) lignes.emplace_back();
        EXPECT_EQ(texte.front(), '"');
        std::string cellule;
        std::size_t i = 1;
        for (; texte[i] != '"' || texte.substr(i).starts_with("\"\""); ++i) {
            if (texte[i] == '"') ++i;
            cellule += texte[i];
        }
        lignes.back().push_back(util::sansProtection(cellule));
        nouvelle = texte[i + 1] == '\r';
        texte.remove_prefix(i + (nouvelle ? 3 : 2));
    }
    return lignes;
}

class Export : public testing::Test {
  protected:
    Installation installation;
    Execution execution{installation.chemin()};
    std::string affiche = "\xFF\xD8 octets\0de l'affiche";

    void SetUp() override { ASSERT_TRUE(execution.demarre()); }

    template <typename Geste>
    void avec(Geste geste) {
        execution.session.execute([&](const app::Contexte& c) { geste(c); });
    }
    void ajouteFilms(const std::vector<std::map<std::string, dao::Valeur>>& films) {
        avec([&](const app::Contexte& c) {
            dao::Transaction transaction(c.base.base);
            for (const auto& valeurs : films) {
                c.base.films.AddNew();
                for (const auto& [champ, valeur] : valeurs)
                    c.base.films.assigne(champ, valeur);
                c.base.films.Update();
            }
            transaction.confirme();
        });
    }
    void ajouteFilm(const std::map<std::string, dao::Valeur>& valeurs) { ajouteFilms({valeurs}); }
    void possedeTous(const std::vector<std::map<std::string, std::string>>& possessions) {
        avec([&](const app::Contexte& c) {
            dao::Transaction transaction(c.base.base);
            for (const auto& valeurs : possessions) {
                c.base.personnel.AddNew();
                for (const auto& [champ, valeur] : valeurs)
                    c.base.personnel.assigne(champ, valeur);
                c.base.personnel.Update();
            }
            transaction.confirme();
        });
    }
    void possede(const std::map<std::string, std::string>& valeurs) { possedeTous({valeurs}); }
    void liste(int zone, int tri) {
        parcours::choisitZone(execution, zone);
        parcours::choisitTri(execution, tri);
    }
    bool exporte(DemandeDExport::Format format, Etendue etendue, const std::string& nom,
                 const Champs& champs = Champs::tous()) {
        bool faite = false;
        avec([&](const app::Contexte& c) {
            faite = app::exporte(c, {format, etendue, champs, installation.chemin(nom)},
                                 [](const std::string& octets, int largeur) {
                                     return exportation::Vignette{octets, largeur, 2 * largeur};
                                 });
        });
        return faite;
    }
    [[nodiscard]] std::string avis() const { return execution.etats.avis.lblAvis.Caption; }
    [[nodiscard]] std::vector<std::string> noms() const {
        std::vector<std::string> trouves;
        for (const auto& [nom, octets] : installation.contenu())
            if (nom.starts_with("sortie")) trouves.push_back(nom);
        return trouves;
    }
};

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

constexpr auto kTableau = DemandeDExport::Format::Tableau;
constexpr auto kPage = DemandeDExport::Format::Page;
constexpr auto kFiches = DemandeDExport::Format::Fiches;

TEST(Csv, ProtectsWhatBeginsAsAFormulaAndGivesItBack) {
    for (const char* formule :
         {"=1+1", "+1", "-1", "@A1", "\t=1", "\r=1", "\n", " =1", "\u00A0\u202F-1", "＝1", "'=1", "''@"})
        EXPECT_EQ(util::protegeDesFormules(formule), "'" + std::string(formule));
    for (const char* texte : {"", "'", "'Allo 'Allo", "9-1", "L'Été", "a=1", "''"})
        EXPECT_EQ(util::protegeDesFormules(texte), texte);
    for (const char* texte : {"=1", "'=1", "''=1", "'a", "' =", "", "'"})
        EXPECT_EQ(util::sansProtection(util::protegeDesFormules(texte)), texte);
}

// Every field of the films and of their holdings, whatever it holds; a film of two holdings has two lines.
TEST_F(Export, TheTableHoldsEveryFieldToTheLetter) {
    const std::string hostile = "=HYPERLINK(\"x\");\"a\";\r\nb\rc\nd\te; <b>&amp; œ 日本 \u2028";
    ajouteFilm({{"Titre", "'=Alien"},
                {"Realisateur", "-Scott"},
                {"Annee", "1979"},
                {"Resume", hostile},
                {"Note", "8"},
                {"Affiche", db::valeurAfficheFichier("a \"b\".jpg")}});
    ajouteFilm({{"Titre", "Seul"}});
    possede({{"Titre2", "'=Alien"}, {"Realisateur2", "-Scott"}, {"Support", "DVD"}, {"Divers", "@x"}});
    possede({{"Titre2", "'=Alien"}, {"Realisateur2", "-Scott"}, {"Support", "K7"}, {"Pret", "+Anne"}});
    possede({{"Titre2", "Parti"}, {"Realisateur2", "R"}});
    for (const int zone : {browse::kZoneTous, browse::kZoneMesFilms}) {
        liste(zone, browse::kTriTitre1);
        ASSERT_TRUE(exporte(kTableau, zone == browse::kZoneTous ? Etendue::Base : Etendue::Liste, "sortie.csv"));
        const Table table = litTableau(installation.lit("sortie.csv"));
        ASSERT_EQ(table.size(), zone == browse::kZoneTous ? 4u : 3u);
        EXPECT_EQ(table[0].front() + "|" + table[0][12] + "|" + table[0].back(), "Titre|Possédé|Fichier 3");
        const std::vector<std::string> film{"'=Alien", "-Scott", "1979",        "",   "", "", "", hostile, "",
                                            "8",       "",       "a \"b\".jpg", "oui"};
        for (std::size_t ligne : {1, 2}) {
            EXPECT_TRUE(std::equal(film.begin(), film.end(), table[ligne].begin())) << ligne;
            ASSERT_EQ(table[ligne].size(), exportation::kNombreDeChamps);
        }
        EXPECT_EQ(table[1][13] + table[1][18] + "|" + table[2][13] + table[2][15], "DVD@x|K7+Anne");
        if (zone == browse::kZoneTous) {
            EXPECT_EQ(table[3][0] + table[3][12], "Seul");
        }
    }
    ASSERT_TRUE(exporte(kTableau, Etendue::Base, "sortie.csv", Champs().met(Champ::Titre).met(Champ::Note)));
    EXPECT_EQ(installation.lit("sortie.csv"),
              "\uFEFF\"Titre\";\"Note\"\r\n\"''=Alien\";\"8\"\r\n\"''=Alien\";\"8\"\r\n\"Seul\";\"\"\r\n");
    EXPECT_EQ(avis(),
              "2 films exportés : " + installation.chemin("sortie.csv") + " 1 possession sans fiche n'y est pas.");
}

// What is exported is what is seen: zone, sort with its headings, filter; or the ticks; or the heading that is chosen.
TEST_F(Export, TheListingLeavesAsItIsShown) {
    for (const auto& [titre, genre] : std::vector<std::pair<std::string, std::string>>{
             {"Alien", "SF"}, {"Brazil", "SF"}, {"Charade", "Comédie"}, {"Dune", "SF"}})
        ajouteFilm({{"Titre", titre}, {"Realisateur", "R"}, {"Genre", genre}});
    const auto films = [&](Etendue etendue) {
        std::string texte;
        avec([&](const app::Contexte& c) {
            app::FilmsChoisis choix = app::filmsAExporter(c, etendue);
            exportation::LecteurDesFilms lecteur(c, choix.liste(c), choix.films, false);
            texte = choix.films.nom + " :";
            while (const auto film = lecteur.lit())
                texte += " " + film->valeur(Champ::Titre) +
                         (film->groupe < 0 ? "" : "/" + choix.films.groupes.at(static_cast<std::size_t>(film->groupe)));
        });
        return texte;
    };
    liste(browse::kZoneTous, browse::kTriGenre);
    EXPECT_EQ(films(Etendue::Liste), "Tous les films : Charade/Comédie Alien/SF Brazil/SF Dune/SF");
    avec([](const app::Contexte& c) {
        c.etats.filtre.saisie = "b";
        static_cast<void>(c.etats.filtre.titres.filtre(c, "a"));
    });
    EXPECT_EQ(films(Etendue::Liste), "Tous les films : Charade/Comédie Alien/SF Brazil/SF");
    EXPECT_EQ(films(Etendue::Base), "Tous les films : Alien Brazil Charade Dune");
    browse::VueArbre& vue = execution.etats.liste.TreeView1;
    vue.SelectedItem = parcours::noeud(execution.etats, "SF");
    EXPECT_EQ(films(Etendue::Choisis), "SF : Alien/SF Brazil/SF Dune/SF");
    vue.Checkboxes = true;
    vue.coches = {parcours::noeud(execution.etats, "Dune"), parcours::noeud(execution.etats, "Charade")};
    EXPECT_EQ(films(Etendue::Choisis), "Films cochés : Charade/Comédie Dune/SF");
    vue.Checkboxes = true;
    vue.coches = {parcours::noeud(execution.etats, "Dune"), parcours::noeud(execution.etats, "Charade")};
    avec([](const app::Contexte& c) {
        const app::OffreDExport offre = app::offreDExport(c);
        EXPECT_EQ(offre.liste + "|" + offre.choisis + "|" + offre.base,
                  "« Tous les films », 3 films|« Films cochés », 2 films|4 films");
    });
}

// A page says what the base says and nothing of it is markup: its one script is its own.
TEST_F(Export, ThePageShowsTextsAsTexts) {
    ajouteFilm({{"Titre", "<script>alert(1)</script>"},
                {"Realisateur", "\"><img src=x onerror=alert(1)>"},
                {"Genre", "</h2><style>"},
                {"Resume", "l'un\r\n& \xFF\x01\u202Ef"},
                {"Affiche", db::valeurAfficheDansLaBase(affiche)}});
    possede({{"Titre2", "<script>alert(1)</script>"},
             {"Realisateur2", "\"><img src=x onerror=alert(1)>"},
             {"Pret", "<i>"}});
    liste(browse::kZoneMesFilms, browse::kTriGenre);
    ASSERT_TRUE(exporte(kPage, Etendue::Liste, "sortie.html"));
    const std::string page = installation.lit("sortie.html");
    const auto combien = [&](std::string_view quoi) {
        std::size_t nombre = 0;
        for (std::size_t i = page.find(quoi); i != std::string::npos; i = page.find(quoi, i + 1))
            ++nombre;
        return nombre;
    };
    EXPECT_EQ(combien("<script"), 1u);
    EXPECT_EQ(combien("<style"), 1u);
    EXPECT_EQ(combien("<img "), 1u);
    EXPECT_TRUE(util::estUtf8(page));
    for (const char* morceau :
         {"<div><h3>&lt;script&gt;alert(1)&lt;/script&gt;</h3>", "<h2>&lt;/h2&gt;&lt;style&gt;</h2>",
          "l&#39;un\r\n&amp; \uFFFDf</p>", "Prêté à\u00A0: &lt;i&gt;", "<p class=\"sous\">1 film, le ",
          "width=\"208\" height=\"416\" src=\"data:image/jpeg;base64,/9ggb2N0ZXRz\""})
        EXPECT_EQ(combien(morceau), 1u) << morceau;
}

// Sheets and posters come back through the import as they were; what a sheet cannot say is told, film by film.
TEST_F(Export, SheetsAreImportedAgainAsTheSameFilms) {
    std::mt19937 hasard(20);
    const std::vector<std::string> morceaux{"Été", "œ", "日本",   "\r\n",   "\n",     "\t",   "<b>",
                                            "\"",  ";", " ",      "l'an",   "\u2019", "A",    "zz",
                                            "=a",  "é", "\u0301", "\u00A0", "\uFEFF", "/\\:*"};
    const auto texte = [&](std::size_t auPlus, bool simple) {
        std::string resultat;
        for (std::size_t i = hasard() % (auPlus + 1); i > 0; --i)
            resultat += simple ? "é;\u2019" : morceaux[hasard() % morceaux.size()];
        return resultat;
    };
    constexpr int kFilms = 300;
    std::map<std::string, std::map<std::string, std::string>> avant;
    std::vector<std::map<std::string, dao::Valeur>> tous;
    for (int i = 0; i < kFilms; ++i) {
        std::map<std::string, dao::Valeur> valeurs;
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
    ajouteFilms(tous);
    ASSERT_TRUE(exporte(kFiches, Etendue::Base, "sortie"));
    std::set<std::string> dits;  // the numbers of the films that remarks are made of
    std::istringstream remarques(installation.lit(std::string("sortie/") + exportation::kFichierRemarques));
    for (std::string ligne; std::getline(remarques, ligne);)
        if (const std::size_t fin = ligne.find(" - ");
            fin != std::string::npos && ligne.find(" : ") != std::string::npos)
            dits.insert(numeroDe(ligne.substr(0, fin)));
    EXPECT_TRUE(avis().ends_with("ne disent pas tout : voir « Remarques.txt »."));

    const Installation ailleurs;
    NonATout boites;
    Execution autre(ailleurs.chemin(), boites);
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
    const auto texte = [&](std::size_t auPlus) {
        std::string resultat;
        for (std::size_t i = hasard() % (auPlus + 1); i > 0; --i)
            resultat += morceaux[hasard() % morceaux.size()];
        return resultat;
    };
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
    std::vector<std::map<std::string, dao::Valeur>> tous;
    std::vector<std::map<std::string, std::string>> possessions;
    for (int i = 0; i < kFilms; ++i) {
        std::map<std::string, dao::Valeur> film;
        for (const char* champ : kDansLaFiche)
            film[champ] = texte(champ == std::string("Resume") ? 40 : 4);
        film["Titre"] = texte(4) + std::to_string(i);
        film["Realisateur"] = texte(3) + "R";
        if (i % 3 == 0) film["Note"] = dao::Valeur(static_cast<int>(hasard() % 10) + 1);
        if (i % 4 != 0) film["DateAjout"] = i % 4 == 1 ? "07/09/2009" : texte(2);
        for (int exemplaires = static_cast<int>(hasard() % 4); exemplaires > 0; --exemplaires) {
            std::map<std::string, std::string> possession{{"Titre2", film["Titre"].texte()},
                                                          {"Realisateur2", film["Realisateur"].texte()}};
            for (std::size_t n = exportation::kChampsDuFilm + 1; n < exportation::kNombreDeChamps; ++n)
                possession[exportation::kChamps[n].colonne] = texte(2);
            possessions.push_back(std::move(possession));
        }
        tous.push_back(std::move(film));
    }
    ajouteFilms(tous);
    possedeTous(possessions);
    ASSERT_TRUE(exporte(kTableau, Etendue::Base, "sortie.csv"));
    const Installation ailleurs;
    NonATout boites;
    Execution autre(ailleurs.chemin(), boites);
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

// Stopped, refused or failed, an export leaves everything as it was, and says so.
TEST_F(Export, WholeOrNotThere) {
    for (int i = 0; i < 5; ++i)
        ajouteFilm({{"Titre", "Film " + std::to_string(i)},
                    {"Realisateur", "R"},
                    {"Affiche", db::valeurAfficheDansLaBase(affiche)}});
    liste(browse::kZoneTous, browse::kTriTitre2);
    installation.ecrit("sortie/Film 1 - R.FILM", "à moi");
    installation.ecrit("sortie.csv", "avant");
    EXPECT_FALSE(exporte(kFiches, Etendue::Base, "sortie"));
    for (const auto format : {kTableau, kPage, kFiches}) {
        execution.ecran.souffles = 0;
        execution.ecran.arretApres = 3;
        EXPECT_FALSE(exporte(format, Etendue::Base, format == kFiches ? "sortie2" : "sortie.csv"));
        EXPECT_EQ(avis(), "Export arrêté : rien n'a été écrit.");
        execution.ecran.arretApres = 0;
        installation.ecrit("sortie3", "un fichier");
        EXPECT_FALSE(exporte(format, Etendue::Base, "sortie3/x"));
        EXPECT_TRUE(avis().starts_with("L'export vers ")) << avis();
    }
    EXPECT_EQ(noms(), (std::vector<std::string>{"sortie.csv", "sortie/Film 1 - R.FILM", "sortie3"}));
    EXPECT_EQ(installation.lit("sortie.csv"), "avant");
    EXPECT_EQ(installation.lit("sortie/Film 1 - R.FILM"), "à moi");
}

}  // namespace
