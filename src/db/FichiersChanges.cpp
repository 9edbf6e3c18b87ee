#include "db/FichiersChanges.h"

#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"

#include <algorithm>
#include <vector>

namespace db {

namespace {

// Of an ordinary file: nothing else is a poster, or may be taken for none.
struct Lu {
    bool present = false;
    std::optional<std::string> octets{};
};

Lu lisFichier(const std::string& chemin) {
    Lu lu{.present = fichiers::identite(chemin).has_value()};
    if (lu.present) lu.octets = fichiers::litSansLien(chemin, kTailleMaxImage);
    return lu;
}

}  // namespace

FichiersChanges::Contenu FichiersChanges::contenuDe(std::string_view octets) {
    return {static_cast<std::int64_t>(octets.size()), std::hash<std::string_view>{}(octets)};
}

bool FichiersChanges::garde(Contenu& contenu, std::string_view octets) {
    if (contenu.place) return true;
    const std::int64_t place = m_depot.taille();
    if (!m_depot.ajoute(octets)) return false;
    contenu.place = place;
    return true;
}

std::optional<std::string> FichiersChanges::relit(const Contenu& contenu) const {
    std::string octets(static_cast<std::size_t>(contenu.octets), '\0');
    if (!contenu.place || m_depot.lit(*contenu.place, octets.data(), octets.size()) < octets.size())
        return std::nullopt;
    return octets;
}

bool FichiersChanges::vaChanger(const std::string& chemin) {
    if (m_fichiers.contains(chemin)) return true;
    const Lu lu = lisFichier(chemin);
    Change change;
    if (lu.present) {
        if (!lu.octets) return false;
        change.avant = contenuDe(*lu.octets);
        if (!garde(*change.avant, *lu.octets)) return false;
    }
    change.apres = change.avant;
    m_fichiers.emplace(chemin, std::move(change));
    return true;
}

void FichiersChanges::aEcrit(const std::string& chemin, std::string_view octets) {
    m_fichiers[chemin].apres = contenuDe(octets);
}

// What a lot made and did not store is gone again.
void FichiersChanges::acheve() {
    for (auto& [chemin, change] : m_fichiers)
        if (!fichiers::identite(chemin)) change.apres.reset();
    std::erase_if(m_fichiers, [](const auto& element) {
        const auto& [avant, apres] = std::pair(element.second.avant, element.second.apres);
        return avant.has_value() == apres.has_value() &&
               (!avant || (avant->octets == apres->octets && avant->empreinte == apres->empreinte));
    });
}

// What stands there must be what the command left; its bytes are put aside before anything is written.
FichiersChanges::Issue FichiersChanges::prepare(const std::string& chemin, Change& change, dao::Sens sens) {
    const Lu lu = lisFichier(chemin);
    const auto est = [&lu](const Etat& etat) {
        if (!etat || !lu.present) return !etat && !lu.present;
        const Contenu trouve = lu.octets ? contenuDe(*lu.octets) : Contenu{-1, 0};
        return trouve.octets == etat->octets && trouve.empreinte == etat->empreinte;
    };
    change.pose = false;
    const std::string dossier = fichiers::dossierDe(chemin);
    if (!fichiers::dossierExiste(dossier)) {  // its disk may come back
        m_raison = "Impossible : le dossier des images " + dossier + " n'est pas là.";
        return Issue::Echouee;
    }
    Etat& present = change.present(sens);
    if (!est(present)) return est(change.voulu(sens)) ? Issue::Faite : Issue::Changes;
    if (present && !garde(*present, *lu.octets)) {
        m_raison = "La place manque pour garder l'affiche " + chemin + ".";
        return Issue::Echouee;
    }
    change.pose = change.voulu(sens).has_value();
    return Issue::Faite;
}

FichiersChanges::Issue FichiersChanges::ecrit(const std::string& chemin, const Change& change, dao::Sens sens) {
    const auto octets = relit(*change.voulu(sens));
    const auto issue = [&] {
        if (!octets) return fichiers::Creation::Echouee;
        if (!change.present(sens)) return fichiers::cree(chemin, *octets);
        return fichiers::remplace(chemin, *octets) ? fichiers::Creation::Faite : fichiers::Creation::Echouee;
    }();
    if (issue == fichiers::Creation::Faite) return Issue::Faite;
    if (issue == fichiers::Creation::ExisteDeja) return Issue::Changes;
    m_raison = "Le fichier image " + chemin + " n'a pas pu être écrit (" + fichiers::raisonDeLEchec() + ").";
    return Issue::Echouee;
}

std::int64_t FichiersChanges::octetsAPoser(dao::Sens sens) const {
    std::int64_t octets = 0;
    for (const auto& [chemin, change] : m_fichiers)
        octets += octetsDe(change.present(sens)) + octetsDe(change.voulu(sens));
    return octets;
}

FichiersChanges::Issue FichiersChanges::pose(dao::Sens sens, const std::function<bool(std::int64_t faits)>& avance) {
    std::int64_t faits = 0;
    const auto apres = [&](Issue issue, const Etat& etat) {
        faits += octetsDe(etat);
        return issue == Issue::Faite && !avance(faits) ? Issue::Arretee : issue;
    };
    for (auto& [chemin, change] : m_fichiers)
        if (const Issue issue = apres(prepare(chemin, change, sens), change.present(sens)); issue != Issue::Faite) {
            for (auto& [autre, prevu] : m_fichiers)
                prevu.pose = false;
            return issue;
        }
    std::vector<std::string> poses;
    Issue issue = Issue::Faite;
    for (auto& [chemin, change] : m_fichiers) {
        if (!change.pose) continue;
        change.pose = issue == Issue::Faite && (issue = ecrit(chemin, change, sens)) == Issue::Faite;
        if (!change.pose) continue;
        poses.push_back(chemin);
        issue = apres(issue, change.voulu(sens));
    }
    if (issue == Issue::Faite && !fichiers::synchronise(poses)) {
        m_raison = "Les fichiers image n'ont pas pu être écrits (" + fichiers::raisonDeLEchec() + ").";
        issue = Issue::Echouee;
    }
    if (issue != Issue::Faite) remets(sens);
    return issue;
}

void FichiersChanges::remets(dao::Sens sens) {
    for (auto& [chemin, change] : m_fichiers) {
        if (!std::exchange(change.pose, false)) continue;
        const Etat& present = change.present(sens);
        if (!present)
            fichiers::supprime(chemin);
        else if (const auto octets = relit(*present))
            fichiers::remplace(chemin, *octets);
    }
}

bool FichiersChanges::retireraDesFichiers(dao::Sens sens) const {
    return std::any_of(m_fichiers.begin(), m_fichiers.end(),
                       [sens](const auto& element) { return !element.second.voulu(sens); });
}

void FichiersChanges::retire(dao::Sens sens, const std::function<bool(const std::string& chemin)>& estNomme) {
    for (auto& [chemin, change] : m_fichiers)
        if (!change.voulu(sens) && !estNomme(chemin)) fichiers::supprime(chemin);
}

}  // namespace db
