#include "browse/AfficheTitres.h"

#include "db/Requete.h"
#include "platform/dao/Comparaison.h"
#include "platform/systeme/Horloge.h"
#include "util/Ascii.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <array>
#include <string_view>
#include <utility>

namespace browse {

namespace {

constexpr std::string_view kHorsTri = " Hors tri !";
constexpr std::size_t kOctetsParTitre = 48;  // more than usual: a text that outgrows it stands in memory twice

// 1 to 26 for a title that begins with a letter, accented or not, 0 for any other.
std::size_t rangDeLettre(std::string_view titre) {
    const bool ascii = titre.empty() || static_cast<unsigned char>(titre.front()) < 0x80;
    const std::string plie = ascii ? "" : util::sansAccents(util::minuscules(util::coupe(titre, 1)));
    const std::string_view debut = ascii ? titre : std::string_view(plie);
    if (debut.empty()) return 0;
    const char lettre = util::enMinuscule(debut.front());
    return util::estUneMinuscule(lettre) ? static_cast<std::size_t>(lettre - 'a') + 1 : 0;
}

// Headings by first letter: one node a letter, wherever its titles stand.
class GroupesParLettre {
  public:
    explicit GroupesParLettre(Arbre& arbre) : m_arbre(arbre) {}

    int groupe(std::string_view titre) {
        const std::size_t rang = rangDeLettre(titre);
        if (m_noeuds[rang] == 0) {
            const std::string lettre(1, rang == 0 ? '#' : static_cast<char>('A' + rang - 1));
            m_noeuds[rang] = m_arbre.ajouteGroupe("T" + lettre, lettre);
        }
        return m_noeuds[rang];
    }

  private:
    Arbre& m_arbre;
    std::array<int, 27> m_noeuds{};
};

// Headings by a column that the listing is ordered by: a new one where the value changes, by the base's comparison too,
// which leaves values that it holds for equal in the order of their titles.
class GroupesParValeur {
  public:
    explicit GroupesParValeur(Arbre& arbre) : m_arbre(arbre) {}

    int groupe(std::string_view valeur) {
        if (m_noeud != 0 && valeur == m_precedente) return m_noeud;
        m_precedente.assign(valeur);
        std::string cle = dao::cleDeComparaison(valeur);
        if (m_noeud != 0 && cle == m_cle) return m_noeud;
        m_cle = std::move(cle);
        std::string majuscules = util::majuscules(valeur);
        if (m_noeud != 0 && majuscules == m_majuscules) return m_noeud;
        m_majuscules = std::move(majuscules);
        const std::string texte(m_cle == m_cleVide ? kHorsTri : valeur);
        return m_noeud = m_arbre.ajouteGroupe("T" + std::to_string(++m_compteur), texte);
    }

  private:
    Arbre& m_arbre;
    int m_noeud = 0;
    long m_compteur = 0;
    std::string m_precedente;
    std::string m_cle;         // of the value before
    std::string m_majuscules;  // of the heading
    const std::string m_cleVide = dao::cleDeComparaison("");
};

Arbre arbreDe(const Contexte& c, dao::Recordset& liste, const Tri& tri) {
    Arbre arbre;
    const auto films = static_cast<std::size_t>(liste.RecordCount());
    if (films == 0) return arbre;
    arbre.reserve(films, films * kOctetsParTitre);
    GroupesParLettre lettres(arbre);
    GroupesParValeur valeurs(arbre);
    const dao::Souffle souffle = db::souffle(c);
    dao::Cadence cadence(souffle);
    const dao::Colonne titres = liste.colonne("Titre");
    const dao::Colonne champ = liste.colonne(tri.champ);
    std::uint32_t position = 0;
    for (liste.MoveFirst(); !liste.Eof(); liste.MoveNext()) {
        // A view holds until the next one is asked for: the heading first, then the title.
        int groupe = tri.groupes == Groupes::Valeur ? valeurs.groupe(liste.vue(champ)) : 0;
        const std::string_view titre = liste.vue(titres);
        if (tri.groupes == Groupes::Lettre) groupe = lettres.groupe(titre);
        arbre.ajouteFilm(groupe, ++position, titre);
        cadence();
    }
    return arbre;
}

void montreLesTitres(const Contexte& c, Arbre&& arbre) {
    VueArbre& vue = c.liste.TreeView1;
    vue.Nodes.remplace(std::move(arbre));
    vue.SelectedItem = 0;
    vue.coches.clear();
}

}  // namespace

void AfficheTitres(const Contexte& c, dao::Recordset liste, int tri) {
    Arbre arbre = arbreDe(c, liste, triDe(tri));
    const long lignes = liste.RecordCount();
    c.liste.Frame1.Caption = "Liste de films (" + util::phraseCompte(lignes, "# titre", "# titres") + ")";
    c.base.liste = std::move(liste);
    montreLesTitres(c, std::move(arbre));
    if (c.liste.AffStats.Value == 1) AffStats_Click(c);
}

void videLesTitres(const Contexte& c) {
    montreLesTitres(c, Arbre());
}

// Cut to one decimal in whole numbers: a quotient of its own would make 28.9 of 29.
void AffStats_Click(const Contexte& c) {
    Arbre& arbre = c.liste.TreeView1.Nodes;
    const std::string separateur = systeme::separateurDecimal();
    std::size_t films = 0;
    for (const std::int32_t noeud : arbre.enfants(0))
        films += arbre.estGroupe(noeud) ? arbre.enfants(noeud).size() : 1;
    for (const std::int32_t noeud : arbre.enfants(0)) {
        if (!arbre.estGroupe(noeud)) return;  // a flat list
        const std::size_t siens = arbre.enfants(noeud).size();
        const auto dixiemes = films == 0 ? 0 : siens * 1000 / films;
        const bool montre = c.liste.AffStats.Value == 1 && siens != 0;
        const std::string pourcentage = util::texteDuNombre(static_cast<double>(dixiemes) / 10, separateur);
        arbre.changeSuiteGroupe(noeud, montre ? " (" + pourcentage + " %)" : "");
    }
}

}  // namespace browse
