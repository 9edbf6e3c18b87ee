#include "browse/AffichePossession.h"

#include "browse/Puces.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"

namespace browse {

namespace {

constexpr std::size_t kNonPossede = 0;
constexpr std::size_t kRangement = 3, kDivers = 4, kDate = 6;  // in Text10, after the three files

ChampsPossession lis(const dao::Recordset& possession) {
    ChampsPossession champs;
    champs.possede = true;
    champs.Text10[0] = possession.texte("Fichier1");
    champs.Text10[1] = possession.texte("Fichier2");
    champs.Text10[2] = possession.texte("Fichier3");
    champs.Text10[kRangement] = possession.texte("Rangement");
    champs.Text10[kDivers] = possession.texte("Divers");
    champs.Text10[kDate] = possession.texte("Date");
    champs.Combo7 = {possession.texte("Pret"), possession.texte("Reserve"), possession.texte("Support")};
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
    fiche.cheminsFichiers = film.fichiers;
    for (std::size_t i = 0; i < film.fichiers.size(); ++i) {
        const std::string nom = fichiers::nomDeFichier(film.fichiers[i]);
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
