#include "voisins/PassageVoisins.h"

#include "acquire/Passage.h"
#include "db/ChampsPublies.h"
#include "db/EnonceFilm.h"
#include "edit/ChampsLus.h"
#include "edit/Complement.h"
#include "edit/LignePossession.h"
#include "util/Nombres.h"
#include "voisins/Affiches.h"

#include <algorithm>
#include <numeric>

namespace voisins {

namespace {

constexpr std::pair<const char*, std::string PossessionVoisine::*> kDePossession[]{
    {"Support", &PossessionVoisine::support}, {"Rangement", &PossessionVoisine::rangement},
    {"Pret", &PossessionVoisine::pret},       {"Reserve", &PossessionVoisine::reserve},
    {"Date", &PossessionVoisine::date},       {"Divers", &PossessionVoisine::divers}};
static_assert(std::size(kDePossession) + std::tuple_size_v<decltype(PossessionVoisine::fichiers)> ==
              db::kChampsDePossession.size());

// Those of files and those without any keep their order; those of an archive are taken as they lie in it.
std::vector<std::size_t> ordreDesAffiches(const Examen& examen) {
    std::vector<std::size_t> ordre(examen.collection.films.size());
    std::iota(ordre.begin(), ordre.end(), 0U);
    std::erase_if(ordre, [&](std::size_t rang) {
        const Jugement& celui = examen.jugements[rang];
        return !celui.aAjouter && !(celui.sort == edit::SortDuFilm::DejaLa && examen.complete);
    });
    std::ranges::stable_sort(ordre, {}, [&](std::size_t rang) { return examen.collection.films[rang].affiche.rang; });
    return ordre;
}

}  // namespace

PassageVoisins::PassageVoisins(const acquire::Contexte& c, const Examen& examen)
    : m_c(c),
      m_examen(examen),
      m_ordre(ordreDesAffiches(examen)),
      m_juge(c, false),
      m_lot(c),
      m_affiches(c),
      m_jour(c.horloge.dateDuJour()) {}

acquire::RapportImport PassageVoisins::execute() {
    const auto echec = acquire::conduitPassage(
        m_lot, m_affiches, [this] { importeTout(); }, [this] { confirmeLot(); });
    if (echec) m_c.dialogues.MsgBox(echec->texte, echec->style);
    return rapport();
}

acquire::RapportImport PassageVoisins::rapport() {
    const auto ligne = [this](long nombre, std::string_view un, std::string_view plusieurs) {
        if (nombre > 0) m_acquis.rangement.push_back(util::phraseCompte(nombre, un, plusieurs));
    };
    ligne(m_compteAcquis.possedes, "# film ajouté est possédé.", "# films ajoutés sont possédés.");
    ligne(m_compteAcquis.possessions, "# film déjà présent est maintenant possédé.",
          "# films déjà présents sont maintenant possédés.");
    ligne(m_compteAcquis.completes, "# film déjà présent a reçu des champs qui lui manquaient.",
          "# films déjà présents ont reçu des champs qui leur manquaient.");
    ligne(m_compteAcquis.pretes, "# film est prêté.", "# films sont prêtés.");
    m_acquis.rangement.insert(m_acquis.rangement.end(), m_examen.collection.remarques.begin(),
                              m_examen.collection.remarques.end());
    ligne(static_cast<long>(m_ordre.size() - m_faitsAcquis),
          "L'import a été interrompu : relancez-le pour ajouter le film qui reste.",
          "L'import a été interrompu : relancez-le pour ajouter les # films qui restent.");
    return m_acquis;
}

void PassageVoisins::importeTout() {
    m_affiches.prepareDossier();
    ensemble::Avancement avancement(m_c, std::ssize(m_ordre), "");
    for (const std::size_t rang : m_ordre) {
        m_c.travaux.lblTravail.Caption = m_examen.collection.films[rang].titre;
        importe(rang);
        ++m_faits;
        if (m_lot.estPlein()) confirmeLot();
        if (!avancement.avance()) break;
    }
    confirmeLot();
}

void PassageVoisins::importe(std::size_t rang) {
    const FilmVoisin& film = m_examen.collection.films[rang];
    m_lot.commence();  // the checks of one lot share what they read
    if (m_juge.juge(film) != edit::SortDuFilm::DejaLa) {
        ajoute(film);
        m_juge.ajoute(film);
    } else {
        m_rapport.titresRefuses.push_back(film.titre);
        if (m_examen.complete) complete(film);
    }
}

void PassageVoisins::ajoute(const FilmVoisin& film) {
    const acquire::AfficheImportee affiche = afficheDe(film);
    dao::Recordset& films = m_c.base.films;
    films.AddNew();
    films.assigne("Titre", film.titre);
    films.assigne("Realisateur", film.realisateur);
    for (const edit::ChampLu& champ : edit::kChampsLus)
        films.assigne(champ.colonne, film.*champ.valeur);
    films.assigne("Note", film.note == 0 ? dao::Valeur() : dao::Valeur(film.note));
    films.assigne("DateAjout", film.dateAjout.empty() && !film.sansAjout ? m_jour : film.dateAjout);
    films.assigne("Affiche", affiche.valeur);
    films.Update();
    if (estPossede(film)) {
        ajoutePossessions(film);
        ++m_compte.possedes;
    }
    ++m_rapport.ajoutes;
    m_lot.compteFiche(film.resume.size() + affiche.octets);
}

bool PassageVoisins::estPossede(const FilmVoisin& film) const {
    return film.possession && (m_examen.possedes || *film.possession != PossessionVoisine());
}

void PassageVoisins::ajoutePossessions(const FilmVoisin& film) {
    ajoutePossession(film, *film.possession);
    for (const PossessionVoisine& autre : film.autres)
        ajoutePossession(film, autre);
}

void PassageVoisins::ajoutePossession(const db::CleFilm& film, const PossessionVoisine& celle) {
    dao::Recordset& personnel = m_c.base.personnel;
    personnel.AddNew();
    edit::nommeFilmPossede(personnel, film);
    for (const auto& [champ, valeur] : kDePossession)
        personnel.assigne(champ, celle.*valeur);
    for (std::size_t i = 0; i < celle.fichiers.size(); ++i)
        personnel.assigne("Fichier" + std::to_string(i + 1), celle.fichiers[i]);
    personnel.Update();
    if (!celle.pret.empty()) ++m_compte.pretes;
}

// What is there is never changed: only what is empty or missing comes.
void PassageVoisins::complete(const FilmVoisin& film) {
    std::size_t octets = 0;
    if (estPossede(film) && m_c.base.base.OpenRecordset(db::enoncePossession(film)).Eof()) {
        ajoutePossessions(film);
        ++m_compte.possessions;
    }
    if (dao::Recordset fiche = m_c.base.base.OpenRecordset(db::enonceFilm(film)); !fiche.Eof()) {
        const bool remplie = !edit::champsACompleter(fiche, film).empty();
        acquire::AfficheImportee affiche;
        if (film.affiche.ou != AfficheVoisine::Ou::Nulle && fiche.texte(edit::kChampAffiche).empty())
            affiche = afficheDe(film);
        const bool illustree = affiche.octets > 0 || !affiche.valeur.texte().empty();
        if (remplie || illustree) {
            fiche.Edit();
            edit::complete(fiche, film);
            if (illustree) fiche.assigne(edit::kChampAffiche, affiche.valeur);
            fiche.Update();
            m_compte.completes += remplie ? 1 : 0;
            m_rapport.affichesAjoutees += illustree ? 1 : 0;
            octets = film.resume.size() + affiche.octets;
        }
    }
    m_lot.compteFiche(octets);
}

acquire::AfficheImportee PassageVoisins::afficheDe(const FilmVoisin& film) {
    const auto manque = [&](const std::string& raison) {
        m_rapport.affichesManquantes.push_back(film.titre + raison);
        return acquire::AfficheImportee();
    };
    if (film.affiche.ou == AfficheVoisine::Ou::Nulle)
        return film.affiche.nommee ? manque("") : acquire::AfficheImportee();
    const Affiches::Lecture lue = m_examen.collection.affiches->lis(film.affiche, m_affiches.limite());
    const std::string tropGrande = m_affiches.dansLaBase() ? " (trop grande pour la base) " : " (trop grande) ";
    if (!lue.octets) return manque(lue.tropGrande ? tropGrande : " (illisible) ");
    const bool tientDansLaBase = static_cast<std::int64_t>(lue.octets->size()) < db::kTailleMaxAffiche;
    const auto placee = m_affiches.place(film, *lue.octets, tientDansLaBase);
    return placee ? *placee : manque(tropGrande);
}

void PassageVoisins::confirmeLot() {
    confirme(m_lot, m_affiches);
    m_acquis = m_rapport;
    m_compteAcquis = m_compte;
    m_faitsAcquis = m_faits;
}

}  // namespace voisins
