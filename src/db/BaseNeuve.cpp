#include "db/BaseNeuve.h"

#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"

namespace db {

namespace {

bool estUneBase(const std::string& chemin) {
    try {
        dao::Database base = dao::DBEngine::OpenDatabase(chemin);
        for (const char* table : {"Films", "Personnel"})
            (void)base.OpenRecordset(table);
        return true;
    } catch (const dao::ErreurDao&) {
        return false;
    }
}

}  // namespace

BaseNeuve creeDepuisLeModele(const Chemins& chemins, const std::string& nom) {
    if (!fichiers::existe(chemins.modele)) return BaseNeuve::SansModele;
    const auto octets = fichiers::lit(chemins.modele);
    if (!octets) return BaseNeuve::ModeleInutilisable;
    const std::string travail = nom + "-creation.tmp";
    fichiers::supprime(travail);  // a killed run's
    if (fichiers::cree(travail, *octets) != fichiers::Creation::Faite) return BaseNeuve::Echouee;
    const bool saine = estUneBase(travail);
    if (saine && fichiers::synchronise({travail}) && fichiers::renomme(travail, nom)) return BaseNeuve::Faite;
    fichiers::supprime(travail);
    return saine ? BaseNeuve::Echouee : BaseNeuve::ModeleInutilisable;
}

std::string raisonDeLEchec(BaseNeuve issue, const Chemins& chemins, const std::string& nom) {
    if (issue == BaseNeuve::ModeleInutilisable)
        return "Le fichier modèle n'est pas une base utilisable (" + chemins.modele + ").";
    return "Le fichier " + nom + " n'a pas pu être créé.";
}

}  // namespace db
