#pragma once

#include "browse/FilmCourant.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/systeme/Programmes.h"
#include "platform/systeme/Volumes.h"
#include "view/EtatFichiers.h"
#include "view/LanceFichier.h"
#include "view/TableExtensions.h"

#include <string>

namespace view {

// The buttons of frmFichiersFilm: finds an attached file of the current film on whatever volume it now lies, and opens it
// with the program of its extension, or with the desktop's own.
class Command1_Click {
  public:
    Command1_Click(EtatFichiers& etat, const browse::FilmCourant& film, const TableExtensions& extensions,
                   systeme::Volumes& volumes, systeme::Programmes& programmes, LanceFichier& lanceFichier,
                   dialogues::Dialogues& dialogues)
        : m_etat(etat),
          m_film(film),
          m_extensions(extensions),
          m_volumes(volumes),
          m_programmes(programmes),
          m_lanceFichier(lanceFichier),
          m_dialogues(dialogues) {}

    // 0 to 2: that file; 3: hides the window.
    void operator()(int indice);

  private:
    void ouvre(const std::string& fichier);
    void lance(const std::string& logiciel, const std::string& chemin);
    void refuse(const std::string& texte) { m_dialogues.MsgBox(texte, dialogues::kCritique); }

    EtatFichiers& m_etat;
    const browse::FilmCourant& m_film;
    const TableExtensions& m_extensions;
    systeme::Volumes& m_volumes;
    systeme::Programmes& m_programmes;
    LanceFichier& m_lanceFichier;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace view
