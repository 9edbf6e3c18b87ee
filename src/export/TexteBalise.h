#pragma once

#include <string>

namespace exportation {

// What the lists say of an owned film; a field that is Null is "".
struct FilmDeLaListe {
    std::string titre, realisateur, duree, genre, annee, origine, acteurs, resume;
    std::string rangement, divers, support;
};

// The list before it is formatted: plain text with CR LF, each part of a film between its pair of tags.
class TexteBalise {
  public:
    explicit TexteBalise(bool parGenre) : m_parGenre(parGenre) {}

    // Sorted by genre, a film whose genre is not the one before's comes under a heading.
    void ajoute(const FilmDeLaListe& film);
    [[nodiscard]] const std::string& texte() const& { return m_texte; }
    [[nodiscard]] std::string texte() && { return std::move(m_texte); }

  private:
    void ajoutePossession(const FilmDeLaListe& film);

    bool m_parGenre;
    std::string m_genre;
    std::string m_texte;
};

}  // namespace exportation
