#pragma once

#include "acquire/AffichesImportees.h"
#include "acquire/LotImport.h"
#include "acquire/RapportImport.h"
#include "edit/JugeFilms.h"
#include "ensemble/Avancement.h"
#include "voisins/Examen.h"

#include <vector>

namespace voisins {

// One passage over the films of a collection that the user wants, each with its holding, its loan and its poster. Films are
// stored in lots, their poster files before them; between two films the screen breathes, and a stop leaves what was
// added. Of a lot that fails nothing stays, in the base, in the images folder nor in the report. Posters are read one at
// a time, in the order in which they lie.
class PassageVoisins {
  public:
    // Both outlive it.
    PassageVoisins(const acquire::Contexte& c, const Examen& examen);

    // Runs it to its end, to the user's stop, or to a failure, which it has shown.
    [[nodiscard]] acquire::RapportImport execute();

  private:
    void importeTout();
    void importe(std::size_t rang);
    void ajoute(const FilmVoisin& film);
    void complete(const FilmVoisin& film);
    [[nodiscard]] bool estPossede(const FilmVoisin& film) const;
    void ajoutePossessions(const FilmVoisin& film);
    void ajoutePossession(const db::CleFilm& film, const PossessionVoisine& celle);
    // Empty where the film has none, or none that can be had, which the report then says.
    [[nodiscard]] acquire::AfficheImportee afficheDe(const FilmVoisin& film);
    void confirmeLot();
    [[nodiscard]] acquire::RapportImport rapport();

    struct Compte {
        long possedes = 0, pretes = 0, possessions = 0, completes = 0;
    };
    const acquire::Contexte& m_c;
    const Examen& m_examen;
    std::vector<std::size_t> m_ordre;
    edit::JugeFilms m_juge;
    acquire::LotImport m_lot;
    acquire::AffichesImportees m_affiches;
    acquire::RapportImport m_rapport, m_acquis;  // m_acquis: as it was when the last lot was stored
    Compte m_compte, m_compteAcquis;
    std::string m_jour;
    std::size_t m_faits = 0, m_faitsAcquis = 0;
};

}  // namespace voisins
