#pragma once

#include <string>

namespace acquire {

// The site of the sheets, searched by the downloader and opened by the logo.
inline constexpr const char* kSiteMovieCovers = "http://www.moviecovers.com";

// What a web search is about, in the order of OptionTelecharge.
enum class Critere { Titre, Realisateur, Acteur, Annee };

// The page of the site that answers the search: the text in lower case, without accents, its blanks written "+".
[[nodiscard]] std::string adresseRecherche(Critere critere, const std::string& texte);

}  // namespace acquire
