#include "db/BaseNeuve.h"

#include "db/TravauxInacheves.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"

#include <utility>

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

// The file that becomes the base, and its journal; gone in the end unless it took the name.
class Travail {
  public:
    explicit Travail(std::string chemin) : m_chemin(std::move(chemin)) { efface(); }  // a killed run's
    Travail(const Travail&) = delete;
    Travail& operator=(const Travail&) = delete;
    ~Travail() { efface(); }

    [[nodiscard]] const std::string& chemin() const { return m_chemin; }

  private:
    void efface() const {
        for (const std::string& fichier : {m_journal, m_chemin})
            fichiers::supprime(fichier);
    }
    std::string m_chemin;
    std::string m_journal = m_chemin + "-journal";
};

}  // namespace

BaseNeuve creeDepuisLeModele(const Chemins& chemins, const std::string& nom) {
    if (!fichiers::existe(chemins.modele)) return BaseNeuve::SansModele;
    const auto octets = fichiers::lit(chemins.modele);
    if (!octets) return BaseNeuve::ModeleInutilisable;
    const Travail travail(nom + std::string(kCreation));
    if (fichiers::cree(travail.chemin(), *octets) != fichiers::Creation::Faite) return BaseNeuve::Echouee;
    if (!estUneBase(travail.chemin())) return BaseNeuve::ModeleInutilisable;
    const bool faite = fichiers::synchronise({travail.chemin()}) && fichiers::renomme(travail.chemin(), nom);
    return faite ? BaseNeuve::Faite : BaseNeuve::Echouee;
}

std::string raisonDeLEchec(BaseNeuve issue, const Chemins& chemins, const std::string& nom) {
    if (issue == BaseNeuve::ModeleInutilisable)
        return "Le fichier modèle n'est pas une base utilisable (" + chemins.modele + ").";
    return "Le fichier " + nom + " n'a pas pu être créé.";
}

}  // namespace db
