#include "acquire/PassageAncienne.h"

#include "db/Affiches.h"
#include "db/ChampsPublies.h"
#include "db/EnonceFilm.h"
#include "platform/dao/Comparaison.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace acquire {

namespace {

constexpr std::string_view kAffiche = db::kAffiche;

std::string cleDuFilm(const db::CleFilm& film) {
    return dao::cleDeComparaison(film.titre) + '\0' + dao::cleDeComparaison(film.realisateur);
}

// Hands the film of each row.
template <typename Recoit>
void parcourt(dao::Recordset& lignes, const char* titre, const char* realisateur, Recoit recoit) {
    const dao::Colonne titres = lignes.colonne(titre), realisateurs = lignes.colonne(realisateur);
    for (; !lignes.Eof(); lignes.MoveNext())
        recoit(cleDuFilm({std::string(lignes.vue(titres)), std::string(lignes.vue(realisateurs))}));
}

void exigeChamps(const dao::Recordset& lignes, std::span<const std::string_view> champs) {
    for (const std::string_view champ : champs)
        if (lignes.colonne(champ).rang < 0)
            throw dao::ErreurDao(dao::kErreurChampIntrouvable,
                                 "Le champ " + util::entreChevrons(champ) + " manque dans la base à importer.");
}

// All but the poster, which may move.
void copieChamps(dao::Recordset& de, dao::Recordset& vers, std::span<const std::string_view> champs) {
    for (const std::string_view champ : champs)
        if (champ != kAffiche) vers.assigne(champ, de.valeur(champ));
}

}  // namespace

PassageAncienne::PassageAncienne(const Contexte& c, dao::Database& ancienne, std::string dossierImages)
    : m_c(c),
      m_films(ancienne.OpenRecordset("SELECT * FROM Films ;")),
      m_possessions(ancienne.OpenRecordset("SELECT * FROM Personnel ;")),
      m_dossierImages(std::move(dossierImages)),
      m_lot(c),
      m_affiches(c) {
    exigeChamps(m_films, db::kChampsFilms);
    exigeChamps(m_possessions, db::kChampsPersonnel);
}

void PassageAncienne::execute() {
    m_echec = conduitPassage(
        m_lot, m_affiches, [this] { reprendTout(); }, [] {});
    if (m_echec) m_acquis.interrompu = true;
}

void PassageAncienne::reprendTout() {
    m_affiches.prepareDossier();
    releve();
    m_c.ajout.ProgressBar1.Max = std::max(1L, m_films.RecordCount() + static_cast<long>(m_aReprendre.size()));
    m_c.ajout.ProgressBar1.Value = 0;
    reprendFilms();
    if (!m_rapport.interrompu) reprendOrphelines();
    confirmeLot();
}

void PassageAncienne::releve() {
    dao::Recordset films = m_c.base.base.OpenRecordset("SELECT Titre, Realisateur FROM Films ;");
    parcourt(films, "Titre", "Realisateur", [this](std::string cle) { m_connus.insert(std::move(cle)); });
    dao::Recordset possessions = m_c.base.base.OpenRecordset("SELECT Titre2, Realisateur2 FROM Personnel ;");
    parcourt(possessions, "Titre2", "Realisateur2", [this](std::string cle) { m_possedes.insert(std::move(cle)); });
    long rang = 0;
    parcourt(m_possessions, "Titre2", "Realisateur2",
             [&](std::string cle) { m_aReprendre.try_emplace(std::move(cle), rang++); });
}

void PassageAncienne::reprendFilms() {
    for (; !m_films.Eof(); m_films.MoveNext()) {
        reprendFilm();
        if (!poursuit()) return;
    }
}

// Of a film that was there, and is not possessed or has no poster, the holding or the poster is taken too.
void PassageAncienne::reprendFilm() {
    const db::CleFilm film = filmCourant();
    const std::string cle = cleDuFilm(film);
    m_c.ajout.lblProgression.Caption = film.titre;
    if (m_connus.insert(cle).second) {
        ajouteFilm();
        static_cast<void>(reprendPossession(cle));
        if (m_possedes.contains(cle)) ++m_rapport.possedes;
    } else {
        ++m_rapport.dejaPresents;
        if (reprendPossession(cle)) ++m_rapport.possessions;
        completeAffiche(film);
    }
}

db::CleFilm PassageAncienne::filmCourant() const {
    return {m_films.texte("Titre"), m_films.texte("Realisateur")};
}

void PassageAncienne::ajouteFilm() {
    m_lot.commence();
    const dao::Valeur ancienne = m_films.valeur(kAffiche);
    const std::string texte = ancienne.texte();
    const auto reprise = reprendAffiche(texte, "");
    dao::Recordset& films = m_c.base.films;
    films.AddNew();
    copieChamps(m_films, films, db::kChampsFilms);
    films.assigne(kAffiche, reprise ? reprise->valeur : ancienne);
    films.Update();
    ++m_rapport.ajoutes;
    m_lot.compteFiche(reprise ? reprise->octets : texte.size());
}

// A film without its poster names none, or names the one of the previous installation, which is not here.
void PassageAncienne::completeAffiche(const db::CleFilm& film) {
    dao::Recordset fiche = m_c.base.base.OpenRecordset(db::enonceFilm(film));
    if (fiche.Eof()) return;
    const std::string presente = fiche.texte(kAffiche);
    if (!presente.empty() && (!presente.starts_with(db::kDansUnFichier) || m_affiches.aSonFichier(presente))) return;
    const std::string ancienne = m_films.texte(kAffiche);
    if (ancienne.empty() || (!presente.empty() && presente != ancienne)) return;
    m_lot.commence();
    const auto reprise = reprendAffiche(ancienne, presente);
    if (!reprise) return;
    fiche.Edit();
    fiche.assigne(kAffiche, reprise->valeur);
    fiche.Update();
    ++m_rapport.affiches;
    m_lot.compteFiche(reprise->octets);
}

// False when there is none to add.
bool PassageAncienne::reprendPossession(const std::string& cle) {
    const auto ancienne = m_aReprendre.find(cle);
    if (ancienne == m_aReprendre.end()) return false;
    const long rang = ancienne->second;
    m_aReprendre.erase(ancienne);
    if (!m_possedes.insert(cle).second) return false;
    m_lot.commence();
    m_possessions.MoveFirst();
    m_possessions.Move(rang);
    dao::Recordset& personnel = m_c.base.personnel;
    personnel.AddNew();
    copieChamps(m_possessions, personnel, db::kChampsPersonnel);
    personnel.Update();
    return true;
}

// The holdings of no film of their base, in its order. Some film here may be theirs.
void PassageAncienne::reprendOrphelines() {
    std::vector<std::pair<long, std::string>> orphelines;
    for (const auto& [cle, rang] : m_aReprendre)
        orphelines.emplace_back(rang, cle);
    std::ranges::sort(orphelines);
    for (const auto& [rang, cle] : orphelines) {
        if (reprendPossession(cle)) {
            ++(m_connus.contains(cle) ? m_rapport.possessions : m_rapport.orphelines);
            m_lot.compteFiche(0);
        }
        if (!poursuit()) return;
    }
}

std::optional<AfficheImportee> PassageAncienne::reprendAffiche(const std::string& ancienne, std::string_view actuelle) {
    const std::string_view contenu = std::string_view(ancienne).substr(std::min(ancienne.size(), db::kTaillePrefixe));
    if (db::estDansLaBase(ancienne)) {
        if (m_affiches.dansLaBase()) return AfficheImportee{dao::Valeur::octets(ancienne), ancienne.size()};
        return place(contenu, true, actuelle);
    }
    if (!ancienne.starts_with(db::kDansUnFichier)) return std::nullopt;
    const auto octets = litImage(ancienne);
    if (!octets) return std::nullopt;
    return place(*octets, static_cast<std::int64_t>(octets->size()) <= db::kTailleMaxAffiche, actuelle);
}

std::optional<std::string> PassageAncienne::litImage(const std::string& ancienne) {
    const auto image = db::fichierAffiche(m_dossierImages, ancienne);
    auto octets = image ? fichiers::litSansLien(image->chemin, m_affiches.limite()) : std::nullopt;
    const bool tropGrande = image && fichiers::longueur(image->chemin) > m_affiches.limite();
    if (!octets) ++(tropGrande ? m_rapport.tropGrandes : m_rapport.nonTrouvees);
    return octets;
}

std::optional<AfficheImportee> PassageAncienne::place(std::string_view octets, bool tientDansLaBase,
                                                      std::string_view actuelle) {
    auto placee = m_affiches.place(filmCourant(), octets, tientDansLaBase, actuelle);
    if (!placee) ++m_rapport.tropGrandes;
    return placee;
}

bool PassageAncienne::poursuit() {
    ++m_c.ajout.ProgressBar1.Value;
    if (m_lot.estPlein()) confirmeLot();
    m_rapport.interrompu = !m_c.ecran.respire();
    return !m_rapport.interrompu;
}

void PassageAncienne::confirmeLot() {
    confirme(m_lot, m_affiches);
    m_acquis = m_rapport;
}

}  // namespace acquire
