#include "platform/dao/Balayage.h"

#include "platform/dao/Erreurs.h"

#include <vector>

namespace dao::interne {

namespace {

std::string enonce(const TableDuPlan& table, const std::string& condition, bool parLigne) {
    std::string enonce = "SELECT " + table.table->ligneSql;
    for (const RangColonne colonne : table.lues)
        enonce.append(",").append(table.table->colonneSql(colonne));
    enonce += " FROM " + table.table->nomSql;
    if (parLigne) enonce += " WHERE " + table.table->ligneSql + "=?1";
    if (!condition.empty()) enonce.append(parLigne ? " AND " : " WHERE ").append(condition);
    return enonce;
}

}  // namespace

Balayage::Balayage(Connexion& connexion, const TableDuPlan& table, const std::string& condition,
                   std::optional<long long> ligne)
    : m_table(*table.table),
      m_entier(!ligne && condition.empty()),
      m_requete(connexion.prepare(enonce(table, condition, ligne.has_value()))),
      m_valeurs(table.lues.size()) {
    if (ligne) m_requete.lie(1, *ligne);
    for (std::size_t i = 0; i < table.parametres.size(); ++i)
        m_requete.lie(static_cast<int>(i) + 2, table.parametres[i]);
}

bool Balayage::avance() {
    if (!m_requete.avance()) {
        if (m_entier) m_table.suivi.compte = m_vues;
        return false;
    }
    int colonne = 0;
    for (ValeurVue& valeur : m_valeurs)
        valeur = m_requete.vue(++colonne);
    ++m_vues;
    return true;
}

void parcourt(Connexion& connexion, Table& table, std::span<const std::string_view> colonnes,
              const Database::Recoit& recoit) {
    TableDuPlan lue{&table};
    for (const std::string_view nom : colonnes) {
        const auto rang = table.rang(nom);
        if (!rang) jette(kErreurParametre, "« " + std::string(nom) + " » n'est pas un champ.");
        lue.lues.push_back(*rang);
    }
    std::vector<std::string> tampons(colonnes.size());
    std::vector<std::string_view> textes(colonnes.size());
    Cadence cadence(connexion.souffle());
    for (Balayage balayage(connexion, lue, ""); balayage.avance();) {
        std::size_t i = 0;
        for (const ValeurVue& valeur : balayage.valeurs()) {
            textes[i] = texteDe(valeur, tampons[i]);
            ++i;
        }
        recoit(balayage.id(), textes);
        cadence();
    }
}

}  // namespace dao::interne
