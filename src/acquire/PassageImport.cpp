#include "acquire/PassageImport.h"

#include "edit/LignePossession.h"

namespace acquire {

PassageImport::PassageImport(const Contexte& c, const ChoixImport& choix, const FichesChoisies& fiches)
    : PassageFiches(c, fiches), m_choix(choix), m_enregistrement(c) {}

void PassageImport::commence() {
    m_c.ajout.cmdAjoutFilm.Caption = "Ajouter";
    m_juge.emplace(m_c, m_choix.testeRessemblance);
}

void PassageImport::traite(const FicheFilm& fiche, const std::string& nom) {
    const edit::SortDuFilm sort = m_juge->juge(fiche);
    if (sort == edit::SortDuFilm::DejaLa) {
        completeLeFilm(fiche, nom, Complement::Affiche);
        m_rapport.titresRefuses.push_back(fiche.titre);
    } else if (sort == edit::SortDuFilm::Ressemblant && m_juge->estRefuse(fiche, [this] { confirmeLot(); })) {
        m_rapport.titresRefuses.push_back(fiche.titre);
    } else {
        enregistre(fiche, nom);
    }
}

void PassageImport::enregistre(const FicheFilm& fiche, const std::string& nom) {
    m_lot.commence();  // a question may have ended it
    const AfficheDeFiche image = afficheDe(nom);
    if (!image.manque.empty()) m_rapport.affichesManquantes.push_back(image.manque);
    const AfficheImportee affiche = place(fiche, image).value_or(AfficheImportee());
    remplitSaisie(fiche);
    edit::FilmPret film{.affiche = affiche.valeur, .devenir = edit::DevenirAffiche::Aucune, .ancien = {}};
    m_enregistrement.ecrit(film, fiche.resume, m_choix.date);
    if (m_choix.possedes) edit::ajoutePossession(m_c.base.personnel, fiche, m_choix.support);
    m_juge->ajoute(fiche);
    ++m_rapport.ajoutes;
    m_lot.compteFiche(fiche.resume.size() + affiche.octets);
}

void PassageImport::remplitSaisie(const FicheFilm& fiche) {
    edit::EtatAjout& saisie = m_c.ajout;
    saisie.Text3[0].Text = fiche.titre;
    saisie.Text3[1].Text = fiche.realisateur;
    saisie.Text3[2].Text = fiche.annee;
    saisie.Text3[3].Text = fiche.duree;
    saisie.Text3[4].Text = fiche.acteurs;
    saisie.Combo2.Text = fiche.genre;
    saisie.Combo3.Text = fiche.origine;
    saisie.Combo4.Text = fiche.production;
}

}  // namespace acquire
