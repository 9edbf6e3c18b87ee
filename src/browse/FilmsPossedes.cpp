#include "browse/FilmsPossedes.h"

#include "platform/dao/Comparaison.h"

#include <algorithm>
#include <array>
#include <functional>
#include <span>
#include <string>
#include <utility>

namespace browse {

namespace {

constexpr std::string_view kTable = "Personnel";
constexpr std::array<std::string_view, 4> kChamps{"Titre2", "Realisateur2", "Pret", "Reserve"};
constexpr std::size_t kLignesParPas = 256;
constexpr std::size_t kBloc = 8192;  // holdings put in order as they come: all of them at once take a tenth of a second

constexpr std::uint64_t kPrete = 1, kReserve = 2, kDrapeaux = kPrete | kReserve;

std::uint64_t hachage(std::string_view titre, std::string_view realisateur) {
    // A comparison key holds no zero byte.
    const std::string cle = dao::cleDeComparaison(titre) + '\0' + dao::cleDeComparaison(realisateur);
    return std::hash<std::string>{}(cle) & ~kDrapeaux;
}

void trieLeDernierBloc(std::vector<std::uint64_t>& possessions) {
    const std::size_t debut = possessions.empty() ? 0 : (possessions.size() - 1) / kBloc * kBloc;
    std::sort(possessions.begin() + static_cast<std::ptrdiff_t>(debut), possessions.end());
}

void joinsLesBlocs(std::vector<std::uint64_t>& possessions) {
    const auto a = [&](std::size_t rang) {
        return possessions.begin() + static_cast<std::ptrdiff_t>(std::min(rang, possessions.size()));
    };
    for (std::size_t pas = kBloc; pas < possessions.size(); pas *= 2)
        for (std::size_t debut = 0; debut + pas < possessions.size(); debut += 2 * pas)
            std::inplace_merge(a(debut), a(debut + pas), a(debut + 2 * pas));
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
    trieLeDernierBloc(m_enCours);
    joinsLesBlocs(m_enCours);
    m_connues = std::exchange(m_enCours, {});
    return m_aJour = true;
}

bool FilmsPossedes::lit(const db::Contexte& c, std::chrono::milliseconds duree) {
    const auto range = [this](std::span<const std::string> ligne) {
        std::uint64_t possession = hachage(ligne[0], ligne[1]);
        if (!ligne[2].empty()) possession |= kPrete;
        if (!ligne[3].empty()) possession |= kReserve;
        m_enCours.push_back(possession);
        if (m_enCours.size() % kBloc == 0) trieLeDernierBloc(m_enCours);
    };
    const auto fin = c.montre() + duree;
    bool suite = true;
    while (suite && c.montre() < fin)
        suite = c.base.base.litTranche(kTable, kChamps, m_parcours, kLignesParPas, range);
    return !suite;
}

void FilmsPossedes::commence(const db::Contexte& c, const dao::Database::Version& version) {
    if (m_base != c.chemins.base) m_connues.clear();
    m_enCours.clear();
    m_enCours.reserve(m_connues.size());
    m_aJour = false;
    m_parcours = {};
    m_version = version;
    m_base = c.chemins.base;
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
