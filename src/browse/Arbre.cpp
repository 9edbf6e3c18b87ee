#include "browse/Arbre.h"

#include <algorithm>
#include <utility>

namespace browse {

namespace {

std::string cleDuRang(std::int32_t numero) {
    return "T" + std::to_string(numero);
}

}  // namespace

// ---- nodes under a heading

Arbre::Enfants::Iterateur::Iterateur(const Arbre& arbre, const std::int32_t* suite, std::size_t rang,
                                     std::size_t taille)
    : m_arbre(&arbre), m_suite(suite), m_rang(rang), m_taille(taille) {
    if (m_rang < m_taille) entre();
}

Arbre::Enfants::Iterateur& Arbre::Enfants::Iterateur::operator++() {
    ++m_rang;
    if (++m_noeud < m_fin || m_rang == m_taille) return *this;
    ++m_suite;
    entre();
    return *this;
}

void Arbre::Enfants::Iterateur::entre() {
    for (;; ++m_suite) {
        const auto suite = static_cast<std::size_t>(*m_suite);
        m_noeud = m_arbre->m.suites[suite].noeud;
        m_fin = m_arbre->finDe(suite);
        if (m_noeud < m_fin) return;
    }
}

std::int32_t Arbre::Enfants::operator[](std::size_t rang) const {
    const auto voulu = static_cast<std::int32_t>(rang);
    const auto suite = [this](std::int32_t numero) -> const Suite& {
        return m_arbre->m.suites[static_cast<std::size_t>(numero)];
    };
    auto ou = m_suites.begin() + static_cast<std::ptrdiff_t>(std::min(rang, m_suites.size() - 1));
    if (suite(*ou).rang != voulu || suite(*ou).noeud == m_arbre->finDe(static_cast<std::size_t>(*ou)))
        ou = std::upper_bound(m_suites.begin(), m_suites.end(), voulu,
                              [&](std::int32_t cherche, std::int32_t autre) { return cherche < suite(autre).rang; }) -
             1;
    m_arbre->m_suiteRecente = static_cast<std::size_t>(*ou);
    return suite(*ou).noeud + voulu - suite(*ou).rang;
}

Arbre::Enfants Arbre::enfants(int indice) const {
    const Groupe& voulu = groupe(numeroDuGroupe(indice));
    return {*this, suitesDe(voulu), static_cast<std::size_t>(voulu.enfants)};
}

std::span<const std::int32_t> Arbre::suitesDe(const Groupe& groupe) const {
    if (groupe.suites < 0) return m.morceles[static_cast<std::size_t>(-1 - groupe.suites)];
    return {&groupe.suites, groupe.enfants == 0 ? 0U : 1U};
}

// ---- filling

void Arbre::Clear() noexcept {
    remplace(Arbre());
}

void Arbre::remplace(Arbre&& neuf) noexcept {
    m = std::exchange(neuf.m, Contenu());
    m_suiteRecente = 0;
    ++m_generation;
    ++m_remplissages;
}

void Arbre::reserve(std::size_t films, std::size_t octetsDeTexte) {
    m.debuts.reserve(films + films / 4);  // and headings
    m.titres.reserve(octetsDeTexte);
}

int Arbre::ajouteGroupe(std::string_view cle, std::string_view texte) {
    const auto numero = static_cast<std::int32_t>(m.groupes.size() + 1);
    if (cle != cleDuRang(numero)) m.cles.emplace(numero, cle);
    m.groupes.push_back({.noeud = Count() + 1, .texte = static_cast<std::uint32_t>(m.textes.size())});
    m.textes += texte;
    if (!m.textesSuivis.empty()) m.textesSuivis.emplace_back();
    ajouteSuite(0, {.noeud = Count() + 1, .groupe = numero});
    ++m.racine.enfants;
    m.debuts.push_back(static_cast<std::uint32_t>(m.titres.size()));
    return Count();
}

int Arbre::ajouteFilm(int groupe, std::uint32_t position, std::string_view titre) {
    const Suite* const derniere = m.suites.empty() ? nullptr : &m.suites.back();
    const bool sous = derniere && this->groupe(derniere->groupe).noeud == groupe;
    const std::int32_t numero = sous ? derniere->groupe : numeroDuGroupe(groupe);
    const bool suit = sous && derniere->position != 0 &&
                      position == derniere->position + static_cast<std::uint32_t>(Count() + 1 - derniere->noeud);
    if (!suit) ajouteSuite(numero, {.noeud = Count() + 1, .groupe = numero, .position = position});
    ++this->groupe(numero).enfants;
    m.debuts.push_back(static_cast<std::uint32_t>(m.titres.size()));
    m.titres += titre;
    return Count();
}

// At the end, under that heading: `suite` has its nodes counted by who calls.
void Arbre::ajouteSuite(std::int32_t duGroupe, Suite suite) {
    Groupe& groupe = this->groupe(duGroupe);
    const auto numero = static_cast<std::int32_t>(m.suites.size());
    suite.rang = groupe.enfants;
    m.suites.push_back(suite);
    if (groupe.suites < 0) return m.morceles[static_cast<std::size_t>(-1 - groupe.suites)].push_back(numero);
    if (groupe.enfants != 0) {
        m.morceles.push_back({groupe.suites, numero});
        groupe.suites = -static_cast<std::int32_t>(m.morceles.size());
    } else {
        groupe.suites = numero;
    }
}

// ---- taking out

void Arbre::retire(int indice) {
    const std::size_t rangDuTexte = static_cast<std::size_t>(indice - 1);
    const auto octets = static_cast<std::uint32_t>(Text(indice).size());
    m.titres.erase(m.debuts[rangDuTexte], octets);
    m.debuts.erase(m.debuts.begin() + static_cast<std::ptrdiff_t>(rangDuTexte));
    for (std::size_t i = rangDuTexte; i < m.debuts.size(); ++i)
        m.debuts[i] -= octets;

    const std::size_t suite = numeroDeSuite(indice);
    if (indice == m.suites[suite].noeud)
        ++m.suites[suite].position;
    else
        coupe(suite, indice);
    ote(suite, indice);
    ++m_generation;
}

// The films after `indice` become a run of their own; the run keeps it.
void Arbre::coupe(std::size_t suite, int indice) {
    const Suite& avant = m.suites[suite];
    const std::int32_t pas = indice + 1 - avant.noeud, numero = static_cast<std::int32_t>(suite);
    const Suite apres{indice + 1, avant.groupe, avant.rang + pas, avant.position + static_cast<std::uint32_t>(pas)};
    m.suites.insert(m.suites.begin() + static_cast<std::ptrdiff_t>(suite) + 1, apres);
    const auto decale = [numero](std::int32_t& autre) {
        if (autre > numero) ++autre;
    };
    if (m.racine.suites >= 0) decale(m.racine.suites);
    for (Groupe& autre : m.groupes)
        if (autre.suites >= 0) decale(autre.suites);
    for (auto& suites : m.morceles)
        std::ranges::for_each(suites, decale);
    Groupe& groupe = this->groupe(apres.groupe);
    if (groupe.suites >= 0) {
        m.morceles.push_back({groupe.suites});
        groupe.suites = -static_cast<std::int32_t>(m.morceles.size());
    }
    auto& suites = m.morceles[static_cast<std::size_t>(-1 - groupe.suites)];
    suites.insert(std::upper_bound(suites.begin(), suites.end(), numero), numero + 1);
}

// One node less in that run.
void Arbre::ote(std::size_t suite, int indice) {
    const std::int32_t duGroupe = m.suites[suite].groupe;
    for (std::size_t i = suite + 1; i < m.suites.size(); ++i) {
        --m.suites[i].noeud;
        if (m.suites[i].position != 0 && m.suites[i].groupe == duGroupe) --m.suites[i].rang;
        if (m.suites[i].position == 0 && duGroupe == 0) --m.suites[i].rang;
    }
    for (Groupe& groupe : m.groupes)
        if (groupe.noeud > indice) --groupe.noeud;
    --groupe(duGroupe).enfants;
}

// ---- looking

// The last one that begins there or before: those without nodes are passed over.
std::size_t Arbre::numeroDeSuite(int indice) const {
    const auto tient = [&](std::size_t suite) {
        return suite < m.suites.size() && m.suites[suite].noeud <= indice && indice < finDe(suite);
    };
    if (tient(m_suiteRecente)) return m_suiteRecente;
    if (tient(m_suiteRecente + 1)) return ++m_suiteRecente;
    const auto apres = std::upper_bound(m.suites.begin(), m.suites.end(), indice,
                                        [](int cherche, const Suite& suite) { return cherche < suite.noeud; });
    return m_suiteRecente = static_cast<std::size_t>(apres - m.suites.begin()) - 1;
}

std::uint32_t Arbre::position(int indice) const {
    const Suite& suite = suiteDe(indice);
    return suite.position == 0 ? 0 : suite.position + static_cast<std::uint32_t>(indice - suite.noeud);
}

int Arbre::Parent(int indice) const {
    const Suite& suite = suiteDe(indice);
    return suite.position == 0 ? 0 : groupe(suite.groupe).noeud;
}

int Arbre::rang(int indice) const {
    const Suite& suite = suiteDe(indice);
    return suite.rang + indice - suite.noeud;
}

std::string Arbre::Key(int indice) const {
    if (!estGroupe(indice)) return "K" + std::to_string(position(indice));
    const std::int32_t numero = suiteDe(indice).groupe;
    const auto connue = m.cles.find(numero);
    return connue == m.cles.end() ? cleDuRang(numero) : connue->second;
}

std::string_view Arbre::Text(int indice) const {
    if (const Suite& suite = suiteDe(indice); suite.position == 0) {
        if (m.textesSuivis.empty()) return texteNu(suite.groupe);
        const std::string& suivi = m.textesSuivis[static_cast<std::size_t>(suite.groupe - 1)];
        return suivi.empty() ? texteNu(suite.groupe) : std::string_view(suivi);
    }
    const auto apres = static_cast<std::size_t>(indice);
    const std::size_t debut = m.debuts[apres - 1], fin = apres < m.debuts.size() ? m.debuts[apres] : m.titres.size();
    return std::string_view(m.titres).substr(debut, fin - debut);
}

std::string_view Arbre::texteNu(std::int32_t numero) const {
    const auto apres = static_cast<std::size_t>(numero);
    const std::size_t debut = groupe(numero).texte,
                      fin = apres < m.groupes.size() ? m.groupes[apres].texte : m.textes.size();
    return std::string_view(m.textes).substr(debut, fin - debut);
}

std::string_view Arbre::texteDuGroupe(int indice) const {
    return texteNu(numeroDuGroupe(indice));
}

void Arbre::changeSuiteGroupe(int indice, std::string_view suite) {
    ++m_versionDesTextes;
    if (m.textesSuivis.empty() && suite.empty()) return;
    const std::int32_t numero = numeroDuGroupe(indice);
    m.textesSuivis.resize(m.groupes.size());
    std::string& suivi = m.textesSuivis[static_cast<std::size_t>(numero - 1)];
    if (!suivi.empty()) --m.suivis;
    suivi.clear();
    if (suite.empty()) {
        if (m.suivis == 0) m.textesSuivis = {};
        return;
    }
    suivi.append(texteNu(numero)).append(suite);
    ++m.suivis;
}

int Arbre::noeudDuFilm(std::uint32_t position) const {
    for (std::size_t i = 0; i < m.suites.size(); ++i) {
        const Suite& suite = m.suites[i];
        if (suite.position == 0 || position < suite.position) continue;
        const auto pas = position - suite.position;
        if (pas < static_cast<std::uint32_t>(finDe(i) - suite.noeud)) return suite.noeud + static_cast<int>(pas);
    }
    return 0;
}

}  // namespace browse
