#include "browse/AffichePossession.h"

#include "browse/Puces.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomMontrable.h"

namespace browse {

namespace {

constexpr std::size_t kNonPossede = 0;

ChampsPossession lis(const dao::Recordset& possession) {
    ChampsPossession champs;
    champs.possede = true;
    for (const CaseDeChamp& celle : kCasesDesChamps)
        champs.valeur(celle) = possession.texte(celle.champ);
    return champs;
}

void retientLesFichiers(FilmCourant& film) {
    for (std::size_t i = 0; i < film.fichiers.size(); ++i) {
        film.fichiers[i] = film.possession.Text10[i];
        if (!film.fichiers[i].empty()) film.fichiersPresents = true;
    }
}

void nommeLesFichiers(EtatFiche& fiche, const FilmCourant& film) {
    fiche.captionFichiers = film.titre;
    for (std::size_t i = 0; i < film.fichiers.size(); ++i) {
        const std::string nom = util::nomMontrable(fichiers::nomDeFichier(film.fichiers[i]));
        fiche.cheminsFichiers[i] = util::nomMontrable(film.fichiers[i]);
        fiche.Command1[i].Enabled = !film.fichiers[i].empty();
        fiche.Command1[i].Caption = nom.empty() ? "Fichier " + std::to_string(i + 1) : nom;
    }
}

}  // namespace

void montrePossession(EtatFiche& fiche) {
    const bool possede = !fiche.Option1[kNonPossede].Value;
    fiche.framePossession.Visible = possede;
    fiche.cmdRaffraichirListe.Visible = possede;
}

void AffichePossession(const Contexte& c) {
    FilmCourant& film = c.film;
    film.fichiersPresents = false;
    film.fichiers = {};
    const dao::Recordset possession = db::ouvreRequete(c, db::enoncePossession(film), db::NumeroErreur::AfficheFiche);
    c.fiche.cmdValiderInfosPossessions.Visible = false;
    film.possession = possession.Eof() ? ChampsPossession() : lis(possession);
    ecritChampsPossession(c.fiche, film.possession);
    montrePossession(c.fiche);
    montrePuces(c.fiche, film.possession);
    retientLesFichiers(film);
    c.fiche.cmdFichiersFilm.Visible = film.fichiersPresents;
    nommeLesFichiers(c.fiche, film);
}

}  // namespace browse
