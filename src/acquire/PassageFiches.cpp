#include "acquire/PassageFiches.h"

#include "acquire/Passage.h"
#include "acquire/ProgressionVisible.h"
#include "db/EnonceFilm.h"
#include "edit/Complement.h"

namespace acquire {
namespace {

// Often enough for the eye and for "Annuler", seldom enough to cost nothing.
constexpr std::chrono::milliseconds kEntreDeuxSouffles{50};

}  // namespace

PassageFiches::PassageFiches(const Contexte& c, const FichesChoisies& fiches)
    : m_c(c), m_lot(c), m_dossier(fiches), m_affiches(c) {}

RapportImport PassageFiches::execute() {
    const auto echec = conduitPassage(
        m_lot, m_affiches, [this] { parcourt(); }, [this] { confirmeLot(); });
    noteCeQuiReste();
    if (echec) m_c.dialogues.MsgBox(echec->texte, echec->style);
    return m_acquis;
}

void PassageFiches::noteCeQuiReste() {
    const std::vector<std::string>& fiches = m_dossier.fiches();
    for (std::size_t i = m_acquises; i < fiches.size(); ++i)
        m_acquis.fichesRestantes.push_back(m_dossier.chemin(fiches[i]));
}

void PassageFiches::parcourt() {
    const ecran::Travail travail(m_c.ecran);
    const ProgressionVisible progression(m_c.ajout, static_cast<long>(m_dossier.fiches().size()));
    commence();
    for (const std::string& nom : m_dossier.fiches()) {
        lit(nom);
        ++m_lues;
        ++m_c.ajout.ProgressBar1.Value;
        const bool plein = m_lot.estPlein();
        if (plein) confirmeLot();
        if ((plein || doitRespirer()) && !respire()) break;
    }
    confirmeLot();
}

void PassageFiches::lit(const std::string& nom) {
    const std::optional<FicheFilm> fiche = litFiche(m_dossier.chemin(nom));
    if (!fiche) {
        m_rapport.fichesIllisibles.push_back(m_dossier.chemin(nom));
        return;
    }
    m_c.ajout.lblProgression.Caption = fiche->premiereLigne;
    m_lot.commence();  // the checks of one lot share what they read
    traite(*fiche, nom);
}

bool PassageFiches::completeLeFilm(const FicheFilm& fiche, const std::string& nom, Complement complement) {
    const bool tout = complement == Complement::Tout;
    if (!tout && !m_dossier.trouveAffiche(nom)) return false;
    dao::Recordset film = m_c.base.base.OpenRecordset(db::enonceFilm(fiche));
    if (film.Eof()) return false;
    const bool sansAffiche = film.texte(edit::kChampAffiche).empty();
    const auto affiche = sansAffiche ? place(fiche, afficheDe(nom)) : std::nullopt;
    const bool champs = tout && !edit::champsACompleter(film, fiche).empty();
    if (!affiche && !champs) return false;
    film.Edit();
    if (champs) edit::complete(film, fiche);
    if (affiche) film.assigne(edit::kChampAffiche, affiche->valeur);
    film.Update();
    if (affiche) ++m_rapport.affichesAjoutees;
    m_lot.compteFiche((champs ? fiche.resume.size() : 0) + (affiche ? affiche->octets : 0));
    return true;
}

AfficheDeFiche PassageFiches::afficheDe(const std::string& nom) const {
    return afficheDeFiche(m_dossier, nom, m_affiches.dansLaBase());
}

std::optional<AfficheImportee> PassageFiches::place(const FicheFilm& fiche, const AfficheDeFiche& affiche) {
    if (affiche.sort != edit::SortDeLAffiche::Prise) return std::nullopt;
    return m_affiches.place(fiche, affiche.octets, true);
}

void PassageFiches::confirmeLot() {
    confirme(m_lot, m_affiches);
    m_acquis = m_rapport;
    m_acquises = m_lues;
}

bool PassageFiches::doitRespirer() const {
    return m_c.montre() - m_dernierSouffle >= kEntreDeuxSouffles;
}

bool PassageFiches::respire() {
    const bool continuer = m_c.ecran.respire();
    m_dernierSouffle = m_c.montre();
    return continuer;
}

}  // namespace acquire
