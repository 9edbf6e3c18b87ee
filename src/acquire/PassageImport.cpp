#include "acquire/PassageImport.h"

#include "acquire/ProgressionVisible.h"
#include "db/Requete.h"
#include "edit/AjoutePossession.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <cstdint>

namespace acquire {
namespace {

// Often enough for the eye and for "Annuler", seldom enough to cost nothing.
constexpr std::chrono::milliseconds kEntreDeuxSouffles{50};

}  // namespace

PassageImport::PassageImport(const OutilsImport& outils, const ChoixImport& choix, const std::string& dossier)
    : m_outils(outils), m_choix(choix), m_dossier(dossier), m_lot(outils.base.base) {}

RapportImport PassageImport::execute() {
    std::string erreur;
    try {
        importeTout();
    } catch (const dao::ErreurDao& echec) {
        erreur = "Erreur " + std::to_string(echec.numero) + " : " + echec.description;
    } catch (const db::RequeteEchouee&) {  // already shown
    }
    m_lot.abandonne();
    if (!erreur.empty()) m_outils.dialogues.MsgBox(erreur);
    return m_acquis;
}

void PassageImport::importeTout() {
    const ecran::Travail travail(m_outils.ecran);
    const ProgressionVisible progression(m_outils.ajout, static_cast<long>(m_dossier.fiches().size()));
    m_outils.ajout.cmdAjoutFilm.Caption = "Ajouter";
    if (m_choix.testeRessemblance) m_lettres = edit::LettresDuCatalogue::de(m_outils.base, m_outils.dialogues);
    for (const std::string& nom : m_dossier.fiches()) {
        importe(nom);
        ++m_outils.ajout.ProgressBar1.Value;
        const bool plein = m_lot.estPlein();
        if (plein) confirmeLot();
        if ((plein || doitRespirer()) && !respire()) break;
    }
    confirmeLot();
}

void PassageImport::importe(const std::string& nom) {
    const std::optional<FicheFilm> fiche = litFiche(m_dossier.chemin(nom));
    if (!fiche) {
        m_rapport.fichesIllisibles.push_back(m_dossier.chemin(nom));
        return;
    }
    m_outils.ajout.lblProgression.Caption = fiche->premiereLigne;
    m_lot.commence();  // the checks of one lot share what they read
    if (estRefuse(*fiche))
        m_rapport.titresRefuses.push_back(fiche->titre);
    else
        enregistre(*fiche, nom);
}

bool PassageImport::estRefuse(const FicheFilm& fiche) {
    if (m_outils.doublons.TitreDejaExistant(fiche.titre, fiche.realisateur)) return true;
    return m_lettres && m_lettres->aUnProche(fiche.titre, fiche.realisateur) &&
           m_outils.ressemblances.TitreDejaExistant_TestRessemblance(fiche.titre, fiche.realisateur,
                                                                     [this] { confirmeLot(); });
}

void PassageImport::enregistre(const FicheFilm& fiche, const std::string& nom) {
    m_lot.commence();  // a question may have ended it
    remplitSaisie(fiche);
    const Affiche affiche = choisitAffiche(nom);
    const edit::SortAffiche sort =
        m_outils.enregistrement.EnregistreNouveauFilm(affiche.chemin, fiche.resume, m_choix.date);
    if (sort == edit::SortAffiche::Illisible) m_rapport.affichesManquantes.push_back(affiche.chemin);
    if (m_choix.possedes)
        edit::ajoutePossession(m_outils.base.personnel, fiche.titre, fiche.realisateur, m_choix.support);
    if (m_lettres) m_lettres->ajoute(fiche.titre, fiche.realisateur);
    ++m_rapport.ajoutes;
    m_lot.compteFiche(fiche.resume.size() + affiche.octets);
}

void PassageImport::remplitSaisie(const FicheFilm& fiche) {
    edit::EtatAjout& saisie = m_outils.ajout;
    saisie.Text3[0].Text = fiche.titre;
    saisie.Text3[1].Text = fiche.realisateur;
    saisie.Text3[2].Text = fiche.annee;
    saisie.Text3[3].Text = fiche.duree;
    saisie.Text3[4].Text = fiche.acteurs;
    saisie.Combo2.Text = fiche.genre;
    saisie.Combo3.Text = fiche.origine;
    saisie.Combo4.Text = fiche.production;
}

PassageImport::Affiche PassageImport::choisitAffiche(const std::string& nom) {
    const std::optional<std::string> chemin = m_dossier.trouveAffiche(nom);
    if (!chemin) {
        m_rapport.affichesManquantes.push_back(m_dossier.cheminAffiche(nom));
        return {};
    }
    if (!m_outils.stockage.dansLaBase()) return {*chemin, 0};
    const std::int64_t longueur = fichiers::longueur(*chemin);
    if (longueur > db::kTailleMaxAffiche) {
        m_rapport.affichesManquantes.push_back(*chemin + " (trop grande pour la base) ");
        return {};
    }
    return {*chemin, static_cast<std::size_t>(std::max<std::int64_t>(longueur, 0))};
}

void PassageImport::confirmeLot() {
    m_lot.confirme();
    m_acquis = m_rapport;
}

bool PassageImport::doitRespirer() const {
    return std::chrono::steady_clock::now() - m_dernierSouffle >= kEntreDeuxSouffles;
}

bool PassageImport::respire() {
    const bool continuer = m_outils.ecran.respire();
    m_dernierSouffle = std::chrono::steady_clock::now();
    return continuer;
}

}  // namespace acquire
