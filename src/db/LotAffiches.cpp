#include "db/LotAffiches.h"

#include "platform/fichiers/Fichiers.h"
#include "util/Sql.h"

#include <cstdint>

namespace db {

namespace {

std::string texteEchecFichier(const std::string& chemin) {
    return "Le fichier image " + chemin + " n'a pas pu être écrit (Disque plein/Lecture seule ?)";
}

}  // namespace

bool LotAffiches::pose(const std::string& nom, std::string_view octets) {
    const std::string chemin = m_dossier + nom;
    switch (fichiers::cree(chemin, octets)) {
        case fichiers::Creation::Faite:
            m_crees.push_back(chemin);
            break;
        case fichiers::Creation::ExisteDeja:
            if (!poseSurUnAutre(nom, octets)) return false;
            break;
        case fichiers::Creation::Echouee:
            throw EchecConversion{texteEchecFichier(chemin)};
    }
    m_aSynchroniser.push_back(chemin);
    return true;
}

// The beginning of these very bytes is what work that was cut off has left, unless a film names it.
bool LotAffiches::poseSurUnAutre(const std::string& nom, std::string_view octets) {
    const std::string chemin = m_dossier + nom;
    const auto present = fichiers::lit(chemin, static_cast<std::int64_t>(octets.size()));
    if (!present || !octets.starts_with(*present)) return false;
    if (present->size() == octets.size()) return true;
    if (estNomme(nom)) return false;
    if (!fichiers::remplace(chemin, octets)) throw EchecConversion{texteEchecFichier(chemin)};
    return true;
}

void LotAffiches::avantValidation() {
    if (!fichiers::synchronise(m_aSynchroniser)) throw EchecConversion{texteEchecFichier(m_dossier)};
}

bool LotAffiches::estNomme(const std::string& nom) {
    const std::string valeur = util::entreGuillemets("JPG" + nom);
    return !m_base.OpenRecordset("SELECT titre FROM films WHERE Affiche = " + valeur).Eof();
}

// A disk that fails may do so with the lot already stored, the whole of it: then the files stay.
void LotAffiches::apresAnnulation() {
    try {
        if (!m_crees.empty() && !estNomme(m_crees.front().substr(m_dossier.size())))
            for (const std::string& chemin : m_crees)
                fichiers::supprime(chemin);
    } catch (const dao::ErreurDao&) {  // a base that cannot be read says nothing of the lot
    }
    apresValidation();
}

}  // namespace db
