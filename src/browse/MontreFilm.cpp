#include "browse/MontreFilm.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "platform/dao/Comparaison.h"

namespace browse {

bool MontreFilm::operator()(const std::string& titre, const std::string& realisateur) {
    if (!existe(titre, realisateur)) return false;
    if (dansLaListe(titre, realisateur)) return true;
    listeTousLesFilms();
    return dansLaListe(titre, realisateur);
}

bool MontreFilm::dansLaListe(const std::string& titre, const std::string& realisateur) {
    m_selectionneTitre(titre, realisateur);
    return estCourant(titre, realisateur);
}

bool MontreFilm::existe(const std::string& titre, const std::string& realisateur) {
    return db::ouvreRequete(m_base.base, db::enonceFilm(titre, realisateur), db::NumeroErreur::AfficheFiche,
                            m_dialogues)
               .RecordCount() > 0;
}

bool MontreFilm::estCourant(const std::string& titre, const std::string& realisateur) const {
    return m_film.estUnFilm() && dao::egalJet(m_film.titre, titre) && dao::egalJet(m_film.realisateur, realisateur);
}

// The sort stays, but for the one that takes owned films only.
void MontreFilm::listeTousLesFilms() {
    m_liste.ChoixZone.selectionne(kZoneTous);
    if (m_liste.ChoixTri.ListIndex == kTriSupport) m_liste.ChoixTri.selectionne(kTriTitre1);
    m_affichageApresModification();
}

}  // namespace browse
