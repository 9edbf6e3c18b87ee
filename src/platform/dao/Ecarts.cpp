#include "platform/dao/Ecarts.h"

#include "platform/dao/Comparaison.h"
#include "platform/dao/LectureSeule.h"
#include "util/Texte.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace dao {

namespace {

using interne::Poignee;

constexpr const char* kPaire = "INSERT INTO paires VALUES(?1, ?2)";
constexpr std::size_t kNomMontre = 200;  // characters
constexpr int kOctetsCompares = 1024;    // of a blob; a longer one is a poster

struct Demande {
    std::string table, titre, realisateur;
    std::size_t premieres;
};

std::string nomDe(const std::string& titre, const std::string& realisateur) {
    const std::string debut = util::coupe(titre, kNomMontre);
    return realisateur.empty() ? debut : debut + " - " + util::coupe(realisateur, kNomMontre);
}

void note(LotDeLignes& lot, std::string nom, std::size_t premieres) {
    ++lot.nombre;
    if (lot.premieres.size() < premieres) lot.premieres.push_back(std::move(nom));
}

void parcourt(Poignee& base, const std::string& schema, const Demande& demande, const auto& recoit) {
    interne::Requete lignes = base.prepare("SELECT _rowid_, " + demande.titre + ", " + demande.realisateur + " FROM " +
                                           schema + "." + demande.table + " ORDER BY 2, 3, 1");
    while (lignes.avance()) {
        const std::string titre = lignes.valeur(1).texte(), realisateur = lignes.valeur(2).texte();
        recoit(cleDeComparaison(titre) + '\0' + cleDeComparaison(realisateur), lignes.entier(0),
               nomDe(titre, realisateur));
    }
}

// Puts the rows that go together into the table of pairs; the others are told.
void apparie(Poignee& base, const Demande& demande, Ecarts& ecarts) {
    std::unordered_map<std::string, std::deque<std::int64_t>> ici;
    parcourt(base, "ici", demande,
             [&](std::string cle, std::int64_t ligne, const std::string&) { ici[std::move(cle)].push_back(ligne); });
    base.execute("CREATE TEMP TABLE paires(la INTEGER PRIMARY KEY, ici INTEGER); BEGIN");
    parcourt(base, "main", demande, [&](const std::string& cle, std::int64_t ligne, std::string nom) {
        const auto autres = ici.find(cle);
        if (autres == ici.end() || autres->second.empty())
            return note(ecarts.seulementLa, std::move(nom), demande.premieres);
        base.prepare(kPaire).lie(1, ligne).lie(2, autres->second.front()).execute();
        autres->second.pop_front();
    });
    std::unordered_set<std::int64_t> restantes;
    for (const auto& [cle, lignes] : ici)
        restantes.insert(lignes.begin(), lignes.end());
    parcourt(base, "ici", demande, [&](const std::string&, std::int64_t ligne, std::string nom) {
        if (restantes.contains(ligne)) note(ecarts.seulementIci, std::move(nom), demande.premieres);
    });
}

// The columns that both have, but for the row's own number: "a.X IS NOT b.X OR ...".
std::string condition(Poignee& base, const Demande& demande) {
    const auto colonnes = [&](const char* schema) {
        return base.textes("SELECT lower(name) FROM pragma_table_info('" + demande.table + "', '" + schema +
                           "') WHERE NOT pk");
    };
    const std::vector<std::string> autres = colonnes("ici");
    std::string texte = "0";
    for (const std::string& nom : colonnes("main")) {
        if (std::ranges::count(autres, nom) == 0 || nom.find('"') != std::string::npos) continue;
        const std::string a = "a.\"" + nom + "\"", b = "b.\"" + nom + "\"";
        texte += " OR CASE WHEN typeof(" + a + ")='blob' AND length(" + a + ")>" + std::to_string(kOctetsCompares) +
                 " THEN length(" + a + ") IS NOT length(" + b + ") ELSE " + a + " IS NOT " + b + " END";
    }
    return texte;
}

void compare(Poignee& base, const Demande& demande, LotDeLignes& differentes) {
    interne::Requete lignes =
        base.prepare("SELECT a." + demande.titre + ", a." + demande.realisateur + " FROM temp.paires p JOIN main." +
                     demande.table + " a ON a._rowid_=p.la JOIN ici." + demande.table + " b ON b._rowid_=p.ici WHERE " +
                     condition(base, demande) + " ORDER BY 1, 2");
    while (lignes.avance()) {
        note(differentes, nomDe(lignes.valeur(0).texte(), lignes.valeur(1).texte()), demande.premieres);
    }
}

}  // namespace

Ecarts ecarts(const std::string& la, const std::string& ici, const std::string& table, const std::string& titre,
              const std::string& realisateur, std::size_t premieres) {
    const Demande demande{table, titre, realisateur, premieres};
    (void)interne::ouvreEnLecture(ici);  // it is one of ours
    Poignee base = interne::ouvreEnLecture(la);
    base.prepare("ATTACH ?1 AS ici").lie(1, ici).execute();
    Ecarts resultat;
    apparie(base, demande, resultat);
    compare(base, demande, resultat.differentes);
    return resultat;
}

}  // namespace dao
