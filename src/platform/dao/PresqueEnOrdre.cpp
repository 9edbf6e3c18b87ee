#include "platform/dao/PresqueEnOrdre.h"

#include <algorithm>
#include <functional>
#include <span>
#include <utility>

namespace dao::interne {

namespace {

using Rangs = std::span<std::uint32_t>;

constexpr std::size_t kBloc = 1 << 16;

// How many rows at the end do not precede that row; looked for from there.
std::size_t combienApres(std::span<const std::uint32_t> rangs, std::uint32_t rang, const Ordre::Precede& precede) {
    std::size_t apres = 0, auPlus = 1;
    while (auPlus <= rangs.size() && !precede(rangs[rangs.size() - auPlus], rang)) {
        apres = auPlus;
        auPlus *= 2;
    }
    auPlus = std::min(auPlus, rangs.size() + 1);
    while (apres + 1 < auPlus) {
        const std::size_t milieu = apres + (auPlus - apres) / 2;
        (precede(rangs[rangs.size() - milieu], rang) ? auPlus : apres) = milieu;
    }
    return apres;
}

// Merges two neighbours, each in order, from their ends: a few comparisons for each stretch of one that stands between two
// rows of the other, and none for what stands right already.
void reunis(Rangs rangs, std::size_t milieu, const Ordre::Precede& precede, Cadence& cadence) {
    if (milieu == 0 || milieu == rangs.size() || !precede(rangs[milieu], rangs[milieu - 1])) return;
    const std::vector<std::uint32_t> seconds(rangs.begin() + static_cast<std::ptrdiff_t>(milieu), rangs.end());
    std::span<std::uint32_t> premiers = rangs.first(milieu);
    std::span<const std::uint32_t> restent = seconds;
    for (auto fin = rangs.end(); !restent.empty();) {
        cadence();
        const std::size_t siens = combienApres(premiers, restent.back(), precede);
        fin = std::move_backward(premiers.end() - static_cast<std::ptrdiff_t>(siens), premiers.end(), fin);
        premiers = premiers.first(premiers.size() - siens);
        const std::size_t leurs = premiers.empty() ? restent.size() : combienApres(restent, premiers.back(), precede);
        fin = std::copy_backward(restent.end() - static_cast<std::ptrdiff_t>(leurs), restent.end(), fin);
        restent = restent.first(restent.size() - leurs);
    }
}

}  // namespace

void PresqueEnOrdre::ajoute(std::uint32_t rang, std::string_view cle) {
    m_rangs.push_back(rang);
    m_bloc.ajoute(cle);
    if (m_bloc.taille() == kBloc) finitLeBloc();
}

void PresqueEnOrdre::finitLeBloc() {
    const std::size_t debut = m_rangs.size() - m_bloc.taille();
    const Rangs bloc(m_rangs.begin() + debut, m_rangs.end());
    const auto precede = [&](std::uint32_t gauche, std::uint32_t droite) {
        return m_precede(bloc[gauche], bloc[droite]);
    };
    std::vector<std::uint32_t> enOrdre = m_bloc.rangs(precede);
    for (std::uint32_t& rang : enOrdre)
        rang = bloc[rang];
    std::copy(enOrdre.begin(), enOrdre.end(), bloc.begin());
    m_bloc.vide();
    if (debut > 0 && !bloc.empty())
        m_melees += static_cast<std::size_t>(
            std::lower_bound(bloc.begin(), bloc.end(), m_rangs[debut - 1], std::cref(m_precede)) - bloc.begin());
    m_fins.push_back(m_rangs.size());
}

void PresqueEnOrdre::rangeParCles(const Souffle& souffle) {
    Ordre ordre;
    Cadence cadence(souffle, Cadence::kEnMemoire);
    for (const std::uint32_t rang : m_rangs) {
        m_ajouteCle(rang, ordre);
        cadence();
    }
    const auto precede = [this](std::uint32_t gauche, std::uint32_t droite) {
        return m_precede(m_rangs[gauche], m_rangs[droite]);
    };
    std::vector<std::uint32_t> rangs = ordre.rangs(precede, souffle);
    for (std::uint32_t& rang : rangs)
        rang = m_rangs[rang];
    std::copy(rangs.begin(), rangs.end(), m_rangs.begin());
}

// Neighbours by two, then what they became by two.
void PresqueEnOrdre::reunisLesBlocs(const Souffle& souffle) {
    Cadence cadence(souffle, Cadence::kEnMemoire);
    for (std::vector<std::size_t> fins; m_fins.size() > 1; m_fins = std::exchange(fins, {})) {
        for (std::size_t i = 0; i < m_fins.size(); i += 2) {
            const std::size_t debut = i == 0 ? 0 : m_fins[i - 1], fin = m_fins[std::min(i + 1, m_fins.size() - 1)];
            reunis(Rangs(m_rangs.begin() + debut, fin - debut), m_fins[i] - debut, m_precede, cadence);
            fins.push_back(fin);
        }
    }
}

std::vector<std::uint32_t> PresqueEnOrdre::rangs(const Souffle& souffle) {
    finitLeBloc();
    if (m_melees > m_rangs.size() / 4) {
        rangeParCles(souffle);
    } else {
        reunisLesBlocs(souffle);
    }
    std::vector<std::uint32_t> resultat(m_rangs.begin(), m_rangs.end());
    m_rangs = {};
    m_fins.clear();
    m_melees = 0;
    return resultat;
}

}  // namespace dao::interne
