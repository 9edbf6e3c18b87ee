#pragma once

#include "platform/dao/Connexion.h"
#include "platform/dao/Ordre.h"
#include "platform/dao/PresqueEnOrdre.h"
#include "platform/dao/Resultat.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace dao::interne {

// The values that a statement's stores keep, and those that were too long for it, from the base.
class Valeurs {
  public:
    Valeurs(Connexion& connexion, const Plan& plan, const Par<RangTable, Magasin>& magasins)
        : m_connexion(connexion), m_plan(plan), m_magasins(magasins) {}

    // In `tampon` where it was too long to be kept. Null for kSansLigne.
    [[nodiscard]] ValeurVue valeur(ColonneDuPlan colonne, RangLigne ligne, std::string& tampon) const;
    [[nodiscard]] long long id(RangTable table, RangLigne ligne) const { return m_magasins[table].id(ligne); }

  private:
    Connexion& m_connexion;
    const Plan& m_plan;
    const Par<RangTable, Magasin>& m_magasins;
};

// For each row of these, which stand by the first table's key: its place once they are grouped by the values of `tri` as Jet
// orders them, Null first. Where each group ends stands in `fins`.
[[nodiscard]] std::vector<std::uint32_t> placesParGroupes(const TriDuPlan& tri, const Valeurs& valeurs,
                                                          const LignesParTable& lignes,
                                                          std::vector<std::uint32_t>& fins, const Souffle& souffle);

// Puts each row at its place.
void disperse(LignesParTable& lignes, const std::vector<std::uint32_t>& places);

// Puts the rows of a statement in its order. They come as an index has them, by title: whatever orders them first is a
// matter of groups.
class Rangement {
  public:
    Rangement(const Plan& plan, const Valeurs& valeurs, const Souffle& souffle);

    void ajoute(RangLigne gauche, RangLigne droite);
    [[nodiscard]] bool estVide() const { return m_lignes[kPremiere].empty(); }
    // Of a DISTINCT an id may be a lower one by then: nothing is compared before.
    void range(Resultat& resultat);

  private:
    void classe(std::uint32_t rang) { m_presque.ajoute(rang, cleDe(rang)); }
    [[nodiscard]] ValeurVue valeurDe(std::uint32_t rang, ColonneDuPlan colonne, std::string& tampon) const {
        return m_valeurs.valeur(colonne, m_lignes[colonne.table][rang], tampon);
    }
    [[nodiscard]] int compare(std::uint32_t gauche, std::uint32_t droite);
    [[nodiscard]] int compareTextes(std::string_view gauche, std::string_view droite);
    [[nodiscard]] int compareValeurs(const ValeurVue& une, const ValeurVue& autre, bool numerique);
    [[nodiscard]] bool precede(std::uint32_t gauche, std::uint32_t droite);
    [[nodiscard]] std::pair<long long, long long> ids(std::uint32_t rang) const;
    [[nodiscard]] std::string_view cleDe(std::uint32_t rang);
    void sansDoublons(const std::vector<std::uint32_t>& fins);
    void suit(const std::vector<std::uint32_t>& rangs);

    const Plan& m_plan;
    const Valeurs& m_valeurs;
    const Souffle& m_souffle;
    const std::vector<TriDuPlan> m_ordre;  // of the rows of one group
    PresqueEnOrdre m_presque{[this](std::uint32_t gauche, std::uint32_t droite) { return precede(gauche, droite); },
                             [this](std::uint32_t rang, Ordre& ordre) { ordre.ajoute(cleDe(rang)); }};
    LignesParTable m_lignes;
    std::string m_cle, m_autreCle, m_cleAjoutee;
    std::array<char, kTailleDeNombre> m_cleDeNombre{};
    std::string m_longue, m_autreLongue;
};

}  // namespace dao::interne
