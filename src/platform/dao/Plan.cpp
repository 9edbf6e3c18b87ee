#include "platform/dao/Plan.h"

#include "platform/dao/Analyse.h"
#include "platform/dao/CleJet.h"
#include "platform/dao/Erreurs.h"

#include <algorithm>

namespace dao::interne {

namespace {

using Genre = Expression::Genre;

class Planificateur {
  public:
    Planificateur(Connexion& connexion, const Enonce& enonce) : m_enonce(enonce) {
        m_plan.tables.push_back({&connexion.table(enonce.table)});
        m_nomsDeTables.push_back(enonce.table);
        if (!enonce.jointure) return;
        m_plan.tables.push_back({&connexion.table(enonce.jointure->table)});
        m_nomsDeTables.push_back(enonce.jointure->table);
        m_plan.gauche = enonce.jointure->gauche;
    }

    Plan plan() {
        montre();
        if (m_enonce.jointure) joint(m_enonce.jointure->condition);
        m_plan.joinFilms = joinLesCles();
        if (m_enonce.condition) filtre(*m_enonce.condition);
        trie();
        departage();
        for (TableDuPlan& table : m_plan.tables)
            porteLaCle(table);
        chercheLeFilm();
        return std::move(m_plan);
    }

  private:
    const Table& table(int rang) const { return *m_plan.tables[static_cast<std::size_t>(rang)].table; }

    // The first table that has such a column, as it is written in most of the program's statements.
    ChampDeJeu trouve(const NomDeColonne& nom) const {
        for (int t = 0; t < static_cast<int>(m_plan.tables.size()); ++t) {
            if (!nom.table.empty() && !egalSansCasseAscii(nom.table, m_nomsDeTables[static_cast<std::size_t>(t)]))
                continue;
            const int colonne = table(t).rang(nom.nom);
            if (colonne >= 0) return {t, colonne};
        }
        jette(kErreurParametre, "Trop peu de paramètres. 1 attendu (« " + nom.nom + " » n'est pas un champ).");
    }

    Place lit(ChampDeJeu champ, std::size_t debut = 0) {
        auto& lues = m_plan.tables[static_cast<std::size_t>(champ.table)].lues;
        const auto connue = std::find_if(lues.begin(), lues.end(), [&](const ColonneLue& lue) {
            return lue.colonne == champ.colonne && lue.debut == debut;
        });
        if (connue != lues.end()) return {champ.table, static_cast<int>(connue - lues.begin())};
        lues.push_back({champ.colonne, debut, false});
        return {champ.table, static_cast<int>(lues.size()) - 1};
    }

    Place porte(ChampDeJeu champ) {
        const Place place = lit(champ);
        lue(place).portee = true;
        return place;
    }

    ColonneLue& lue(Place place) {
        return m_plan.tables[static_cast<std::size_t>(place.table)].lues[static_cast<std::size_t>(place.rang)];
    }

    void montre() {
        if (!m_enonce.colonnes.empty()) {
            for (const NomDeColonne& nom : m_enonce.colonnes)
                m_plan.champs.push_back(trouve(nom));
        } else {
            for (int t = 0; t < static_cast<int>(m_plan.tables.size()); ++t) {
                for (int c = 0; c < static_cast<int>(table(t).colonnes.size()); ++c)
                    m_plan.champs.push_back({t, c});
            }
        }
        m_plan.distinct = m_enonce.distinct;
        if (!m_plan.distinct) return;
        for (const ChampDeJeu champ : m_plan.champs)
            porte(champ);
    }

    void joint(const Expression& condition) {
        if (condition.genre == Genre::Et) {
            for (const Expression& terme : condition.termes)
                joint(terme);
            return;
        }
        const bool egalite = condition.genre == Genre::Egal && condition.termes[0].genre == Genre::Colonne &&
                             condition.termes[1].genre == Genre::Colonne;
        if (!egalite) jette(kErreurSyntaxe, "Expression de jointure non prise en charge.");
        Place gauche = lit(trouve(condition.termes[0].colonne));
        Place droite = lit(trouve(condition.termes[1].colonne));
        if (gauche.table == droite.table) jette(kErreurSyntaxe, "Expression de jointure non prise en charge.");
        if (gauche.table == 1) std::swap(gauche, droite);
        m_plan.egalites.emplace_back(gauche.rang, droite.rang);
        lue(droite).portee = true;  // rows that may join are compared by value
    }

    bool joinLesCles() {
        return std::all_of(m_plan.egalites.begin(), m_plan.egalites.end(), [this](const auto& egalite) {
            return table(0).estCle(lue({0, egalite.first}).colonne) &&
                   table(1).estCle(lue({1, egalite.second}).colonne);
        });
    }

    Condition lie(const Expression& expression) {
        Condition condition;
        condition.genre = expression.genre;
        condition.nombre = expression.nombre;
        if (expression.genre == Genre::Texte) {
            condition.texte = expression.texte;
            condition.cle = cleJet(expression.texte);
        }
        if (expression.genre == Genre::Colonne) condition.place = lit(trouve(expression.colonne));
        if (expression.genre == Genre::Comme && expression.termes[1].genre == Genre::Texte) {
            condition.motif = std::make_shared<Motif>(expression.termes[1].texte);
            if (expression.termes[0].genre == Genre::Colonne) return lieDebut(std::move(condition), expression);
        }
        for (const Expression& terme : expression.termes)
            condition.termes.push_back(lie(terme));
        if (expression.genre == Genre::Instr) plie(condition.termes[1].texte, condition.termes[1].plis);
        return condition;
    }

    // A pattern that only looks at a text's start must not have a whole poster read for it.
    Condition lieDebut(Condition condition, const Expression& expression) {
        Condition colonne;
        colonne.genre = Genre::Colonne;
        colonne.place = lit(trouve(expression.termes[0].colonne), condition.motif->octetsDecisifs());
        condition.termes.push_back(std::move(colonne));
        condition.termes.push_back(lie(expression.termes[1]));
        return condition;
    }

    void filtre(const Expression& expression) {
        if (expression.genre == Genre::Et) {
            for (const Expression& terme : expression.termes)
                filtre(terme);
            return;
        }
        Condition condition = lie(expression);
        const unsigned tables = condition.tables();
        if (tables <= 1) {
            m_plan.tables[0].filtres.push_back(std::move(condition));
        } else if (tables == 2 && !m_plan.gauche) {
            m_plan.tables[1].filtres.push_back(std::move(condition));
        } else {
            porteColonnes(condition);
            m_plan.filtresApres.push_back(std::move(condition));
        }
    }

    void porteColonnes(const Condition& condition) {
        if (condition.genre == Genre::Colonne && condition.place.table == 1) lue(condition.place).portee = true;
        for (const Condition& terme : condition.termes)
            porteColonnes(terme);
    }

    // A column of the second table that the join makes equal to one of the first orders as that one does.
    Place equivalente(Place place) const {
        if (place.table == 0 || m_plan.gauche) return place;
        for (const auto& [gauche, droite] : m_plan.egalites) {
            if (droite == place.rang) return {0, gauche};
        }
        return place;
    }

    void trie() {
        std::vector<Tri> tris = m_enonce.tris;
        for (const Tri& tri : tris)
            ajouteTri(trouve(tri.colonne), tri.decroissant, m_plan.distinct);
        if (!m_plan.distinct) return;
        for (const ChampDeJeu champ : m_plan.champs)
            ajouteTri(champ, false, false);  // equal rows become neighbours
    }

    void ajouteTri(ChampDeJeu champ, bool decroissant, bool exigeMontre) {
        const auto memeChamp = [&](const ChampDeJeu& autre) {
            return autre.table == champ.table && autre.colonne == champ.colonne;
        };
        if (exigeMontre && std::none_of(m_plan.champs.begin(), m_plan.champs.end(), memeChamp)) {
            jette(kErreurSyntaxe, "La clause ORDER BY est en conflit avec DISTINCT.");
        }
        const Place place = equivalente(porte(champ));
        const auto memePlace = [&](const TriDuPlan& tri) {
            return tri.place.table == place.table && tri.place.rang == place.rang;
        };
        if (std::any_of(m_plan.tris.begin(), m_plan.tris.end(), memePlace)) return;
        m_plan.tris.push_back(
            {place, table(champ.table).colonnes[static_cast<std::size_t>(champ.colonne)].numerique, decroissant});
    }

    // What the statement leaves equal stands by title, then by director.
    void departage() {
        if (m_plan.tris.empty() || m_plan.distinct || !table(0).aUneCle()) return;
        for (const int colonne : {table(0).titre, table(0).realisateur})
            m_plan.departages.push_back(porte({0, colonne}).rang);
    }

    void porteLaCle(TableDuPlan& tableDuPlan) {
        if (!tableDuPlan.table->aUneCle() || m_plan.distinct) return;
        const int rang = static_cast<int>(&tableDuPlan - m_plan.tables.data());
        porte({rang, tableDuPlan.table->titre});
        porte({rang, tableDuPlan.table->realisateur});
    }

    void chercheLeFilm() {
        if (m_plan.tables.size() != 1 || !table(0).aUneCle()) return;
        const Condition* titre = egalite(table(0).titre);
        const Condition* realisateur = egalite(table(0).realisateur);
        if (titre == nullptr || realisateur == nullptr) return;
        m_plan.film = FilmCherche{titre->termes[1].texte, realisateur->termes[1].texte};
        static const std::string kCleVide = cleJet("");
        if (titre->termes[1].cle != kCleVide && realisateur->termes[1].cle != kCleVide) return;
        m_plan.film->sansNul = m_plan.tables[0].filtres;
        for (Condition& filtre : m_plan.film->sansNul) {
            if (estEgaliteDeCle(filtre)) filtre.termes[0].nulEstVide = true;
        }
    }

    bool estEgaliteDeCle(const Condition& condition) {
        return condition.genre == Genre::Egal && condition.termes[0].genre == Genre::Colonne &&
               condition.termes[1].genre == Genre::Texte && table(0).estCle(lue(condition.termes[0].place).colonne);
    }

    // The filter that wants this column of the key to be a text.
    const Condition* egalite(int colonne) {
        for (const Condition& condition : m_plan.tables[0].filtres) {
            if (estEgaliteDeCle(condition) && lue(condition.termes[0].place).colonne == colonne) return &condition;
        }
        return nullptr;
    }

    const Enonce& m_enonce;
    Plan m_plan;
    std::vector<std::string> m_nomsDeTables;
};

}  // namespace

Plan planifie(Connexion& connexion, const Enonce& enonce) {
    return Planificateur(connexion, enonce).plan();
}

}  // namespace dao::interne
