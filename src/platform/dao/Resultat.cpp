#include "platform/dao/Resultat.h"

#include "platform/dao/Balayage.h"
#include "platform/dao/CleJet.h"
#include "platform/dao/Ecriture.h"
#include "platform/dao/Jointure.h"
#include "platform/dao/Ordre.h"
#include "platform/dao/RegistresLarges.h"

#include <algorithm>
#include <functional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>

namespace dao::interne {

namespace {

class Execution {
  public:
    Execution(Connexion& connexion, const Plan& plan) : m_connexion(connexion), m_plan(plan) {
        if (connexion.souffle()) {
            m_souffle = [&connexion] {
                connexion.respire();
                rendsRegistresLarges();  // who paints uses them
            };
        }
        for (const TableDuPlan& table : plan.tables) {
            m_resultat.magasins.emplace_back(table.lues.size());
            m_cles.emplace_back(table.lues.size());
        }
    }

    Resultat resultat() {
        if (m_plan.tables.size() > 1) {
            const Regard regard(m_connexion);
            joint();
        } else if (m_plan.cle) {
            chercheLaCle(*m_plan.cle);
        } else {
            balaie(premiere().condition);
        }
        ordonne();
        for (Magasin& magasin : m_resultat.magasins)
            magasin.serre();
        return std::move(m_resultat);
    }

  private:
    const TableDuPlan& premiere() const { return m_plan.tables[kPremiere]; }

    void respire() {
        constexpr unsigned kLignesParSouffle = 256;
        if (m_souffle && ++m_lignesLues % kLignesParSouffle == 0) m_souffle();
    }

    RangLigne range(RangTable table, const Balayage& balayage) {
        Magasin& magasin = m_resultat.magasins[table];
        for (const ValeurVue& valeur : balayage.valeurs())
            magasin.ajouteValeur(valeur);
        return magasin.ajoute(balayage.id());
    }

    void chercheLaCle(const CleCherchee& cle) {
        const std::vector<long long> lignes = candidats(m_connexion, *premiere().table, cle.premiere, cle.seconde);
        for (const long long ligne : lignes)
            balaie(premiere().condition, ligne);
        if (!m_gauches.empty() || cle.sansNul.empty()) return;
        for (const long long ligne : lignes)
            balaie(cle.sansNul, ligne);
    }

    void balaie(const std::string& condition, std::optional<long long> ligne = std::nullopt) {
        Balayage balayage(m_connexion, premiere(), condition, ligne);
        while (balayage.avance()) {
            respire();
            if (m_plan.distinct && dejaVue(balayage)) continue;
            m_cles[kPremiere].change(balayage.valeurs());
            retient(range(kPremiere, balayage), kSansLigne);
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
            respire();
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
            respire();
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
            const std::string_view texte = gardee(kSeconde, droite, egalite.second).texte;
            return texteDe(valeurs[egalite.first], tampon) == texte ||
                   m_cles[kPremiere].cle(egalite.first) == cleJet(texte);
        });
    }

    // A value of a table from its store, or from the base when it was too long to be kept. Until the next call.
    ValeurVue gardee(RangTable table, RangLigne ligne, RangLu rang) {
        if (ligne == kSansLigne) return {};
        const Magasin& magasin = m_resultat.magasins[table];
        if (const auto valeur = magasin.valeur(ligne, rang)) return *valeur;
        const TableDuPlan& lue = m_plan.tables[table];
        m_longue = litChamp(m_connexion, *lue.table, lue.lues[rang], magasin.id(ligne)).texte();
        return ValeurVue::deTexte(m_longue);
    }

    void retientSiNulles(const Balayage& balayage, RangLigne droite) {
        for (const RangLu nulle : m_plan.nulles) {
            if (!gardee(kSeconde, droite, nulle).estNulle()) return;
        }
        if (m_ligneDeGauche == kSansLigne) m_ligneDeGauche = range(kPremiere, balayage);
        retient(m_ligneDeGauche, droite);
    }

    // Adds a row of the statement, with its key among the others.
    void retient(RangLigne gauche, RangLigne droite) {
        for (const TriDuPlan& tri : m_plan.tris)
            ajouteCle(tri, droite);
        m_ordre.finit();
        m_gauches.push_back(gauche);
        if (m_plan.tables.size() > 1) m_droites.push_back(droite);
    }

    // Rows of equal keys, by the ids of their rows.
    bool precede(std::uint32_t gauche, std::uint32_t droite) const {
        const auto ids = [this](std::uint32_t rang) {
            const RangLigne seconde = m_plan.tables.size() > 1 ? m_droites[rang] : kSansLigne;
            return std::pair(m_resultat.magasins[kPremiere].id(m_gauches[rang]),
                             seconde == kSansLigne ? 0 : m_resultat.magasins[kSeconde].id(seconde));
        };
        return ids(gauche) < ids(droite);
    }

    void ajouteCle(const TriDuPlan& tri, RangLigne droite) {
        const auto [table, rang] = tri.colonne;
        const ValeurVue valeur = table == kPremiere ? m_cles[kPremiere].valeur(rang) : gardee(kSeconde, droite, rang);
        if (valeur.estNulle()) return m_ordre.ajouteNul();
        if (tri.numerique) return m_ordre.ajouteNombre(valeur.enNombre());
        if (table == kPremiere) return m_ordre.ajouteTexte(m_cles[kPremiere].cle(rang));
        ajouteTexte(m_ordre, valeur.texte);
    }

    void ajouteTexte(Ordre& ordre, std::string_view texte) {
        m_cle.clear();
        ajouteCleJet(texte, m_cle);
        ordre.ajouteTexte(m_cle);
    }

    // Orders rows that `ordre` left equal by one more column of the first table, and the next ones after it. Only they
    // have that key worked out.
    void departage(std::span<std::uint32_t> rangs, const Ordre& ordre, std::size_t colonne) {
        for (const auto& [debut, fin] : ordre.egales()) {
            const std::span<std::uint32_t> egales = rangs.subspan(debut, fin - debut);
            const std::vector<std::uint32_t> avant(egales.begin(), egales.end());
            Ordre parColonne(Ordre::PremiereColonne::SansGroupes);
            for (std::size_t i = 0; i < avant.size(); ++i) {
                ajouteDepartage(parColonne, m_gauches[avant[i]], m_plan.departages[colonne]);
                parColonne.finit();
                respire();
            }
            const std::vector<std::uint32_t> apres = parColonne.rangs(false, std::less<>(), m_souffle);
            std::transform(apres.begin(), apres.end(), egales.begin(), [&](std::uint32_t rang) { return avant[rang]; });
            if (colonne + 1 < m_plan.departages.size()) departage(egales, parColonne, colonne + 1);
        }
    }

    void ajouteDepartage(Ordre& ordre, RangLigne ligne, RangLu rang) {
        const ValeurVue valeur = gardee(kPremiere, ligne, rang);
        if (valeur.estNulle()) return ordre.ajouteNul();
        ajouteTexte(ordre, valeur.texte);
    }

    void ordonne() {
        const auto precede = [this](std::uint32_t gauche, std::uint32_t droite) {
            return this->precede(gauche, droite);
        };
        std::vector<std::uint32_t> rangs = m_ordre.rangs(m_plan.distinct, precede, m_souffle);
        if (!m_plan.departages.empty()) departage(rangs, m_ordre, 0);
        m_ordre = Ordre();
        const auto suit = [&rangs](const std::vector<RangLigne>& lignes) {
            std::vector<RangLigne> resultat;
            resultat.reserve(rangs.size());
            for (const std::uint32_t rang : rangs)
                resultat.push_back(lignes[rang]);
            return resultat;
        };
        m_resultat.lignes.push_back(suit(m_gauches));
        if (m_plan.tables.size() > 1) m_resultat.lignes.push_back(suit(m_droites));
    }

    Connexion& m_connexion;
    const Plan& m_plan;
    Resultat m_resultat;
    Par<RangTable, ClesDeLigne> m_cles;
    Ordre m_ordre;
    std::vector<RangLigne> m_gauches;
    std::vector<RangLigne> m_droites;
    RangLigne m_ligneDeGauche = kSansLigne;
    std::unordered_map<std::string, RangLigne> m_vues;
    std::string m_lettres;  // of the row being looked up
    std::string m_cle;
    std::string m_longue;
    Souffle m_souffle;
    unsigned m_lignesLues = 0;
};

}  // namespace

Resultat execute(Connexion& connexion, const Plan& plan) {
    rendsRegistresLarges();
    return Execution(connexion, plan).resultat();
}

}  // namespace dao::interne
