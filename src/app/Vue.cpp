#include "app/Vue.h"

#include "browse/AffichageApresModification.h"
#include "browse/AfficheAccueil.h"
#include "browse/AfficheNbTitres.h"
#include "browse/AfficheVolet.h"
#include "browse/ListesDeChoix.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "browse/SelectionneTitre.h"
#include "browse/TreeView1.h"

#include <charconv>

namespace app {

namespace {

bool existe(const browse::Arbre& arbre, int noeud) {
    return noeud >= 1 && noeud <= arbre.Count();
}

std::string texteDe(const browse::Arbre& arbre, int noeud) {
    return std::string(arbre.estGroupe(noeud) ? arbre.texteDuGroupe(noeud) : arbre.Text(noeud));
}

// The user looks at films, and is not at work in another panel.
bool montreLesFilms(const browse::EtatPanneaux& panneaux) {
    return !panneaux.frameRecherche.Visible && !panneaux.frameListeFonctions.Visible &&
           !panneaux.frameCollection.Visible;
}

int noeudDeCle(const browse::Arbre& arbre, const std::string& cle) {
    if (cle.empty()) return 0;
    std::uint32_t position = 0;
    std::from_chars(cle.data() + 1, cle.data() + cle.size(), position);
    if (cle.front() == 'K') return arbre.noeudDuFilm(position);
    for (const std::int32_t racine : arbre.enfants(0))
        if (arbre.Key(racine) == cle) return racine;
    return 0;
}

}  // namespace

Vue Vue::de(const Contexte& c) {
    const browse::VueArbre& arbre = c.liste.TreeView1;
    Vue vue;
    vue.m_zones = c.liste.ChoixZone;
    vue.m_tris = c.liste.ChoixTri;
    vue.m_critere = c.liste.critereRecherche;
    vue.m_zoneRecherche = c.liste.zoneRecherche;
    vue.m_legende = c.liste.Frame1.Caption;
    vue.m_noeuds = arbre.Nodes.Count();
    if (arbre.Checkboxes) vue.m_coches = arbre.coches;
    if (existe(arbre.Nodes, arbre.SelectedItem)) {
        vue.m_cle = arbre.Nodes.Key(arbre.SelectedItem);
        vue.m_texte = texteDe(arbre.Nodes, arbre.SelectedItem);
    }
    if (c.film.estUnFilm()) {  // the gesture may have highlighted another node already
        vue.m_film = c.film;
        vue.m_cle = c.film.cle;
        vue.m_texte = c.film.titre;
    }
    vue.m_panneaux = c.panneaux;
    vue.m_generalites = c.fiche.frameGeneralites[0].Visible;
    return vue;
}

void Vue::remets(const Contexte& c) const {
    const browse::EtatPanneaux actuels = c.panneaux;
    {
        const browse::PanneauxFiges jusquALaFin(c.panneaux);
        remetsLaListe(c);
        remetsLeChoix(c);
    }
    remetsLesPanneaux(c, actuels);
    browse::AfficheNbTitres(c);
    browse::RaffraichitBoitesDeroulantes(c);
}

void Vue::remetsLaListe(const Contexte& c) const {
    {
        const browse::Occupe occupe(c.liste);
        c.liste.ChoixZone = m_zones;
        c.liste.ChoixTri = m_tris;
    }
    c.liste.critereRecherche = m_critere;
    c.liste.zoneRecherche = m_zoneRecherche;
    browse::AffichageApresModification(c);
    if (m_legende.find('(') == std::string::npos) c.liste.Frame1.Caption = m_legende;  // it counts nothing
}

// The very node where it still bears the same film or heading: a film may be listed twice.
void Vue::remetsLeChoix(const Contexte& c) const {
    browse::VueArbre& arbre = c.liste.TreeView1;
    if (arbre.Checkboxes && arbre.Nodes.Count() == m_noeuds) arbre.coches = m_coches;
    const int noeud = noeudDeCle(arbre.Nodes, m_cle);
    const bool leMeme = existe(arbre.Nodes, noeud) && texteDe(arbre.Nodes, noeud) == m_texte;
    if (!m_film.titre.empty() || !m_film.realisateur.empty()) {
        if (leMeme) browse::TreeView1_NodeClick(c, noeud);
        if (!c.film.estUnFilm() || static_cast<const db::CleFilm&>(c.film) != m_film)
            browse::SelectionneTitre(c, m_film);
    } else if (leMeme) {
        arbre.SelectedItem = noeud;
    }
}

void Vue::remetsLesPanneaux(const Contexte& c, const browse::EtatPanneaux& actuels) const {
    const bool commeAvant = montreLesFilms(actuels) && montreLesFilms(m_panneaux);
    c.panneaux = commeAvant ? m_panneaux : actuels;
    c.panneaux.figes = false;
    if (c.panneaux.frameFiche.Visible && !c.film.estUnFilm()) browse::AfficheAccueil(c);
    if (c.panneaux.framePresentation.Visible && c.film.estUnFilm() && !commeAvant)
        c.panneaux.montre(c.panneaux.frameFiche);
    if (c.panneaux.frameFiche.Visible)
        browse::AfficheVolet(c, m_generalites ? browse::kVoletGeneralites : browse::kVoletAutresInfos);
}

}  // namespace app
