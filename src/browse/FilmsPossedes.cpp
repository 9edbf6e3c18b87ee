#include "browse/FilmsPossedes.h"

#include "platform/dao/Comparaison.h"
#include "platform/dao/LigneSupprimee.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace browse {

namespace {

constexpr std::string_view kTable = "Personnel", kEnonce = "SELECT * FROM Personnel";
constexpr std::array<std::string_view, 4> kChamps{"Titre2", "Realisateur2", "Pret", "Reserve"};
constexpr int kLignesParPas = 64;

constexpr std::uint64_t kPrete = 1, kReserve = 2, kDrapeaux = kPrete | kReserve;

std::uint64_t hachage(std::string_view titre, std::string_view realisateur) {
    // A comparison key holds no zero byte.
    const std::string cle = dao::cleDeComparaison(titre) + '\0' + dao::cleDeComparaison(realisateur);
    return std::hash<std::string>{}(cle) & ~kDrapeaux;
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
    m_lignes.Close();
    std::sort(m_enCours.begin(), m_enCours.end());
    m_connues = std::exchange(m_enCours, {});
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
        std::uint64_t possession = hachage(titre, m_lignes.vue(m_lignes.colonne(kChamps[1])));
        if (!m_lignes.vue(m_lignes.colonne(kChamps[2])).empty()) possession |= kPrete;
        if (!m_lignes.vue(m_lignes.colonne(kChamps[3])).empty()) possession |= kReserve;
        m_enCours.push_back(possession);
    });
}

Possession FilmsPossedes::cherche(std::string_view titre, std::string_view realisateur) const {
    const std::uint64_t cherchee = hachage(titre, realisateur);
    Possession possession;
    for (auto ou = std::lower_bound(m_connues.begin(), m_connues.end(), cherchee);
         ou != m_connues.end() && (*ou & ~kDrapeaux) == cherchee; ++ou) {
        possession.possede = true;
        possession.prete |= (*ou & kPrete) != 0;
        possession.reserve |= (*ou & kReserve) != 0;
    }
    return possession;
}

}  // namespace browse
