#include "edit/EnregistreNouveauFilm.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LongueursChamps.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

namespace edit {

namespace {

void afficheDansLaBase(FilmPret& film, const std::string& image) {
    const std::optional<std::string> octets = fichiers::lit(image, db::kTailleMaxAffiche - 1);
    if (octets) {
        film.affiche = db::valeurAfficheDansLaBase(*octets);
        film.devenir = DevenirAffiche::Enregistree;
    } else {
        const bool tropGrande = fichiers::longueur(image) >= db::kTailleMaxAffiche;
        film.devenir = tropGrande ? DevenirAffiche::TropGrande : DevenirAffiche::Illisible;
    }
}

}  // namespace

DevenirAffiche EnregistrementFilm::EnregistreNouveauFilm(const std::string& image, const std::string& resume,
                                                         const std::string& dateAjout) {
    FilmPret film = prepare(image);
    ecrit(film, resume, dateAjout);
    return film.devenir;
}

FilmPret EnregistrementFilm::prepare(const std::string& image) {
    FilmPret film{.affiche = "", .devenir = DevenirAffiche::Aucune, .ancien = {}};
    if (m_c.ajout.modeModifier()) {
        film.ancien = db::ouvreRequete(m_c, db::enonceFilm(m_c.film), db::NumeroErreur::EnregistreNouveauFilm);
        if (film.ancien.RecordCount() > 0) return film;
        film.ancien.Close();
    }
    if (image.empty()) return film;
    if (m_c.stockage.dansLaBase())
        afficheDansLaBase(film, image);
    else
        afficheEnFichier(film, image);
    return film;
}

// What bears the name and belongs to no film stays: it may be a sheet's picture, not imported yet.
void EnregistrementFilm::afficheEnFichier(FilmPret& film, const std::string& image) {
    if (const auto refus = db::refusDossierImages(m_c)) throw db::EchecConversion{*refus};
    const std::string dossier = db::dossierImages(m_c);
    const auto octets = fichiers::lit(image, db::kTailleMaxImage);
    film.devenir = DevenirAffiche::Illisible;
    if (!octets) return;
    fichiers::creeDossier(dossier);  // a folder that cannot be made takes no file either
    if (!m_affiches || m_affiches->dossier() != dossier) m_affiches.emplace(m_c, dossier);
    film.affiche = db::valeurAfficheFichier(
        m_affiches->pose(db::nomFichierAffiche(m_c.ajout.Text3[0].Text, m_c.ajout.Text3[1].Text), *octets));
    film.devenir = DevenirAffiche::Enregistree;
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
    dao::Recordset& films = m_c.base.films;
    films.AddNew();
    ecritChamps(films, resume);
    films.assigne("Affiche", film.affiche);
    films.assigne("Note", dao::Valeur());
    films.assigne("DateAjout", dateAjout);
    films.Update();
}

void EnregistrementFilm::ecritChamps(dao::Recordset& films, const std::string& resume) const {
    const auto& saisie = m_c.ajout.Text3;
    films.assigne("Titre", util::coupe(saisie[0].Text, kLongueurTitre));
    films.assigne("Realisateur", util::coupe(saisie[1].Text, kLongueurRealisateur));
    films.assigne("Annee", util::coupe(saisie[2].Text, kLongueurAnnee));
    films.assigne("Origine", util::coupe(m_c.ajout.Combo3.Text, kLongueurOrigine));
    films.assigne("Duree", util::coupe(saisie[3].Text, kLongueurDuree));
    films.assigne("Genre", util::coupe(m_c.ajout.Combo2.Text, kLongueurGenre));
    films.assigne("Acteurs", util::coupe(saisie[4].Text, kLongueurActeurs));
    films.assigne("Resume", resume);
    films.assigne("Production", util::coupe(m_c.ajout.Combo4.Text, kLongueurProduction));
}

}  // namespace edit
