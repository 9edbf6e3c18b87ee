#include "browse/SelectionneTitre.h"

#include "platform/dao/Comparaison.h"

namespace browse {

namespace {

std::function<bool(std::string_view)> memesOctets(const std::string& voulu) {
    return [&voulu](std::string_view texte) { return texte == voulu; };
}

// The wanted text's key is worked out once, whatever its length.
std::function<bool(std::string_view)> egalPourLaBase(const std::string& voulu) {
    return [cle = dao::cleDeComparaison(voulu)](std::string_view texte) { return dao::cleDeComparaison(texte) == cle; };
}

}  // namespace

void SelectionneTitre::operator()(std::string titre, std::string realisateur) {
    if (const int trouve = noeud(titre, realisateur); trouve != 0) m_arbre.NodeClick(trouve);
}

// Nearly always the very texts are listed, and comparing bytes over a whole collection takes no time.
int SelectionneTitre::noeud(const std::string& titre, const std::string& realisateur) {
    std::uint32_t position = cherche(memesOctets(titre), memesOctets(realisateur));
    if (position == 0) position = cherche(egalPourLaBase(titre), egalPourLaBase(realisateur));
    return position == 0 ? 0 : m_liste.TreeView1.Nodes.noeudDuFilm(position);
}

void SelectionneTitre::groupe(std::string_view valeur) {
    const Arbre& arbre = m_liste.TreeView1.Nodes;
    for (const std::int32_t racine : arbre.enfants(0)) {
        if (!arbre.estGroupe(racine) || !dao::egalJet(arbre.texteDuGroupe(racine), valeur)) continue;
        m_arbre.NodeClick(racine);
        m_liste.TreeView1.aOuvrir = racine;
        return;
    }
}

// The position of the first such film in the listing, 0 when it has none.
std::uint32_t SelectionneTitre::cherche(const Convient& titreConvient, const Convient& realisateurConvient) {
    dao::Recordset& liste = m_base.liste;
    if (liste.RecordCount() < 1) return 0;
    const dao::Colonne titres = liste.colonne("Titre"), realisateurs = liste.colonne("Realisateur");
    std::uint32_t position = 0;
    for (liste.MoveFirst(); !liste.Eof(); liste.MoveNext()) {
        ++position;
        if (titreConvient(liste.vue(titres)) && realisateurConvient(liste.vue(realisateurs))) return position;
    }
    return 0;
}

}  // namespace browse
