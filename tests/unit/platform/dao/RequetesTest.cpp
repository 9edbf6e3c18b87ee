#include "BaseDEssai.h"
#include "platform/dao/CleJet.h"
#include "platform/dao/Comparaison.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <tuple>

// Every statement of the program, over rows made to trip it up, against a plain filter and sort in memory.
namespace {

using essais::BaseDEssai;
using Texte = std::optional<std::string>;

struct Film {
    Texte titre, realisateur, annee, genre, acteurs, affiche;
    std::optional<int> note;
};
struct Possession {
    Texte titre2, realisateur2, pret, support;
};

const std::vector<Film> kFilms{
    {"Note", "Titre", "1999", "drame", "Bleu nuit", "JPGnote.jpg", 10},
    {"a\"b", "x\"\"y", "2001", "Drame", "Jean \"Bleu\"", "STO\xff\xd8", 9},
    {"ORDER BY", "Realisateur = \"x\"", "199", "", "", "", {}},
    {"", "", "", {}, {}, {}, 2},
    {{}, {}, {}, "Été", "le BLEU", "STOjpg", {}},
    {"l'Été", "D'Été", "1999", "Éte", "bleuet", {}, 1},
    {"L'ete", "d'ete", "1999", "ete", {}, "jpgminuscule", 1},
    {"lEté", "dEté", "1999", "Comédie", "x", {}, 100},
    {"L'Œuvre au noir", "Delvaux", "1988", "comedie", "Bleu", {}, 3},
    {"l'oeuvre AU noir ", "delvaux", "1988", "Comédie", "bleu", {}, 4},
    {"Solaris", "Soderbergh", "2002", "SF", "Clooney, Bleu", {}, 5},
    {"Solaris", "Tarkovski", "1972", "SF", "🎬 Bleu", {}, 5},
};
const std::vector<Possession> kPossessions{
    {"NOTE", "titre", "", "DVD"},
    {"A\"B", "x\"\"y", "Paul", "K7"},
    {"", "", {}, "DVD"},
    {{}, {}, "Paul", "DVD"},
    {"L'ÉTÉ", "d'été", "", {}},
    {"Orphelin", "x", "", "DVD"},
    {"solaris", "TARKOVSKI", "", "dvd"},
    {"L'ŒUVRE au noir", "Delvaux", " ", "DVD"},
    {"order by", "Realisateur = \"X\"", "Zoé", "DivX"},
};

dao::Valeur valeur(const Texte& texte) {
    return texte ? dao::Valeur(*texte) : dao::Valeur();
}

struct BaseDesRequetes : BaseDEssai {
    BaseDesRequetes() {
        dao::Transaction transaction(base);
        for (const Film& f : kFilms) {
            const bool octets = f.affiche && f.affiche->starts_with("STO");
            ajoute("Films", {{"Titre", valeur(f.titre)},
                             {"Realisateur", valeur(f.realisateur)},
                             {"Annee", valeur(f.annee)},
                             {"Genre", valeur(f.genre)},
                             {"Acteurs", valeur(f.acteurs)},
                             {"DateAjout", "21/11/2026"},
                             {"Affiche", octets ? dao::Valeur::octets(*f.affiche) : valeur(f.affiche)},
                             {"Note", f.note ? dao::Valeur(*f.note) : dao::Valeur()}});
        }
        for (const Possession& p : kPossessions) {
            ajoute("Personnel", {{"Titre2", valeur(p.titre2)},
                                 {"Realisateur2", valeur(p.realisateur2)},
                                 {"Pret", valeur(p.pret)},
                                 {"Reserve", valeur(p.pret)},
                                 {"Support", valeur(p.support)}});
        }
        transaction.confirme();
    }
};

// Null first, then Jet's order.
std::string cle(const Texte& texte) {
    return texte ? dao::interne::cleJet(*texte) : "";
}
bool egaux(const Texte& a, const Texte& b) {
    return a && b && cle(a) == cle(b);
}

struct Ligne {
    std::size_t film;
    std::optional<std::size_t> possession;
};
using Cle = std::function<std::string(const Ligne&)>;
using Filtre = std::function<bool(const Ligne&)>;

const Film& film(const Ligne& ligne) {
    return kFilms[ligne.film];
}

enum class Source { Films, Possedes, FilmsAvecOuSans };

std::vector<Ligne> attendues(Source source, const Filtre& filtre, const Cle& cleDeTri) {
    std::vector<Ligne> lignes;
    for (std::size_t f = 0; f < kFilms.size(); ++f) {
        bool possede = false;
        for (std::size_t p = 0; source != Source::Films && p < kPossessions.size(); ++p) {
            if (!egaux(kFilms[f].titre, kPossessions[p].titre2) ||
                !egaux(kFilms[f].realisateur, kPossessions[p].realisateur2))
                continue;
            possede = true;
            lignes.push_back({f, p});
        }
        if (source == Source::Films || (source == Source::FilmsAvecOuSans && !possede)) lignes.push_back({f, {}});
    }
    std::erase_if(lignes, [&](const Ligne& ligne) { return filtre && !filtre(ligne); });
    const auto entiere = [&](const Ligne& ligne) {  // what the statement leaves equal stands by title and director
        return std::tuple(cleDeTri(ligne), cle(film(ligne).titre), cle(film(ligne).realisateur));
    };
    std::stable_sort(lignes.begin(), lignes.end(),
                     [&](const Ligne& a, const Ligne& b) { return entiere(a) < entiere(b); });
    return lignes;
}

const Possession& possession(const Ligne& ligne) {
    return kPossessions[*ligne.possession];
}
std::string parTitre(const Ligne& l) {
    return cle(film(l).titre);
}
std::string parRealisateur(const Ligne& l) {
    return cle(film(l).realisateur);
}
std::string parGenre(const Ligne& l) {
    return cle(film(l).genre) + '\0' + cle(film(l).titre);
}
std::string parNote(const Ligne& l) {
    std::string note;
    note.push_back(static_cast<char>(film(l).note.value_or(0)));
    return note;
}
std::string parNotePuisTitre(const Ligne& l) {
    return parNote(l).append(parTitre(l));
}
std::string parSupport(const Ligne& l) {
    return cle(possession(l).support) + '\0' + parTitre(l);
}

const std::string kJoint =
    "FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2";
const std::string kJointEntreParentheses =
    "FROM Films INNER JOIN Personnel ON (Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2)";
const std::string kSans =
    "FROM Films LEFT JOIN Personnel ON (Films.Realisateur = Personnel.Realisateur2) AND (Films.Titre = "
    "Personnel.Titre2)"
    " WHERE ((Personnel.Titre2) Is Null)";

bool contient(const Texte& texte, std::string_view cherche) {
    std::string plis;
    for (const char c : *texte)
        plis += c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return plis.find(cherche) != std::string::npos;
}

}  // namespace

TEST(Requetes, ListingsHaveTheRowsOfAPlainFilterInJetsOrder) {
    BaseDesRequetes essai;
    const Filtre bleu = [](const Ligne& l) {
        return film(l).titre && film(l).acteurs &&
               (contient(film(l).titre, "bleu") || contient(film(l).acteurs, "bleu"));
    };
    const auto pret = [](const Ligne& l) { return possession(l).pret; };
    struct Cas {
        std::string enonce;
        Source source;
        Cle tri;
        Filtre filtre = {};
    };
    const auto prete = [&](const Ligne& l) { return pret(l) && cle(*pret(l)) != cle(""); };
    const auto sans = [](const Ligne& l) { return !l.possession; };
    const std::vector<Cas> cas{
        {"SELECT * " + kJoint + " ORDER BY Titre ASC, Titre2 ASC", Source::Possedes, parTitre},
        {"SELECT * " + kJoint + " ORDER BY Realisateur2 ASC", Source::Possedes, parRealisateur},
        {"SELECT * " + kJoint + " ORDER BY Genre ASC, Titre2 ASC", Source::Possedes, parGenre},
        {"SELECT * " + kJoint + " ORDER BY Support ASC, Titre2 ASC", Source::Possedes, parSupport},
        {"SELECT * " + kJoint + " ORDER BY Note ASC, Titre2 ASC", Source::Possedes, parNotePuisTitre},
        {"SELECT * FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 and "
         "Films.realisateur=Personnel.realisateur2 ORDER BY genre asc, titre asc ;",
         Source::Possedes, parGenre},
        {"SELECT * " + kJointEntreParentheses + " WHERE Pret=\"\" ORDER BY Titre ASC, Titre2 ASC", Source::Possedes,
         parTitre, [&](const Ligne& l) { return pret(l) && !prete(l); }},
        {"SELECT * " + kJointEntreParentheses + " WHERE Pret<>\"\" ORDER BY Titre ASC, Titre2 ASC", Source::Possedes,
         parTitre, prete},
        {"SELECT * " + kJointEntreParentheses +
             " WHERE Reserve<>\"\" AND INSTR(Titre, \"bleu\")+INSTR(Acteurs, \"bleu\")>0 ORDER BY Titre ASC",
         Source::Possedes, parTitre, [&](const Ligne& l) { return prete(l) && bleu(l); }},
        {"SELECT * FROM Films ORDER BY Titre ASC", Source::Films, parTitre},
        {"SELECT * FROM films ORDER BY Titre ASC ;", Source::Films, parTitre},
        {"SELECT * FROM Films ORDER BY Note ASC", Source::Films, parNote},
        {"SELECT titre FROM films ORDER BY titre", Source::Films, parTitre},
        {"SELECT * FROM Films WHERE INSTR(Titre, \"Bleu\")+INSTR(Acteurs, \"Bleu\")>0 ORDER BY Titre ASC",
         Source::Films, parTitre, bleu},
        {"SELECT * FROM Films WHERE INSTR(Acteurs, \"\"\"bleu\"\"\")>0 ORDER BY Titre ASC", Source::Films, parTitre,
         [](const Ligne& l) { return film(l).titre == "a\"b"; }},
        {"SELECT * FROM Films WHERE INSTR(Annee, \"199\")>0 ORDER BY Titre ASC", Source::Films, parTitre,
         [](const Ligne& l) { return film(l).annee && film(l).annee->starts_with("199"); }},
        {"SELECT DISTINCTROW * " + kSans + " ORDER BY Note ASC, Titre2 ASC", Source::FilmsAvecOuSans, parNote, sans},
        {"SELECT DISTINCTROW * " + kSans +
             " AND INSTR(Titre, \"bleu\")+INSTR(Acteurs, \"bleu\")>0 ORDER BY Titre ASC, Titre2 ASC",
         Source::FilmsAvecOuSans, parTitre, [&](const Ligne& l) { return sans(l) && bleu(l); }},
        {"SELECT titre FROM films where Affiche like 'JPG*' order by titre", Source::Films, parTitre,
         [](const Ligne& l) {
             return contient(film(l).affiche.value_or(""), "jpg") && !film(l).affiche->starts_with("STO");
         }},
        {"SELECT titre FROM films where Affiche like 'STO*' order by titre", Source::Films, parTitre,
         [](const Ligne& l) { return film(l).affiche.value_or("").starts_with("STO"); }},
    };
    for (const Cas& c : cas) {
        const auto lignes = attendues(c.source, c.filtre, c.tri);
        EXPECT_FALSE(lignes.empty()) << c.enonce;
        dao::Recordset jeu = essai.base.OpenRecordset(c.enonce);
        ASSERT_EQ(jeu.RecordCount(), static_cast<long>(lignes.size())) << c.enonce;
        for (const Ligne& ligne : lignes) {
            EXPECT_EQ(jeu.valeur("TITRE"), valeur(film(ligne).titre)) << c.enonce;
            if (c.enonce.find('*') == std::string::npos || c.enonce.find("like") != std::string::npos) {
                EXPECT_EQ(jeu.valeur("Realisateur"), dao::Valeur("")) << "not listed";
            } else {
                EXPECT_EQ(jeu.valeur("realisateur"), valeur(film(ligne).realisateur)) << c.enonce;
                EXPECT_EQ(jeu.valeur("Acteurs"), valeur(film(ligne).acteurs)) << c.enonce;
            }
            const dao::Valeur support =
                c.source == Source::Possedes ? valeur(possession(ligne).support) : jeu.valeur("Support");
            EXPECT_EQ(jeu.valeur("support"), support) << c.enonce;
            jeu.MoveNext();
        }
        EXPECT_TRUE(jeu.Eof());
    }
}

TEST(Requetes, AFilmIsFoundByTitleAndDirectorInEveryWriting) {
    BaseDesRequetes essai;
    const auto guillemets = [](const std::string& texte) {
        std::string doubles = "\"";
        for (const char c : texte)
            doubles.append(c == '"' ? 2 : 1, c);
        return doubles + '"';
    };
    for (const Film& f : kFilms) {
        if (!f.titre) continue;
        const std::string t = guillemets(*f.titre);
        const std::string r = guillemets(*f.realisateur);
        std::vector<std::string> films;
        std::vector<std::string> possessions;
        for (const Film& autre : kFilms) {
            if (egaux(autre.titre, f.titre) && egaux(autre.realisateur, f.realisateur)) films.push_back(*autre.titre);
        }
        for (const Possession& p : kPossessions) {
            if (egaux(p.titre2, f.titre) && egaux(p.realisateur2, f.realisateur)) possessions.push_back(*p.titre2);
        }
        for (const std::string& enonce :
             {"SELECT * FROM films WHERE titre =" + t + " and Realisateur =" + r + " ORDER BY Titre ASC ;",
              "SELECT * FROM films WHERE titre =" + t + " AND Realisateur =  " + r + "ORDER BY Titre ASC ;",
              "SELECT * From Films WHERE Realisateur = " + r + " AND Titre = " + t + " ;",
              "SELECT * FROM Films WHERE Titre = " + t + " AND Realisateur = " + r +
                  " AND DateAjout = \"21/11/2026\""}) {
            EXPECT_EQ(essai.lit(enonce), films) << enonce;
        }
        const std::string enonce =
            "SELECT * FROM personnel WHERE titre2 =" + t + " and Realisateur2 =  " + r + "ORDER BY Titre2 ASC ;";
        EXPECT_EQ(essai.lit(enonce, "Titre2"), possessions) << enonce;
    }
    EXPECT_EQ(essai.lit("SELECT * FROM Films WHERE DateAjout = \"21/11/2026\"").size(), kFilms.size());
}

// What no text of a statement can name, the program writes as "".
TEST(Requetes, AFilmWithoutDirectorIsFoundByTheEmptyOne) {
    BaseDEssai essai;
    essai.ajoute("Films", {{"Titre", "Nuit et brouillard"}, {"Genre", "a"}});
    essai.ajoute("Films", {{"Realisateur", "Resnais"}, {"Genre", "b"}});
    essai.ajoute("Films", {{"Titre", "Muriel"}, {"Genre", "c"}});
    essai.ajoute("Films", {{"Titre", "Muriel"}, {"Realisateur", " "}, {"Genre", "d"}});
    essai.ajoute("Films", {{"Genre", "e"}});
    essai.ajoute("Personnel", {{"Titre2", "nuit ET brouillard"}, {"Realisateur2", ""}, {"Support", "DVD"}});
    essai.ajoute("Personnel", {{"Titre2", ""}, {"Realisateur2", "resnais"}, {"Support", "K7"}});
    essai.ajoute("Personnel", {{"Support", "of no film"}});
    const auto trouve = [&](const std::string& titre, const std::string& realisateur) {
        return essai.lit("SELECT * FROM films WHERE titre =\"" + titre + "\" and Realisateur =  \"" + realisateur +
                             "\"ORDER BY Titre ASC ;",
                         "Genre");
    };
    using Liste = std::vector<std::string>;
    EXPECT_EQ(trouve("NUIT et brouillard", ""), Liste{"a"});
    EXPECT_EQ(trouve("", "resnais"), Liste{"b"});
    EXPECT_EQ(trouve("Muriel", ""), Liste{"d"});  // whoever bears the very texts goes first
    EXPECT_EQ(trouve("Nuit et brouillard", "Resnais"), Liste{});
    EXPECT_EQ(essai.lit("SELECT * FROM Films WHERE Genre=\"\" AND Realisateur=\"\" AND Titre=\"Muriel\""), Liste{});
    EXPECT_EQ(essai.lit("SELECT * " + kJoint + " ORDER BY Support ASC", "Genre"), (Liste{"a", "b"}));
    EXPECT_EQ(essai.lit("SELECT DISTINCTROW * " + kSans + " ORDER BY Genre ASC", "Genre"), (Liste{"c", "d", "e"}));
    dao::Recordset film = essai.base.OpenRecordset(
        "SELECT * FROM films WHERE titre =\"Nuit et brouillard\" and Realisateur =\"\" ORDER BY Titre ASC ;");
    film.Edit();
    film.assigne("Realisateur", "Resnais");
    film.Update();
    EXPECT_EQ(trouve("Nuit et brouillard", ""), Liste{});
    EXPECT_EQ(trouve("Nuit et brouillard", "Resnais"), Liste{"a"});
}

TEST(Requetes, TiesStandByTitleThenDirectorThenRow) {
    BaseDEssai essai;
    const std::string longue(5'000'000, 'e');
    for (const auto& [titre, realisateur, genre] :
         std::vector<std::tuple<std::string, std::string, std::string>>{{"Solaris", "Tarkovski", "SF"},
                                                                        {"Été", "x", "sf "},
                                                                        {"Solaris", "Soderbergh", "SF"},
                                                                        {longue, "x", "SF"},
                                                                        {"Ête", "x", "SF"},
                                                                        {"solaris ", "soderbergh", "sf"},
                                                                        {"Zorro", "x", "Aventure"}})
        essai.ajoute("Films", {{"Titre", titre}, {"Realisateur", realisateur}, {"Genre", genre}});
    EXPECT_EQ(essai.lit("SELECT * FROM Films ORDER BY Genre ASC", "id"),
              (std::vector<std::string>{"7", "4", "2", "5", "3", "6", "1"}));
    EXPECT_EQ(essai.lit("SELECT * FROM Films ORDER BY Titre ASC", "id"),
              (std::vector<std::string>{"4", "2", "5", "3", "6", "1", "7"}));
    EXPECT_EQ(essai.lit("SELECT * FROM Films WHERE INSTR(Titre, \"EEEE\")>0 ORDER BY Genre ASC", "id"),
              std::vector<std::string>{"4"});
}

TEST(Requetes, DistinctListsKeepTheFirstOfEqualValues) {
    BaseDesRequetes essai;
    using Liste = std::vector<std::string>;
    EXPECT_EQ(essai.lit("SELECT DISTINCT genre FROM films where genre<>\"\" ORDER BY Genre ASC ;", "Genre"),
              (Liste{"comedie", "Comédie", "drame", "ete", "Éte", "Été", "SF"}));
    EXPECT_EQ(essai.lit("SELECT DISTINCT pret FROM personnel ORDER BY pret ASC ;", "pret"),
              (Liste{"(Null)", "", "Paul", "Zoé"}));
    EXPECT_EQ(essai.lit("SELECT DISTINCT support FROM personnel ORDER BY support ASC ;", "support"),
              (Liste{"(Null)", "DivX", "DVD", "K7"}));
    EXPECT_EQ(essai.lit("SELECT DISTINCT origine  FROM films where origine<>\"\" ORDER BY origine ASC ;", "origine"),
              Liste{});
}

TEST(Requetes, TheFirstOfEqualValuesIsTheLowestRow) {
    BaseDEssai essai;  // its index is read in the order of titles
    essai.ajoute("Films", {{"Titre", "c"}, {"Genre", "drame"}});
    essai.ajoute("Films", {{"Titre", "b"}, {"Genre", "Drame"}});
    essai.ajoute("Films", {{"Titre", "a"}, {"Genre", "drame"}});
    EXPECT_EQ(essai.lit("SELECT DISTINCT genre FROM films ORDER BY Genre ASC ;", "genre"),
              std::vector<std::string>{"drame"});
}

TEST(Requetes, StatementsWithoutOrderComeInRowOrder) {
    BaseDesRequetes essai;
    std::vector<std::string> titres;
    for (const Possession& p : kPossessions)
        titres.push_back(p.titre2.value_or("(Null)"));
    EXPECT_EQ(essai.lit("SELECT * From Personnel ", "Titre2"), titres);
    EXPECT_EQ(essai.lit("SELECT * FROM Personnel order by titre2;", "Titre2").size(), titres.size());
}

namespace {

struct BaseNombreuse : BaseDEssai {
    explicit BaseNombreuse(int films) {
        base.Execute(std::string(R"(
CREATE TABLE mots (n, mot);
INSERT INTO mots VALUES (0,'L''Été'),(1,'La Mer'),(2,'l''étape'),(3,'Œdipe'),(4,'oe'),(5,'Zorro'),(6,'été '),(7,NULL),(8,'Ça'),(9,'d''or');
INSERT INTO Films (Titre, Realisateur, Genre, Note, Acteurs, Annee)
  WITH RECURSIVE r(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM r WHERE i < )") +
                     std::to_string(films) + R"()
  SELECT a.mot || ' ' || (i * 48271 % 2000), b.mot, c.mot, i * 7919 % 11, 'x', printf('%05d', i) FROM r
    JOIN mots a ON a.n = i * 31 % 10 JOIN mots b ON b.n = i * 17 % 7 JOIN mots c ON c.n = i * 13 % 9 ORDER BY i;
DROP TABLE mots;
INSERT INTO Personnel (Titre2, Realisateur2, Support, Pret)
  SELECT upper(Titre), Realisateur, Note % 3, CASE Note WHEN 1 THEN 'Zoé' ELSE '' END FROM Films WHERE Note % 2;)");
    }
};

}  // namespace

// Of more rows than are ordered in one go: read in the order of the index, and in no order.
TEST(Requetes, ManyRowsStandAsTheirWholeKeysDo) {
    BaseNombreuse essai(20000);
    const auto cle = [](const dao::Recordset& films, dao::Colonne champ) {
        const std::string texte(films.vue(champ));
        return dao::cleDeComparaison(texte);
    };
    const std::array<std::string_view, 2> portees{"Annee", "Note"};
    for (const std::string enonce :
         {"ORDER BY Titre", "ORDER BY Genre", "ORDER BY Note", "WHERE INSTR(Acteurs, \"x\")>0 ORDER BY Titre",
          "WHERE INSTR(Acteurs, \"x\")>0 ORDER BY Genre"}) {
        dao::Recordset films = essai.base.OpenRecordset("SELECT * FROM Films " + enonce, portees);
        const auto tri = films.colonne(enonce.substr(enonce.rfind(' ') + 1));
        const auto titre = films.colonne("Titre"), realisateur = films.colonne("Realisateur");
        const auto numero = films.colonne("Annee"), note = films.colonne("Note");
        std::vector<std::tuple<int, std::string, std::string, std::string, std::string>> cles;
        for (; !films.Eof(); films.MoveNext()) {
            const bool parNote = enonce.ends_with("Note");
            cles.emplace_back(parNote ? std::stoi(std::string(films.vue(note))) : 0, parNote ? "" : cle(films, tri),
                              cle(films, titre), cle(films, realisateur), films.vue(numero));
        }
        EXPECT_EQ(cles.size(), 20000U);
        EXPECT_TRUE(std::is_sorted(cles.begin(), cles.end())) << enonce;
    }
}

TEST(Requetes, TheSameRowsInAnotherOrderAreTakenOverAsTheyWouldBeRead) {
    BaseNombreuse essai(1200);
    const std::array<std::string_view, 2> portees{"Note", "Annee"};
    long souffles = 0;
    essai.base.respireAvec([&souffles] { ++souffles; });
    const auto lignes = [](dao::Recordset& jeu) {
        std::vector<std::string> textes;
        std::array<dao::Colonne, 6> colonnes{jeu.colonne("Titre"), jeu.colonne("Realisateur"), jeu.colonne("Annee"),
                                             jeu.colonne("Genre"), jeu.colonne("Note"),        jeu.colonne("Support")};
        for (jeu.MoveFirst(); !jeu.Eof(); jeu.MoveNext()) {
            std::string& texte = textes.emplace_back();
            for (const dao::Colonne colonne : colonnes)
                texte.append(jeu.vue(colonne)).append("|");
        }
        return textes;
    };
    const auto exigeLaMeme = [&](const std::string& enonce, dao::Recordset& precedent, bool reprise) {
        souffles = 0;
        dao::Recordset autre = essai.base.OpenRecordset(enonce, portees, precedent);
        const long deLAutre = souffles;
        dao::Recordset lue = essai.base.OpenRecordset(enonce, portees);
        const bool seLit = enonce.find("Genre") != std::string::npos || enonce.find("Duree") != std::string::npos ||
                           enonce.find("Support") != std::string::npos;
        if (!reprise) {
            EXPECT_GE(deLAutre, 4) << enonce;
        } else if (!seLit) {
            EXPECT_LE(deLAutre, 1) << "nothing is read: " << enonce;
        }
        EXPECT_EQ(lignes(autre), lignes(lue)) << enonce;
        precedent = std::move(autre);
    };
    const std::vector<std::string> tris{"Titre", "Annee", "Realisateur", "Genre", "Note", "Titre", "Note", "Duree"};
    const std::vector<std::string> origines{"FROM Films%", kJoint + "%, Titre2 ASC",
                                            kJointEntreParentheses + " WHERE Pret=\"\"%, Titre2 ASC",
                                            kSans + "%, Titre2 ASC", "FROM Films WHERE INSTR(Titre, \"mer\")>0%"};
    const auto enonce = [](std::string origine, const std::string& tri) {
        return "SELECT * " + origine.replace(origine.find('%'), 1, " ORDER BY " + tri + " ASC");
    };
    dao::Recordset jeu;
    for (const std::string& origine : origines) {
        exigeLaMeme(enonce(origine, "Genre"), jeu, false);
        for (const std::string& tri : tris)
            exigeLaMeme(enonce(origine, tri), jeu, true);
    }
    jeu = essai.base.OpenRecordset(enonce(origines[1], "Support"), portees);
    for (const char* tri : {"Titre", "Support", "Realisateur2", "Support"})
        exigeLaMeme(enonce(origines[1], tri), jeu, true);
    jeu.MoveFirst();
    jeu.Edit();
    jeu.assigne("Genre", "À part");
    jeu.Update();
    exigeLaMeme(enonce(origines[1], "Genre"), jeu, false);
    exigeLaMeme(enonce(origines[1], "Note"), jeu, true);
    essais::AutreProgramme(essai.chemin).execute("UPDATE Films SET Note = 5 WHERE Note = 3");
    exigeLaMeme(enonce(origines[1], "Titre"), jeu, false);
    jeu.allege();
    exigeLaMeme(enonce(origines[1], "Note"), jeu, false);
}

TEST(Requetes, ATableIsWalkedInSlicesThatPartNoValue) {
    BaseDEssai essai;
    const std::vector<std::string> titres{"a", "a", "b", "b", "b", "c", "é"};
    essai.possede("", "sans");
    for (const std::string& titre : titres)
        essai.possede(titre, titre + "2");
    essai.ajoute("Personnel", {{"Realisateur2", "Null"}});
    essai.ajoute("Personnel", {{"Realisateur2", "Null aussi"}});
    for (const std::size_t lignes : {1, 2, 4, 100}) {
        dao::Database::Parcours parcours;
        std::vector<std::string> lus;
        const std::array<std::string_view, 2> champs{"Titre2", "Realisateur2"};
        int tranches = 1;
        while (essai.base.litTranche("Personnel", champs, parcours, lignes,
                                     [&](auto ligne) { lus.push_back(ligne[0] + "/" + ligne[1]); }))
            ++tranches;
        EXPECT_EQ(lus, (std::vector<std::string>{"/Null", "/Null aussi", "/sans", "a/a2", "a/a2", "b/b2", "b/b2",
                                                 "b/b2", "c/c2", "é/é2"}));
        EXPECT_EQ(tranches, lignes == 1 ? 6 : lignes == 2 ? 4 : lignes == 4 ? 3 : 1);
        EXPECT_FALSE(essai.base.litTranche("Personnel", champs, parcours, lignes, [](auto) { FAIL(); }));
    }
}

TEST(Requetes, ErrorsSayWhatIsWrong) {
    BaseDesRequetes essai;
    const auto numero = [&](std::string_view enonce) {
        return essais::numeroErreur([&] { (void)essai.base.OpenRecordset(enonce); });
    };
    EXPECT_EQ(numero("Filmes"), dao::kErreurTableIntrouvable);
    EXPECT_EQ(numero("SELECT * FROM Filmes"), dao::kErreurTableIntrouvable);
    EXPECT_EQ(numero("SELECT * FROM Films ORDER BY Titr"), dao::kErreurParametre);
    EXPECT_EQ(numero("SELECT * FROM Films WHERE Personnel.Titre2 = \"x\""), dao::kErreurParametre);
    for (const auto enonce :
         {"DELETE FROM Films", "SELECT * FROM Films WHERE", "SELECT * FROM Films WHERE Titre = \"x",
          "SELECT * FROM Films WHERE (Titre = 1", "SELECT * FROM Films; DROP TABLE Films",
          "SELECT * FROM Films ORDER Titre", "SELECT * FROM Films INNER JOIN Personnel ON Titre < Titre2",
          "SELECT * FROM Films WHERE Titre % 2", "SELECT DISTINCT Titre FROM Films ORDER BY Genre"}) {
        EXPECT_EQ(numero(enonce), dao::kErreurSyntaxe) << enonce;
    }
    for (const std::string condition :
         {"NOT Titre = \"x\"", "Titre = \"x\" OR Annee = \"y\"", "[Titre] = \"x\"", "Titre < \"x\"",
          "Titre LIKE \"a*b\"", "Titre LIKE \"a[b]*\"", "Titre LIKE \"\"", "Titre LIKE \"*\"", "INSTR(Titre, \"x\")",
          "Titre = Annee", "Note = 5", "INSTR(Titre, \"x\")-INSTR(Annee, \"x\")>0",
          "INSTR(Titre, \"x\")+INSTR(Annee, \"y\")>0", "(Titre = \"x\"))",
          "Titre = \"x\" ORDER BY Titre DESC"})  // refused, and not taken for something else
        EXPECT_EQ(numero("SELECT * FROM Films WHERE " + condition), dao::kErreurSyntaxe) << condition;
    EXPECT_EQ(numero("SELECT * " + kSans + " AND Pret = \"x\""), dao::kErreurSyntaxe);
    EXPECT_EQ(numero("SELECT * " + kJoint + " WHERE INSTR(Titre, \"x\")+INSTR(Pret, \"x\")>0"), dao::kErreurSyntaxe);
    EXPECT_EQ(numero("SELECT * FROM Films WHERE " + std::string(100000, '(')), dao::kErreurSyntaxe);
}
