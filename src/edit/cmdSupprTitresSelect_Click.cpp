#include "edit/cmdSupprTitresSelect_Click.h"

#include "db/EnonceFilm.h"
#include "edit/SupprimePossession.h"
#include "util/Nombres.h"

namespace edit {

void MultiSuppression::cmdMultiSuppress_Click() {
    m_controles.panneaux.montre(m_controles.panneaux.frameMultiSuppression);
    m_controles.demandes.focus = m_controles.Option4[1].Value ? "Option4_1" : "Option4_0";
}

void MultiSuppression::range() {
    if (!m_controles.liste.TreeView1.Checkboxes) return;
    ecran::choisit(m_controles.Option4, 0);
    Option4_Click();
}

void MultiSuppression::Option4_Click() {
    const bool active = m_controles.Option4[1].Value;
    m_controles.liste.TreeView1.Checkboxes = active;
    m_controles.cmdSupprTitresSelect.Visible = active;
}

void MultiSuppression::cmdSupprTitresSelect_Click() {
    const std::vector<int> noeuds = filmsCoches();
    if (noeuds.empty()) {
        m_outils.dialogues.MsgBox("Aucun film n'a été coché !", dialogues::kExclamation);
        return;
    }
    if (m_outils.dialogues.MsgBox(questionSuppression(noeuds.size()), dialogues::kQuestion) != dialogues::kOui) return;
    montre(supprime(lis(noeuds)));
}

std::vector<int> MultiSuppression::filmsCoches() const {
    const browse::VueArbre& vue = m_controles.liste.TreeView1;
    std::vector<int> noeuds;
    for (const int noeud : vue.coches)
        if (noeud >= 1 && noeud <= vue.Nodes.Count() && !vue.Nodes.estGroupe(noeud)) noeuds.push_back(noeud);
    return noeuds;
}

// All of them before the first deletion: of two films of the same names, the one deleted for the other leaves its slot
// unreadable. A film that is gone already is passed over.
std::vector<MultiSuppression::Film> MultiSuppression::lis(const std::vector<int>& noeuds) {
    std::vector<Film> films;
    for (const int noeud : noeuds) {
        m_base.liste.MoveFirst();
        m_base.liste.Move(static_cast<long>(m_controles.liste.TreeView1.Nodes.position(noeud)) - 1);
        try {
            films.push_back({m_base.liste.texte("Titre"), m_base.liste.texte("Realisateur")});
        } catch (const dao::ErreurDao& erreur) {
            if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
        }
    }
    return films;
}

MultiSuppression::Supprimes MultiSuppression::supprime(const std::vector<Film>& films) {
    const bool possede = m_controles.fiche.Option1[1].Value;
    Supprimes supprimes;
    TravailParLots travail(m_outils, db::NumeroErreur::cmdSupprTitresSelect, static_cast<long>(films.size()));
    travail.execute(static_cast<long>(films.size()), [&](long rang) -> TravailParLots::Pas {
        const Film& film = films[static_cast<std::size_t>(rang)];
        if (possede && supprimePossession(m_base.base, film.titre, film.realisateur)) supprimes.possessions = true;
        dao::Recordset trouves = travail.ouvre(db::enonceFilmModifie(film.titre, film.realisateur));
        if (trouves.Eof()) return {};
        trouves.Delete();
        return {1};
    });
    travail.termine();
    supprimes.films = travail.faits();
    return supprimes;
}

// The panel stays: the user may have more to tick.
void MultiSuppression::montre(const Supprimes& supprimes) {
    m_controles.liste.Frame1.Caption = "Liste des titres";
    m_suites.afficheNbTitres();
    m_suites.affichageApresModification();
    if (supprimes.possessions) m_suites.boites.RaffraichitBoitesDeroulantes();
    m_outils.dialogues.MsgBox(util::phraseCompte(supprimes.films, "# titre supprimé.", "# titres supprimés."),
                              dialogues::kInformation);
}

std::string questionSuppression(std::size_t nombre) {
    if (nombre == 1) return "Voulez-vous vraiment supprimer ce titre ?";
    return "Voulez-vous vraiment supprimer ces " + std::to_string(nombre) + " titres ?";
}

}  // namespace edit
