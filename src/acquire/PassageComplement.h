#pragma once

#include "acquire/PassageFiches.h"

namespace acquire {

// Gives the films of sheets, which are there already, what they lack. No film is added.
class PassageComplement final : public PassageFiches {
  public:
    using PassageFiches::PassageFiches;

  private:
    void traite(const FicheFilm& fiche, const std::string& nom) override {
        if (completeLeFilm(fiche, nom, Complement::Tout)) m_rapport.fichesCompletees.push_back(nom);
    }
};

}  // namespace acquire
