#include "edit/ModifieGroupe.h"

#include "db/EnonceFilm.h"
#include "edit/LongueursChamps.h"
#include "util/Texte.h"

namespace edit {

void RenommageGroupe::RenommerGenreFilms_Click() {
    if (!groupeChoisi()) return;
    std::string genre, support;
    RecupereInfosGroupeSelectionne(genre, support);
    ModifieGroupe("Genre", m_outils.dialogues.InputBox("Entrez le nom du nouveau genre", "Modifier le genre", genre),
                  false);
}

void RenommageGroupe::RenommeSupportFilms_Click() {
    if (!groupeChoisi()) return;
    std::string genre, support;
    RecupereInfosGroupeSelectionne(genre, support);
    ModifieGroupe("Support",
                  m_outils.dialogues.InputBox("Entrez le nom du nouveau support", "Modifier le support", support),
                  true);
}

void RenommageGroupe::RecupereInfosGroupeSelectionne(std::string& genre, std::string& support) {
    genre.clear();
    support.clear();
    if (!groupeChoisi() || enfants().empty()) return;
    vaSur(enfants().front());
    try {
        support = m_base.liste.texte("Support");
        genre = m_base.liste.texte("Genre");
    } catch (const dao::ErreurDao& erreur) {
        if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
    }
}

void RenommageGroupe::ModifieGroupe(const std::string& champ, const std::string& valeur, bool personnel) {
    if (valeur.empty() || !groupeChoisi()) return;
    const std::string nouvelle = util::coupe(valeur, personnel ? kLongueurSupport : kLongueurGenre);
    if (const auto introuvable = renomme(champ, nouvelle, personnel))
        m_outils.dialogues.MsgBox("Infos personnelles sur le titre \"" + introuvable->titre + "\" de " +
                                      introuvable->realisateur + " non trouvées !\r\nProcessus arrêté.",
                                  dialogues::kExclamation);
    const browse::FilmCourant courant = m_film;  // the refresh forgets it
    m_suites.affichageApresModification();
    if (courant.estUnFilm())
        m_suites.selectionneTitre(courant.titre, courant.realisateur);
    else
        m_suites.selectionneTitre.groupe(nouvelle);
    if (personnel) m_suites.boites.RaffraichitBoitesDeroulantes();
}

// Answers the film that stopped it.
std::optional<RenommageGroupe::Film> RenommageGroupe::renomme(const std::string& champ, const std::string& valeur,
                                                              bool personnel) {
    const std::vector<std::int32_t>& films = enfants();
    const auto nombre = static_cast<long>(films.size());
    std::optional<Film> introuvable;
    TravailParLots travail(m_outils, db::NumeroErreur::ModifieGroupe, nombre);
    travail.execute(nombre, [&](long rang) -> TravailParLots::Pas {
        Film film = lis(films[static_cast<std::size_t>(rang)]);
        dao::Recordset ligne = travail.ouvre(personnel ? db::enoncePossession(film.titre, film.realisateur)
                                                       : db::enonceFilmModifie(film.titre, film.realisateur));
        if (ligne.Eof()) {
            introuvable = std::move(film);
            return {0, true};
        }
        ligne.Edit();
        ligne.assigne(champ, valeur);
        ligne.Update();
        return {1};
    });
    travail.termine();
    return introuvable;
}

bool RenommageGroupe::groupeChoisi() const {
    const browse::VueArbre& vue = m_liste.TreeView1;
    return vue.SelectedItem >= 1 && vue.SelectedItem <= vue.Nodes.Count() && vue.Nodes.estGroupe(vue.SelectedItem);
}

const std::vector<std::int32_t>& RenommageGroupe::enfants() const {
    return m_liste.TreeView1.Nodes.enfants(m_liste.TreeView1.SelectedItem);
}

void RenommageGroupe::vaSur(std::int32_t noeud) {
    m_base.liste.MoveFirst();
    m_base.liste.Move(static_cast<long>(m_liste.TreeView1.Nodes.position(noeud)) - 1);
}

// Of a film that is gone the tree still knows the title.
RenommageGroupe::Film RenommageGroupe::lis(std::int32_t noeud) {
    vaSur(noeud);
    try {
        return {m_base.liste.texte("Titre"), m_base.liste.texte("Realisateur")};
    } catch (const dao::ErreurDao& erreur) {
        if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
    }
    return {std::string(m_liste.TreeView1.Nodes.Text(noeud)), ""};
}

}  // namespace edit
