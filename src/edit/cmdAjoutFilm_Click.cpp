#include "edit/cmdAjoutFilm_Click.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/AjoutePossession.h"
#include "edit/LongueursChamps.h"
#include "edit/TitreCite.h"
#include "platform/dao/Comparaison.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace edit {

namespace {

// What there is to know of a holding, in a few words; empty when it holds nothing.
std::string decris(const dao::Recordset& possession) {
    std::string texte;
    const auto ajoute = [&](const std::string& avant, const std::string& valeur) {
        if (!valeur.empty()) texte += (texte.empty() ? "" : ", ") + avant + util::coupe(valeur, 30);
    };
    for (const char* champ : {"Support", "Rangement", "Date", "Divers"})
        ajoute("", possession.texte(champ));
    ajoute("prêté à ", possession.texte("Pret"));
    ajoute("réservé pour ", possession.texte("Reserve"));
    for (const char* champ : {"Fichier1", "Fichier2", "Fichier3"})
        ajoute("", fichiers::nomDeFichier(possession.texte(champ)));
    return texte;
}

}  // namespace

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

// A name that the base holds for the same one is none: the film would be its own duplicate.
bool cmdAjoutFilm_Click::changeDeNom(const Identite& film) const {
    const auto change = [](const std::string& nouveau, const std::string& ancien) {
        return util::majuscules(nouveau) != util::majuscules(ancien) && !dao::egalJet(nouveau, ancien);
    };
    return change(film.titre, m_outils.courant.titre) || change(film.realisateur, m_outils.courant.realisateur);
}

void cmdAjoutFilm_Click::ajoute(const Identite& film) {
    const std::string affiche = choisitAffiche();
    const std::string date = m_outils.horloge.dateDuJour();
    Ajout ajout;
    try {
        ajout = enregistre(film, affiche, date);
    } catch (const db::EchecConversion& echec) {
        m_outils.enregistrement.apresAnnulation();
        m_outils.dialogues.MsgBox(echec.texte, dialogues::kExclamation);
        return;
    } catch (...) {
        m_outils.enregistrement.apresAnnulation();
        throw;
    }
    if (m_suites.stockee) m_suites.stockee();
    annonce(film, ajout);
    montreLeFilmAjoute(film, date);
}

// Film, holding and poster, or none of them: the user then still has the page filled.
cmdAjoutFilm_Click::Ajout cmdAjoutFilm_Click::enregistre(const Identite& film, const std::string& affiche,
                                                         const std::string& date) {
    FilmPret pret = m_outils.enregistrement.prepare(affiche);
    if (pret.sort == SortAffiche::Illisible)
        throw db::EchecConversion{"L'image n'a pas pu être lue (" + affiche + ") !"};
    dao::Recordset orpheline = db::ouvreRequete(m_outils.base.base, db::enoncePossession(film.titre, film.realisateur),
                                                db::NumeroErreur::cmdAjoutFilm, m_outils.dialogues);
    dao::Transaction transaction(m_outils.base.base);
    m_outils.enregistrement.ecrit(pret, m_outils.ajout.txtResume.Text, date);
    Ajout ajout{possede(film, orpheline), pret.sort};
    m_outils.enregistrement.avantValidation();
    transaction.confirme();
    m_outils.enregistrement.apresValidation();
    return ajout;
}

std::string cmdAjoutFilm_Click::possede(const Identite& film, dao::Recordset& orpheline) {
    if (orpheline.RecordCount() < 1) {
        ajoutePossession(m_outils.base.personnel, film.titre, film.realisateur);
        return "";
    }
    std::string description = decris(orpheline);
    orpheline.Edit();
    nommeFilmPossede(orpheline, film.titre, film.realisateur);
    orpheline.Update();
    return description;
}

void cmdAjoutFilm_Click::annonce(const Identite& film, const Ajout& ajout) {
    std::string texte = titreCite(film.titre) + " ajouté";
    if (ajout.affiche == SortAffiche::TropGrande) texte += ", sans son affiche, trop grande pour tenir en base";
    if (!ajout.possession.empty()) texte += ", avec la possession que ce titre avait déjà (" + ajout.possession + ")";
    m_suites.avis.montre(texte + ".", {{"Afficher", [suites = m_suites, film] {
                                            if (!suites.montreFilm(film.titre, film.realisateur))
                                                suites.avis.montre(titreCite(film.titre) + " n'est plus dans la base.");
                                        }}});
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
    if (!m_outils.stockage.dansLaBase())
        return db::refusDossierImages(m_outils.stockage, m_outils.chemins).value_or("");
    return "";
}

// On the page, and on the sheet's own label until the next film is shown.
void cmdAjoutFilm_Click::annonceAffiche(const std::string& chemin) {
    m_outils.ajout.lblImage.Caption = chemin;
    m_outils.fiche.Label12.Caption = chemin;
}

// Its sheet is ready behind the page, which waits for the next film.
void cmdAjoutFilm_Click::montreLeFilmAjoute(const Identite& film, const std::string& date) {
    const browse::PanneauxFiges laPageReste(m_suites.panneaux);
    m_suites.liste.critereRecherche = "DateAjout = \"" + date + "\"";
    m_suites.liste.zoneRecherche = browse::kZoneTous;
    m_suites.creeEtAfficheRecherche();
    m_suites.selectionneTitre(film.titre, film.realisateur);
    m_suites.afficheNbTitres();
    m_suites.modes.Command13_Click(1);
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
    if (m_suites.stockee) m_suites.stockee();
    remontre(film);
    m_suites.afficheNbTitres();  // a film that had gone was added again
}

// The sheet takes the place of the page at once; only a film that the listing lacks leaves the presentation there.
void cmdAjoutFilm_Click::remontre(const Identite& film) {
    browse::EtatPanneaux& panneaux = m_suites.panneaux;
    try {
        const browse::PanneauxFiges jusquALaFiche(panneaux);
        m_suites.affichageApresModification();
    } catch (...) {
        panneaux.montre(panneaux.framePresentation);
        throw;
    }
    m_suites.selectionneTitre(film.titre, film.realisateur);
    if (!m_outils.courant.estUnFilm()) panneaux.montre(panneaux.framePresentation);
}

}  // namespace edit
