#pragma once

#include "export/TexteBalise.h"

#include <string>

namespace exportation {

// The list of the owned titles as tab-separated text: their count, then a numbered line each, ended by CR LF. By genre,
// each genre has its heading and its own numbers; otherwise it is a column.
class TexteListe {
  public:
    explicit TexteListe(bool parGenre) : m_parGenre(parGenre) {}

    void ajoute(const FilmDeLaListe& film);  // in the list's order
    [[nodiscard]] std::string texte() const;

  private:
    bool m_parGenre;
    long m_nombre = 0;  // of all titles
    long m_numero = 0;  // of the last one
    std::string m_genre;
    std::string m_lignes;
};

}  // namespace exportation
