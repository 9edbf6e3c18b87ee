#include "platform/dao/JeuDeCles.h"

#include "platform/dao/Ecriture.h"

#include <algorithm>

namespace dao::interne {

namespace {

Par<RangTable, Table*> tablesDe(const Plan& plan) {
    Par<RangTable, Table*> tables;
    for (const TableDuPlan& table : plan.tables)
        tables.push_back(table.table);
    return tables;
}

}  // namespace

JeuDeCles::JeuDeCles(Connexion& connexion, Plan plan, Resultat resultat)
    : Jeu(connexion, tablesDe(plan), plan.champs),
      m_plan(std::move(plan)),
      m_resultat(std::move(resultat)),
      m_avances(m_plan.tables.size()),
      m_version(connexion.version()),
      m_epoque(connexion.epoque()) {
    for (const RangTable rang : m_plan.tables.rangs()) {
        const TableDuPlan& table = m_plan.tables[rang];
        m_gardees.push_back({{}, m_resultat.magasins[rang].taille()});
        auto& rangs = m_gardees[rang].rangs;
        rangs.resize(table.table->colonnes.size());
        for (const RangLu lue : table.lues.rangs())
            rangs[table.lues[lue]] = lue;
    }
}

// The rows of a DISTINCT have their values from nowhere else.
void JeuDeCles::allege() {
    if (m_plan.distinct) return;
    m_allege = true;
    for (Magasin& magasin : m_resultat.magasins)
        magasin.oublieLesValeurs();
}

std::optional<Resultat> JeuDeCles::reordonne(Connexion& connexion, const Plan& plan) const {
    if (m_allege || !estSur(connexion) || m_version != connexion.version() || m_epoque != connexion.epoque())
        return std::nullopt;
    return interne::reordonne(connexion, plan, m_plan, m_resultat);
}

void JeuDeCles::pas(long nombre) {
    m_position = std::clamp(m_position + std::clamp(nombre, -taille() - 1, taille() + 1), -1L, taille());
}

const long long* JeuDeCles::ligne(RangTable table) {
    const RangLigne rang = ligneGardee(table);
    return rang == kSansLigne ? nullptr : &m_resultat.magasins[table].id(rang);
}

void JeuDeCles::exigePresent() {
    if (m_plan.distinct) return;
    for (const RangTable rang : tables().rangs()) {
        const Suivi& suivi = table(rang).suivi;
        if (suivi.supprimees.empty()) continue;
        if (const long long* id = ligne(rang); id != nullptr && suivi.estSupprimee(*id)) jetteSupprime();
    }
}

// What was read with the row, as long as it still stands.
std::optional<ValeurVue> JeuDeCles::gardee(ChampDeJeu champ) {
    const Gardees& gardees = m_gardees[champ.table];
    const auto rang = gardees.rangs[champ.colonne];
    const RangLigne ou = ligneGardee(champ.table);
    if (!rang || static_cast<std::size_t>(ou) >= gardees.lignes) return std::nullopt;
    const Magasin& magasin = m_resultat.magasins[champ.table];
    if (!m_plan.distinct &&
        (m_epoque != connexion().epoque() || table(champ.table).suivi.ecriteDepuis(magasin.id(ou), m_version)))
        return std::nullopt;
    return magasin.valeur(ou, *rang);
}

Valeur JeuDeCles::lit(ChampDeJeu champ) {
    exigePresent();
    const long long* id = ligne(champ.table);
    if (id == nullptr) return {};
    const auto valeur = gardee(champ);
    if (valeur && valeur->estNulle()) return {};
    if (valeur && valeur->type == ValeurVue::Type::Texte) return valeur->texte;
    return litDansLaBase(champ, *id);
}

bool JeuDeCles::litVue(ChampDeJeu champ, std::string_view& texte) {
    exigePresent();
    if (ligne(champ.table) == nullptr) return true;
    const auto valeur = gardee(champ);
    if (!valeur) return litDAvance(champ, texte);
    texte = valeur->texte;
    return true;
}

void JeuDeCles::vaParcourir(ChampDeJeu champ) {
    if (!m_gardees[champ.table].rangs[champ.colonne]) m_avances[champ.table].demande(champ.colonne);
}

bool JeuDeCles::litDAvance(ChampDeJeu champ, std::string_view& texte) {
    LectureDAvance& avance = m_avances[champ.table];
    avance.demande(champ.colonne);  // one that is kept, and was changed
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

std::vector<std::optional<long long>> JeuDeCles::lignesDepuis(RangTable table, std::size_t nombre) const {
    const std::vector<RangLigne>& rangs = m_resultat.lignes[table];
    const auto debut = static_cast<std::size_t>(m_position);
    std::vector<std::optional<long long>> lignes;
    for (std::size_t p = debut; p < std::min(debut + nombre, rangs.size()); ++p)
        lignes.push_back(rangs[p] == kSansLigne ? std::nullopt
                                                : std::optional(m_resultat.magasins[table].id(rangs[p])));
    return lignes;
}

void JeuDeCles::accueille(const Par<RangTable, long long>& lignes) {
    for (const RangTable table : lignes.rangs())
        m_resultat.lignes[table].push_back(m_resultat.magasins[table].ajoute(lignes[table]));
}

}  // namespace dao::interne
