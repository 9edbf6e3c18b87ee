#include "platform/dao/Jeu.h"

#include "platform/dao/Analyse.h"
#include "platform/dao/Ecriture.h"
#include "platform/dao/Erreurs.h"

#include <algorithm>

namespace dao::interne {

namespace {

[[noreturn]] void jetteAucun() {
    jette(kErreurAucunEnregistrement, "Aucun enregistrement en cours.");
}

}  // namespace

Jeu::Jeu(Connexion& connexion, std::vector<Table*> tables, std::vector<ChampDeJeu> champs)
    : m_connexion(&connexion), m_tables(std::move(tables)), m_champs(std::move(champs)) {
    connexion.inscrit(*this);
}

Jeu::~Jeu() {
    if (m_connexion != nullptr) m_connexion->desinscrit(*this);
}

Connexion& Jeu::connexion() const {
    exigeOuvert();
    return *m_connexion;
}

void Jeu::exigeOuvert() const {
    if (m_connexion == nullptr) jetteFerme();
}

void Jeu::exigeCourant() {
    exigeOuvert();
    if (!aUnCourant()) jetteAucun();
}

void Jeu::exigeModifiable() const {
    exigeOuvert();
    if (!estModifiable())
        jette(kErreurNonModifiable, "Mise à jour impossible : ces enregistrements sont en lecture seule.");
}

void Jeu::vaAuDebut() {
    connexion().veille();
    m_edition = Edition::Aucune;
    premier();
    if (!aUnCourant()) jetteAucun();
}

void Jeu::deplace(long nombre) {
    exigeOuvert();
    if (nombre > 0 && estAuBout()) jetteAucun();
    m_edition = Edition::Aucune;
    constexpr long kPasMax = 1L << 40;
    pas(std::clamp(nombre, -kPasMax, kPasMax));
}

bool Jeu::fini() const {
    exigeOuvert();
    return estAuBout();
}

long Jeu::compte() {
    connexion().veille();
    return combien();
}

int Jeu::rang(std::string_view nom) const {
    exigeOuvert();
    for (std::size_t i = 0; i < m_champs.size(); ++i) {
        const auto& colonnes = table(m_champs[i].table).colonnes;
        if (egalSansCasseAscii(colonnes[static_cast<std::size_t>(m_champs[i].colonne)].nom, nom))
            return static_cast<int>(i);
    }
    return -1;
}

int Jeu::rangDeParcours(std::string_view nom) {
    const int trouve = rang(nom);
    if (trouve >= 0) vaParcourir(m_champs[static_cast<std::size_t>(trouve)]);
    return trouve;
}

Valeur Jeu::litDansLaBase(ChampDeJeu champ, long long ligne) const {
    return litChamp(connexion(), table(champ.table), champ.colonne, ligne);
}

Valeur Jeu::valeur(int rangDeChamp) {
    if (m_edition != Edition::Nouveau) exigeCourant();
    if (rangDeChamp < 0) return "";
    const ChampDeJeu champ = m_champs[static_cast<std::size_t>(rangDeChamp)];
    if (m_edition != Edition::Aucune) {
        const auto assignee = m_assignations.find({champ.table, champ.colonne});
        if (assignee != m_assignations.end()) return assignee->second;
        if (m_edition == Edition::Nouveau) return {};
    }
    return lit(champ);
}

std::string_view Jeu::vue(int rangDeChamp) {
    if (rangDeChamp >= 0 && m_edition == Edition::Aucune) {
        exigeCourant();
        std::string_view texte;
        if (litVue(m_champs[static_cast<std::size_t>(rangDeChamp)], texte)) return texte;
    }
    return m_tampon = valeur(rangDeChamp).texte();
}

void Jeu::nouveau() {
    exigeModifiable();
    m_assignations.clear();
    m_edition = Edition::Nouveau;
}

void Jeu::edite() {
    exigeModifiable();
    exigeCourant();
    for (int t = 0; t < nombreDeTables(); ++t) {
        if (const long long* l = ligne(t); l != nullptr && table(t).suivi.estSupprimee(*l)) jetteSupprime();
    }
    m_assignations.clear();
    m_edition = Edition::Courant;
}

void Jeu::assigne(std::string_view nom, const Valeur& valeur) {
    exigeOuvert();
    if (m_edition == Edition::Aucune) jette(kErreurEditSansEdition, "Update ou CancelUpdate sans AddNew ni Edit.");
    const int rangDeChamp = rang(nom);
    if (rangDeChamp < 0)
        jette(kErreurChampIntrouvable, "Le champ « " + std::string(nom) + " » n'existe pas dans ces enregistrements.");
    const ChampDeJeu champ = m_champs[static_cast<std::size_t>(rangDeChamp)];
    if (m_edition == Edition::Courant && ligne(champ.table) == nullptr) {
        jette(kErreurNonModifiable, "Le champ « " + std::string(nom) + " » n'a pas de ligne dans sa table.");
    }
    m_assignations[{champ.table, champ.colonne}] = valeur;
}

std::vector<std::pair<int, Valeur>> Jeu::assigneesDe(int rangDeTable) const {
    Assignees resultat;
    for (const auto& [champ, valeur] : m_assignations) {
        if (champ.first == rangDeTable) resultat.emplace_back(champ.second, valeur);
    }
    return resultat;
}

void Jeu::ecritLignes(Connexion& base) {
    std::vector<long long> ajoutees;
    for (int t = 0; t < nombreDeTables(); ++t) {
        const Assignees assignees = assigneesDe(t);
        if (m_edition == Edition::Nouveau) {
            ajoutees.push_back(ajouteLigne(base, table(t), assignees));
        } else if (!assignees.empty()) {
            modifieLigne(base, table(t), *ligne(t), assignees);
        }
    }
    if (m_edition == Edition::Nouveau) accueille(ajoutees);
}

void Jeu::ecrit() {
    Connexion& base = connexion();
    if (m_edition == Edition::Aucune) jette(kErreurEditSansEdition, "Update ou CancelUpdate sans AddNew ni Edit.");
    if (m_edition == Edition::Courant) exigeCourant();
    const bool sienne = nombreDeTables() > 1 && !base.enTransaction();  // one row alone is whole by itself
    if (sienne) base.commence();
    try {
        ecritLignes(base);
        if (sienne) base.confirme();
    } catch (...) {
        if (sienne) base.annule();
        throw;
    }
    m_edition = Edition::Aucune;
}

void Jeu::supprime() {
    exigeModifiable();
    exigeCourant();
    m_edition = Edition::Aucune;
    for (int t = nombreDeTables() - 1; t >= 0; --t) {
        if (const long long* l = ligne(t); l != nullptr) {
            supprimeLigne(connexion(), table(t), *l);
            return;
        }
    }
}

}  // namespace dao::interne
