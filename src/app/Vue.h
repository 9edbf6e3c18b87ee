#pragma once

#include "app/Contexte.h"

#include <set>
#include <string>

namespace app {

// What the window shows of the base: the listing, the film and its sheet. It holds no row, so that it can be shown again
// once the base is what it was.
class Vue {
  public:
    [[nodiscard]] static Vue de(const Contexte& c);
    // Reads the base again and shows it so. A panel where the user is at work stays. Throws as a listing does.
    void remets(const Contexte& c) const;

  private:
    void remetsLaListe(const Contexte& c) const;
    void remetsLeChoix(const Contexte& c) const;
    void remetsLesPanneaux(const Contexte& c, const browse::EtatPanneaux& actuels) const;

    ecran::Liste m_zones, m_tris;
    std::string m_critere, m_legende;
    int m_zoneRecherche = 0;
    int m_noeuds = 0;
    std::set<int> m_coches;
    std::string m_cle;    // of the film's node, else of the highlighted one, "" for none
    std::string m_texte;  // and what it reads, a heading without what follows it
    db::CleFilm m_film;   // whose sheet is shown; empty for none
    browse::EtatPanneaux m_panneaux;
    bool m_generalites = true;  // the page of the sheet
};

}  // namespace app
