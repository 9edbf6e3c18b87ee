#pragma once

#include "db/ChampsPublies.h"
#include "util/Tables.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstddef>
#include <string>
#include <vector>

namespace exportation {

// All that the base says of a film and of one holding of it, in the order in which exports write it.
enum class Champ : std::size_t {
    Titre,
    Realisateur,
    Annee,
    Origine,
    Genre,
    Duree,
    Acteurs,
    Resume,
    Production,
    Note,
    DateAjout,
    Affiche,
    Possede,  // whether there is a holding at all
    Support,
    Rangement,
    Pret,
    Reserve,
    Date,
    Divers,
    Fichier1,
    Fichier2,
    Fichier3,
};
inline constexpr std::size_t kNombreDeChamps = static_cast<std::size_t>(Champ::Fichier3) + 1;

struct DescriptionDuChamp {
    Champ champ;
    const char* intitule;
    const char* colonne;  // of the base
};
// Of a poster its file's name, since its bytes are no text. "Date" alone would be taken for the year of a film.
inline constexpr std::array<DescriptionDuChamp, kNombreDeChamps> kChamps{{
    {Champ::Titre, "Titre", "Titre"},
    {Champ::Realisateur, "Réalisateur", "Realisateur"},
    {Champ::Annee, "Année", "Annee"},
    {Champ::Origine, "Origine", "Origine"},
    {Champ::Genre, "Genre", "Genre"},
    {Champ::Duree, "Durée", "Duree"},
    {Champ::Acteurs, "Acteurs", "Acteurs"},
    {Champ::Resume, "Résumé", "Resume"},
    {Champ::Production, "Production", "Production"},
    {Champ::Note, "Note", "Note"},
    {Champ::DateAjout, "Date d'ajout", "DateAjout"},
    {Champ::Affiche, "Affiche", "Affiche"},
    {Champ::Possede, "Possédé", "Titre2"},
    {Champ::Support, "Support", "Support"},
    {Champ::Rangement, "Rangement", "Rangement"},
    {Champ::Pret, "Prêté à", "Pret"},
    {Champ::Reserve, "Réservé pour", "Reserve"},
    {Champ::Date, "Date de possession", "Date"},
    {Champ::Divers, "Divers", "Divers"},
    {Champ::Fichier1, "Fichier 1", "Fichier1"},
    {Champ::Fichier2, "Fichier 2", "Fichier2"},
    {Champ::Fichier3, "Fichier 3", "Fichier3"},
}};
static_assert(util::dansLOrdre(kChamps, &DescriptionDuChamp::champ, Champ::Fichier3));
inline constexpr std::size_t kChampsDuFilm = static_cast<std::size_t>(Champ::Possede);
inline constexpr std::size_t kChampsDePossession = kNombreDeChamps - kChampsDuFilm;
// Each column of the base has its place: that of the holding's title says whether there is one.
static_assert(kChampsDuFilm == db::kChampsFilms.size() && kChampsDePossession == 1 + db::kChampsDePossession.size());
static_assert(std::ranges::all_of(kChamps, [](const DescriptionDuChamp& celui) {
    return std::ranges::find(db::kChampsFilms, celui.colonne) != db::kChampsFilms.end() ||
           std::ranges::find(db::kChampsPersonnel, celui.colonne) != db::kChampsPersonnel.end();
}));

[[nodiscard]] constexpr bool estDePossession(Champ champ) {
    return champ >= Champ::Possede;
}
[[nodiscard]] constexpr const char* intitule(Champ champ) {
    return kChamps[static_cast<std::size_t>(champ)].intitule;
}

// Which of them are wanted.
class Champs {
  public:
    Champs() = default;
    [[nodiscard]] static Champs tous() {
        Champs champs;
        champs.m_bits.set();
        return champs;
    }
    [[nodiscard]] bool contient(Champ champ) const { return m_bits[static_cast<std::size_t>(champ)]; }
    Champs& met(Champ champ, bool voulu = true) {
        m_bits[static_cast<std::size_t>(champ)] = voulu;
        return *this;
    }
    friend bool operator==(const Champs&, const Champs&) = default;

  private:
    std::bitset<kNombreDeChamps> m_bits;
};

// A holding's fields, from Champ::Possede on: the first one is "oui".
using PossessionExportee = std::array<std::string, kChampsDePossession>;

// A film with its holdings; a field that is Null is "".
struct FilmExporte {
    std::array<std::string, kChampsDuFilm> fiche;  // `Affiche`: its file's name, "" for one in the base
    std::vector<PossessionExportee> possessions;
    std::string affiche;  // the poster's column as the base has it, where it is wanted
    int groupe = -1;      // of the list it comes from: FilmsAExporter::groupes

    [[nodiscard]] const std::string& valeur(Champ champ) const { return fiche[static_cast<std::size_t>(champ)]; }
    // What its holdings say, the same thing once: "DVD, K7".
    [[nodiscard]] std::string valeursDePossession(Champ champ) const;
};

}  // namespace exportation
