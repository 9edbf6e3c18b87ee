#pragma once

#include "acquire/cmdAjoutAuto_Click.h"
#include "doubles/DialoguesScript.h"
#include "doubles/EcranMuet.h"
#include "doubles/HorlogeFixe.h"
#include "doubles/MontreFixe.h"
#include "unit/edit/BaseDEssai.h"

#include <string>

#include <gtest/gtest.h>

namespace doubles {

inline constexpr const char* kQuestionRessemblance =
    "Souhaitez-vous que le logiciel vérifie si les nouveaux titres ajoutés ressemblent à d'autres titres déjà présents "
    "en base ?";

// The import with everything under it, on a real base; the boxes are scripted.
struct ImportDEssai : testing::Test {
    BaseDEssai essai;
    DialoguesScript dialogues;
    EcranMuet ecran;
    HorlogeFixe horloge;
    MontreFixe montre;
    edit::EtatAjout ajout;
    db::EtatStockage stockage;
    db::Chemins chemins = db::Chemins::depuis(essai.dossier.chemin());
    browse::EtatListe liste;
    browse::EtatFiche fiche;
    browse::FilmCourant courant;
    browse::AfficheTitres afficheTitres{liste, essai.base};
    browse::CreeRequeteAffichage creeRequeteAffichage{essai.base, liste, courant, afficheTitres, dialogues};
    browse::CreeEtAfficheRecherche creeEtAfficheRecherche{liste, creeRequeteAffichage};
    browse::AfficheNbTitres afficheNbTitres{liste, essai.base};
    edit::EnregistrementFilm enregistrement{essai.base, ajout, stockage, chemins, courant, dialogues};
    edit::Doublons doublons{essai.base, dialogues};
    edit::Ressemblances ressemblances{essai.base, dialogues};
    edit::BoitesDeroulantes boites{essai.base, fiche, dialogues};
    acquire::ImportFiches import{{essai.base, chemins, ajout, stockage, enregistrement, doublons, ressemblances,
                                  dialogues, ecran, montre.montre()},
                                 {liste, creeEtAfficheRecherche, afficheNbTitres, boites},
                                 horloge};

    ImportDEssai() {
        for (const char* zone : {"Mes films", "Tous", "2", "3", "4", "5"})
            liste.ChoixZone.AddItem(zone);
        for (int tri = 0; tri < 9; ++tri)
            liste.ChoixTri.AddItem(std::to_string(tri));
        ajout.cmdAjoutFilm.Caption = "Modifier";  // what was being modified is no concern of an import
    }

    void attendQuestions(long nombre, bool possede, bool ressemblance, const std::string& support = "") {
        dialogues.attendMsgBox(acquire::questionPossession(nombre), ::dialogues::kQuestion, reponse(possede));
        if (possede)
            dialogues.attendInputBox(
                "Vous pouvez indiquer le nom du support qui sera attribué à tous les films ajoutés (DVD, K7...)",
                support, "Nom du support");
        dialogues.attendMsgBox(kQuestionRessemblance, ::dialogues::kQuestion, reponse(ressemblance));
    }

  private:
    static int reponse(bool oui) { return oui ? ::dialogues::kOui : ::dialogues::kNon; }
};

}  // namespace doubles
