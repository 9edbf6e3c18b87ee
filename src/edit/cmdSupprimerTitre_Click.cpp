#include "edit/cmdSupprimerTitre_Click.h"

#include "browse/RetireNoeud.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/SupprimePossession.h"

#include <charconv>

namespace edit {

void SuppressionTitre::cmdSupprimerTitre_Click() {
    if (!m_film.estUnFilm()) return;
    if (m_dialogues.MsgBox("Voulez-vous vraiment supprimer ce titre ?", dialogues::kQuestion) != dialogues::kOui)
        return;
    const Supprimes supprimes = supprime();
    if (supprimes.film)
        retireDeLArbre();
    else
        m_dialogues.MsgBox("Titre non trouvé !", dialogues::kExclamation);
    m_film = {};
    m_suites.liste.noeudChoisi = -1;
    m_suites.liste.Frame1.Caption = "Liste des titres";
    m_suites.afficheAccueil();
    m_suites.afficheNbTitres();
    if (supprimes.possession) m_suites.boites.RaffraichitBoitesDeroulantes();
}

// The film's statement is opened first: its failure shows a box, which has no place in a transaction.
SuppressionTitre::Supprimes SuppressionTitre::supprime() {
    Supprimes supprimes;
    dao::Recordset films = db::ouvreRequete(m_base.base, db::enonceFilmModifie(m_film.titre, m_film.realisateur),
                                            db::NumeroErreur::cmdSupprimerTitre, m_dialogues);
    dao::Transaction ensemble(m_base.base);
    if (m_fiche.Option1[1].Value)
        supprimes.possession = supprimePossession(m_base.base, m_film.titre, m_film.realisateur);
    supprimes.film = !films.Eof();
    if (supprimes.film) films.Delete();
    ensemble.confirme();
    return supprimes;
}

// The film's own node: a tick moves the highlight without showing a sheet.
void SuppressionTitre::retireDeLArbre() {
    std::uint32_t position = 0;
    std::from_chars(m_film.cle.data() + 1, m_film.cle.data() + m_film.cle.size(), position);
    const int noeud = m_suites.liste.TreeView1.Nodes.noeudDuFilm(position);
    if (noeud != 0) browse::retireNoeud(m_suites.liste, noeud);
}

}  // namespace edit
