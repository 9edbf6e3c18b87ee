#include "browse/FilmsPossedes.h"

#include "platform/dao/Comparaison.h"
#include "platform/dao/LigneSupprimee.h"

#include <array>
#include <functional>
#include <utility>

namespace browse {

namespace {

constexpr std::string_view kTable = "Personnel", kEnonce = "SELECT * FROM Personnel";
constexpr std::array<std::string_view, 4> kChamps{"Titre2", "Realisateur2", "Pret", "Reserve"};
constexpr int kLignesParPas = 64;

std::uint64_t hachage(std::string_view titre, std::string_view realisateur) {
    // A comparison key holds no zero byte.
    return std::hash<std::string>{}(dao::cleDeComparaison(titre) + '\0' + dao::cleDeComparaison(realisateur));
}

}  // namespace

bool FilmsPossedes::prepare(const db::Contexte& c, std::chrono::milliseconds duree) {
    if (!c.base.base.estOuverte()) return true;
    const dao::Database::Version version = c.base.base.version(kTable);
    const bool memeBase = m_base == c.chemins.base;
    if (!memeBase || version != m_version) commence(c, version);
    if (m_aJour) return true;
    try {
        if (!lit(c, duree)) return false;
    } catch (...) {  // the next call begins anew
        m_version = {};
        throw;
    }
    m_connues = std::exchange(m_enCours, {});
    m_lignes.Close();
    return m_aJour = true;
}

bool FilmsPossedes::lit(const db::Contexte& c, std::chrono::milliseconds duree) {
    const auto fin = c.montre() + duree;
    while (!m_lignes.Eof() && c.montre() < fin)
        for (int i = 0; i < kLignesParPas && !m_lignes.Eof(); ++i, m_lignes.MoveNext())
            ajouteLigne();
    return m_lignes.Eof();
}

void FilmsPossedes::commence(const db::Contexte& c, const dao::Database::Version& version) {
    if (m_base != c.chemins.base) m_connues.clear();
    m_enCours.clear();
    m_aJour = false;
    m_lignes = c.base.base.OpenRecordset(kEnonce, kChamps);
    m_enCours.reserve(static_cast<std::size_t>(m_lignes.RecordCount()));
    m_version = version;
    m_base = c.chemins.base;
}

void FilmsPossedes::ajouteLigne() {
    dao::siPresente([this] {
        const std::string titre(m_lignes.vue(m_lignes.colonne(kChamps[0])));
        Possession& possession = m_enCours[hachage(titre, m_lignes.vue(m_lignes.colonne(kChamps[1])))];
        possession.possede = true;
        if (!m_lignes.vue(m_lignes.colonne(kChamps[2])).empty()) possession.prete = true;
        if (!m_lignes.vue(m_lignes.colonne(kChamps[3])).empty()) possession.reserve = true;
    });
}

Possession FilmsPossedes::cherche(std::string_view titre, std::string_view realisateur) const {
    const auto trouvee = m_connues.find(hachage(titre, realisateur));
    return trouvee == m_connues.end() ? Possession{} : trouvee->second;
}

}  // namespace browse
