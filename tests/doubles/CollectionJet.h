#pragma once

#include "doubles/BaseJet.h"
#include "util/Texte.h"

#include <string>

namespace doubles {

// A film's picture in a collection: bytes of every value, each film's its own.
inline std::string imageJet(int film, std::size_t taille = 6000) {
    std::string octets = "\xFF\xD8";
    for (std::size_t i = 2; i < taille; ++i)
        octets += static_cast<char>(i * static_cast<std::size_t>(film + 1) + i / 256);
    return octets;
}

// A row of a collection's films.
inline void filmJet(BaseJet& base, const std::string& titre, const std::string& affiche) {
    const std::string resume = std::string(5000, 'r') + " L'œuvre \"" + titre + "\"\r\nfin";
    base.ligne(0, {titre, "Agnès Varda", "1962", "France", "Drame", "1H30", "", resume, std::nullopt, affiche,
                   BaseJet::petit(7, 2), "12/03/2004", "16/9"});
}

// A small collection as a genuine Jet base: films 0 to `films` - 1 ("Été 0", "Été 1"...), each with a summary over two
// pages and its picture in the base; the first two are owned. A third table and a field more have no place in ours.
inline BaseJet collectionJet(int films, std::size_t tailleImage = 6000) {
    const auto champs = [](std::initializer_list<const char*> noms) {
        std::vector<BaseJet::Champ> tous;
        for (const std::string nom : noms)
            tous.push_back({nom, nom == "NOTE"                                            ? BaseJet::Entier16
                                 : nom == "Resume" || nom == "Affiche" || nom == "Divers" ? BaseJet::Memo
                                                                                          : BaseJet::Texte});
        return tous;
    };
    BaseJet base;
    base.comprime = true;
    base.table("films", champs({"Titre", "Realisateur", "Annee", "Origine", "Genre", "Duree", "Acteurs", "Resume",
                                "Production", "Affiche", "NOTE", "DateAjout", "Format"}));
    for (int film = 0; film < films; ++film)
        filmJet(base, "Été " + std::to_string(film), "STO" + util::depuis1252(imageJet(film, tailleImage)));
    const std::size_t possessions =
        base.table("Personnel", champs({"Titre2", "Realisateur2", "Rangement", "Fichier1", "Fichier2", "Fichier3",
                                        "Pret", "Reserve", "Date", "Divers", "Support"}));
    for (int film = 0; film < films && film < 2; ++film)
        base.ligne(possessions, {"Été " + std::to_string(film), "Agnès Varda", "Salon", "D:\\Films\\été.avi",
                                 std::nullopt, "", "", std::nullopt, "13/03/2004", "prêté", "DVD"});
    base.table("Notes diverses", champs({"Texte"}));
    return base;
}

}  // namespace doubles
