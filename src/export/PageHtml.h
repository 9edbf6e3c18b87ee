#pragma once

#include "export/FilmExporte.h"

#include <string>
#include <string_view>
#include <vector>

namespace exportation {

// A picture made small for the page.
struct Vignette {
    std::string jpeg;  // bytes
    int largeur = 0, hauteur = 0;
};

// The films as one HTML page that needs nothing else: posters in it, one style for light, dark and paper, and a search
// that is there where scripts run. It loads nothing and, by its own policy, can be made to run nothing but its one script.
// Written piece by piece: the beginning, each film, the end.
class PageHtml {
  public:
    struct Sujet {
        std::string titre, date;
        long films = 0;
        std::vector<std::string> groupes;
        std::string cle;  // what nobody can guess, which its script goes by
    };
    PageHtml(Sujet sujet, const Champs& champs);

    [[nodiscard]] std::string debut() const;
    // Films of one heading follow each other; `vignette` may be nullptr.
    [[nodiscard]] std::string film(const FilmExporte& film, const Vignette* vignette);
    [[nodiscard]] std::string fin() const;

  private:
    void changeDeGroupe(std::string& page, int groupe);
    void ajouteLesFaits(std::string& page, const FilmExporte& film) const;
    void ajouteLesTextes(std::string& page, const FilmExporte& film) const;
    void ajouteLaPossession(std::string& page, const FilmExporte& film) const;
    [[nodiscard]] std::string valeur(const FilmExporte& film, Champ champ) const;  // "" of one that is not wanted

    Sujet m_sujet;
    Champs m_champs;
    bool m_commence = false;
    int m_groupe = -1;
};

}  // namespace exportation
