#include "edit/EnregistreNouveauFilm.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LongueursChamps.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

#include <optional>

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
    const Affiche affiche = prepareAffiche(image);
    if (m_ajout.modeModifier() && modifieFilmCourant(resume)) return SortAffiche::Aucune;
    dao::Recordset& films = m_base.films;
    films.AddNew();
    ecritChamps(films, resume);
    films.assigne("Affiche", affiche.valeur);
    films.assigne("Note", dao::Valeur());
    films.assigne("DateAjout", dateAjout);
    films.Update();
    return affiche.sort;
}

EnregistrementFilm::Affiche EnregistrementFilm::prepareAffiche(const std::string& image) {
    if (image.empty()) return {"", SortAffiche::Aucune};
    return m_stockage.dansLaBase() ? afficheDansLaBase(image) : afficheEnFichier(image);
}

EnregistrementFilm::Affiche EnregistrementFilm::afficheDansLaBase(const std::string& image) {
    if (const std::optional<std::string> octets = fichiers::lit(image, db::kTailleMaxAffiche - 1))
        return {db::valeurAfficheDansLaBase(*octets), SortAffiche::Enregistree};
    const bool tropGrande = fichiers::longueur(image) >= db::kTailleMaxAffiche;
    return {"", tropGrande ? SortAffiche::TropGrande : SortAffiche::Illisible};
}

EnregistrementFilm::Affiche EnregistrementFilm::afficheEnFichier(const std::string& image) {
    const std::string nom = db::nomFichierAffiche(m_ajout.Text3[0].Text, m_ajout.Text3[1].Text);
    const std::string dossier = db::dossierImages(m_stockage, m_chemins);
    if (!fichiers::creeDossier(dossier) || !fichiers::copie(image, dossier + nom)) return {"", SortAffiche::Illisible};
    return {db::valeurAfficheFichier(nom), SortAffiche::Enregistree};
}

bool EnregistrementFilm::modifieFilmCourant(const std::string& resume) {
    dao::Recordset film = db::ouvreRequete(m_base.base, db::enonceFilm(m_courant.titre, m_courant.realisateur),
                                           db::NumeroErreur::EnregistreNouveauFilm, m_dialogues);
    if (film.RecordCount() == 0) return false;
    film.Edit();
    ecritChamps(film, resume);
    film.Update();
    return true;
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
