#include "platform/dao/Resultat.h"

#include "platform/dao/Balayage.h"
#include "platform/dao/CleJet.h"
#include "platform/dao/Ecriture.h"
#include "platform/dao/Jointure.h"
#include "platform/dao/Ordre.h"
#include "platform/dao/RegistresLarges.h"

#include <algorithm>
#include <span>
#include <string>
#include <unordered_map>

namespace dao::interne {

namespace {

struct HachageDeTexte {
    using is_transparent = void;
    std::size_t operator()(std::string_view texte) const { return hache(texte); }
};

class Execution {
  public:
    Execution(Connexion& connexion, const Plan& plan) : m_connexion(connexion), m_plan(plan) {
        for (const TableDuPlan& table : plan.tables) {
            const auto portees =
                std::count_if(table.lues.begin(), table.lues.end(), [](const ColonneLue& lue) { return lue.portee; });
            m_resultat.magasins.emplace_back(static_cast<std::size_t>(portees));
            m_cles.emplace_back(table.lues.size());
            auto& rangs = m_rangsPortes.emplace_back();
            for (int i = 0; i < static_cast<int>(table.lues.size()); ++i)
                rangs.push_back(rangPorte(table, i));
        }
    }

    Resultat resultat() {
        if (m_plan.tables.size() > 1) {
            Lecture lecture(m_connexion);
            joint();
        } else if (m_plan.film) {
            chercheLeFilm(*m_plan.film);
        } else {
            balaie(m_plan.tables[0], std::nullopt);
        }
        ordonne();
        for (Magasin& magasin : m_resultat.magasins)
            magasin.serre();
        return std::move(m_resultat);
    }

  private:
    // One state of the file for both scans.
    class Lecture {
      public:
        explicit Lecture(Connexion& connexion) : m_base(connexion), m_sienne(!connexion.enTransaction()) {
            if (m_sienne) m_base.prepare("BEGIN").execute();
        }
        Lecture(const Lecture&) = delete;
        Lecture& operator=(const Lecture&) = delete;
        ~Lecture() {
            try {
                if (m_sienne) m_base.prepare("COMMIT").execute();
            } catch (...) {  // nothing was written
            }
        }

      private:
        Connexion& m_base;
        bool m_sienne;
    };

    std::uint32_t range(int table, long long id, const std::vector<ValeurVue>& valeurs) {
        const auto t = static_cast<std::size_t>(table);
        const std::uint32_t ligne = m_resultat.magasins[t].ajoute(id);
        const auto& lues = m_plan.tables[t].lues;
        for (std::size_t i = 0; i < lues.size(); ++i) {
            if (lues[i].portee) m_resultat.magasins[t].ajouteValeur(valeurs[i]);
        }
        return ligne;
    }

    void chercheLeFilm(const FilmCherche& film) {
        const std::vector<long long> lignes =
            candidats(m_connexion, *m_plan.tables[0].table, film.titre, film.realisateur);
        for (const long long ligne : lignes)
            balaie(m_plan.tables[0], ligne);
        if (!m_gauches.empty() || film.sansNul.empty()) return;
        TableDuPlan sansNul = m_plan.tables[0];
        sansNul.filtres = film.sansNul;
        for (const long long ligne : lignes)
            balaie(sansNul, ligne);
    }

    void balaie(const TableDuPlan& table, std::optional<long long> ligne) {
        Balayage balayage(m_connexion, table, 0, ligne);
        while (balayage.avance()) {
            if (m_plan.distinct && dejaVue(balayage)) continue;
            m_cles[0].change(balayage.valeurs());
            retient(range(0, balayage.id(), balayage.valeurs()), kSansLigne);
        }
        if (!ligne) table.table->suivi.compte = balayage.vues();
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
        const auto trouvee = m_vues.find(std::string_view(m_lettres));
        if (trouvee == m_vues.end()) {
            m_vues.emplace(m_lettres, static_cast<std::uint32_t>(m_resultat.magasins[0].taille()));
            return false;
        }
        Magasin& magasin = m_resultat.magasins[0];
        if (balayage.id() < magasin.id(trouvee->second)) {
            magasin.change(trouvee->second, balayage.id());
            m_ordre.change(trouvee->second, balayage.id());
        }
        return true;
    }

    void joint() {
        const Partenaires partenaires(rangePartenaires());
        Balayage balayage(m_connexion, m_plan.tables[0], 0);
        while (balayage.avance()) {
            m_cles[0].change(balayage.valeurs());
            m_ligneDeGauche = kSansLigne;
            bool jointe = false;
            if (const auto hachage = hachageDeJointure(0)) {
                partenaires.chaque(*hachage, [&](std::uint32_t droite) {
                    if (!seJoignent(balayage.valeurs(), droite)) return;
                    jointe = true;
                    retientSiVraie(balayage, droite);
                });
            }
            if (!jointe && m_plan.gauche) retientSiVraie(balayage, kSansLigne);
        }
        m_plan.tables[0].table->suivi.compte = balayage.vues();
    }

    std::vector<std::uint64_t> rangePartenaires() {
        std::vector<std::uint64_t> hachages;
        Balayage balayage(m_connexion, m_plan.tables[1], 1);
        while (balayage.avance()) {
            m_cles[1].change(balayage.valeurs());
            const auto hachage = hachageDeJointure(1);
            if (!hachage) continue;
            hachages.push_back(*hachage);
            range(1, balayage.id(), balayage.valeurs());
        }
        m_plan.tables[1].table->suivi.compte = balayage.vues();
        return hachages;
    }

    // None for a row that joins nothing, as Null does.
    std::optional<std::uint64_t> hachageDeJointure(int table) {
        ClesDeLigne& cles = m_cles[static_cast<std::size_t>(table)];
        std::uint64_t hachage = 0;
        bool seJoint = !m_plan.joinFilms;
        for (const auto& [gauche, droite] : m_plan.egalites) {
            const int rang = table == 0 ? gauche : droite;
            const bool nulle = cles.valeur(rang).estNulle();
            if (nulle && !m_plan.joinFilms) return std::nullopt;
            seJoint = seJoint || !nulle;
            hachage = hache(cles.cle(rang), hachage);
        }
        return seJoint ? std::optional(hachage) : std::nullopt;
    }

    bool seJoignent(const std::vector<ValeurVue>& valeurs, std::uint32_t droite) {
        return std::all_of(m_plan.egalites.begin(), m_plan.egalites.end(), [&](const auto& egalite) {
            std::string tampon;
            const std::string_view texte = valeurGardee(1, droite, egalite.second, nullptr);
            return texteDe(valeurs[static_cast<std::size_t>(egalite.first)], tampon) == texte ||
                   m_cles[0].cle(egalite.first) == cleJet(texte);
        });
    }

    // A value of a table from its store, or from the base when it was too long to be kept. Until the next call.
    std::string_view valeurGardee(std::size_t table, std::uint32_t ligne, int rangLu, Magasin::Genre* genre) const {
        const Magasin& magasin = m_resultat.magasins[table];
        const auto rang = static_cast<std::size_t>(rangLu);
        const Magasin::Valeur valeur = magasin.valeur(ligne, static_cast<std::size_t>(m_rangsPortes[table][rang]));
        if (genre != nullptr) *genre = valeur.genre;
        if (valeur.genre != Magasin::Genre::Absent) return valeur.texte;
        const TableDuPlan& lue = m_plan.tables[table];
        m_longue = litChamp(m_connexion, *lue.table, lue.lues[rang].colonne, magasin.id(ligne)).texte();
        return m_longue;
    }

    void retientSiVraie(const Balayage& balayage, std::uint32_t droite) {
        if (!passeApres(balayage, droite)) return;
        if (m_ligneDeGauche == kSansLigne) m_ligneDeGauche = range(0, balayage.id(), balayage.valeurs());
        retient(m_ligneDeGauche, droite);
    }

    bool passeApres(const Balayage& balayage, std::uint32_t droite) {
        if (m_plan.filtresApres.empty()) return true;
        std::vector<ValeurVue> valeurs(m_plan.tables[1].lues.size());
        std::vector<std::string> textes(valeurs.size());
        for (std::size_t i = 0; droite != kSansLigne && i < valeurs.size(); ++i) {
            if (!m_plan.tables[1].lues[i].portee) continue;
            Magasin::Genre genre{};
            textes[i] = valeurGardee(1, droite, static_cast<int>(i), &genre);
            if (genre != Magasin::Genre::Nul) valeurs[i] = ValeurVue::deTexte(textes[i]);
        }
        LignesVues lignes;
        lignes.tables[0] = balayage.valeurs().data();
        lignes.tables[1] = valeurs.data();
        return std::all_of(m_plan.filtresApres.begin(), m_plan.filtresApres.end(),
                           [&](const Condition& filtre) { return filtre.estVraie(lignes); });
    }

    // Adds a row of the statement, with its key among the others.
    void retient(std::uint32_t gauche, std::uint32_t droite) {
        for (const TriDuPlan& tri : m_plan.tris)
            ajouteCle(tri, droite);
        const bool seule = droite == kSansLigne;
        m_ordre.finit(m_resultat.magasins[0].id(gauche), seule ? 0 : m_resultat.magasins[1].id(droite));
        m_gauches.push_back(gauche);
        if (m_plan.tables.size() > 1) m_droites.push_back(droite);
    }

    void ajouteCle(const TriDuPlan& tri, std::uint32_t droite) {
        if (tri.place.table == 0) {
            const ValeurVue& valeur = m_cles[0].valeur(tri.place.rang);
            if (valeur.estNulle()) return m_ordre.ajouteNul(tri.decroissant);
            if (tri.numerique)
                return m_ordre.ajouteNombre(
                    valeur.genre == ValeurVue::Genre::Nombre ? valeur.nombre : nombreDeTexte(valeur.texte),
                    tri.decroissant);
            return m_ordre.ajouteTexte(m_cles[0].cle(tri.place.rang), tri.decroissant);
        }
        Magasin::Genre genre = Magasin::Genre::Nul;
        const std::string_view texte =
            droite == kSansLigne ? std::string_view{} : valeurGardee(1, droite, tri.place.rang, &genre);
        if (genre == Magasin::Genre::Nul) return m_ordre.ajouteNul(tri.decroissant);
        if (tri.numerique) return m_ordre.ajouteNombre(nombreDeTexte(texte), tri.decroissant);
        m_cle.clear();
        ajouteCleJet(texte, m_cle);
        m_ordre.ajouteTexte(m_cle, tri.decroissant);
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
                parColonne.finit(static_cast<long long>(i), 0);
            }
            const std::vector<std::uint32_t> apres = parColonne.rangs(false);
            std::transform(apres.begin(), apres.end(), egales.begin(), [&](std::uint32_t rang) { return avant[rang]; });
            if (colonne + 1 < m_plan.departages.size()) departage(egales, parColonne, colonne + 1);
        }
    }

    void ajouteDepartage(Ordre& ordre, std::uint32_t ligne, int rangLu) {
        Magasin::Genre genre{};
        const std::string_view texte = valeurGardee(0, ligne, rangLu, &genre);
        if (genre == Magasin::Genre::Nul) return ordre.ajouteNul(false);
        m_cle.clear();
        ajouteCleJet(texte, m_cle);
        ordre.ajouteTexte(m_cle, false);
    }

    void ordonne() {
        std::vector<std::uint32_t> rangs = m_ordre.rangs(m_plan.distinct);
        if (!m_plan.departages.empty()) departage(rangs, m_ordre, 0);
        const auto suit = [&rangs](const std::vector<std::uint32_t>& lignes) {
            std::vector<std::uint32_t> resultat;
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
    std::vector<ClesDeLigne> m_cles;
    std::vector<std::vector<int>> m_rangsPortes;
    Ordre m_ordre;
    std::vector<std::uint32_t> m_gauches;
    std::vector<std::uint32_t> m_droites;
    std::uint32_t m_ligneDeGauche = kSansLigne;
    std::unordered_map<std::string, std::uint32_t, HachageDeTexte, std::equal_to<>> m_vues;
    std::string m_lettres;  // of the row being looked up
    std::string m_cle;
    mutable std::string m_longue;
};

}  // namespace

int rangPorte(const TableDuPlan& table, int rangLu) {
    const auto fin = table.lues.begin() + rangLu;
    if (!fin->portee) return -1;
    return static_cast<int>(std::count_if(table.lues.begin(), fin, [](const ColonneLue& lue) { return lue.portee; }));
}

Resultat execute(Connexion& connexion, const Plan& plan) {
    rendsRegistresLarges();
    return Execution(connexion, plan).resultat();
}

}  // namespace dao::interne
