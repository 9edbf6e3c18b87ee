#include "edit/Complement.h"

#include "edit/ChampsLus.h"
#include "util/Texte.h"

namespace edit {

namespace {

bool ditQuelqueChose(const std::string& texte) {
    return texte.find_first_not_of(" \t") != std::string::npos;
}

bool seComplete(const dao::Recordset& film, const FilmLu& lu, const ChampLu& champ) {
    return ditQuelqueChose(lu.*champ.valeur) && film.texte(champ.colonne).empty();
}

}  // namespace

std::vector<std::string> champsACompleter(const dao::Recordset& film, const FilmLu& lu) {
    std::vector<std::string> champs;
    for (const ChampLu& champ : kChampsLus)
        if (seComplete(film, lu, champ)) champs.emplace_back(champ.colonne);
    return champs;
}

void complete(dao::Recordset& film, const FilmLu& lu) {
    for (const ChampLu& champ : kChampsLus)
        if (seComplete(film, lu, champ)) film.assigne(champ.colonne, lu.*champ.valeur);
}

std::string legendes(const std::vector<std::string>& champs) {
    std::string texte;
    for (const std::string& nom : champs) {
        std::string legende = nom == kChampAffiche ? "affiche" : nom;
        for (const ChampLu& champ : kChampsLus)
            if (nom == champ.colonne) legende = util::minuscules(champ.legende);
        texte += (texte.empty() ? "" : ", ") + legende;
    }
    return texte;
}

}  // namespace edit
