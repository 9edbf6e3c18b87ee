#include "edit/ModifieGroupe.h"

#include "browse/CreeRequeteAffichage.h"
#include "browse/LigneDuNoeud.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "db/EnonceFilm.h"
#include "db/Sauvegardes.h"
#include "edit/LongueursChamps.h"
#include "edit/RemontreFilm.h"
#include "edit/TitreCite.h"
#include "edit/TravailParLots.h"
#include "platform/dao/LigneSupprimee.h"
#include "util/Texte.h"

#include <iterator>

namespace edit {

namespace {

bool groupeChoisi(const Contexte& c) {
    const browse::VueArbre& vue = c.liste.TreeView1;
    return vue.SelectedItem >= 1 && vue.SelectedItem <= vue.Nodes.Count() && vue.Nodes.estGroupe(vue.SelectedItem);
}

browse::Arbre::Enfants enfants(const Contexte& c) {
    return c.liste.TreeView1.Nodes.enfants(c.liste.TreeView1.SelectedItem);
}

// Answers the film that stopped it. Of a film that is gone the tree still knows the title.
std::optional<db::CleFilm> renomme(const Contexte& c, const std::string& champ, const std::string& valeur,
                                   bool personnel) {
    const browse::Arbre::Enfants noeuds = enfants(c);
    std::optional<db::CleFilm> introuvable;
    TravailParLots travail(c, db::NumeroErreur::ModifieGroupe, std::ssize(noeuds));
    travail.execute(std::ssize(noeuds), [&](long rang) -> TravailParLots::Pas {
        const int noeud = noeuds[static_cast<std::size_t>(rang)];
        const db::CleFilm film =
            filmDuNoeud(c, noeud).value_or(db::CleFilm{std::string(c.liste.TreeView1.Nodes.Text(noeud)), ""});
        dao::Recordset ligne = travail.ouvre(personnel ? db::enoncePossession(film) : db::enonceFilmModifie(film));
        if (ligne.Eof()) {
            introuvable = film;
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

struct Renommage {
    const char *champ, *question, *titre;
    bool personnel;
};

constexpr Renommage kGenre{"Genre", "Entrez le nom du nouveau genre", "Modifier le genre", false};
constexpr Renommage kSupport{"Support", "Entrez le nom du nouveau support", "Modifier le support", true};

// `propose` instead of the heading's own value.
void demandeEtRenomme(const Contexte& c, const Renommage& renommage, const std::optional<std::string>& propose = {}) {
    if (!groupeChoisi(c)) return;
    std::string genre, support;
    RecupereInfosGroupeSelectionne(c, genre, support);
    const std::string& actuel = renommage.personnel ? support : genre;
    ModifieGroupe(c, renommage.champ,
                  c.dialogues.InputBox(renommage.question, renommage.titre, propose.value_or(actuel)),
                  renommage.personnel);
}

}  // namespace

void RenommerGenreFilms_Click(const Contexte& c) {
    browse::puisVersLaListe(c, [&c] { demandeEtRenomme(c, kGenre); });
}

void RenommeSupportFilms_Click(const Contexte& c) {
    browse::puisVersLaListe(c, [&c] { demandeEtRenomme(c, kSupport); });
}

void RenommeEnProposant(const Contexte& c, bool personnel, const std::string& nom) {
    browse::puisVersLaListe(c, [&] { demandeEtRenomme(c, personnel ? kSupport : kGenre, nom); });
}

void RecupereInfosGroupeSelectionne(const Contexte& c, std::string& genre, std::string& support) {
    genre.clear();
    support.clear();
    if (!groupeChoisi(c) || enfants(c).empty()) return;
    vaSurLaLigne(c, enfants(c).front());
    dao::siPresente([&] {
        support = c.base.liste.texte("Support");
        genre = c.base.liste.texte("Genre");
    });
}

void ModifieGroupe(const Contexte& c, const std::string& champ, const std::string& valeur, bool personnel) {
    if (valeur.empty() || !groupeChoisi(c)) return;
    if (!db::sauvegardeAvant(c, db::Avant::Renommage, std::ssize(enfants(c)) * db::kOctetsParLigne)) return;
    const std::string nouvelle = util::coupe(valeur, personnel ? kLongueurSupport : kLongueurGenre);
    const std::string groupe = personnel ? "support" : "genre";
    c.annulations.nomme("renommage du " + groupe + " en " + titreCite(nouvelle),
                        (personnel ? "Support" : "Genre") + (" renommé en " + titreCite(nouvelle) + "."));
    if (const auto introuvable = renomme(c, champ, nouvelle, personnel))
        c.dialogues.MsgBox("Infos personnelles sur le titre \"" + introuvable->titre + "\" de " +
                               introuvable->realisateur + " non trouvées !\r\nProcessus arrêté.",
                           dialogues::kExclamation);
    if (c.film.estUnFilm()) {
        remontreFilm(c);
    } else {
        browse::AffichageApresModification(c);
        browse::SelectionneGroupe(c, nouvelle);
    }
    if (personnel) browse::RaffraichitBoitesDeroulantes(c);
}

}  // namespace edit
