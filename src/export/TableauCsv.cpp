#include "export/TableauCsv.h"

#include "util/Csv.h"

namespace exportation {

namespace {

constexpr std::string_view kMarque = "\uFEFF", kFin = "\r\n";
constexpr char kSeparateur = ';';

template <typename ValeurDe>
void ajouteLigne(std::string& tableau, const Champs& champs, ValeurDe valeurDe) {
    bool premiere = true;
    for (std::size_t i = 0; i < kNombreDeChamps; ++i) {
        if (!champs.contient(static_cast<Champ>(i))) continue;
        if (!std::exchange(premiere, false)) tableau += kSeparateur;
        util::ajouteCellule(tableau, valeurDe(i));
    }
    tableau += kFin;
}

void ajouteLigne(std::string& tableau, const FilmExporte& film, const PossessionExportee& possession,
                 const Champs& champs) {
    ajouteLigne(tableau, champs, [&](std::size_t i) {
        return util::protegeDesFormules(i < kChampsDuFilm ? film.fiche[i] : possession[i - kChampsDuFilm]);
    });
}

}  // namespace

std::string enteteDuTableau(const Champs& champs) {
    std::string tableau(kMarque);
    ajouteLigne(tableau, champs, [](std::size_t i) { return kChamps[i].intitule; });
    return tableau;
}

void ajouteLignes(std::string& tableau, const FilmExporte& film, const Champs& champs) {
    for (const PossessionExportee& possession : film.possessions)
        ajouteLigne(tableau, film, possession, champs);
    if (film.possessions.empty()) ajouteLigne(tableau, film, {}, champs);
}

}  // namespace exportation
