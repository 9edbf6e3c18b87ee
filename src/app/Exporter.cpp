#include "app/Exporter.h"

#include "acquire/RedigeFiche.h"
#include "browse/TexteRequete.h"
#include "db/Requete.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>

namespace app {

namespace {

using exportation::Champ;
using exportation::FilmExporte;
using exportation::FilmsAExporter;

std::string nomDeLaListe(const browse::EtatListe& liste) {
    const int zone = liste.zoneDeLArbre;
    return browse::estUneZone(zone) ? browse::zoneDe(zone).legende : "Recherche";
}

std::string sansBlancDevant(std::string_view texte) {
    return std::string(texte.substr(std::min(texte.find_first_not_of(' '), texte.size())));
}

// Films of a heading, or of the root, in their order on the screen.
template <typename Garde>
void ajouteLesEnfants(const browse::Arbre& arbre, int groupe, FilmsAExporter& films, Garde garde) {
    const std::size_t avant = films.lignes.size();
    const auto rang = static_cast<std::int32_t>(films.groupes.size());
    for (const std::int32_t noeud : arbre.enfants(groupe))
        if (!arbre.estGroupe(noeud) && garde(noeud))
            films.lignes.push_back({arbre.position(noeud), groupe == 0 ? -1 : rang});
    if (groupe != 0 && films.lignes.size() != avant)
        films.groupes.push_back(sansBlancDevant(arbre.texteDuGroupe(groupe)));
}

template <typename Garde>
FilmsAExporter filmsDeLArbre(const browse::EtatListe& liste, Garde garde) {
    const browse::Arbre& arbre = liste.TreeView1.Nodes;
    FilmsAExporter films;
    films.nom = nomDeLaListe(liste);
    ajouteLesEnfants(arbre, 0, films, garde);
    for (const std::int32_t racine : arbre.enfants(0))
        if (arbre.estGroupe(racine)) ajouteLesEnfants(arbre, racine, films, garde);
    return films;
}

FilmsAExporter filmsMontres(const Contexte& c) {
    const ensemble::FiltreTitres& filtre = c.etats.filtre.titres;
    const browse::Arbre& arbre = c.liste.TreeView1.Nodes;
    return filmsDeLArbre(c.liste, [&](int noeud) { return filtre.estVu(arbre, noeud); });
}

FilmsAExporter filmsChoisis(const Contexte& c) {
    const browse::VueArbre& vue = c.liste.TreeView1;
    const int choisi = vue.SelectedItem;
    FilmsAExporter films;
    const bool coches = vue.Checkboxes && !vue.coches.empty();
    if (coches) {
        films = filmsDeLArbre(c.liste, [&](int noeud) { return vue.coches.contains(noeud); });
        films.nom = "Films cochés";
    } else if (choisi > 0 && choisi <= vue.Nodes.Count()) {
        films = filmsDeLArbre(c.liste, [&](int noeud) { return noeud == choisi || vue.Nodes.Parent(noeud) == choisi; });
        films.nom = vue.Nodes.estGroupe(choisi) ? sansBlancDevant(vue.Nodes.texteDuGroupe(choisi))
                                                : std::string(vue.Nodes.Text(choisi));
    }
    return films;
}

FilmsChoisis filmsDeLaBase(const Contexte& c) {
    FilmsChoisis choix;
    choix.listeDeLaBase = db::ouvreRequete(c, browse::construitRequete(browse::kZoneTous, browse::kTriTitre2, ""),
                                           db::NumeroErreur::Export);
    choix.films.nom = "Tous les films";
    const auto nombre = static_cast<std::uint32_t>(choix.listeDeLaBase->RecordCount());
    choix.films.lignes.reserve(nombre);
    for (std::uint32_t position = 1; position <= nombre; ++position)
        choix.films.lignes.push_back({position, -1});
    return choix;
}

std::string compte(long nombre) {
    return util::phraseCompte(nombre, "# film", "# films");
}

exportation::FicheRedigee redige(const FilmExporte& film) {
    acquire::FicheFilm fiche;
    fiche.titre = film.valeur(Champ::Titre);
    fiche.realisateur = film.valeur(Champ::Realisateur);
    fiche.annee = film.valeur(Champ::Annee);
    fiche.origine = film.valeur(Champ::Origine);
    fiche.genre = film.valeur(Champ::Genre);
    fiche.duree = film.valeur(Champ::Duree);
    fiche.acteurs = film.valeur(Champ::Acteurs);
    fiche.resume = film.valeur(Champ::Resume);
    fiche.production = film.valeur(Champ::Production);
    acquire::FicheRedigee redigee = acquire::redigeFiche(fiche);
    return {std::move(redigee.octets), std::move(redigee.ecarts)};
}

}  // namespace

FilmsChoisis filmsAExporter(const Contexte& c, Etendue etendue) {
    switch (etendue) {
        case Etendue::Liste:
            return {filmsMontres(c), {}};
        case Etendue::Choisis:
            return {filmsChoisis(c), {}};
        case Etendue::Base:
            break;
    }
    return filmsDeLaBase(c);
}

OffreDExport offreDExport(const Contexte& c) {
    OffreDExport offre;
    const FilmsAExporter montres = filmsMontres(c), choisis = filmsChoisis(c);
    if (!montres.lignes.empty())
        offre.liste = util::entreChevrons(montres.nom) + ", " + compte(std::ssize(montres.lignes));
    if (!choisis.lignes.empty())
        offre.choisis = util::entreChevrons(choisis.nom) + ", " + compte(std::ssize(choisis.lignes));
    const long tous = c.base.base.OpenRecordset("Films").RecordCount();
    if (tous != 0) offre.base = compte(tous);
    return offre;
}

void noteLesPossessionsSansFiche(const Contexte& c, exportation::Bilan& bilan) {
    if (bilan.issue != exportation::Bilan::Issue::Faite) return;
    const std::string jointes = std::string("SELECT * ").append(browse::kJointure).append(" ORDER BY Titre2 ASC");
    const long possessions = c.base.base.OpenRecordset("Personnel").RecordCount();
    const long avecFiche = c.base.base.OpenRecordset(jointes).RecordCount();
    if (possessions <= avecFiche) return;
    bilan.remarque += (bilan.remarque.empty() ? "" : " ") +
                      util::phraseCompte(possessions - avecFiche, "# possession sans fiche n'y est pas.",
                                         "# possessions sans fiche n'y sont pas.");
}

bool exporte(const Contexte& c, const DemandeDExport& demande, const exportation::ReduitAffiche& reduit) {
    FilmsChoisis choix = filmsAExporter(c, demande.etendue);
    dao::Recordset& liste = choix.liste(c);
    exportation::Bilan bilan;
    switch (demande.format) {
        case DemandeDExport::Format::Tableau:
            bilan = exportation::exporteTableau(c, liste, choix.films, demande.champs, demande.chemin);
            break;
        case DemandeDExport::Format::Page:
            bilan = exportation::exportePage(c, liste, choix.films, demande.champs, demande.chemin, reduit);
            break;
        case DemandeDExport::Format::Fiches:
            bilan = exportation::exporteFiches(c, liste, choix.films, demande.chemin, redige);
            break;
    }
    if (demande.etendue == Etendue::Base) noteLesPossessionsSansFiche(c, bilan);
    exportation::annonceBilan(c, bilan, demande.chemin);
    return bilan.issue == exportation::Bilan::Issue::Faite;
}

}  // namespace app
