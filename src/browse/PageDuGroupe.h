#pragma once

#include "browse/Contexte.h"

#include <cstdint>
#include <optional>
#include <string>

namespace browse {

inline constexpr std::int64_t kTailleMaxApercu = 4 << 20;  // bytes; a longer poster is shown on its sheet alone

enum class Renommage { Aucun, Genre, Support };

// What the right side shows while no film is chosen: the chosen heading, else the whole listing.
struct PageDuGroupe {
    std::string nom;
    std::string compte;  // "12 films"
    int groupe = 0;      // the heading's node; 0: the whole listing
    long films = 0;
    Renommage renommage = Renommage::Aucun;

    friend bool operator==(const PageDuGroupe&, const PageDuGroupe&) = default;
};

[[nodiscard]] PageDuGroupe pageDuGroupe(const EtatListe& liste);

// Where a film's poster is, as far as the base has to be asked for it. Nobody is told of what cannot be read, and no
// value of the window changes.
struct SourceAffiche {
    std::string octets;   // of one in the base
    std::string fichier;  // else the path of its file; both "": none
};
[[nodiscard]] SourceAffiche sourceDuNoeud(const Contexte& c, int noeud);
// Of a film, listed or not; of several of one name, the first or the one of that rank.
[[nodiscard]] SourceAffiche sourceDuFilm(const Contexte& c, const db::CleFilm& film, long rang = 0);

// The poster's bytes; nothing without one, and where its file cannot be read or is too long. Of any thread.
[[nodiscard]] std::optional<std::string> octetsDe(SourceAffiche source);
[[nodiscard]] std::optional<std::string> afficheDuFilm(const Contexte& c, const db::CleFilm& film, long rang = 0);

// What tells the film of a node from another of the same title; empty where its row cannot be read.
struct LegendeFilm {
    std::string realisateur, annee;
};
[[nodiscard]] LegendeFilm legendeDuNoeud(const Contexte& c, int noeud);

}  // namespace browse
