#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "edit/TravailParLots.h"
#include "edit/cmdPonctuation_Click.h"
#include "ensemble/PossessionsJointes.h"
#include "ensemble/Sante.h"
#include "ensemble/Suites.h"
#include "util/Nombres.h"

#include <functional>
#include <iterator>

namespace ensemble {

namespace {

using edit::TravailParLots;

// Mends one line; answers whether it was: it may have changed since it was looked at.
using Remede = std::function<bool(TravailParLots&, const LigneDeSante&)>;

long applique(const Contexte& c, const Constat& constat, const Remede& remede) {
    std::vector<const LigneDeSante*> lignes;
    for (const LigneDeSante& ligne : constat.lignes)
        if (ligne.reparable) lignes.push_back(&ligne);
    TravailParLots travail(c, db::NumeroErreur::Sante, std::ssize(lignes));
    travail.execute(std::ssize(lignes), [&](long rang) -> TravailParLots::Pas {
        return {remede(travail, *lignes[static_cast<std::size_t>(rang)]) ? 1 : 0};
    });
    travail.termine();
    return travail.faits();
}

// The first row of the film whose poster is as it was; answers whether there was one.
bool changeLAffiche(TravailParLots& travail, const db::CleFilm& film, const dao::Valeur& affiche,
                    const std::function<bool(const std::string&)>& convient) {
    for (dao::Recordset films = travail.ouvre(db::enonceFilmModifie(film)); !films.Eof(); films.MoveNext()) {
        if (!convient(films.texte("Affiche"))) continue;
        films.Edit();
        films.assigne("Affiche", affiche);
        films.Update();
        return true;
    }
    return false;
}

bool oublieLAffiche(TravailParLots& travail, const LigneDeSante& ligne) {
    return changeLAffiche(travail, ligne.film, "", [&](const std::string& affiche) {
        return affiche.starts_with(db::kDansUnFichier) && db::nomDansLeDossier(affiche) == ligne.detail;
    });
}

bool rendLAffiche(TravailParLots& travail, const LigneDeSante& ligne) {
    return changeLAffiche(travail, ligne.film, db::valeurAfficheFichier(ligne.detail), [](const std::string& affiche) {
        return !affiche.starts_with(db::kDansUnFichier) && !affiche.starts_with(db::kDansLaBase);
    });
}

bool creeLaFiche(const Contexte& c, TravailParLots& travail, const LigneDeSante& ligne) {
    if (!travail.ouvre(db::enonceFilmModifie(ligne.film)).Eof()) return false;
    dao::Recordset& films = c.base.films;
    films.AddNew();
    films.assigne("Titre", ligne.film.titre);
    films.assigne("Realisateur", ligne.film.realisateur);
    for (const char* vide : {"Annee", "Origine", "Genre", "Duree", "Acteurs", "Resume", "Production", "Affiche"})
        films.assigne(vide, "");
    films.assigne("DateAjout", c.horloge.dateDuJour());
    films.Update();
    return true;
}

// The first row holds them all before the others go.
bool reunit(TravailParLots& travail, const LigneDeSante& ligne) {
    dao::Recordset lignes = travail.ouvre(db::enoncePossession(ligne.film));
    if (lignes.RecordCount() < 2) return false;
    const ValeursDePossession premiere = litPossession(lignes);
    ValeursDePossession toutes = premiere;
    for (lignes.MoveNext(); !lignes.Eof(); lignes.MoveNext()) {
        const auto ensemble = jointes(toutes, litPossession(lignes));
        if (!ensemble) return false;
        toutes = *ensemble;
    }
    lignes.MoveFirst();
    if (toutes != premiere) ecritPossession(lignes, toutes);
    for (lignes.MoveNext(); !lignes.Eof(); lignes.MoveNext())
        lignes.Delete();
    return true;
}

}  // namespace

long repare(const Contexte& c, Mal mal) {
    const auto avec = [&](const Remede& remede) { return applique(c, examine(c, mal), remede); };
    long repares = 0;
    switch (mal) {
        case Mal::AfficheAbsente:
            repares = avec(oublieLAffiche);
            break;
        case Mal::AfficheSansFilm:
            repares = avec(rendLAffiche);
            break;
        case Mal::PossessionSansFilm:
            repares = avec(
                [&c](TravailParLots& travail, const LigneDeSante& ligne) { return creeLaFiche(c, travail, ligne); });
            break;
        case Mal::PossessionDouble:
            repares = avec(reunit);
            break;
        case Mal::TitreACorriger:
            if (edit::sauvegardeAvantLesTitres(c)) repares = edit::corrigeTousLesTitres(c);
            break;
        default:
            break;
    }
    if (mal != Mal::TitreACorriger)
        c.annulations.nomme("réparation de " + util::phraseCompte(repares, "# point", "# points"),
                            util::phraseCompte(repares, "# point réparé.", "# points réparés."));
    if (repares > 0) rafraichit(c, mal == Mal::PossessionDouble);
    return repares;
}

}  // namespace ensemble
