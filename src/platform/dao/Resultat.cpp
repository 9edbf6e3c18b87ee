#include "platform/dao/Resultat.h"

#include "platform/dao/Balayage.h"
#include "platform/dao/CleJet.h"
#include "platform/dao/Ecriture.h"
#include "platform/dao/Groupes.h"
#include "platform/dao/Jointure.h"
#include "platform/dao/PresqueEnOrdre.h"
#include "platform/dao/RegistresLarges.h"

#include <algorithm>
#include <numeric>
#include <optional>
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
        choisisLOrdre();
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

    // A joined row's partner has its texts, by Jet's comparison at least: few ask for those of the partner.
    void oublieLaJointure() {
        if (m_plan.gauche || m_plan.distinct) return;
        std::vector<RangLu> jointes;
        for (const auto& [gauche, droite] : m_plan.egalites)
            jointes.push_back(droite);
        m_resultat.magasins[kSeconde].oublie(jointes);
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
            const std::string_view texte = gardee(kSeconde, droite, egalite.second, m_longue).texte;
            return texteDe(valeurs[egalite.first], tampon) == texte ||
                   m_cles[kPremiere].cle(egalite.first) == cleJet(texte);
        });
    }

    // A value of a table from its store, or from the base when it was too long to be kept: in `tampon` then.
    ValeurVue gardee(RangTable table, RangLigne ligne, RangLu rang, std::string& tampon) {
        if (ligne == kSansLigne) return {};
        const Magasin& magasin = m_resultat.magasins[table];
        if (const auto valeur = magasin.valeur(ligne, rang)) return *valeur;
        const TableDuPlan& lue = m_plan.tables[table];
        tampon = litChamp(m_connexion, *lue.table, lue.lues[rang], magasin.id(ligne)).texte();
        return ValeurVue::deTexte(tampon);
    }

    void retientSiNulles(const Balayage& balayage, RangLigne droite) {
        for (const RangLu nulle : m_plan.nulles) {
            if (!gardee(kSeconde, droite, nulle, m_longue).estNulle()) return;
        }
        if (m_ligneDeGauche == kSansLigne) m_ligneDeGauche = range(kPremiere, balayage);
        retient(m_ligneDeGauche, droite);
    }

    // Rows come in the order of an index, by title: whatever else comes first is a matter of groups.
    void choisisLOrdre() {
        const auto& cle = premiere().table->cle;
        for (const TriDuPlan& tri : m_plan.tris)
            m_ordre.push_back(tri);
        for (const RangLu rang : m_plan.departages) {
            const ColonneDuPlan colonne{kPremiere, rang};
            const auto connue = [colonne](const TriDuPlan& tri) { return tri.colonne == colonne; };
            if (std::none_of(m_ordre.begin(), m_ordre.end(), connue)) m_ordre.push_back({colonne});
        }
        if (m_plan.tris.empty()) return;
        const auto [table, rang] = m_ordre.front().colonne;
        if (table == kPremiere && cle && premiere().lues[rang] == cle->premiere) return;
        m_groupee = m_ordre.front();
        m_ordre.erase(m_ordre.begin());
    }

    // Adds a row of the statement.
    void retient(RangLigne gauche, RangLigne droite) {
        if (m_groupee) ajouteAuGroupe(*m_groupee, droite);
        m_gauches.push_back(gauche);
        if (m_plan.tables.size() > 1) m_droites.push_back(droite);
        // Of a DISTINCT a lower row may still come to stand for this one.
        if (!m_plan.distinct) classe(static_cast<std::uint32_t>(m_gauches.size() - 1));
    }

    void classe(std::uint32_t rang) { m_presque.ajoute(rang, cleDe(rang)); }

    void ajouteAuGroupe(const TriDuPlan& tri, RangLigne droite) {
        const auto [table, rang] = tri.colonne;
        const ValeurVue valeur =
            table == kPremiere ? m_cles[kPremiere].valeur(rang) : gardee(kSeconde, droite, rang, m_longue);
        if (valeur.estNulle()) return m_groupes.ajouteNul();
        if (tri.numerique) return m_groupes.ajouteNombre(valeur.enNombre());
        std::string tampon;
        m_groupes.ajouteTexte(texteDe(valeur, tampon));
    }

    ValeurVue valeurDe(std::uint32_t rang, ColonneDuPlan colonne, std::string& tampon) {
        const RangLigne ligne = colonne.table == kPremiere ? m_gauches[rang] : m_droites[rang];
        return gardee(colonne.table, ligne, colonne.rang, tampon);
    }

    // Two rows of one group.
    int compare(std::uint32_t gauche, std::uint32_t droite) {
        for (const TriDuPlan& tri : m_ordre) {
            const ValeurVue une = valeurDe(gauche, tri.colonne, m_longue),
                            autre = valeurDe(droite, tri.colonne, m_autreLongue);
            if (const int ordre = compareValeurs(une, autre, tri.numerique); ordre != 0) return ordre;
        }
        return 0;
    }

    int compareTextes(std::string_view gauche, std::string_view droite) {
        if (gauche == droite) return 0;
        m_cle.clear();
        ajouteCleJet(gauche, m_cle);
        m_autreCle.clear();
        ajouteCleJet(droite, m_autreCle);
        return m_cle.compare(m_autreCle);
    }

    int compareValeurs(const ValeurVue& une, const ValeurVue& autre, bool numerique) {
        if (une.estNulle() || autre.estNulle()) return (autre.estNulle() ? 1 : 0) - (une.estNulle() ? 1 : 0);
        if (!numerique) return compareTextes(une.texte, autre.texte);
        const double gauche = une.enNombre(), droite = autre.enNombre();
        return (gauche > droite ? 1 : 0) - (gauche < droite ? 1 : 0);
    }

    // Rows that nothing else tells apart stand by the ids of their rows.
    bool precede(std::uint32_t gauche, std::uint32_t droite) {
        const int ordre = compare(gauche, droite);
        return ordre != 0 ? ordre < 0 : ids(gauche) < ids(droite);
    }

    std::pair<long long, long long> ids(std::uint32_t rang) const {
        const RangLigne seconde = m_plan.tables.size() > 1 ? m_droites[rang] : kSansLigne;
        return {m_resultat.magasins[kPremiere].id(m_gauches[rang]),
                seconde == kSansLigne ? 0 : m_resultat.magasins[kSeconde].id(seconde)};
    }

    // Of the first column by which the rows of a group stand; holds until the next call.
    std::string_view cleDe(std::uint32_t rang) {
        if (m_ordre.empty()) return cleDeNombre(static_cast<double>(ids(rang).first), m_cleDeNombre);
        const TriDuPlan& tri = m_ordre.front();
        const ValeurVue valeur = valeurDe(rang, tri.colonne, m_longue);
        if (valeur.estNulle()) return {};
        if (tri.numerique) return cleDeNombre(valeur.enNombre(), m_cleDeNombre);
        m_cleAjoutee.clear();
        ajouteCleJet(valeur.texte, m_cleAjoutee);
        return m_cleAjoutee;
    }

    std::vector<std::uint32_t> enOrdre() {
        for (std::uint32_t rang = 0; m_plan.distinct && rang < m_gauches.size(); ++rang) {
            classe(rang);
            respire();
        }
        std::vector<std::uint32_t> rangs = m_presque.rangs(m_souffle);
        std::vector<std::uint32_t> fins{static_cast<std::uint32_t>(rangs.size())};
        if (m_groupee) rangs = m_groupes.range(rangs, fins, m_souffle);
        if (m_plan.distinct) sansDoublons(rangs, fins);
        return rangs;
    }

    void sansDoublons(std::vector<std::uint32_t>& rangs, const std::vector<std::uint32_t>& fins) {
        auto debut = rangs.begin(), garde = debut;
        for (const std::uint32_t fin : fins) {
            const auto suivant = rangs.begin() + fin;
            const auto bout =
                std::unique(debut, suivant, [this](auto une, auto autre) { return compare(une, autre) == 0; });
            garde = std::copy(debut, bout, garde);
            debut = suivant;
        }
        rangs.erase(garde, rangs.end());
    }

    void ordonne() {
        const std::vector<std::uint32_t> rangs = enOrdre();
        const auto suit = [&rangs](std::vector<RangLigne>& lignes) {
            std::vector<RangLigne> resultat;
            resultat.reserve(rangs.size());
            for (const std::uint32_t rang : rangs)
                resultat.push_back(lignes[rang]);
            lignes = {};
            return resultat;
        };
        m_resultat.lignes.push_back(suit(m_gauches));
        if (m_plan.tables.size() > 1) m_resultat.lignes.push_back(suit(m_droites));
    }

    Connexion& m_connexion;
    const Plan& m_plan;
    Resultat m_resultat;
    Par<RangTable, ClesDeLigne> m_cles;
    std::optional<TriDuPlan> m_groupee;  // the first column to order by, where the groups hold it
    std::vector<TriDuPlan> m_ordre;      // the columns after it
    Groupes m_groupes;
    PresqueEnOrdre m_presque{[this](std::uint32_t gauche, std::uint32_t droite) { return precede(gauche, droite); },
                             [this](std::uint32_t rang, Ordre& ordre) { ordre.ajoute(cleDe(rang)); }};
    std::vector<RangLigne> m_gauches;
    std::vector<RangLigne> m_droites;
    RangLigne m_ligneDeGauche = kSansLigne;
    std::unordered_map<std::string, RangLigne> m_vues;
    std::string m_lettres;  // of the row being looked up
    std::string m_cle, m_autreCle, m_cleAjoutee;
    std::array<char, kTailleDeNombre> m_cleDeNombre{};
    std::string m_longue, m_autreLongue;
    Souffle m_souffle;
    unsigned m_lignesLues = 0;
};

}  // namespace

Resultat execute(Connexion& connexion, const Plan& plan) {
    rendsRegistresLarges();
    return Execution(connexion, plan).resultat();
}

}  // namespace dao::interne
