#include "app/DossierUtilisateur.h"

#include "platform/fichiers/Fichiers.h"

#include <filesystem>

namespace app {

namespace {

namespace fs = std::filesystem;

constexpr const char* kTemoin = "installation";  // says which installation a folder comes from

// What a copy holds that its user changes.
bool estALUtilisateur(const std::string& nom) {
    return nom == "Extensions.txt";
}

// A program stays one; its user may write to what is his.
bool recopieFichier(const std::string& de, const std::string& vers) {
    if (!fichiers::copie(de, vers)) return false;
    std::error_code erreur;
    fs::permissions(vers, fs::status(de, erreur).permissions() | fs::perms::owner_write, erreur);
    return !erreur;
}

// Whole files, each in one step; true when all of them are there.
bool recopie(const std::string& de, const std::string& vers) {
    if (!fichiers::creeDossier(vers)) return false;
    for (const std::string& nom : fichiers::listeNoms(de)) {
        if (nom == kTemoin || (estALUtilisateur(nom) && fichiers::existe(vers + nom))) continue;
        const bool faite = fichiers::dossierExiste(de + nom) ? recopie(de + nom + "/", vers + nom + "/")
                                                             : recopieFichier(de + nom, vers + nom);
        if (!faite) return false;
    }
    return true;
}

}  // namespace

// The witness comes last: a copy that was cut short is made again.
DossierDeTravail dossierDeTravail(const std::string& installe, const std::string& donnees) {
    const auto installation = fichiers::lit(installe + kTemoin);
    if (!installation) return {installe};
    DossierDeTravail travail{donnees + "/Ambrelis/"};
    if (fichiers::lit(travail.dossier + kTemoin) == installation) return travail;
    if (!recopie(installe, travail.dossier) || !fichiers::remplace(travail.dossier + kTemoin, *installation))
        travail.echec = "Le répertoire d'Ambrelis n'a pas pu être préparé dans " + travail.dossier + " (" +
                        fichiers::raisonDeLEchec() + ").";
    return travail;
}

}  // namespace app
