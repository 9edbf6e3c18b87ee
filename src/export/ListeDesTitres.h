#pragma once

#include "db/Contexte.h"
#include "export/LecteurDeFilms.h"

#include <functional>
#include <string>
#include <string_view>

// What the text list and the RTF list of the owned titles share.
namespace exportation {

inline constexpr const char* kTitreListe = "Créer la liste des titres";
inline constexpr const char* kAucunTitre = "Aucun titre personnel !";

// The statement of the owned titles, in that order.
[[nodiscard]] std::string requeteListe(std::string_view clauseOrderBy);

// Asks for the file: the whole path of what was typed and `extension`, whatever the name ends in; empty when nothing was
// typed.
[[nodiscard]] std::string demandeFichierListe(const db::Contexte& c, std::string_view extension);

// Shows how far a list is, and lets the user stop it, for as long as it is made.
class Avancement {
  public:
    // `pourCent`: a caption that shows it too, as a share.
    Avancement(const db::Contexte& c, long total, ecran::Etiquette* pourCent = nullptr);
    Avancement(const Avancement&) = delete;
    Avancement& operator=(const Avancement&) = delete;
    ~Avancement();

    [[nodiscard]] bool avance();  // by one film; false when the user stops

  private:
    const db::Contexte& m_c;
    ecran::Travail m_travail;
    ecran::Etiquette* m_pourCent;
};

// Hands the films of the listing, one after the other. False when the user stopped.
[[nodiscard]] bool parcourtLesFilms(dao::Recordset& titres, Avancement& avancement,
                                    const std::function<void(const FilmDeLaListe&)>& recoit);

}  // namespace exportation
