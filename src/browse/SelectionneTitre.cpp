#include "browse/SelectionneTitre.h"

#include "platform/dao/Comparaison.h"

#include <functional>
#include <string_view>

namespace browse {

void SelectionneTitre::operator()(std::string titre, std::string realisateur) {
    // Nearly always the very texts are listed, and comparing bytes over a whole collection takes no time.
    std::uint32_t position = cherche(titre, realisateur, std::equal_to<std::string_view>());
    if (position == 0) position = cherche(titre, realisateur, dao::egalJet);
    if (position != 0) m_arbre.NodeClick(m_liste.TreeView1.Nodes.noeudDuFilm(position));
}

// The position of the first such film in the listing, 0 when it has none.
template <typename Egalite>
std::uint32_t SelectionneTitre::cherche(const std::string& titre, const std::string& realisateur, Egalite egal) {
    dao::Recordset& liste = m_base.liste;
    if (liste.RecordCount() < 1) return 0;
    const dao::Colonne titres = liste.colonne("Titre"), realisateurs = liste.colonne("Realisateur");
    std::uint32_t position = 0;
    for (liste.MoveFirst(); !liste.Eof(); liste.MoveNext()) {
        ++position;
        if (egal(liste.vue(titres), titre) && egal(liste.vue(realisateurs), realisateur)) return position;
    }
    return 0;
}

}  // namespace browse
