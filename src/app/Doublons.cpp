#include "app/Doublons.h"

#include "app/Collection.h"
#include "edit/cmdSupprimerTitre_Click.h"

namespace app {

void cmdFusionner_Click(const Contexte& c, const ensemble::PlanDeFusion& plan) {
    if (c.dialogues.MsgBox(plan.texte() + "\n\nFusionner ces deux fiches ?", dialogues::kQuestion) != dialogues::kOui)
        return;
    if (!ensemble::fusionne(c, plan)) c.avis.montre("Ces fiches ont changé depuis : rien n'a été fusionné.");
}

void supprimeDepuisLaCollection(const Contexte& c, const db::CleFilm& film) {
    montreLeFilm(c, film);
    if (!c.film.estUnFilm() || static_cast<const db::CleFilm&>(c.film) != film) return;
    edit::cmdSupprimerTitre_Click(c);
    cmdCollection_Click(c);
}

}  // namespace app
