#pragma once

#include "acquire/AffichesImportees.h"
#include "acquire/Contexte.h"
#include "acquire/LotImport.h"
#include "acquire/Passage.h"
#include "acquire/RapportAncienne.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace acquire {

// One passage over the base of a previous installation: adds the films and holdings that the open base does not have,
// every field as it is, each film with its holding and with its poster where new posters go. A poster that is not found
// stays named as it was, and a film that is there without its poster is given it. Films are stored in lots,
// their poster files before them; between two films the screen breathes, and a stop leaves what was added. Of a lot that
// fails nothing stays, in the base, in the images folder nor in the report. Shows no box.
//
// A film or a holding is there already when its title and director equal another's for the base; Null is "" here. Of
// those that come twice the first is taken.
class PassageAncienne {
  public:
    // `c` and the base outlive it. Throws dao::ErreurDao where the previous base lacks a table or a field.
    PassageAncienne(const Contexte& c, dao::Database& ancienne, std::string dossierImages);

    void execute();
    [[nodiscard]] const RapportAncienne& rapport() const { return m_acquis; }
    [[nodiscard]] const std::optional<EchecDePassage>& echec() const { return m_echec; }

  private:
    using Cles = std::unordered_set<std::string>;
    void reprendTout();
    void releve();
    void reprendFilms();
    void reprendOrphelines();
    void reprendFilm();
    void ajouteFilm();
    [[nodiscard]] bool reprendPossession(const std::string& cle);
    void completeAffiche(const db::CleFilm& film);
    [[nodiscard]] db::CleFilm filmCourant() const;  // of m_films
    // The current film's poster in its new place; nothing when it stays where it was.
    [[nodiscard]] std::optional<AfficheImportee> reprendAffiche(const std::string& ancienne, std::string_view actuelle);
    [[nodiscard]] std::optional<std::string> litImage(const std::string& ancienne);
    [[nodiscard]] std::optional<AfficheImportee> place(std::string_view octets, bool tientDansLaBase,
                                                       std::string_view actuelle);
    // Between two films: false when the user stops.
    [[nodiscard]] bool poursuit();
    void confirmeLot();

    const Contexte& m_c;
    dao::Recordset m_films;        // of the previous installation
    dao::Recordset m_possessions;  // likewise
    std::string m_dossierImages;   // likewise
    LotImport m_lot;
    AffichesImportees m_affiches;
    Cles m_connus;                                       // films of the open base
    Cles m_possedes;                                     // its holdings
    std::unordered_map<std::string, long> m_aReprendre;  // rows of m_possessions, by film
    RapportAncienne m_rapport;
    RapportAncienne m_acquis;  // the report as it was when the last lot was stored
    std::optional<EchecDePassage> m_echec;
};

}  // namespace acquire
