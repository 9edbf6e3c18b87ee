#include "platform/dao/LectureDAvance.h"

#include <algorithm>

namespace dao::interne {

namespace {

constexpr std::size_t kAuPlus = 64;

std::string enonce(const Table& table, const std::vector<RangColonne>& colonnes) {
    std::string sql = "SELECT ";
    for (const RangColonne colonne : colonnes)
        sql.append(table.colonneSql(colonne)) += ',';
    sql.back() = ' ';
    return sql.append("FROM ").append(table.nomSql).append(" WHERE ").append(table.ligneSql).append("=?1");
}

}  // namespace

void LectureDAvance::demande(RangColonne colonne) {
    if (std::find(m_colonnes.begin(), m_colonnes.end(), colonne) != m_colonnes.end()) return;
    m_colonnes.push_back(colonne);
    m_nombre = 0;
}

std::optional<std::string_view> LectureDAvance::texte(long position, long long ligne, RangColonne colonne,
                                                      const Connexion& connexion, const Table& table) const {
    if (position < m_debut || position >= m_debut + static_cast<long>(m_nombre)) return std::nullopt;
    const Lue& lue = m_lues[static_cast<std::size_t>(position - m_debut)];
    if (!lue.presente || lue.ligne != ligne || m_epoque != connexion.epoque() ||
        table.suivi.ecriteDepuis(ligne, m_version))
        return std::nullopt;
    const auto rang = std::find(m_colonnes.begin(), m_colonnes.end(), colonne) - m_colonnes.begin();
    return lue.textes[static_cast<std::size_t>(rang)];
}

// More at each time that the walk takes up where the last reading ended; a look here and there reads what it looks at.
std::size_t LectureDAvance::combienDepuis(long position) const {
    const bool suite = m_nombre > 0 && position == m_debut + static_cast<long>(m_nombre);
    return suite ? std::min(2 * m_nombre, kAuPlus) : 1;
}

void LectureDAvance::lit(long debut, const std::vector<std::optional<long long>>& lignes, Connexion& connexion,
                         const Table& table) {
    connexion.respire();
    const Regard regard(connexion);
    const std::string sql = enonce(table, m_colonnes);
    std::string tampon;
    m_nombre = 0;
    if (m_lues.size() < lignes.size()) m_lues.resize(lignes.size());
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        Lue& lue = m_lues[i];
        lue.ligne = lignes[i].value_or(0);
        lue.textes.resize(m_colonnes.size());
        Requete lecture = connexion.prepare(sql);
        lue.presente = lignes[i] && lecture.lie(1, *lignes[i]).avance();
        for (std::size_t c = 0; lue.presente && c < m_colonnes.size(); ++c)
            lue.textes[c] = texteDe(lecture.vue(static_cast<int>(c)), tampon);
    }
    m_nombre = lignes.size();
    m_debut = debut;
    m_version = connexion.version();
    m_epoque = connexion.epoque();
}

}  // namespace dao::interne
