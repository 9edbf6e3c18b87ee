#pragma once

#include "acquire/PassageFiches.h"
#include "edit/EnregistreNouveauFilm.h"
#include "edit/JugeFilms.h"

#include <optional>
#include <string>

namespace acquire {

// What the user answered before the import.
struct ChoixImport {
    bool possedes = false;
    std::string support;
    bool testeRessemblance = false;
    std::string date;  // of the day, for the whole batch
};

// The import of sheets: each film that is judged new is stored with its poster and its holding. A film that is there
// already without a poster is given the one beside its sheet.
class PassageImport final : public PassageFiches {
  public:
    // `c` outlives it.
    PassageImport(const Contexte& c, const ChoixImport& choix, const FichesChoisies& fiches);

  private:
    void commence() override;
    void traite(const FicheFilm& fiche, const std::string& nom) override;
    void enregistre(const FicheFilm& fiche, const std::string& nom);
    void remplitSaisie(const FicheFilm& fiche);

    ChoixImport m_choix;
    edit::EnregistrementFilm m_enregistrement;
    std::optional<edit::JugeFilms> m_juge;
};

}  // namespace acquire
