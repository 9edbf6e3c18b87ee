#include "platform/dao/Plan.h"

#include "platform/dao/CleJet.h"
#include "platform/dao/Erreurs.h"
#include "util/Ascii.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>

namespace dao::interne {

namespace {

// What SQLite is asked, by the kind of test.
const std::array<std::string, 4> kTests{"egal_jet(?", "NOT egal_jet(?", "contient_jet(?", "commence_jet(?"};

class Planificateur {
  public:
    Planificateur(Connexion& connexion, const Enonce& enonce) : m_enonce(enonce) {
        ajouteTable(connexion, enonce.table);
        if (!enonce.jointure) return;
        ajouteTable(connexion, enonce.jointure->table);
        m_plan.gauche = enonce.jointure->gauche;
    }

    Plan plan(std::span<const std::string_view> portees) {
        montre();
        if (m_enonce.jointure) joint(*m_enonce.jointure);
        for (const Terme& terme : m_enonce.termes)
            filtre(terme);
        trie();
        departage();
        for (const RangTable rang : m_plan.tables.rangs())
            gardeLaCle(rang);
        for (const std::string_view nom : portees)
            porte(nom);
        chercheLaCle();
        return std::move(m_plan);
    }

  private:
    void ajouteTable(Connexion& connexion, const std::string& nom) {
        m_plan.tables.push_back({&connexion.table(nom)});
        m_noms.push_back(nom);
    }

    const Table& table(RangTable rang) const { return *m_plan.tables[rang].table; }

    // The first table that has such a column, as it is written in most of the program's statements.
    ChampDeJeu trouve(const NomDeColonne& nom) const {
        for (const RangTable rang : m_plan.tables.rangs()) {
            if (!nom.table.empty() && !util::egalSansCasseAscii(nom.table, m_noms[rang])) continue;
            if (const auto colonne = table(rang).rang(nom.nom)) return {rang, *colonne};
        }
        jette(kErreurParametre, "Trop peu de paramètres. 1 attendu (« " + nom.nom + " » n'est pas un champ).");
    }

    ColonneDuPlan lit(ChampDeJeu champ) {
        auto& lues = m_plan.tables[champ.table].lues;
        const auto connue = std::find(lues.begin(), lues.end(), champ.colonne);
        if (connue == lues.end()) return {champ.table, lues.ajoute(champ.colonne)};
        return {champ.table, static_cast<RangLu>(connue - lues.begin())};
    }

    void montre() {
        for (const NomDeColonne& nom : m_enonce.colonnes)
            m_plan.champs.push_back(trouve(nom));
        for (const RangTable rang : m_plan.tables.rangs()) {
            for (const RangColonne colonne : table(rang).colonnes.rangs()) {
                if (m_enonce.colonnes.empty()) m_plan.champs.push_back({rang, colonne});
            }
        }
        m_plan.distinct = m_enonce.distinct;
        if (!m_plan.distinct) return;
        for (const ChampDeJeu champ : m_plan.champs)
            lit(champ);
    }

    void joint(const Jointure& jointure) {
        m_plan.joinCles = true;
        for (const auto& [une, autre] : jointure.egalites) {
            ChampDeJeu gauche = trouve(une), droite = trouve(autre);
            if (gauche.table == droite.table) jette(kErreurSyntaxe, "Expression de jointure non prise en charge.");
            if (gauche.table == kSeconde) std::swap(gauche, droite);
            m_plan.egalites.emplace_back(lit(gauche).rang, lit(droite).rang);
            m_plan.joinCles =
                m_plan.joinCles && table(kPremiere).estCle(gauche.colonne) && table(kSeconde).estCle(droite.colonne);
        }
    }

    void filtre(const Terme& terme) {
        const ChampDeJeu premier = trouve(terme.colonnes.front());
        for (const NomDeColonne& colonne : terme.colonnes) {
            if (trouve(colonne).table != premier.table) jetteCondition();
        }
        if (premier.table == kPremiere || !m_plan.gauche) return exige(terme, premier.table);
        if (terme.epreuve != Terme::Epreuve::EstNul) jetteCondition();
        m_plan.nulles.push_back(lit(premier).rang);
    }

    [[noreturn]] static void jetteCondition() {
        jette(kErreurSyntaxe, "Condition non prise en charge dans une jointure.");
    }

    // Has SQLite judge the term.
    void exige(const Terme& terme, RangTable rang) {
        const Table& lue = table(rang);
        const RangColonne premiere = trouve(terme.colonnes.front()).colonne;
        const std::string colonne = lue.colonneSql(premiere);
        if (terme.epreuve == Terme::Epreuve::EstNul) return ajouteTest(rang, colonne + " IS NULL");
        auto& textes = m_plan.tables[rang].parametres;
        textes.emplace_back(terme.texte);
        const std::string debut = kTests[static_cast<std::size_t>(terme.epreuve)] + std::to_string(textes.size() + 1);
        if (terme.epreuve == Terme::Epreuve::CommencePar) {
            return ajouteTest(rang, debut + ",typeof(" + colonne + ")," + litteral(lue.nom) + "," +
                                        litteral(lue.colonnes[premiere].nom) + "," + lue.ligneSql + ")");
        }
        std::string test = debut;
        for (const NomDeColonne& nom : terme.colonnes)
            test.append(",").append(lue.colonneSql(trouve(nom).colonne));
        const bool deCle = terme.epreuve == Terme::Epreuve::Egal && lue.estCle(premiere);
        ajouteTest(rang, test + ")", deCle ? debut + ",coalesce(" + colonne + ",''))" : "");
    }

    static std::string litteral(const std::string& nom) {
        return std::string("'").append(util::remplace(nom, "'", "''")).append("'");
    }

    // `sansNul`: the test with Null taken for "", where that is another one.
    void ajouteTest(RangTable rang, const std::string& test, const std::string& sansNul = "") {
        std::string& condition = m_plan.tables[rang].condition;
        condition.append(condition.empty() ? "" : " AND ").append(test);
        m_sansNul.append(m_sansNul.empty() ? "" : " AND ").append(sansNul.empty() ? test : sansNul);
    }

    // A column of the second table that the join makes equal to one of the first orders as that one does.
    ColonneDuPlan equivalente(ColonneDuPlan colonne) const {
        if (colonne.table == kPremiere || m_plan.gauche) return colonne;
        for (const auto& [gauche, droite] : m_plan.egalites) {
            if (droite == colonne.rang) return {kPremiere, gauche};
        }
        return colonne;
    }

    void trie() {
        for (const NomDeColonne& tri : m_enonce.tris) {
            const ChampDeJeu champ = trouve(tri);
            if (m_plan.distinct && std::find(m_plan.champs.begin(), m_plan.champs.end(), champ) == m_plan.champs.end())
                jette(kErreurSyntaxe, "La clause ORDER BY est en conflit avec DISTINCT.");
            ajouteTri(champ);
        }
        if (!m_plan.distinct) return;
        for (const ChampDeJeu champ : m_plan.champs)
            ajouteTri(champ);  // equal rows become neighbours
    }

    bool estToujoursNulle(ColonneDuPlan colonne) const {
        return colonne.table == kSeconde && std::ranges::find(m_plan.nulles, colonne.rang) != m_plan.nulles.end();
    }

    void ajouteTri(ChampDeJeu champ) {
        const ColonneDuPlan colonne = equivalente(lit(champ));
        for (const TriDuPlan& tri : m_plan.tris) {
            if (tri.colonne == colonne) return;
        }
        if (!m_plan.tris.empty() && estToujoursNulle(colonne)) return;
        m_plan.tris.push_back({colonne, table(champ.table).colonnes[champ.colonne].numerique});
    }

    // What the statement leaves equal stands by the first table's key.
    void departage() {
        const auto& cle = table(kPremiere).cle;
        if (m_plan.tris.empty() || m_plan.distinct || !cle) return;
        for (const RangColonne colonne : {cle->premiere, cle->seconde})
            m_plan.departages.push_back(lit({kPremiere, colonne}).rang);
    }

    void gardeLaCle(RangTable rang) {
        const auto& cle = table(rang).cle;
        if (!cle || m_plan.distinct) return;
        lit({rang, cle->premiere});
        lit({rang, cle->seconde});
    }

    void porte(std::string_view nom) {
        for (const RangTable rang : m_plan.tables.rangs())
            if (const auto colonne = table(rang).rang(nom); colonne && !m_plan.distinct) lit({rang, *colonne});
    }

    void chercheLaCle() {
        const auto& cle = table(kPremiere).cle;
        if (m_plan.tables.size() != 1 || !cle) return;
        const Terme* premiere = egalite(cle->premiere);
        const Terme* seconde = egalite(cle->seconde);
        if (premiere == nullptr || seconde == nullptr) return;
        m_plan.cle = CleCherchee{premiere->texte, seconde->texte};
        static const std::string kCleVide = cleJet("");
        if (cleJet(premiere->texte) == kCleVide || cleJet(seconde->texte) == kCleVide) m_plan.cle->sansNul = m_sansNul;
    }

    // The first term that wants this column to be a text.
    const Terme* egalite(RangColonne colonne) const {
        for (const Terme& terme : m_enonce.termes) {
            if (terme.epreuve == Terme::Epreuve::Egal && trouve(terme.colonnes.front()).colonne == colonne)
                return &terme;
        }
        return nullptr;
    }

    const Enonce& m_enonce;
    Plan m_plan;
    Par<RangTable, std::string> m_noms;
    std::string m_sansNul;  // of the first table's condition
};

// The columns by which rows are told apart, each once.
std::vector<TriDuPlan> ordreEntier(const Plan& plan) {
    std::vector<TriDuPlan> ordre = plan.tris;
    for (const RangLu rang : plan.departages) {
        const ColonneDuPlan colonne{kPremiere, rang};
        const auto connue = [colonne](const TriDuPlan& tri) { return tri.colonne == colonne; };
        if (std::none_of(ordre.begin(), ordre.end(), connue)) ordre.push_back({colonne});
    }
    return ordre;
}

std::vector<TriDuPlan> ordreDeLaCle(const Plan& plan) {
    std::vector<TriDuPlan> ordre;
    for (const RangLu rang : plan.departages)
        ordre.push_back({{kPremiere, rang}});
    return ordre;
}

bool memesColonnes(const TableDuPlan& une, std::span<const RangLu> siennes, const TableDuPlan& autre,
                   std::span<const RangLu> leurs) {
    return std::equal(siennes.begin(), siennes.end(), leurs.begin(), leurs.end(),
                      [&](RangLu a, RangLu b) { return une.lues[a] == autre.lues[b]; });
}

bool memesJointures(const Plan& un, const Plan& autre) {
    if (un.tables.size() < 2) return true;
    return un.gauche == autre.gauche && un.joinCles == autre.joinCles &&
           memesColonnes(un.tables[kSeconde], un.nulles, autre.tables[kSeconde], autre.nulles) &&
           std::equal(un.egalites.begin(), un.egalites.end(), autre.egalites.begin(), autre.egalites.end(),
                      [&](const auto& a, const auto& b) {
                          return un.tables[kPremiere].lues[a.first] == autre.tables[kPremiere].lues[b.first] &&
                                 un.tables[kSeconde].lues[a.second] == autre.tables[kSeconde].lues[b.second];
                      });
}

}  // namespace

std::optional<TriDuPlan> Plan::groupes() const {
    if (tris.empty()) return std::nullopt;
    const auto [table, rang] = tris.front().colonne;
    const TableDuPlan& premiere = tables[kPremiere];
    const auto& cleDeTable = premiere.table->cle;
    if (table == kPremiere && cleDeTable && premiere.lues[rang] == cleDeTable->premiere) return std::nullopt;
    return tris.front();
}

bool Plan::suitLaCle() const {
    if (tris.empty() || departages.empty()) return false;
    std::vector<TriDuPlan> entier = ordreEntier(*this), deLaCle = ordreDeLaCle(*this);
    if (groupes()) {
        const ColonneDuPlan tete = tris.front().colonne;
        for (auto* ordre : {&entier, &deLaCle})
            std::erase_if(*ordre, [tete](const TriDuPlan& tri) { return tri.colonne == tete; });
    }
    return std::equal(entier.begin(), entier.end(), deLaCle.begin(), deLaCle.end(),
                      [](const TriDuPlan& a, const TriDuPlan& b) { return a.colonne == b.colonne; });
}

std::vector<TriDuPlan> Plan::ordre() const {
    if (suitLaCle()) return ordreDeLaCle(*this);
    std::vector<TriDuPlan> ordre = ordreEntier(*this);
    if (groupes()) ordre.erase(ordre.begin());
    return ordre;
}

bool Plan::aLesLignesDe(const Plan& autre) const {
    if (distinct || autre.distinct || cle || autre.cle || champs != autre.champs) return false;
    return std::equal(tables.begin(), tables.end(), autre.tables.begin(), autre.tables.end(),
                      [](const TableDuPlan& une, const TableDuPlan& celleLa) {
                          return une.table == celleLa.table && une.condition == celleLa.condition &&
                                 une.parametres == celleLa.parametres;
                      }) &&
           memesJointures(*this, autre);
}

Plan planifie(Connexion& connexion, const Enonce& enonce, std::span<const std::string_view> portees) {
    return Planificateur(connexion, enonce).plan(portees);
}

}  // namespace dao::interne
