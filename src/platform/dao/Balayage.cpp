#include "platform/dao/Balayage.h"

#include "platform/dao/Erreurs.h"

#include <algorithm>

#include <sqlite3.h>

namespace dao::interne {

std::string enonceDeLecture(const TableDuPlan& table, bool parLigne) {
    std::string enonce = "SELECT " + table.table->ligneSql;
    for (const ColonneLue& lue : table.lues) {
        const std::string nom = table.table->colonneSql(lue.colonne);
        enonce.append(lue.debut == 0 ? "," : ",typeof(").append(nom).append(lue.debut == 0 ? "" : ")");
    }
    enonce += " FROM " + table.table->nomSql();
    return parLigne ? enonce + " WHERE " + table.table->ligneSql + "=?1" : enonce;
}

Balayage::Balayage(Connexion& connexion, const TableDuPlan& table, int rangDeTable, std::optional<long long> ligne)
    : m_connexion(connexion),
      m_table(table),
      m_rangDeTable(rangDeTable),
      m_requete(connexion.prepare(enonceDeLecture(table, ligne.has_value()))),
      m_valeurs(table.lues.size()) {
    if (ligne) m_requete.lie(1, *ligne);
}

Balayage::~Balayage() {
    sqlite3_blob_close(m_octets);
}

bool Balayage::avance() {
    LignesVues lignes;
    lignes.tables[m_rangDeTable] = m_valeurs.data();
    while (m_requete.avance()) {
        litLigne();
        ++m_vues;
        const bool passe = std::all_of(m_table.filtres.begin(), m_table.filtres.end(),
                                       [&](const Condition& filtre) { return filtre.estVraie(lignes); });
        if (passe) return true;
    }
    return false;
}

void Balayage::litLigne() {
    for (std::size_t i = 0; i < m_table.lues.size(); ++i) {
        const auto colonne = static_cast<int>(i) + 1;
        m_valeurs[i] =
            m_table.lues[i].debut == 0 ? vueDeColonne(m_requete.brute(), colonne) : litDebut(m_table.lues[i], colonne);
    }
}

// Asking SQLite for a value's start reads the whole of it; its incremental reader does not.
ValeurVue Balayage::litDebut(const ColonneLue& lue, int colonne) {
    const std::string_view type = vueDeColonne(m_requete.brute(), colonne).texte;
    if (type != "text" && type != "blob") return ValeurVue::nulle();  // no number begins as a poster does
    sqlite3* base = m_connexion.brute();
    const std::string& nom = m_table.table->colonnes[static_cast<std::size_t>(lue.colonne)].nom;
    const int ouverture = m_octets != nullptr ? sqlite3_blob_reopen(m_octets, id())
                                              : sqlite3_blob_open(base, "main", m_table.table->nom.c_str(), nom.c_str(),
                                                                  id(), 0, &m_octets);
    if (ouverture != SQLITE_OK) jetteSqlite(base, ouverture, Acces::Lecture);
    m_debut.resize(std::min(lue.debut, static_cast<std::size_t>(sqlite3_blob_bytes(m_octets))));
    const int lecture = sqlite3_blob_read(m_octets, m_debut.data(), static_cast<int>(m_debut.size()), 0);
    if (lecture != SQLITE_OK) jetteSqlite(base, lecture, Acces::Lecture);
    return ValeurVue::deTexte(m_debut);
}

}  // namespace dao::interne
