#include "edit/cmdAjoutFilm_Click.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/AjoutePossession.h"
#include "edit/LongueursChamps.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace edit {

void cmdAjoutFilm_Click::operator()() {
    const Identite film{util::coupe(m_outils.ajout.Text3[0].Text, kLongueurTitre),
                        util::coupe(m_outils.ajout.Text3[1].Text, kLongueurRealisateur)};
    if (const std::string motif = motifDeRefus(film); !motif.empty()) {
        m_outils.dialogues.MsgBox(motif, dialogues::kExclamation);
        return;
    }
    if (m_outils.ajout.modeModifier())
        modifie(film);
    else
        ajoute(film);
}

std::string cmdAjoutFilm_Click::motifDeRefus(const Identite& film) const {
    if (film.titre.empty()) return "Le titre du film est obligatoire !";
    if (film.realisateur.empty()) return "Le réalisateur du film est obligatoire !";
    if ((!m_outils.ajout.modeModifier() || changeDeNom(film)) &&
        m_outils.doublons.TitreDejaExistant(film.titre, film.realisateur))
        return "Un film ayant le même titre et du même réalisateur existe déjà !";
    return "";
}

// A change of letter case alone is none: the film would be its own duplicate.
bool cmdAjoutFilm_Click::changeDeNom(const Identite& film) const {
    return util::majuscules(film.titre) != util::majuscules(m_outils.courant.titre) ||
           util::majuscules(film.realisateur) != util::majuscules(m_outils.courant.realisateur);
}

void cmdAjoutFilm_Click::ajoute(const Identite& film) {
    const std::string affiche = choisitAffiche();
    const std::string date = m_outils.horloge.dateDuJour();
    FilmPret pret = m_outils.enregistrement.prepare(affiche);
    {
        dao::Transaction transaction(m_outils.base.base);
        m_outils.enregistrement.ecrit(pret, m_outils.ajout.txtResume.Text, date);
        ajoutePossession(m_outils.base.personnel, film.titre, film.realisateur);
        transaction.confirme();
    }
    if (pret.sort == SortAffiche::Illisible)
        m_outils.dialogues.MsgBox("L'image n'a pas pu être enregistrée (" + affiche + ") !", dialogues::kExclamation);
    montreAjoutsDuJour(date);
}

// Asked again until the choice can be taken; none is a choice too.
std::string cmdAjoutFilm_Click::choisitAffiche() {
    for (;;) {
        annonceAffiche("");
        const std::string chemin =
            m_outils.dialogues.choisitFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg",
                                               db::dossierImages(m_outils.stockage, m_outils.chemins)});
        const std::string motif = motifDeRefusAffiche(chemin);
        if (motif.empty()) {
            annonceAffiche(chemin);
            return chemin;
        }
        m_outils.dialogues.MsgBox(motif, dialogues::kExclamation);
    }
}

std::string cmdAjoutFilm_Click::motifDeRefusAffiche(const std::string& chemin) const {
    if (chemin.empty()) return "";
    const std::int64_t taille = fichiers::longueur(chemin);
    if (taille < 0) return "Le fichier indiqué est inexistant !";
    if (m_outils.stockage.dansLaBase() && taille > db::kTailleMaxAffiche)
        return "Image trop grande pour tenir en base !";
    return "";
}

// On the page, and on the sheet's own label until the next film is shown.
void cmdAjoutFilm_Click::annonceAffiche(const std::string& chemin) {
    m_outils.ajout.lblImage.Caption = chemin;
    m_outils.fiche.Label12.Caption = chemin;
}

void cmdAjoutFilm_Click::montreAjoutsDuJour(const std::string& date) {
    m_suites.liste.critereRecherche = "DateAjout = \"" + date + "\"";
    m_suites.liste.zoneRecherche = browse::kZoneTous;
    m_suites.creeEtAfficheRecherche();
    m_suites.afficheNbTitres();
    m_suites.listes.complete();
}

void cmdAjoutFilm_Click::modifie(const Identite& film) {
    FilmPret pret = m_outils.enregistrement.prepare("");
    dao::Recordset possession =
        db::ouvreRequete(m_outils.base.base, db::enoncePossession(m_outils.courant.titre, m_outils.courant.realisateur),
                         db::NumeroErreur::cmdAjoutFilm, m_outils.dialogues);
    {
        dao::Transaction transaction(m_outils.base.base);
        m_outils.enregistrement.ecrit(pret, m_outils.ajout.txtResume.Text, m_outils.horloge.dateDuJour());
        if (possession.RecordCount() > 0) {
            possession.Edit();
            nommeFilmPossede(possession, film.titre, film.realisateur);
            possession.Update();
        }
        transaction.confirme();
    }
    m_suites.affichageApresModification();
    m_suites.selectionneTitre(film.titre, film.realisateur);
    m_suites.afficheNbTitres();  // a film that had gone was added again
}

}  // namespace edit
