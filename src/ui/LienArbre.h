#pragma once

#include "ui/VueTitres.h"

#include <optional>
#include <string>

namespace ui {

// The tree's part of the liaison: the node list is too large to be compared, its generation and count tell it changed.
// A list filled again for the same zone, sort and search stays where it was, its headings open and the chosen row at the
// same height; another one begins at its top, or where its chosen row is.
class VueTitres::LienArbre final : public Lien {
  public:
    LienArbre(const browse::EtatListe& liste, VueTitres& vue)
        : m_liste(liste), m_etat(vue.m_modele.etat()), m_vue(vue) {}

    void lit() override;
    void ecrit() override;

  private:
    struct Contenu {
        int tri = 0;
        std::string zone, critere;
        friend bool operator==(const Contenu&, const Contenu&) = default;
    };
    // Known before a command, used by each writing during it and after it.
    struct Vue {
        Contenu contenu;
        Libelles ouverts;
        int defilement = 0;
        std::optional<int> hauteurDuChoix;  // of the chosen row in the view, while it is in sight
        std::string groupeDuChoix{};        // the label of its heading; none in a flat list
        int rangDuChoix = -1;               // under it
    };
    [[nodiscard]] Contenu contenu() const;
    [[nodiscard]] Vue releve() const;
    [[nodiscard]] bool memeListe() const { return m_remplie == m_avant.contenu; }
    void recommence();
    void montreChoix();
    void passeAuVoisin();

    const browse::EtatListe& m_liste;
    browse::VueArbre& m_etat;
    VueTitres& m_vue;
    Contenu m_remplie;  // what the list was last filled with
    Vue m_avant;
    bool m_recommencee = false;  // since the command began
    int m_generation = 0;
    int m_nombre = 0;
    int m_textes = 0;
    int m_choisi = 0;
    bool m_cases = false;
    std::set<int> m_coches;
};

}  // namespace ui
