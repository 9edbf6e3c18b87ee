#include "platform/dao/Rangement.h"

#include "platform/dao/CleJet.h"
#include "platform/dao/Ecriture.h"
#include "platform/dao/Groupes.h"

#include <algorithm>
#include <numeric>

namespace dao::interne {

ValeurVue Valeurs::valeur(ColonneDuPlan colonne, RangLigne ligne, std::string& tampon) const {
    if (ligne == kSansLigne) return {};
    const Magasin& magasin = m_magasins[colonne.table];
    if (const auto valeur = magasin.valeur(ligne, colonne.rang)) return *valeur;
    const TableDuPlan& lue = m_plan.tables[colonne.table];
    tampon = litChamp(m_connexion, *lue.table, lue.lues[colonne.rang], magasin.id(ligne)).texte();
    return ValeurVue::deTexte(tampon);
}

std::vector<std::uint32_t> placesParGroupes(const TriDuPlan& tri, const Valeurs& valeurs, const LignesParTable& lignes,
                                            std::vector<std::uint32_t>& fins, const Souffle& souffle) {
    Groupes groupes;
    Cadence cadence(souffle, Cadence::kEnMemoire);
    std::string tampon, nombre;
    for (const RangLigne ligne : lignes[tri.colonne.table]) {
        cadence();
        const ValeurVue valeur = valeurs.valeur(tri.colonne, ligne, tampon);
        if (valeur.estNulle()) {
            groupes.ajouteNul();
        } else if (tri.numerique) {
            groupes.ajouteNombre(valeur.enNombre());
        } else {
            groupes.ajouteTexte(texteDe(valeur, nombre));
        }
    }
    return groupes.places(fins, souffle);
}

void disperse(LignesParTable& lignes, const std::vector<std::uint32_t>& places) {
    for (std::vector<RangLigne>& siennes : lignes) {
        std::vector<RangLigne> rangees(siennes.size());
        for (std::size_t rang = 0; rang < siennes.size(); ++rang)
            rangees[places[rang]] = siennes[rang];
        siennes = std::move(rangees);
    }
}

Rangement::Rangement(const Plan& plan, const Valeurs& valeurs, const Souffle& souffle)
    : m_plan(plan), m_valeurs(valeurs), m_souffle(souffle), m_ordre(plan.ordre()), m_lignes(plan.tables.size()) {}

void Rangement::ajoute(RangLigne gauche, RangLigne droite) {
    m_lignes[kPremiere].push_back(gauche);
    if (m_plan.tables.size() > 1) m_lignes[kSeconde].push_back(droite);
    if (!m_plan.distinct) classe(static_cast<std::uint32_t>(m_lignes[kPremiere].size() - 1));
}

int Rangement::compare(std::uint32_t gauche, std::uint32_t droite) {
    for (const TriDuPlan& tri : m_ordre) {
        const ValeurVue une = valeurDe(gauche, tri.colonne, m_longue),
                        autre = valeurDe(droite, tri.colonne, m_autreLongue);
        if (const int ordre = compareValeurs(une, autre, tri.numerique); ordre != 0) return ordre;
    }
    return 0;
}

int Rangement::compareTextes(std::string_view gauche, std::string_view droite) {
    if (gauche == droite) return 0;
    m_cle.clear();
    ajouteCleJet(gauche, m_cle);
    m_autreCle.clear();
    ajouteCleJet(droite, m_autreCle);
    return m_cle.compare(m_autreCle);
}

int Rangement::compareValeurs(const ValeurVue& une, const ValeurVue& autre, bool numerique) {
    if (une.estNulle() || autre.estNulle()) return (autre.estNulle() ? 1 : 0) - (une.estNulle() ? 1 : 0);
    if (!numerique) return compareTextes(une.texte, autre.texte);
    const double gauche = une.enNombre(), droite = autre.enNombre();
    return (gauche > droite ? 1 : 0) - (gauche < droite ? 1 : 0);
}

// Rows that nothing else tells apart stand by the ids of their rows.
bool Rangement::precede(std::uint32_t gauche, std::uint32_t droite) {
    const int ordre = compare(gauche, droite);
    return ordre != 0 ? ordre < 0 : ids(gauche) < ids(droite);
}

std::pair<long long, long long> Rangement::ids(std::uint32_t rang) const {
    const RangLigne seconde = m_lignes.size() > 1 ? m_lignes[kSeconde][rang] : kSansLigne;
    return {m_valeurs.id(kPremiere, m_lignes[kPremiere][rang]),
            seconde == kSansLigne ? 0 : m_valeurs.id(kSeconde, seconde)};
}

// Of the first column by which the rows of a group stand; holds until the next call.
std::string_view Rangement::cleDe(std::uint32_t rang) {
    if (m_ordre.empty()) return cleDeNombre(static_cast<double>(ids(rang).first), m_cleDeNombre);
    const TriDuPlan& tri = m_ordre.front();
    const ValeurVue valeur = valeurDe(rang, tri.colonne, m_longue);
    if (valeur.estNulle()) return {};
    if (tri.numerique) return cleDeNombre(valeur.enNombre(), m_cleDeNombre);
    m_cleAjoutee.clear();
    ajouteCleJet(valeur.texte, m_cleAjoutee);
    return m_cleAjoutee;
}

void Rangement::suit(const std::vector<std::uint32_t>& rangs) {
    for (std::vector<RangLigne>& lignes : m_lignes) {
        std::vector<RangLigne> rangees;
        rangees.reserve(rangs.size());
        for (const std::uint32_t rang : rangs)
            rangees.push_back(lignes[rang]);
        lignes = std::move(rangees);
    }
}

void Rangement::sansDoublons(const std::vector<std::uint32_t>& fins) {
    std::vector<std::uint32_t> rangs(m_lignes[kPremiere].size());
    std::iota(rangs.begin(), rangs.end(), 0U);
    auto debut = rangs.begin(), garde = debut;
    for (const std::uint32_t fin : fins) {
        const auto suivant = rangs.begin() + fin;
        const auto bout =
            std::unique(debut, suivant, [this](auto une, auto autre) { return compare(une, autre) == 0; });
        garde = std::copy(debut, bout, garde);
        debut = suivant;
    }
    rangs.erase(garde, rangs.end());
    suit(rangs);
}

void Rangement::range(Resultat& resultat) {
    Cadence cadence(m_souffle);
    for (std::uint32_t rang = 0; m_plan.distinct && rang < m_lignes[kPremiere].size(); ++rang) {
        classe(rang);
        cadence();
    }
    suit(m_presque.rangs(m_souffle));
    std::vector<std::uint32_t> fins{static_cast<std::uint32_t>(m_lignes[kPremiere].size())};
    if (const auto tri = m_plan.groupes()) {
        std::vector<std::uint32_t> places = placesParGroupes(*tri, m_valeurs, m_lignes, fins, m_souffle);
        disperse(m_lignes, places);
        if (m_plan.suitLaCle()) resultat.places = std::move(places);
    }
    if (m_plan.distinct) sansDoublons(fins);
    resultat.lignes = std::move(m_lignes);
}

}  // namespace dao::interne
