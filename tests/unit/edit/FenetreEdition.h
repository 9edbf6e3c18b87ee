#pragma once

#include "doubles/MontreFixe.h"
#include "edit/SuitesModification.h"
#include "edit/TravailParLots.h"
#include "unit/browse/Fenetre.h"

#include <string>
#include <vector>

// The window's two sides with what the commands of this room need beside them.
class FenetreEdition : public Fenetre {
  protected:
    ecran::Progression progression;
    doubles::MontreFixe horloge;
    edit::BoitesDeroulantes boites{base, fiche, dialogues};
    edit::SuitesModification suites{affichageApresModification, selectionneTitre, afficheNbTitres, boites};

    [[nodiscard]] edit::OutilsTravail outils() {
        return {base.base, ecranMuet, progression, dialogues, horloge.montre()};
    }
    std::vector<std::string> colonne(const std::string& source, const char* champ) {
        std::vector<std::string> valeurs;
        for (dao::Recordset lignes = base.base.OpenRecordset(source); !lignes.Eof(); lignes.MoveNext())
            valeurs.push_back(lignes.texte(champ));
        return valeurs;
    }
    std::vector<std::string> titresDesFilms() { return colonne("Films", "Titre"); }
    std::vector<std::string> titresPossedes() { return colonne("Personnel", "Titre2"); }
    [[nodiscard]] int noeud(std::string_view texte) const {
        for (int i = 1; i <= liste.TreeView1.Nodes.Count(); ++i)
            if (liste.TreeView1.Nodes.Text(i) == texte) return i;
        ADD_FAILURE() << "no such node: " << texte;
        return 0;
    }
};
