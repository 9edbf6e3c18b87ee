#pragma once

#include "db/Contexte.h"
#include "export/FilmExporte.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace exportation {

// Which films leave: rows of a listing, by their positions from 1, under headings that may be.
struct FilmsAExporter {
    struct Ligne {
        std::uint32_t position = 0;
        std::int32_t groupe = -1;  // -1: under no heading
    };
    std::string nom;  // "Mes films", what a catalogue of them is called
    std::vector<std::string> groupes;
    std::vector<Ligne> lignes;
};

// Reads them one after the other. In a listing of films that are owned a row is a film with one holding, and rows of one
// film that follow each other are one; in any other the holdings of each film are looked up. A row that was deleted
// meanwhile is passed over. The listing's current record is in the end what it was.
class LecteurDesFilms {
  public:
    // All of them outlive it. `avecAffiche`: the poster's column is wanted.
    LecteurDesFilms(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films, bool avecAffiche);
    LecteurDesFilms(const LecteurDesFilms&) = delete;
    LecteurDesFilms& operator=(const LecteurDesFilms&) = delete;
    ~LecteurDesFilms();

    // Nothing behind the last one. Throws dao::ErreurDao.
    [[nodiscard]] std::optional<FilmExporte> lit();
    void recommence();
    [[nodiscard]] long lues() const { return static_cast<long>(m_suivante); }  // rows
    // The poster's bytes of a film read with its column, as they are stored; nothing where there is none to be read.
    [[nodiscard]] std::optional<std::string> affiche(const FilmExporte& film) const;

  private:
    [[nodiscard]] std::optional<FilmExporte> litLigne();
    [[nodiscard]] PossessionExportee litPossession(const dao::Recordset& possession) const;
    void ajouteLesPossessions(FilmExporte& film) const;

    const db::Contexte& m_c;
    dao::Recordset& m_liste;
    const FilmsAExporter& m_films;
    bool m_avecAffiche;
    bool m_jointe;  // its rows have a holding
    std::array<dao::Colonne, kNombreDeChamps> m_colonnes;
    std::string m_dossierImages;
    long m_avant;
    std::size_t m_suivante = 0;
    std::optional<FilmExporte> m_enAttente;
};

}  // namespace exportation
