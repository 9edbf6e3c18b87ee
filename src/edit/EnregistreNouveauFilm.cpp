#include "edit/EnregistreNouveauFilm.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LongueursChamps.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace edit {

EnregistrementFilm::EnregistrementFilm(db::Base& base, const EtatAjout& ajout, db::EtatStockage& stockage,
                                       const db::Chemins& chemins, const browse::FilmCourant& courant,
                                       dialogues::Dialogues& dialogues)
    : m_base(base),
      m_ajout(ajout),
      m_stockage(stockage),
      m_chemins(chemins),
      m_courant(courant),
      m_dialogues(dialogues) {}

SortAffiche EnregistrementFilm::EnregistreNouveauFilm(const std::string& image, const std::string& resume,
                                                      const std::string& dateAjout) {
    FilmPret film = prepare(image);
    ecrit(film, resume, dateAjout);
    return film.sort;
}

FilmPret EnregistrementFilm::prepare(const std::string& image) {
    FilmPret film{.affiche = "", .sort = SortAffiche::Aucune, .ancien = {}};
    if (m_ajout.modeModifier()) {
        film.ancien = db::ouvreRequete(m_base.base, db::enonceFilm(m_courant.titre, m_courant.realisateur),
                                       db::NumeroErreur::EnregistreNouveauFilm, m_dialogues);
        if (film.ancien.RecordCount() > 0) return film;
        film.ancien.Close();
    }
    if (!image.empty()) prepareAffiche(film, image);
    return film;
}

void EnregistrementFilm::prepareAffiche(FilmPret& film, const std::string& image) {
    if (m_stockage.dansLaBase())
        afficheDansLaBase(film, image);
    else
        afficheEnFichier(film, image);
}

void EnregistrementFilm::afficheDansLaBase(FilmPret& film, const std::string& image) {
    const std::optional<std::string> octets = fichiers::lit(image, db::kTailleMaxAffiche - 1);
    if (octets) {
        film.affiche = db::valeurAfficheDansLaBase(*octets);
        film.sort = SortAffiche::Enregistree;
    } else {
        const bool tropGrande = fichiers::longueur(image) >= db::kTailleMaxAffiche;
        film.sort = tropGrande ? SortAffiche::TropGrande : SortAffiche::Illisible;
    }
}

// What bears the name and belongs to no film stays: it may be a sheet's picture, not imported yet.
void EnregistrementFilm::afficheEnFichier(FilmPret& film, const std::string& image) {
    if (const auto refus = db::refusDossierImages(m_stockage, m_chemins)) throw db::EchecConversion{*refus};
    const std::string dossier = db::dossierImages(m_stockage, m_chemins);
    const auto octets = fichiers::lit(image, db::kTailleMaxImage);
    film.sort = SortAffiche::Illisible;
    if (!octets) return;
    fichiers::creeDossier(dossier);  // a folder that cannot be made takes no file either
    if (!m_affiches || m_affiches->dossier() != dossier) m_affiches.emplace(m_base.base, dossier);
    film.affiche = db::valeurAfficheFichier(
        m_affiches->pose(db::nomFichierAffiche(m_ajout.Text3[0].Text, m_ajout.Text3[1].Text), *octets));
    film.sort = SortAffiche::Enregistree;
}

void EnregistrementFilm::avantValidation() {
    if (m_affiches) m_affiches->avantValidation();
}

void EnregistrementFilm::apresValidation() {
    if (m_affiches) m_affiches->apresValidation();
}

void EnregistrementFilm::apresAnnulation() {
    if (m_affiches) m_affiches->apresAnnulation();
}

void EnregistrementFilm::ecrit(FilmPret& film, const std::string& resume, const std::string& dateAjout) {
    if (film.ancien.estOuvert()) {
        film.ancien.Edit();
        ecritChamps(film.ancien, resume);
        film.ancien.Update();
        return;
    }
    dao::Recordset& films = m_base.films;
    films.AddNew();
    ecritChamps(films, resume);
    films.assigne("Affiche", film.affiche);
    films.assigne("Note", dao::Valeur());
    films.assigne("DateAjout", dateAjout);
    films.Update();
}

void EnregistrementFilm::ecritChamps(dao::Recordset& films, const std::string& resume) const {
    const auto& saisie = m_ajout.Text3;
    films.assigne("Titre", util::coupe(saisie[0].Text, kLongueurTitre));
    films.assigne("Realisateur", util::coupe(saisie[1].Text, kLongueurRealisateur));
    films.assigne("Annee", util::coupe(saisie[2].Text, kLongueurAnnee));
    films.assigne("Origine", util::coupe(m_ajout.Combo3.Text, kLongueurOrigine));
    films.assigne("Duree", util::coupe(saisie[3].Text, kLongueurDuree));
    films.assigne("Genre", util::coupe(m_ajout.Combo2.Text, kLongueurGenre));
    films.assigne("Acteurs", util::coupe(saisie[4].Text, kLongueurActeurs));
    films.assigne("Resume", resume);
    films.assigne("Production", util::coupe(m_ajout.Combo4.Text, kLongueurProduction));
}

}  // namespace edit
