#include "unit/app/Export.h"
#include "util/Csv.h"
#include "util/Texte.h"

namespace {

using app::Etendue;
using exportation::Champ;
using exportation::Champs;
using Table = std::vector<std::vector<std::string>>;

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
    const auto coche = [&] {  // until the next command
        vue.Checkboxes = true;
        vue.coches = {parcours::noeud(execution.etats, "Dune"), parcours::noeud(execution.etats, "Charade")};
    };
    coche();
    EXPECT_EQ(films(Etendue::Choisis), "Films cochés : Charade/Comédie Dune/SF");
    coche();
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
