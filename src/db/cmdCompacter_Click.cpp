#include "db/cmdCompacter_Click.h"

#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Sql.h"

#include <filesystem>
#include <system_error>

namespace db {

namespace {

namespace fs = std::filesystem;

std::string enonceDuFilm(const dao::Recordset& possession) {
    return "SELECT * From Films WHERE Realisateur = " + util::entreGuillemets(possession.texte("Realisateur2")) +
           " AND Titre = " + util::entreGuillemets(possession.texte("Titre2")) + " ;";
}

}  // namespace

// The recordsets are closed between the copy and its putting in place: a copy that fails leaves them open.
void cmdCompacter_Click::operator()() {
    Echec echec = compacte();
    if (!m_base.base.estOuverte()) {
        m_ouvertureBase.reprend();
        if (!echec) echec = nettoie();
        m_rafraichissement.AfficheNbTitres();
        m_rafraichissement.AffichageApresModification();
    }
    m_dialogues.MsgBox(echec.value_or("Compactage effectué."), echec ? dialogues::kCritique : dialogues::kInformation);
}

cmdCompacter_Click::Echec cmdCompacter_Click::compacte() {
    std::error_code erreur;
    const fs::path base = fs::canonical(m_base.base.nom(), erreur);
    try {
        if (erreur) throw dao::ErreurDao(dao::kErreurFichierIntrouvable, "Le fichier de la base n'existe plus.");
        copieEtRemplace(base.string());
        return std::nullopt;
    } catch (const dao::ErreurDao& echec) {
        return "Le compactage n'a pas pu être effectué.\n" + echec.description;
    }
}

void cmdCompacter_Click::copieEtRemplace(const std::string& base) {
    const std::string travail = fichierDeTravail(base);
    m_base.base.Execute("PRAGMA journal_mode=DELETE");  // a base made elsewhere may keep a log of its own
    fichiers::supprime(travail);
    fichiers::supprime(travail + "-journal");
    dao::DBEngine::CompactDatabase(base, travail, [&] {
        m_base.ferme();
        if (!fichiers::renomme(travail, base))
            throw dao::ErreurDao(dao::kErreurDisque, "Le fichier " + base + " n'a pas pu être remplacé.");
    });
}

std::string cmdCompacter_Click::fichierDeTravail(const std::string& base) const {
    std::error_code erreur;
    const bool iciMeme = fs::equivalent(fichiers::dossierDe(base), m_chemins.dossier, erreur);
    return iciMeme ? m_chemins.dansDossier("temp.tmp") : base + "-temp.tmp";
}

cmdCompacter_Click::Echec cmdCompacter_Click::nettoie() {
    try {
        supprimeOrphelins();
        return std::nullopt;
    } catch (const dao::ErreurDao& erreur) {
        return "La base est compactée, mais les possessions sans film n'ont pas pu être supprimées : toutes sont "
               "gardées.\n" +
               erreur.description;
    }
}

void cmdCompacter_Click::supprimeOrphelins() {
    dao::Recordset possedes = m_base.base.OpenRecordset("SELECT * From Personnel ");
    dao::Transaction ensemble(m_base.base);
    for (; !possedes.Eof(); possedes.MoveNext())
        if (m_base.base.OpenRecordset(enonceDuFilm(possedes)).Eof()) possedes.Delete();
    ensemble.confirme();
}

}  // namespace db
