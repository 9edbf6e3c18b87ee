#include "platform/dao/Jeu.h"

#include "platform/dao/Erreurs.h"
#include "util/Ascii.h"

#include <algorithm>

namespace dao::interne {

namespace {

[[noreturn]] void jetteAucun() {
    jette(kErreurAucunEnregistrement, "Aucun enregistrement en cours.");
}

}  // namespace

Jeu::Jeu(Connexion& connexion, Par<RangTable, Table*> tables, Par<RangChamp, ChampDeJeu> champs)
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

std::optional<RangChamp> Jeu::rang(std::string_view nom) const {
    exigeOuvert();
    for (const RangChamp rang : m_champs.rangs()) {
        const auto [ou, colonne] = m_champs[rang];
        if (util::egalSansCasseAscii(table(ou).colonnes[colonne].nom, nom)) return rang;
    }
    return std::nullopt;
}

std::optional<RangChamp> Jeu::rangDeParcours(std::string_view nom) {
    const auto trouve = rang(nom);
    if (trouve) vaParcourir(m_champs[*trouve]);
    return trouve;
}

Valeur Jeu::litDansLaBase(ChampDeJeu champ, long long ligne) const {
    connexion().respire();
    return litChamp(connexion(), table(champ.table), champ.colonne, ligne);
}

Valeur Jeu::valeur(std::optional<RangChamp> rangDeChamp) {
    if (m_edition != Edition::Nouveau) exigeCourant();
    if (!rangDeChamp) return "";
    const ChampDeJeu champ = m_champs[*rangDeChamp];
    if (m_edition != Edition::Aucune) {
        const auto assignee = m_assignations.find(champ);
        if (assignee != m_assignations.end()) return assignee->second;
        if (m_edition == Edition::Nouveau) return {};
    }
    return lit(champ);
}

std::string_view Jeu::vue(std::optional<RangChamp> rangDeChamp) {
    if (rangDeChamp && m_edition == Edition::Aucune) {
        exigeCourant();
        std::string_view texte;
        if (litVue(m_champs[*rangDeChamp], texte)) return texte;
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
    for (const RangTable t : m_tables.rangs()) {
        if (const long long* l = ligne(t); l != nullptr && table(t).suivi.estSupprimee(*l)) jetteSupprime();
    }
    m_assignations.clear();
    m_edition = Edition::Courant;
}

void Jeu::assigne(std::string_view nom, const Valeur& valeur) {
    exigeOuvert();
    if (m_edition == Edition::Aucune) jette(kErreurEditSansEdition, "Update ou CancelUpdate sans AddNew ni Edit.");
    const auto rangDeChamp = rang(nom);
    if (!rangDeChamp)
        jette(kErreurChampIntrouvable, "Le champ « " + std::string(nom) + " » n'existe pas dans ces enregistrements.");
    const ChampDeJeu champ = m_champs[*rangDeChamp];
    if (m_edition == Edition::Courant && ligne(champ.table) == nullptr) {
        jette(kErreurNonModifiable, "Le champ « " + std::string(nom) + " » n'a pas de ligne dans sa table.");
    }
    m_assignations[champ] = valeur;
}

Assignees Jeu::assigneesDe(RangTable table) const {
    Assignees resultat;
    for (const auto& [champ, valeur] : m_assignations) {
        if (champ.table == table) resultat.emplace_back(champ.colonne, valeur);
    }
    return resultat;
}

void Jeu::ecritLignes(Connexion& base) {
    Par<RangTable, long long> ajoutees;
    for (const RangTable t : m_tables.rangs()) {
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
    // One row alone is whole by itself, unless it is to be recorded with it.
    base.acheveLeReste();
    const bool sienne = (m_tables.size() > 1 || base.estEnregistree()) && !base.enTransaction();
    if (sienne) base.commence();
    try {
        exigeOuvert();  // the file may have changed under it
        ecritLignes(base);
        base.soulageLEnregistrement();
        if (sienne) base.confirme();
    } catch (...) {
        if (sienne) base.annule();
        throw;
    }
    m_edition = Edition::Aucune;
}

void Jeu::supprimeLaLigne(Table& table, long long ligne) {
    Connexion& base = connexion();
    base.acheveLeReste();
    const bool sienne = base.estEnregistree() && !base.enTransaction();
    if (sienne) base.commence();
    try {
        exigeOuvert();
        supprimeLigne(base, table, ligne);
        base.soulageLEnregistrement();
        if (sienne) base.confirme();
    } catch (...) {
        if (sienne) base.annule();
        throw;
    }
}

void Jeu::supprime() {
    exigeModifiable();
    exigeCourant();
    m_edition = Edition::Aucune;
    const long long* seconde = m_tables.size() > 1 ? ligne(kSeconde) : nullptr;
    const RangTable ou = seconde != nullptr ? kSeconde : kPremiere;
    supprimeLaLigne(table(ou), *ligne(ou));
}

}  // namespace dao::interne
