#include "platform/dao/JeuDeCles.h"

#include "platform/dao/Ecriture.h"

#include <algorithm>

namespace dao::interne {

namespace {

std::vector<Table*> tablesDe(const Plan& plan) {
    std::vector<Table*> tables;
    for (const TableDuPlan& table : plan.tables)
        tables.push_back(table.table);
    return tables;
}

std::vector<int> rangsPortes(const TableDuPlan& table) {
    std::vector<int> rangs(table.table->colonnes.size(), -1);
    for (std::size_t i = 0; i < table.lues.size(); ++i) {
        if (table.lues[i].portee)
            rangs[static_cast<std::size_t>(table.lues[i].colonne)] = rangPorte(table, static_cast<int>(i));
    }
    return rangs;
}

}  // namespace

JeuDeCles::JeuDeCles(Connexion& connexion, const Plan& plan, Resultat resultat)
    : Jeu(connexion, tablesDe(plan), plan.champs),
      m_resultat(std::move(resultat)),
      m_avances(plan.tables.size()),
      m_fige(plan.distinct),
      m_version(connexion.version()),
      m_epoque(connexion.epoque()) {
    for (const TableDuPlan& table : plan.tables)
        m_rangs.push_back(rangsPortes(table));
    for (const Magasin& magasin : m_resultat.magasins)
        m_lues.push_back(magasin.taille());
}

void JeuDeCles::pas(long nombre) {
    m_position = std::clamp(m_position + std::clamp(nombre, -taille() - 1, taille() + 1), -1L, taille());
}

std::uint32_t JeuDeCles::place(int rangDeTable) const {
    return m_resultat.lignes[static_cast<std::size_t>(rangDeTable)][static_cast<std::size_t>(m_position)];
}

const long long* JeuDeCles::ligne(int rangDeTable) {
    const std::uint32_t rang = place(rangDeTable);
    return rang == kSansLigne ? nullptr : &m_resultat.magasins[static_cast<std::size_t>(rangDeTable)].id(rang);
}

void JeuDeCles::exigePresent() {
    if (m_fige) return;
    for (int t = 0; t < nombreDeTables(); ++t) {
        const Suivi& suivi = table(t).suivi;
        if (suivi.supprimees.empty()) continue;
        if (const long long* id = ligne(t); id != nullptr && suivi.estSupprimee(*id)) jetteSupprime();
    }
}

// Whether the value that was read with the row still stands.
bool JeuDeCles::gardee(ChampDeJeu champ, Magasin::Valeur& valeur) {
    const auto t = static_cast<std::size_t>(champ.table);
    const int rang = m_rangs[t][static_cast<std::size_t>(champ.colonne)];
    const std::uint32_t ou = place(champ.table);
    if (rang < 0 || ou >= m_lues[t]) return false;
    const Magasin& magasin = m_resultat.magasins[t];
    if (!m_fige &&
        (m_epoque != connexion().epoque() || table(champ.table).suivi.ecriteDepuis(magasin.id(ou), m_version)))
        return false;
    valeur = magasin.valeur(ou, static_cast<std::size_t>(rang));
    return valeur.genre != Magasin::Genre::Absent;
}

Valeur JeuDeCles::lit(ChampDeJeu champ) {
    exigePresent();
    const long long* id = ligne(champ.table);
    if (id == nullptr) return {};
    Magasin::Valeur valeur{};
    if (gardee(champ, valeur)) {
        if (valeur.genre == Magasin::Genre::Nul) return {};
        if (valeur.genre == Magasin::Genre::Texte) return valeur.texte;
    }
    return litDansLaBase(champ, *id);
}

bool JeuDeCles::litVue(ChampDeJeu champ, std::string_view& texte) {
    exigePresent();
    Magasin::Valeur valeur{};
    if (ligne(champ.table) == nullptr) return true;
    if (!gardee(champ, valeur)) return litDAvance(champ, texte);
    texte = valeur.texte;
    return true;
}

void JeuDeCles::vaParcourir(ChampDeJeu champ) {
    m_avances[static_cast<std::size_t>(champ.table)].demande(champ.colonne);
}

bool JeuDeCles::litDAvance(ChampDeJeu champ, std::string_view& texte) {
    LectureDAvance& avance = m_avances[static_cast<std::size_t>(champ.table)];
    Connexion& base = connexion();
    const Table& lue = table(champ.table);
    const long long id = *ligne(champ.table);
    auto trouve = avance.texte(m_position, id, champ.colonne, base, lue);
    if (!trouve) {
        avance.lit(m_position, lignesDepuis(champ.table, avance.combienDepuis(m_position)), base, lue);
        trouve = avance.texte(m_position, id, champ.colonne, base, lue);
    }
    if (trouve) texte = *trouve;
    return trouve.has_value();
}

std::vector<std::optional<long long>> JeuDeCles::lignesDepuis(int rangDeTable, std::size_t nombre) const {
    const auto t = static_cast<std::size_t>(rangDeTable);
    const std::vector<std::uint32_t>& rangs = m_resultat.lignes[t];
    const auto debut = static_cast<std::size_t>(m_position);
    std::vector<std::optional<long long>> lignes;
    for (std::size_t p = debut; p < std::min(debut + nombre, rangs.size()); ++p)
        lignes.push_back(rangs[p] == kSansLigne ? std::nullopt : std::optional(m_resultat.magasins[t].id(rangs[p])));
    return lignes;
}

void JeuDeCles::accueille(const std::vector<long long>& lignes) {
    for (std::size_t t = 0; t < lignes.size(); ++t)
        m_resultat.lignes[t].push_back(m_resultat.magasins[t].ajoute(lignes[t]));
}

}  // namespace dao::interne
