#include "db/cmdCompacter_Click.h"

#include "db/OuvertureBase.h"
#include "db/Requete.h"
#include "db/Sauvegardes.h"
#include "db/TravauxInacheves.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Retenu.h"
#include "util/Sql.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace db {

namespace {

namespace fs = std::filesystem;

using Empechement = std::optional<std::string>;  // what to tell the user
using AncienFichier = std::optional<fichiers::Retenu>;

std::string fichierDeTravail(const Contexte& c, const std::string& base) {
    std::error_code erreur;
    const bool iciMeme = fs::equivalent(fichiers::dossierDe(base), c.chemins.dossier, erreur);
    return iciMeme ? c.chemins.dansDossier(std::string(kCompactageIci)) : base + std::string(kCompactage);
}

// The recordsets are closed between the copy and its putting in place: a copy that fails leaves them open.
void copieEtRemplace(const Contexte& c, const std::string& base, AncienFichier& ancien) {
    const std::string travail = fichierDeTravail(c, base);
    c.base.base.Execute("PRAGMA journal_mode=DELETE");  // a base made elsewhere may keep a log of its own
    fichiers::supprime(travail);
    fichiers::supprime(travail + "-journal");
    const auto remplace = [&] {
        c.base.ferme();
        ancien.emplace(base);
        if (!fichiers::renomme(travail, base))
            throw dao::ErreurDao(dao::kErreurDisque, "Le fichier " + base + " n'a pas pu être remplacé.");
    };
    dao::DBEngine::CompactDatabase(base, travail, remplace, attente(c));
}

Empechement compacte(const Contexte& c, AncienFichier& ancien) {
    std::error_code erreur;
    const fs::path base = fs::canonical(c.base.base.nom(), erreur);
    try {
        if (erreur) throw dao::ErreurDao(dao::kErreurFichierIntrouvable, "Le fichier de la base n'existe plus.");
        copieEtRemplace(c, base.string(), ancien);
        return std::nullopt;
    } catch (const dao::ErreurDao& echec) {
        return "Le compactage n'a pas pu être effectué.\n" + echec.description;
    }
}

std::string enonceDuFilm(const dao::Recordset& possession) {
    return "SELECT * From Films WHERE Realisateur = " + util::entreGuillemets(possession.texte("Realisateur2")) +
           " AND Titre = " + util::entreGuillemets(possession.texte("Titre2")) + " ;";
}

void supprimeOrphelins(dao::Database& base) {
    dao::Recordset possedes = base.OpenRecordset("SELECT * From Personnel ");
    dao::Transaction ensemble(base);
    for (; !possedes.Eof(); possedes.MoveNext())
        if (base.OpenRecordset(enonceDuFilm(possedes)).Eof()) possedes.Delete();
    ensemble.confirme();
}

Empechement nettoieLesPossessions(const Contexte& c) {
    try {
        c.annulations.nomme("suppression des possessions sans film", "Possessions sans film supprimées.");
        supprimeOrphelins(c.base.base);
        return std::nullopt;
    } catch (const dao::ErreurDao& erreur) {
        return "La base est compactée, mais les possessions sans film n'ont pas pu être supprimées : toutes sont "
               "gardées.\n" +
               erreur.description;
    }
}

}  // namespace

void cmdCompacter_Click(const Contexte& c) {
    if (sauvegardeAvant(c, Avant::Compactage)) compacteEtRapporte(c);
}

void compacteEtRapporte(const Contexte& c) {
    AncienFichier ancien;
    Empechement echec = compacte(c, ancien);
    if (!c.base.base.estOuverte()) {
        reprendLaBase(c);
        attente(c)([&ancien] { ancien.reset(); });
        if (!echec) echec = nettoieLesPossessions(c);
        c.rafraichissement.AfficheNbTitres();
        c.rafraichissement.AffichageApresModification();
        c.rafraichissement.RaffraichitBoitesDeroulantes();
    }
    c.dialogues.MsgBox(echec.value_or("Compactage effectué."), echec ? dialogues::kCritique : dialogues::kInformation);
}

}  // namespace db
