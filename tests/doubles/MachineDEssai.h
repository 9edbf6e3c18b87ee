#pragma once

#include "db/Contexte.h"
#include "doubles/DialoguesScript.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/EcranMuet.h"
#include "doubles/HorlogeFixe.h"
#include "doubles/ImagesSimulees.h"
#include "doubles/MontreFixe.h"
#include "doubles/ProgrammesSimules.h"
#include "doubles/RafraichissementNote.h"
#include "doubles/VolumesSimules.h"

namespace doubles {

// A machine of doubles, a program folder and the state under every command; the base is not open yet. `machine` is what
// commands of the base are handed, and what the contexts of the rooms above are made from.
struct MachineDEssai {
    DossierTemporaire dossier;
    DialoguesScript dialogues;
    EcranMuet ecranMuet;
    ImagesSimulees images;
    HorlogeFixe horloge;
    MontreFixe montre;
    DocumentsEnregistres documents;
    ProgrammesSimules programmes;
    VolumesSimules volumes;

    ecran::EtatAvis etatAvis;
    ecran::Avis avis{etatAvis};
    ecran::Demandes demandes;
    db::EtatTravaux travaux;
    db::Base base;
    db::Chemins chemins = db::Chemins::depuis(dossier.chemin());
    db::EtatStockage stockage;
    RafraichissementNote rafraichissement;
    db::Annulations annulations{base, chemins};

    // The same machine with other boxes.
    [[nodiscard]] db::Contexte avec(dialogues::Dialogues& boites) {
        return {boites,   ecranMuet, images, horloge, documents, programmes,       volumes,     avis,
                demandes, travaux,   base,   chemins, stockage,  rafraichissement, annulations, montre.montre()};
    }
    db::Contexte machine = avec(dialogues);

    MachineDEssai() = default;
    MachineDEssai(const MachineDEssai&) = delete;
    MachineDEssai& operator=(const MachineDEssai&) = delete;
    ~MachineDEssai() { base.ferme(); }
};

}  // namespace doubles
