#include "browse/cmdRecherche_Click.h"

#include "browse/TexteRequete.h"

#include <algorithm>

namespace browse {

namespace {

std::array<bool, 4> champsCoches(const EtatRecherche& recherche) {
    std::array<bool, 4> champs{};
    for (std::size_t i = 0; i < champs.size(); ++i)
        champs[i] = recherche.ZoneRecherche[i].Value == 1;
    return champs;
}

}  // namespace

void cmdRecherche_Click::operator()() {
    if (const char* texte = refus()) {
        m_dialogues.MsgBox(texte, dialogues::kExclamation);
        return;
    }
    static constexpr std::array kZones{kZoneTous, kZoneMesFilms, kZoneNonPossedes};  // of each TypeFilm
    for (std::size_t i = 0; i < kZones.size(); ++i)
        if (m_recherche.TypeFilm[i].Value) m_liste.zoneRecherche = kZones[i];
    m_liste.critereRecherche = construitConditionRecherche(m_recherche.Text2.Text, champsCoches(m_recherche));
    m_creeEtAfficheRecherche();
}

const char* cmdRecherche_Click::refus() const {
    if (m_base.films.RecordCount() == 0) return "Aucun enregistrement déjà disponible !";
    if (m_recherche.Text2.Text.empty()) return "Aucun texte à rechercher !";
    const auto champs = champsCoches(m_recherche);
    if (std::find(champs.begin(), champs.end(), true) == champs.end()) return "Aucune zone de recherche précisée !";
    return nullptr;
}

}  // namespace browse
