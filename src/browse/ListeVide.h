#pragma once

#include "browse/Contexte.h"

#include <optional>
#include <string>

namespace browse {

// Why the list holds nothing.
struct ListeVide {
    std::string raison;
    bool autresFilms = false;  // the catalogue has films, which the list could show

    friend bool operator==(const ListeVide&, const ListeVide&) = default;
};

// Nothing while the list holds films, and before it was filled.
[[nodiscard]] std::optional<ListeVide> listeVide(const EtatListe& liste);

[[nodiscard]] bool catalogueVide(const EtatListe& liste);  // as the counts that are shown tell

void cmdTousLesFilms_Click(const Contexte& c);  // lists them, in the sort that is shown where they have it

}  // namespace browse
