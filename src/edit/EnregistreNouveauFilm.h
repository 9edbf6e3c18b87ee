#pragma once

#include "browse/FilmCourant.h"
#include "db/Affiches.h"
#include "db/Base.h"
#include "edit/EtatAjout.h"
#include "platform/dialogues/Dialogues.h"

#include <string>

namespace edit {

// What became of the poster of a stored film.
enum class SortAffiche {
    Aucune,       // no path was given, or the film was modified: its poster stays
    Enregistree,  // in the base, or copied into the images folder
    TropGrande,   // kTailleMaxAffiche bytes or more, with posters in the base
    Illisible,    // could not be read or copied: the film has no poster, and names no file that is not there
};

// Writes one film from the entry controls, cut to the lengths of the columns. Used by the manual entry and by the
// import. A film is stored whole whatever happens to its poster.
class EnregistrementFilm {
  public:
    EnregistrementFilm(db::Base& base, const EtatAjout& ajout, db::EtatStockage& stockage, const db::Chemins& chemins,
                       const browse::FilmCourant& courant, dialogues::Dialogues& dialogues);

    // Adds, or in modify mode (caption of cmdAjoutFilm) rewrites the current film, or adds it when it is no longer found.
    // `image` may be empty. Throws ErreurDao.
    SortAffiche EnregistreNouveauFilm(const std::string& image, const std::string& resume,
                                      const std::string& dateAjout);

  private:
    struct Affiche {
        dao::Valeur valeur;
        SortAffiche sort = SortAffiche::Aucune;
    };
    [[nodiscard]] Affiche prepareAffiche(const std::string& image);
    [[nodiscard]] static Affiche afficheDansLaBase(const std::string& image);
    [[nodiscard]] Affiche afficheEnFichier(const std::string& image);
    [[nodiscard]] bool modifieFilmCourant(const std::string& resume);
    void ecritChamps(dao::Recordset& films, const std::string& resume) const;

    db::Base& m_base;
    const EtatAjout& m_ajout;
    db::EtatStockage& m_stockage;
    const db::Chemins& m_chemins;
    const browse::FilmCourant& m_courant;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace edit
