#include "edit/cmdAjoutFilm_Click.h"

#include "browse/AffichageApresModification.h"
#include "browse/AfficheNbTitres.h"
#include "browse/CreeEtAfficheRecherche.h"
#include "browse/MontreFilm.h"
#include "browse/SelectionneTitre.h"
#include "db/ChampsPublies.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/Command13_Click.h"
#include "edit/EnregistreNouveauFilm.h"
#include "edit/LignePossession.h"
#include "edit/LongueursChamps.h"
#include "edit/TitreCite.h"
#include "edit/TitreDejaExistant.h"
#include "platform/dao/Comparaison.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace edit {

namespace {

// A name that the base holds for the same one is none: the film would be its own duplicate.
bool changeDeNom(const Contexte& c, const db::CleFilm& film) {
    const auto change = [](const std::string& nouveau, const std::string& ancien) {
        return util::majuscules(nouveau) != util::majuscules(ancien) && !dao::egalJet(nouveau, ancien);
    };
    return change(film.titre, c.film.titre) || change(film.realisateur, c.film.realisateur);
}

// Empty: the entry is accepted.
std::string motifDeRefus(const Contexte& c, const db::CleFilm& film) {
    if (film.titre.empty()) return "Le titre du film est obligatoire !";
    if (film.realisateur.empty()) return "Le réalisateur du film est obligatoire !";
    if ((!c.ajout.modeModifier() || changeDeNom(c, film)) && TitreDejaExistant(c, film))
        return "Un film ayant le même titre et du même réalisateur existe déjà !";
    return "";
}

std::string motifDeRefusAffiche(const Contexte& c, const std::string& chemin) {
    if (chemin.empty()) return "";
    const std::int64_t taille = fichiers::longueur(chemin);
    if (taille < 0) return "Le fichier indiqué est inexistant !";
    if (!c.stockage.dansLaBase()) return db::refusDossierImages(c).value_or("");
    return taille > db::kTailleMaxAffiche ? "Image trop grande pour tenir en base !" : "";
}

// On the page, and on the sheet's own label until the next film is shown.
void annonceAffiche(const Contexte& c, const std::string& chemin) {
    c.ajout.lblImage.Caption = chemin;
    c.fiche.Label12.Caption = chemin;
}

// Asked again until the choice can be taken; none is a choice too.
std::string choisitAffiche(const Contexte& c) {
    for (;;) {
        annonceAffiche(c, "");
        const std::string chemin = c.dialogues.choisitFichier(
            {"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", db::dossierImages(c)});
        const std::string motif = motifDeRefusAffiche(c, chemin);
        if (motif.empty()) {
            annonceAffiche(c, chemin);
            return chemin;
        }
        c.dialogues.MsgBox(motif, dialogues::kExclamation);
    }
}

// What there is to know of a holding, in a few words; empty when it holds nothing.
std::string decris(const dao::Recordset& possession) {
    static constexpr std::pair<const char*, const char*> kDits[]{
        {"Support", ""},  {"Rangement", ""},    {"Date", ""},
        {"Divers", ""},   {"Pret", "prêté à "}, {"Reserve", "réservé pour "},
        {"Fichier1", ""}, {"Fichier2", ""},     {"Fichier3", ""}};
    static_assert(std::size(kDits) == db::kChampsDePossession.size());
    std::string texte;
    for (const auto& [champ, avant] : kDits) {
        std::string valeur = possession.texte(champ);
        if (std::string_view(champ).starts_with("Fichier")) valeur = fichiers::nomDeFichier(valeur);
        if (!valeur.empty()) texte += (texte.empty() ? "" : ", ") + (avant + util::coupe(valeur, 30));
    }
    return texte;
}

void renomme(dao::Recordset& possession, const db::CleFilm& film) {
    possession.Edit();
    nommeFilmPossede(possession, film);
    possession.Update();
}

// The holding of the film; one that no film had any more becomes its own, as it stands, and is described.
std::string possede(const Contexte& c, const db::CleFilm& film, dao::Recordset& orpheline) {
    if (orpheline.RecordCount() < 1) {
        ajoutePossession(c.base.personnel, film);
        return "";
    }
    std::string description = decris(orpheline);
    renomme(orpheline, film);
    return description;
}

// What is told of a film that was stored.
struct Ajout {
    std::string possession;  // the holding it took over, described; "" when it has one of its own
    DevenirAffiche affiche = DevenirAffiche::Aucune;
};

// Film, holding and poster, or none of them: the user then still has the page filled. Throws db::EchecConversion when the
// poster cannot be stored.
Ajout enregistre(const Contexte& c, EnregistrementFilm& enregistrement, const db::CleFilm& film,
                 const std::string& affiche, const std::string& date) {
    FilmPret pret = enregistrement.prepare(affiche);
    if (pret.devenir == DevenirAffiche::Illisible)
        throw db::EchecConversion{"L'image n'a pas pu être lue (" + affiche + ") !"};
    dao::Recordset orpheline = db::ouvreRequete(c, db::enoncePossession(film), db::NumeroErreur::cmdAjoutFilm);
    dao::Transaction transaction(c.base.base);
    const dao::Database::Version avant = versionDesFilms(c);
    enregistrement.ecrit(pret, c.ajout.txtResume.Text, date);
    Ajout ajout{possede(c, film, orpheline), pret.devenir};
    enregistrement.avantValidation();
    transaction.confirme();
    unFilmEstEcrit(c, avant);
    enregistrement.apresValidation();
    return ajout;
}

void annonce(const Contexte& c, const db::CleFilm& film, const Ajout& ajout) {
    std::string texte = titreCite(film.titre) + " ajouté";
    if (ajout.affiche == DevenirAffiche::TropGrande) texte += ", sans son affiche, trop grande pour tenir en base";
    if (!ajout.possession.empty()) texte += ", avec la possession que ce titre avait déjà (" + ajout.possession + ")";
    c.avis.montre(texte + ".", {{"Afficher", [c, film] {
                                     if (!browse::MontreFilm(c, film))
                                         c.avis.montre(titreCite(film.titre) + " n'est plus dans la base.");
                                 }}});
}

// Its sheet is ready behind the page, which waits for the next film.
void montreLeFilmAjoute(const Contexte& c, const db::CleFilm& film, const std::string& date) {
    const browse::PanneauxFiges laPageReste(c.panneaux);
    browse::montreAjoutsDuJour(c, date);
    browse::SelectionneTitre(c, film);
    browse::AfficheNbTitres(c);
    Command13_Click(c, 1);
}

void ajoute(const Contexte& c, const db::CleFilm& film) {
    const std::string affiche = choisitAffiche(c);
    const std::string date = c.horloge.dateDuJour();
    EnregistrementFilm enregistrement(c);
    Ajout ajout;
    try {
        ajout = enregistre(c, enregistrement, film, affiche, date);
    } catch (const db::EchecConversion& echec) {
        enregistrement.apresAnnulation();
        c.dialogues.MsgBox(echec.texte, dialogues::kExclamation);
        return;
    } catch (...) {
        enregistrement.apresAnnulation();
        throw;
    }
    c.accompagnement.filmStocke();
    c.annulations.nomme("ajout de " + titreCite(film.titre), titreCite(film.titre) + " ajouté.");
    annonce(c, film, ajout);
    montreLeFilmAjoute(c, film, date);
}

// The sheet takes the place of the page at once; only a film that the listing lacks leaves the presentation there.
void remontre(const Contexte& c, const db::CleFilm& film) {
    try {
        const browse::PanneauxFiges jusquALaFiche(c.panneaux);
        browse::AffichageApresModification(c);
    } catch (...) {
        c.panneaux.montre(c.panneaux.framePresentation);
        throw;
    }
    browse::SelectionneTitre(c, film);
    if (!c.film.estUnFilm()) c.panneaux.montre(c.panneaux.framePresentation);
}

void modifie(const Contexte& c, const db::CleFilm& film) {
    EnregistrementFilm enregistrement(c);
    FilmPret pret = enregistrement.prepare("");
    dao::Recordset possession = db::ouvreRequete(c, db::enoncePossession(c.film), db::NumeroErreur::cmdAjoutFilm);
    {
        dao::Transaction transaction(c.base.base);
        enregistrement.ecrit(pret, c.ajout.txtResume.Text, c.horloge.dateDuJour());
        if (possession.RecordCount() > 0) renomme(possession, film);
        transaction.confirme();
    }
    c.annulations.nomme("correction de " + titreCite(film.titre), titreCite(film.titre) + " corrigé.");
    c.accompagnement.filmStocke();
    remontre(c, film);
    browse::AfficheNbTitres(c);  // a film that had gone was added again
}

}  // namespace

void cmdAjoutFilm_Click(const Contexte& c) {
    const db::CleFilm film{util::coupe(c.ajout.Text3[0].Text, kLongueurTitre),
                           util::coupe(c.ajout.Text3[1].Text, kLongueurRealisateur)};
    if (const std::string motif = motifDeRefus(c, film); !motif.empty()) {
        c.dialogues.MsgBox(motif, dialogues::kExclamation);
        return;
    }
    if (c.ajout.modeModifier())
        modifie(c, film);
    else
        ajoute(c, film);
}

}  // namespace edit
