#pragma once

#include "acquire/cmdAjoutAuto_Click.h"
#include "unit/edit/FenetreEdition.h"

#include <string>

// The window with what brings films into it. Commands of the room take `c`.
class FenetreAcquisition : public FenetreEdition {
  protected:
    ecran::CaseACocher chkLancerConnexion;
    acquire::Contexte acquisition{edition, chkLancerConnexion};
    const acquire::Contexte& c = acquisition;

    FenetreAcquisition() {
        ajout.cmdAjoutFilm.Caption = "Modifier";  // what was being modified is no concern of an import
    }

    void attendQuestions(long nombre, bool possede, bool ressemblance, const std::string& support = "") {
        dialogues.attendMsgBox(acquire::questionPossession(nombre), dialogues::kQuestion, reponse(possede));
        if (possede)
            dialogues.attendInputBox(
                "Vous pouvez indiquer le nom du support qui sera attribué à tous les films ajoutés (DVD, K7...)",
                support, "Nom du support");
        dialogues.attendMsgBox(
            "Souhaitez-vous que le logiciel vérifie si les nouveaux titres ajoutés ressemblent à d'autres titres déjà "
            "présents en base ?",
            dialogues::kQuestion, reponse(ressemblance));
    }

  private:
    static int reponse(bool oui) { return oui ? dialogues::kOui : dialogues::kNon; }
};
