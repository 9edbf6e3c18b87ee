#pragma once

#include "db/Affiches.h"
#include "db/LotAffiches.h"
#include "edit/Contexte.h"

#include <optional>
#include <string>

namespace edit {

// What became of the poster of a stored film.
enum class DevenirAffiche {
    Aucune,       // no path was given, or the film was modified: its poster stays
    Enregistree,  // in the base, or copied into the images folder
    TropGrande,   // kTailleMaxAffiche bytes or more, with posters in the base
    Illisible,    // the chosen file could not be read: the film has no poster
};

// A film about to be written: all that reads files or may show a box has been done.
struct FilmPret {
    dao::Valeur affiche;
    DevenirAffiche devenir = DevenirAffiche::Aucune;
    dao::Recordset ancien;  // the row to rewrite; closed where a row is to be added
};

// Writes films from the entry controls, cut to the lengths of the columns. Used by the manual entry and by the import.
// A poster that goes to the images folder is written by the first step and belongs to the transaction of the second: who
// confirms that one calls avantValidation before and apresValidation after, or apresAnnulation once it is rolled back.
class EnregistrementFilm {
  public:
    // `c` outlives it.
    explicit EnregistrementFilm(const Contexte& c) : m_c(c) {}

    // Adds, or in modify mode (caption of cmdAjoutFilm) rewrites the current film, or adds it when it is no longer found.
    // `image` may be empty. Throws ErreurDao, and db::EchecConversion when the poster's file could not be written.
    DevenirAffiche EnregistreNouveauFilm(const std::string& image, const std::string& resume,
                                         const std::string& dateAjout);

    // The same in two steps, for who writes more in the same transaction: only the second belongs inside it.
    [[nodiscard]] FilmPret prepare(const std::string& image);  // throws db::RequeteEchouee after its message
    void ecrit(FilmPret& film, const std::string& resume, const std::string& dateAjout);

    void avantValidation();  // the posters are on the disk then. Throws db::EchecConversion
    void apresValidation();
    void apresAnnulation();  // nothing of the posters is left

  private:
    void afficheEnFichier(FilmPret& film, const std::string& image);
    void ecritChamps(dao::Recordset& films, const std::string& resume) const;

    const Contexte& m_c;
    std::optional<db::LotAffiches> m_affiches;  // of the transaction
};

}  // namespace edit
