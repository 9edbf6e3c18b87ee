#include "db/LotAffiches.h"

#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

#include <cstdint>

namespace db {

namespace {

std::string texteEchecFichier(const std::string& chemin) {
    return "Le fichier image " + chemin + " n'a pas pu être écrit (" + fichiers::raisonDeLEchec() + ")";
}

}  // namespace

// A film keeps the file that bears its name already, whatever the number.
std::string LotAffiches::pose(const std::string& nom, std::string_view octets, std::string_view actuelle) {
    if (m_dossier.empty()) throw EchecConversion{"Il n'y a pas de dossier des images !"};
    const std::string sien = nomDansLeDossier(actuelle);
    if (sien != nom && sansNumero(sien) == nom && poseSous(sien, octets, actuelle)) return sien;
    if (poseSous(nom, octets, actuelle)) return nom;
    int& numero = connaissance().suites.try_emplace(nom, 1).first->second;
    std::string numerote;
    do
        numerote = nomNumerote(nom, ++numero);
    while (!poseSous(numerote, octets, actuelle));
    return numerote;
}

// False when the name is another film's, or another picture's.
bool LotAffiches::poseSous(const std::string& nom, std::string_view octets, std::string_view actuelle) {
    Connaissance& connu = connaissance();
    const Cle cle = util::cleSansCasse(nom);
    const bool estSien = util::egalSansCasse(nomDansLeDossier(actuelle), nom);
    const bool libre = connu.nommes[cle] <= (estSien ? 1 : 0);
    const bool remplacable = libre && (estSien || m_inconnus == Inconnus::Ecrases);
    if (!connu.presents.contains(cle) && (!libre || cree(nom, octets))) {
        if (libre) ++connu.nommes[cle];
        return libre;
    }
    if (!poseSurUnAutre(nom, octets, remplacable, connu.nommes[cle] == 0)) return false;
    ++connu.nommes[cle];
    return true;
}

// False when something of that name came meanwhile.
bool LotAffiches::cree(const std::string& nom, std::string_view octets) {
    const std::string chemin = m_dossier + nom;
    const fichiers::Creation issue = fichiers::cree(chemin, octets);
    if (issue == fichiers::Creation::Echouee) throw EchecConversion{texteEchecFichier(chemin)};
    connaissance().presents.insert(util::cleSansCasse(nom));
    if (issue == fichiers::Creation::ExisteDeja) return false;
    m_annulations.aEcrit(chemin, octets);
    m_crees.push_back(chemin);
    m_aSynchroniser.push_back(chemin);
    return true;
}

// The beginning of these very bytes, without a film, is what work that was cut off has left: it is begun again, and not
// replaced, so that cut off once more it leaves nothing else.
bool LotAffiches::poseSurUnAutre(const std::string& nom, std::string_view octets, bool remplacable, bool sansFilm) {
    const auto place = fichiers::situeDans(m_dossier, nom);
    if (!place) return false;
    const auto present = fichiers::litSansLien(place->chemin, static_cast<std::int64_t>(octets.size()));
    if (present != octets) {
        const bool debut = sansFilm && present && octets.starts_with(*present);
        if (!debut && !remplacable) return false;
        m_annulations.vaChanger(place->chemin);
        if (debut) return fichiers::supprime(place->chemin) && cree(nom, octets);
        if (!fichiers::remplace(place->chemin, octets)) throw EchecConversion{texteEchecFichier(place->chemin)};
        m_annulations.aEcrit(place->chemin, octets);
    }
    m_aSynchroniser.push_back(place->chemin);
    return true;
}

LotAffiches::Connaissance& LotAffiches::connaissance() {
    if (m_connaissance) return *m_connaissance;
    Connaissance connu;
    releveNommes(connu);
    releveDossier(connu);
    return m_connaissance.emplace(std::move(connu));
}

void LotAffiches::releveNommes(Connaissance& connu) {
    dao::Recordset films = m_base.OpenRecordset("SELECT Affiche FROM films WHERE Affiche LIKE 'JPG*'");
    const dao::Colonne affiche = films.colonne("Affiche");
    for (; !films.Eof(); films.MoveNext())
        ++connu.nommes[util::cleSansCasse(nomDansLeDossier(films.vue(affiche)))];
}

void LotAffiches::releveDossier(Connaissance& connu) const {
    for (const std::string& nom : fichiers::listeNoms(m_dossier))
        connu.presents.insert(util::cleSansCasse(nom));
}

void LotAffiches::avantValidation() {
    bool surLeDisque = false;
    m_attente([&] { surLeDisque = fichiers::synchronise(m_aSynchroniser); });
    if (!surLeDisque) throw EchecConversion{texteEchecFichier(m_dossier)};
}

void LotAffiches::apresValidation() {
    m_crees.clear();
    m_aSynchroniser.clear();
    m_connaissance.reset();
}

// A disk that fails may do so with the lot already stored, the whole of it: then the files stay.
void LotAffiches::apresAnnulation() {
    try {
        m_connaissance.reset();
        const std::string temoin = m_crees.empty() ? "" : util::cleSansCasse(m_crees.front().substr(m_dossier.size()));
        if (!m_crees.empty() && !connaissance().nommes.contains(temoin))
            for (const std::string& chemin : m_crees)
                fichiers::supprime(chemin);
    } catch (const dao::ErreurDao&) {  // a base that cannot be read says nothing of the lot
    }
    apresValidation();
}

}  // namespace db
