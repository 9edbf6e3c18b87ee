#pragma once

#include "acquire/Contexte.h"
#include "acquire/DossierFiches.h"
#include "edit/FilmExamine.h"

#include <optional>
#include <string>
#include <vector>

namespace acquire {

// What an import of a folder would do with each of its sheets, when resemblances are looked for: in the order of the
// import, each named by its file, its summary left out. Sheets that resemble count as added for those that come later.
struct ApercuFiches {
    std::string dossier;
    std::vector<edit::FilmExamine> films{};
    bool complet = true;  // false: stopped, those that come later are missing
};

// Of the folder of txtCheminAjoutAuto, with progress and stop; nothing is written. Without a sheet the notice line says
// so. Throws db::RequeteEchouee after its message, dao::ErreurDao.
[[nodiscard]] std::optional<ApercuFiches> apercuDesFiches(const Contexte& c);

// A sheet as it is now, to be shown. Nothing where it cannot be read.
struct FicheVue {
    edit::FilmLu film;
    std::optional<std::string> affiche;  // the picture's bytes, whatever becomes of it
};
[[nodiscard]] std::optional<FicheVue> regardeFiche(const DossierFiches& dossier, const std::string& nom);

// The import of those sheets alone, with its questions and its report.
void importeFichesChoisies(const Contexte& c, const FichesChoisies& fiches);

// Asks, then fills what the films of these sheets, which are there already, lack: fields and posters, and nothing that
// says something. Answers the sheets whose film was completed. A stop keeps what was done.
std::vector<std::string> completeLesFilms(const Contexte& c, const FichesChoisies& fiches);

}  // namespace acquire
