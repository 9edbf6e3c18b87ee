#pragma once

#include "export/TexteBalise.h"
#include "platform/dao/Recordset.h"

#include <array>

namespace exportation {

// Reads the owned films of a listing, one after the other. Its poster is left alone.
class LecteurDeFilms {
  public:
    explicit LecteurDeFilms(dao::Recordset& titres);

    // The current record's film; it holds until the next call. Nothing when someone deleted its row meanwhile.
    [[nodiscard]] const FilmDeLaListe* lit();

  private:
    struct Champ {
        dao::Colonne colonne;
        std::string FilmDeLaListe::*valeur;
    };

    dao::Recordset& m_titres;
    std::array<Champ, 11> m_champs;
    FilmDeLaListe m_film;
};

}  // namespace exportation
