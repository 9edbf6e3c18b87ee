#include "acquire/PassageImport.h"

#include "acquire/ProgressionVisible.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LignePossession.h"
#include "edit/TitreDejaExistant.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <cstdint>

namespace acquire {
namespace {

// Often enough for the eye and for "Annuler", seldom enough to cost nothing.
constexpr std::chrono::milliseconds kEntreDeuxSouffles{50};

}  // namespace

PassageImport::PassageImport(const Contexte& c, const ChoixImport& choix, const std::string& dossier)
    : m_c(c), m_choix(choix), m_dossier(dossier), m_lot(c), m_affiches(c), m_enregistrement(c) {}

RapportImport PassageImport::execute() {
    std::string echec;
    int style = dialogues::kSimple;
    try {
        importeTout();
    } catch (const db::EchecConversion& affiche) {
        echec = affiche.texte;
        style = dialogues::kCritique;
        gardeLeLotEntier();
    } catch (const dao::ErreurDao& erreur) {
        echec = erreur.texte();
    } catch (const db::RequeteEchouee&) {  // already shown
    }
    m_lot.abandonne();
    m_affiches.apresAnnulation();
    noteCeQuiReste();
    if (!echec.empty()) m_c.dialogues.MsgBox(echec, style);
    return m_acquis;
}

// A poster is written before the row that names it: the films before it are whole.
void PassageImport::gardeLeLotEntier() {
    try {
        confirmeLot();
    } catch (const db::EchecConversion&) {
    } catch (const dao::ErreurDao&) {
    }
}

void PassageImport::noteCeQuiReste() {
    const std::vector<std::string>& fiches = m_dossier.fiches();
    for (std::size_t i = m_acquises; i < fiches.size(); ++i)
        m_acquis.fichesRestantes.push_back(m_dossier.chemin(fiches[i]));
}

void PassageImport::importeTout() {
    const ecran::Travail travail(m_c.ecran);
    const ProgressionVisible progression(m_c.ajout, static_cast<long>(m_dossier.fiches().size()));
    m_c.ajout.cmdAjoutFilm.Caption = "Ajouter";
    if (m_choix.testeRessemblance) m_lettres = edit::LettresDuCatalogue::de(m_c);
    for (const std::string& nom : m_dossier.fiches()) {
        importe(nom);
        ++m_lues;
        ++m_c.ajout.ProgressBar1.Value;
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
    m_c.ajout.lblProgression.Caption = fiche->premiereLigne;
    m_lot.commence();  // the checks of one lot share what they read
    if (edit::TitreDejaExistant(m_c, *fiche)) {
        completeAffiche(*fiche, nom);
        m_rapport.titresRefuses.push_back(fiche->titre);
    } else if (estTropProche(*fiche)) {
        m_rapport.titresRefuses.push_back(fiche->titre);
    } else {
        enregistre(*fiche, nom);
    }
}

bool PassageImport::estTropProche(const FicheFilm& fiche) {
    return m_lettres && m_lettres->aUnProche(fiche) &&
           edit::TitreDejaExistant_TestRessemblance(m_c, fiche, [this] { confirmeLot(); });
}

void PassageImport::completeAffiche(const FicheFilm& fiche, const std::string& nom) {
    if (!m_dossier.trouveAffiche(nom)) return;
    dao::Recordset film = m_c.base.base.OpenRecordset(db::enonceFilm(fiche));
    if (film.Eof() || !film.texte("Affiche").empty()) return;
    const Examen examen = placeAffiche(fiche, nom);
    if (!examen.affiche) return;
    film.Edit();
    film.assigne("Affiche", examen.affiche->valeur);
    film.Update();
    ++m_rapport.affichesAjoutees;
    m_lot.compteFiche(examen.affiche->octets);
}

void PassageImport::enregistre(const FicheFilm& fiche, const std::string& nom) {
    m_lot.commence();  // a question may have ended it
    const Examen examen = placeAffiche(fiche, nom);
    if (!examen.manque.empty()) m_rapport.affichesManquantes.push_back(examen.manque);
    remplitSaisie(fiche);
    const AfficheImportee affiche = examen.affiche.value_or(AfficheImportee());
    edit::FilmPret film{.affiche = affiche.valeur, .devenir = edit::DevenirAffiche::Aucune, .ancien = {}};
    m_enregistrement.ecrit(film, fiche.resume, m_choix.date);
    if (m_choix.possedes) edit::ajoutePossession(m_c.base.personnel, fiche, m_choix.support);
    if (m_lettres) m_lettres->ajoute(fiche);
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

// In the base a picture of the very limit goes without a word, as one that is entered by hand does.
PassageImport::Examen PassageImport::placeAffiche(const FicheFilm& fiche, const std::string& nom) {
    const std::optional<std::string> chemin = m_dossier.trouveAffiche(nom);
    if (!chemin) return {std::nullopt, m_dossier.cheminAffiche(nom)};
    const std::string tropGrande =
        *chemin + (m_affiches.dansLaBase() ? " (trop grande pour la base) " : " (trop grande) ");
    if (fichiers::longueur(*chemin) > m_affiches.limite()) return {std::nullopt, tropGrande};
    const auto octets = fichiers::lit(*chemin, m_affiches.limite());
    if (!octets) return {std::nullopt, *chemin + " (illisible) "};
    const bool tientDansLaBase = static_cast<std::int64_t>(octets->size()) < db::kTailleMaxAffiche;
    if (m_affiches.dansLaBase() && !tientDansLaBase) return {};
    const auto affiche = m_affiches.place(fiche, *octets, tientDansLaBase);
    return {affiche, affiche ? "" : tropGrande};
}

void PassageImport::confirmeLot() {
    m_affiches.avantValidation();
    m_lot.confirme();
    m_affiches.apresValidation();
    m_acquis = m_rapport;
    m_acquises = m_lues;
}

bool PassageImport::doitRespirer() const {
    return m_c.montre() - m_dernierSouffle >= kEntreDeuxSouffles;
}

bool PassageImport::respire() {
    const bool continuer = m_c.ecran.respire();
    m_dernierSouffle = m_c.montre();
    return continuer;
}

}  // namespace acquire
