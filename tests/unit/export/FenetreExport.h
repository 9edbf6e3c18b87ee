#pragma once

#include "export/Contexte.h"
#include "unit/browse/Fenetre.h"

// The window's two sides with the program's name, which an export may borrow. Commands of the room take `c`.
class FenetreExport : public Fenetre {
  protected:
    exportation::EtatNom nom;
    exportation::Contexte sorties{fenetre, nom};
    const exportation::Contexte& c = sorties;

    void attendNom(const std::string& reponse) {
        dialogues.attendInputBox(
            "Entrez le chemin et le nom du fichier à créer (sans l'extension)..\nExemple : C:\\FILMS", reponse,
            "Créer la liste des titres");
    }
};
