#include "db/Annulations.h"

#include "db/Affiches.h"
#include "util/Texte.h"

#include <numeric>
#include <unordered_set>
#include <utility>

namespace db {

namespace {

constexpr const char* kChangees = "Impossible : ces films ont changé depuis.";
constexpr const char* kArretee = "Arrêté : rien n'a changé.";

// By the names that the films' values give, without regard to letter case, as they are looked for.
std::unordered_set<std::string> nomsDesAffiches(dao::Database& base) {
    std::unordered_set<std::string> noms;
    dao::Recordset films = base.OpenRecordset("SELECT Affiche FROM films WHERE Affiche LIKE 'JPG*'");
    const dao::Colonne affiche = films.colonne("Affiche");
    for (; !films.Eof(); films.MoveNext())
        noms.insert(util::cleSansCasse(nomDansLeDossier(films.vue(affiche))));
    return noms;
}

}  // namespace

Annulations::Commande::Commande(const std::string& dossierTmp)
    : depot(dossierTmp), lignes{.depot = depot, .tables = {"Films", "Personnel"}}, fichiers(depot) {}

void Annulations::commence() {
    m_renonce = false;
    m_manque.clear();
    m_enCours.reset();
    if (!m_base.base.estOuverte()) return;
    m_enCours = std::make_unique<Commande>(m_chemins.dossierTmp);
    if (!m_base.base.enregistre(&m_enCours->lignes)) oublie();  // another base
}

Annulations::Fin Annulations::termine() {
    if (m_base.base.estOuverte()) m_base.base.enregistre(nullptr);
    std::unique_ptr<Commande> commande = std::move(m_enCours);
    if (m_renonce) {
        oublie();
        return Fin::Perdue;
    }
    if (!commande) return Fin::Rien;
    commande->fichiers.acheve();
    if (!commande->lignes.manque.empty()) {
        oublie();
        m_manque = "Cette commande ne pourra pas être annulée (" + commande->lignes.manque + ").";
        return Fin::Perdue;
    }
    if (commande->lignes.morceaux.empty() && commande->fichiers.vides()) return Fin::Rien;
    m_defaites.clear();
    commande->depot.tasse();
    commande->numero = ++m_numero;
    m_faites.push_back(std::move(commande));
    limite();
    return Fin::Annulable;
}

// The last command stays, whatever it takes.
void Annulations::limite() {
    std::int64_t octets = 0;
    std::size_t gardees = 0;
    for (auto commande = m_faites.rbegin(); commande != m_faites.rend(); ++commande, ++gardees) {
        octets += (*commande)->depot.taille();
        if (gardees > 0 && (gardees == kCommandesAuPlus || octets > kOctetsAuPlus)) break;
    }
    m_faites.erase(m_faites.begin(), m_faites.end() - static_cast<std::ptrdiff_t>(gardees));
}

void Annulations::nomme(std::string quoi, std::string fait) {
    if (!m_enCours) return;
    m_enCours->quoi = std::move(quoi);
    m_enCours->fait = std::move(fait);
}

void Annulations::vaChanger(const std::string& fichier) {
    if (m_enCours && m_enCours->lignes.manque.empty() && !m_enCours->fichiers.vaChanger(fichier))
        m_enCours->lignes.manque = "l'affiche d'avant n'a pas pu être mise de côté";
}

void Annulations::aEcrit(const std::string& fichier, std::string_view octets) {
    if (m_enCours) m_enCours->fichiers.aEcrit(fichier, octets);
}

void Annulations::renonce() {
    if (!m_enCours) return;
    m_base.base.enregistre(nullptr);
    m_enCours.reset();
    m_renonce = true;
}

std::string Annulations::renonceSiTropGrande(std::int64_t octets) {
    if (!m_enCours) return {};
    std::string raison = m_enCours->depot.manquePour(octets);
    if (!raison.empty()) renonce();
    return raison;
}

void Annulations::suisLaBase() {
    m_base.base.enregistre(m_enCours ? &m_enCours->lignes : nullptr);
}

void Annulations::oublie() {
    m_faites.clear();
    m_defaites.clear();
}

Annulations::Issue Annulations::applique(Pile& de, Pile& vers, dao::Sens sens, const dao::Avance& avance) {
    if (de.empty()) return {};
    Issue issue = appliqueAvecFichiers(*de.back(), sens, avance);
    if (issue.faite)
        vers.push_back(std::move(de.back()));
    else if (issue.texte != kChangees)
        return issue;
    de.pop_back();
    return issue;
}

// The files that the rows will name stand there first, those that they no longer name go last.
Annulations::Issue Annulations::appliqueAvecFichiers(Commande& commande, dao::Sens sens, const dao::Avance& avance) {
    const std::int64_t desFichiers = commande.fichiers.octetsAPoser(sens);
    const std::int64_t total =
        std::accumulate(commande.lignes.morceaux.begin(), commande.lignes.morceaux.end(), desFichiers,
                        [](std::int64_t octets, const dao::Morceau& morceau) { return octets + morceau.octets; });
    const auto jusquA = [&](std::int64_t faits) { return faits >= total || !avance || avance(faits, total); };
    try {
        switch (commande.fichiers.pose(sens, jusquA)) {
            case FichiersChanges::Issue::Changes:
                return {false, kChangees};
            case FichiersChanges::Issue::Echouee:
                return {false, commande.fichiers.raison()};
            case FichiersChanges::Issue::Arretee:
                return {false, kArretee};
            case FichiersChanges::Issue::Faite:
                break;
        }
        const dao::Application issue = m_base.base.applique(
            commande.lignes, sens, [&](std::int64_t faits, std::int64_t) { return jusquA(desFichiers + faits); });
        if (issue != dao::Application::Faite) {
            commande.fichiers.remets(sens);
            return {false, issue == dao::Application::Changees ? kChangees : kArretee};
        }
    } catch (...) {
        commande.fichiers.remets(sens);
        throw;
    }
    retireFichiers(commande, sens);
    return {true};
}

// A file that a film names by now stays.
void Annulations::retireFichiers(Commande& commande, dao::Sens sens) {
    if (!commande.fichiers.retireraDesFichiers(sens)) return;
    try {
        const auto noms = nomsDesAffiches(m_base.base);
        commande.fichiers.retire(sens, [this, &noms](const std::string& chemin) {
            m_base.base.respire();
            return noms.contains(util::cleSansCasse(fichiers::nomDeFichier(chemin)));
        });
    } catch (const dao::ErreurDao&) {  // what cannot be read says nothing: the files stay
    }
}

}  // namespace db
