#include "platform/dao/Resultat.h"

#include "platform/dao/Balayage.h"
#include "platform/dao/CleJet.h"
#include "platform/dao/Jointure.h"
#include "platform/dao/Rangement.h"
#include "platform/dao/RegistresLarges.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace dao::interne {

namespace {

// The base's breath: none where it has none.
Souffle souffleDe(Connexion& connexion) {
    if (!connexion.souffle()) return {};
    return [&connexion] {
        connexion.respire();
        rendsRegistresLarges();  // who paints uses them
    };
}

class Execution {
  public:
    Execution(Connexion& connexion, const Plan& plan)
        : m_connexion(connexion), m_plan(plan), m_souffle(souffleDe(connexion)) {
        for (const TableDuPlan& table : plan.tables) {
            m_resultat.magasins.emplace_back(table.lues.size());
            m_cles.emplace_back(table.lues.size());
        }
    }

    Resultat resultat() {
        if (m_plan.tables.size() > 1) {
            const Regard regard(m_connexion);
            joint();
            oublieLaJointure();
        } else if (m_plan.cle) {
            chercheLaCle(*m_plan.cle);
        } else {
            balaie(premiere().condition);
        }
        m_rangement.range(m_resultat);
        for (Magasin& magasin : m_resultat.magasins)
            magasin.serre();
        return std::move(m_resultat);
    }

  private:
    const TableDuPlan& premiere() const { return m_plan.tables[kPremiere]; }

    RangLigne range(RangTable table, const Balayage& balayage) {
        return m_resultat.magasins[table].ajoute(balayage.id(), balayage.valeurs());
    }

    void chercheLaCle(const CleCherchee& cle) {
        const std::vector<long long> lignes = candidats(m_connexion, *premiere().table, cle.premiere, cle.seconde);
        for (const long long ligne : lignes)
            balaie(premiere().condition, ligne);
        if (!m_rangement.estVide() || cle.sansNul.empty()) return;
        for (const long long ligne : lignes)
            balaie(cle.sansNul, ligne);
    }

    void balaie(const std::string& condition, std::optional<long long> ligne = std::nullopt) {
        Balayage balayage(m_connexion, premiere(), condition, ligne);
        while (balayage.avance()) {
            m_cadence();
            if (m_plan.distinct && dejaVue(balayage)) continue;
            m_rangement.ajoute(range(kPremiere, balayage), kSansLigne);
        }
    }

    // Rows of the same letters are dropped before anything is worked out for them; the lowest row id stands for all.
    bool dejaVue(const Balayage& balayage) {
        m_lettres.clear();
        std::string tampon;
        for (const ValeurVue& valeur : balayage.valeurs()) {
            const std::string_view texte = texteDe(valeur, tampon);
            const std::size_t taille = valeur.estNulle() ? std::string::npos : texte.size();
            m_lettres.append(reinterpret_cast<const char*>(&taille), sizeof taille).append(texte);
        }
        Magasin& magasin = m_resultat.magasins[kPremiere];
        const auto [vue, nouvelle] = m_vues.try_emplace(m_lettres, static_cast<RangLigne>(magasin.taille()));
        if (nouvelle) return false;
        if (balayage.id() < magasin.id(vue->second)) magasin.change(vue->second, balayage.id());
        return true;
    }

    // Indexes bring both tables in the same order: as a rule a row's only partner is the one after the last that was met,
    // which the letters tell. Everything else is found by the hashes of the keys.
    void joint() {
        const Partenaires partenaires(rangePartenaires());
        Balayage balayage(m_connexion, premiere(), premiere().condition);
        RangLigne suivante{0};
        while (balayage.avance()) {
            m_cadence();
            m_cles[kPremiere].change(balayage.valeurs());
            m_ligneDeGauche = kSansLigne;
            bool jointe = false;
            const auto joins = [&](RangLigne droite) {
                jointe = true;
                suivante = static_cast<RangLigne>(static_cast<std::uint32_t>(droite) + 1);
                retientSiNulles(balayage, droite);
            };
            if (ontLesMemesLettres(balayage.valeurs(), suivante) && partenaires.estSeule(suivante)) {
                joins(suivante);
            } else if (const auto hachage = hachageDeJointure(kPremiere)) {
                partenaires.chaque(*hachage, [&](RangLigne droite) {
                    if (seJoignent(balayage.valeurs(), droite)) joins(droite);
                });
            }
            if (!jointe && m_plan.gauche) retientSiNulles(balayage, kSansLigne);
        }
    }

    // A joined row's partner has its texts, by Jet's comparison at least: few ask for those of the partner.
    void oublieLaJointure() {
        if (m_plan.gauche || m_plan.distinct) return;
        for (const auto& [gauche, droite] : m_plan.egalites)
            m_resultat.magasins[kSeconde].oublie(droite);
    }

    bool ontLesMemesLettres(const Par<RangLu, ValeurVue>& valeurs, RangLigne droite) const {
        const Magasin& magasin = m_resultat.magasins[kSeconde];
        if (static_cast<std::size_t>(droite) >= magasin.taille()) return false;
        return std::all_of(m_plan.egalites.begin(), m_plan.egalites.end(), [&](const auto& egalite) {
            const ValeurVue& gauche = valeurs[egalite.first];
            const auto gardee = magasin.valeur(droite, egalite.second);
            return gauche.type == ValeurVue::Type::Texte && gardee && gardee->type == gauche.type &&
                   gardee->texte == gauche.texte;
        });
    }

    Par<RangLigne, std::uint64_t> rangePartenaires() {
        Par<RangLigne, std::uint64_t> hachages;
        Balayage balayage(m_connexion, m_plan.tables[kSeconde], m_plan.tables[kSeconde].condition);
        while (balayage.avance()) {
            m_cadence();
            m_cles[kSeconde].change(balayage.valeurs());
            const auto hachage = hachageDeJointure(kSeconde);
            if (!hachage) continue;
            hachages.push_back(*hachage);
            range(kSeconde, balayage);
        }
        return hachages;
    }

    // None for a row that joins nothing, as Null does.
    std::optional<std::uint64_t> hachageDeJointure(RangTable table) {
        ClesDeLigne& cles = m_cles[table];
        std::uint64_t hachage = 0;
        bool seJoint = !m_plan.joinCles;
        for (const auto& [gauche, droite] : m_plan.egalites) {
            const RangLu rang = table == kPremiere ? gauche : droite;
            const bool nulle = cles.valeur(rang).estNulle();
            if (nulle && !m_plan.joinCles) return std::nullopt;
            seJoint = seJoint || !nulle;
            hachage = hache(cles.cle(rang), hachage);
        }
        return seJoint ? std::optional(hachage) : std::nullopt;
    }

    bool seJoignent(const Par<RangLu, ValeurVue>& valeurs, RangLigne droite) {
        return std::all_of(m_plan.egalites.begin(), m_plan.egalites.end(), [&](const auto& egalite) {
            std::string tampon;
            const std::string_view texte = m_valeurs.valeur({kSeconde, egalite.second}, droite, m_longue).texte;
            return texteDe(valeurs[egalite.first], tampon) == texte ||
                   m_cles[kPremiere].cle(egalite.first) == cleJet(texte);
        });
    }

    void retientSiNulles(const Balayage& balayage, RangLigne droite) {
        for (const RangLu nulle : m_plan.nulles) {
            if (!m_valeurs.valeur({kSeconde, nulle}, droite, m_longue).estNulle()) return;
        }
        if (m_ligneDeGauche == kSansLigne) m_ligneDeGauche = range(kPremiere, balayage);
        m_rangement.ajoute(m_ligneDeGauche, droite);
    }

    Connexion& m_connexion;
    const Plan& m_plan;
    Resultat m_resultat;
    Par<RangTable, ClesDeLigne> m_cles;
    const Souffle m_souffle;
    Cadence m_cadence{m_souffle};
    const Valeurs m_valeurs{m_connexion, m_plan, m_resultat.magasins};
    Rangement m_rangement{m_plan, m_valeurs, m_souffle};
    RangLigne m_ligneDeGauche = kSansLigne;
    std::unordered_map<std::string, RangLigne> m_vues;
    std::string m_lettres;  // of the row being looked up
    std::string m_longue;
};

using Gardees = Par<RangLu, std::shared_ptr<const ColonneGardee>>;

// A column's values for the rows of a store, which come as they came to it. None where they do not.
std::shared_ptr<const ColonneGardee> litLaColonne(Connexion& connexion, const TableDuPlan& table, RangLu rang,
                                                  const Magasin& magasin, const Souffle& souffle) {
    const TableDuPlan seule{table.table, {table.lues[rang]}, table.condition, table.parametres};
    Balayage balayage(connexion, seule, seule.condition);
    const auto colonne = std::make_shared<ColonneGardee>();
    for (Cadence cadence(souffle); colonne->taille() < magasin.taille() && balayage.avance(); cadence()) {
        const auto suivante = static_cast<RangLigne>(colonne->taille());
        if (balayage.id() == magasin.id(suivante)) colonne->ajoute(balayage.valeurs().front());
    }
    colonne->serre();
    return colonne->taille() == magasin.taille() ? colonne : nullptr;
}

// What a plan's table reads, from what another one kept of the same rows.
std::optional<Gardees> colonnesPour(Connexion& connexion, const TableDuPlan& table, const TableDuPlan& ancienne,
                                    const Magasin& magasin, const Souffle& souffle) {
    Gardees colonnes;
    for (const RangLu rang : table.lues.rangs()) {
        const auto connue = std::find(ancienne.lues.begin(), ancienne.lues.end(), table.lues[rang]);
        const bool gardee = connue != ancienne.lues.end();
        colonnes.push_back(gardee ? magasin.colonne(static_cast<RangLu>(connue - ancienne.lues.begin()))
                                  : litLaColonne(connexion, table, rang, magasin, souffle));
        if (!gardee && colonnes.back() == nullptr) return std::nullopt;
    }
    return colonnes;
}

LignesParTable lignesParLaCle(const Resultat& resultat) {
    if (resultat.places.empty()) return resultat.lignes;
    LignesParTable lignes;
    for (const std::vector<RangLigne>& siennes : resultat.lignes) {
        std::vector<RangLigne>& parLaCle = lignes.emplace_back();
        parLaCle.reserve(siennes.size());
        for (const std::uint32_t place : resultat.places)
            parLaCle.push_back(siennes[place]);
    }
    return lignes;
}

}  // namespace

Resultat execute(Connexion& connexion, const Plan& plan) {
    rendsRegistresLarges();
    return Execution(connexion, plan).resultat();
}

std::optional<Resultat> reordonne(Connexion& connexion, const Plan& plan, const Plan& ancien,
                                  const Resultat& resultat) {
    if (!plan.aLesLignesDe(ancien) || !plan.suitLaCle() || !ancien.suitLaCle()) return std::nullopt;
    rendsRegistresLarges();
    const Souffle souffle = souffleDe(connexion);
    const Regard regard(connexion);
    Resultat autre;
    for (const RangTable rang : plan.tables.rangs()) {
        auto colonnes =
            colonnesPour(connexion, plan.tables[rang], ancien.tables[rang], resultat.magasins[rang], souffle);
        if (!colonnes) return std::nullopt;
        autre.magasins.emplace_back(resultat.magasins[rang], std::move(*colonnes));
    }
    autre.lignes = lignesParLaCle(resultat);
    if (const auto tri = plan.groupes()) {
        std::vector<std::uint32_t> fins;
        autre.places = placesParGroupes(*tri, Valeurs(connexion, plan, autre.magasins), autre.lignes, fins, souffle);
        disperse(autre.lignes, autre.places);
    }
    return autre;
}

}  // namespace dao::interne
