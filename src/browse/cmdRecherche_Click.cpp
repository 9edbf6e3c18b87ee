#include "browse/cmdRecherche_Click.h"

#include "browse/CreeEtAfficheRecherche.h"
#include "browse/TexteRequete.h"

#include <algorithm>
#include <array>

namespace browse {

namespace {

constexpr std::array kZoneDeTypeFilm{kZoneTous, kZoneMesFilms, kZoneNonPossedes};

std::array<bool, 4> champsCoches(const EtatRecherche& recherche) {
    std::array<bool, 4> champs{};
    for (std::size_t i = 0; i < champs.size(); ++i)
        champs[i] = recherche.ZoneRecherche[i].Value == 1;
    return champs;
}

const char* refus(const Contexte& c) {
    if (c.base.films.RecordCount() == 0) return "Aucun enregistrement déjà disponible !";
    if (c.recherche.Text2.Text.empty()) return "Aucun texte à rechercher !";
    const auto champs = champsCoches(c.recherche);
    if (std::find(champs.begin(), champs.end(), true) == champs.end()) return "Aucune zone de recherche précisée !";
    return nullptr;
}

}  // namespace

void cmdRecherche_Click(const Contexte& c) {
    if (const char* texte = refus(c)) {
        c.dialogues.MsgBox(texte, dialogues::kExclamation);
        return;
    }
    for (std::size_t i = 0; i < kZoneDeTypeFilm.size(); ++i)
        if (c.recherche.TypeFilm[i].Value) c.liste.zoneRecherche = kZoneDeTypeFilm[i];
    c.liste.critereRecherche = construitConditionRecherche(c.recherche.Text2.Text, champsCoches(c.recherche));
    CreeEtAfficheRecherche(c);
}

}  // namespace browse
