#include "platform/dao/LectureDAvance.h"

#include "platform/dao/AccesValeur.h"
#include "platform/dao/ErreurDao.h"

#include <algorithm>

namespace dao::interne {

namespace {

constexpr std::size_t kAuPlus = 64;

// One look at the file for several statements: each would else lock it, and ask whether it changed.
class Regard {
  public:
    explicit Regard(Connexion& connexion) : m_connexion(connexion), m_ouvert(!connexion.enTransaction()) {
        if (m_ouvert) m_connexion.prepare("BEGIN").execute();
    }
    Regard(const Regard&) = delete;
    Regard& operator=(const Regard&) = delete;
    // Nothing was written, so nothing can be lost by a failure here.
    ~Regard() {
        if (!m_ouvert || !m_connexion.enTransaction()) return;
        try {
            m_connexion.prepare("ROLLBACK").execute();
        } catch (const ErreurDao&) {
        }
    }

  private:
    Connexion& m_connexion;
    bool m_ouvert;
};

std::string enonce(const Table& table, const std::vector<int>& colonnes) {
    std::string sql = "SELECT ";
    for (const int colonne : colonnes)
        sql.append(table.colonneSql(colonne)) += ',';
    sql.back() = ' ';
    return sql.append("FROM ").append(table.nomSql()).append(" WHERE ").append(table.ligneSql).append("=?1");
}

// Into a text that has held another: most fields need no memory of their own.
void litColonne(const Requete& lecture, int colonne, std::string& texte) {
    const ValeurVue valeur = vueDeColonne(lecture.brute(), colonne);
    if (valeur.genre == ValeurVue::Genre::Nombre)
        texte = lecture.valeur(colonne).texte();
    else
        texte.assign(valeur.texte);
}

}  // namespace

void LectureDAvance::demande(int colonne) {
    if (std::find(m_colonnes.begin(), m_colonnes.end(), colonne) != m_colonnes.end()) return;
    m_colonnes.push_back(colonne);
    m_nombre = 0;
}

std::optional<std::string_view> LectureDAvance::texte(long position, long long ligne, int colonne,
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
    const Regard regard(connexion);
    const std::string sql = enonce(table, m_colonnes);
    m_nombre = 0;
    if (m_lues.size() < lignes.size()) m_lues.resize(lignes.size());
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        Lue& lue = m_lues[i];
        lue.ligne = lignes[i].value_or(0);
        lue.textes.resize(m_colonnes.size());
        Requete lecture = connexion.prepare(sql);
        lue.presente = lignes[i] && lecture.lie(1, *lignes[i]).avance();
        for (std::size_t c = 0; lue.presente && c < m_colonnes.size(); ++c)
            litColonne(lecture, static_cast<int>(c), lue.textes[c]);
    }
    m_nombre = lignes.size();
    m_debut = debut;
    m_version = connexion.version();
    m_epoque = connexion.epoque();
}

}  // namespace dao::interne
