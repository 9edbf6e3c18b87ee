#include "edit/Complement.h"

#include <array>

namespace edit {

namespace {

struct Champ {
    const char* nom;
    const char* legende;
    std::string FilmLu::*valeur;
};
constexpr std::array<Champ, 7> kChamps{{{"Annee", "année", &FilmLu::annee},
                                        {"Origine", "origine", &FilmLu::origine},
                                        {"Genre", "genre", &FilmLu::genre},
                                        {"Duree", "durée", &FilmLu::duree},
                                        {"Acteurs", "acteurs", &FilmLu::acteurs},
                                        {"Resume", "résumé", &FilmLu::resume},
                                        {"Production", "production", &FilmLu::production}}};

bool ditQuelqueChose(const std::string& texte) {
    return texte.find_first_not_of(" \t") != std::string::npos;
}

bool seComplete(const dao::Recordset& film, const FilmLu& lu, const Champ& champ) {
    return ditQuelqueChose(lu.*champ.valeur) && film.texte(champ.nom).empty();
}

}  // namespace

std::vector<std::string> champsACompleter(const dao::Recordset& film, const FilmLu& lu) {
    std::vector<std::string> champs;
    for (const Champ& champ : kChamps)
        if (seComplete(film, lu, champ)) champs.emplace_back(champ.nom);
    return champs;
}

void complete(dao::Recordset& film, const FilmLu& lu) {
    for (const Champ& champ : kChamps)
        if (seComplete(film, lu, champ)) film.assigne(champ.nom, lu.*champ.valeur);
}

std::string legendes(const std::vector<std::string>& champs) {
    std::string texte;
    for (const std::string& nom : champs) {
        const char* legende = nom == kChampAffiche ? "affiche" : nom.c_str();
        for (const Champ& champ : kChamps)
            if (nom == champ.nom) legende = champ.legende;
        texte += (texte.empty() ? "" : ", ") + std::string(legende);
    }
    return texte;
}

}  // namespace edit
