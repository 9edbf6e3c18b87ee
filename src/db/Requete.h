#pragma once

#include "db/Contexte.h"

#include <span>
#include <string>
#include <string_view>

namespace db {

// Each procedure that runs a query has its own number in "Erreur (n) : Etablissement de requête". 22 is the failed
// opening of a base and belongs to OuvertureBase.
enum class NumeroErreur : int {
    CreeRequeteAffichage = 1,
    AfficheFiche = 8,
    ModifieNoteFilm = 9,
    TitreDejaExistant = 10,
    TestRessemblance = 11,
    RaffraichitBoitesDeroulantes = 12,
    EnregistreNouveauFilm = 14,
    Command13 = 15,
    cmdModifierTitre = 16,
    cmdAjoutFilm = 17,
    cmdValiderInfosPossessions = 18,
    cmdSupprimerTitre = 19,
    cmdSupprTitresSelect = 23,
    ModifieGroupe = 24,
    cmdPonctuation = 25,
    cmdCreerListe = 26,
    cmdRemplacerImage = 27,
    Prets = 28,
    Sante = 29,
    Ressemblances = 30,
    QueRegarder = 31,
    Apercus = 32,
    Statistiques = 33,
    Export = 36,
};

// Thrown after its message was shown: the running command stops, the window stays as it is.
struct RequeteEchouee {
    RequeteEchouee() = default;
    explicit RequeteEchouee(const dao::ErreurDao& erreur);

    std::string raison;  // why, where it lies in the file or in who else uses it; else empty
};

[[nodiscard]] std::string texteErreurRequete(NumeroErreur numero);

// Opens a statement, whose records keep `portees` (dao::Database::OpenRecordset); on failure shows its message (style 16) and
// throws RequeteEchouee.
// A command's window lives on while it reads.
[[nodiscard]] dao::Recordset ouvreRequete(const Contexte& c, const std::string& enonce, NumeroErreur numero,
                                          std::span<const std::string_view> portees = {});

// The same in place of a recordset that is about to go (dao::Database::OpenRecordset), and stands where this fails.
[[nodiscard]] dao::Recordset rouvreRequete(const Contexte& c, const std::string& enonce, NumeroErreur numero,
                                           std::span<const std::string_view> portees, dao::Recordset& precedent);

// Hands every row of a table over as dao::Database::parcourt does, and fails as ouvreRequete does.
void parcourtTable(const Contexte& c, std::string_view table, std::span<const std::string_view> colonnes,
                   NumeroErreur numero, const dao::Database::Recoit& recoit);

// For what a command does at length, step by step: lets the window live on, several times a second. It is called as often
// as one likes, with what the screen shows whole; the base, once open, calls it in all that it reads. The screen outlives it.
[[nodiscard]] dao::Souffle souffle(const Contexte& c);
// For what lasts in one piece and touches neither the state nor the open base: it is done aside (systeme::aCote) while the
// window lives on. The screen outlives it.
[[nodiscard]] dao::Attente attente(const Contexte& c);

}  // namespace db
