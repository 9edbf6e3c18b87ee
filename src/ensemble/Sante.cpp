#include "ensemble/Sante.h"

#include "db/Affiches.h"
#include "db/Requete.h"
#include "db/TitreCite.h"
#include "ensemble/Avancement.h"
#include "ensemble/CleDeFilm.h"
#include "ensemble/PossessionsJointes.h"
#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Capitales.h"
#include "util/Nombres.h"
#include "util/Tables.h"
#include "util/Texte.h"
#include "view/ChercheFichier.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace ensemble {

namespace {

constexpr auto kNumero = db::NumeroErreur::Sante;

// `visite` gets each row. False when the user asked to stop.
template <typename Visite>
bool parcourt(const Contexte& c, Avancement& avancement, const std::string& enonce, Visite visite) {
    for (dao::Recordset lignes = db::ouvreRequete(c, enonce, kNumero); !lignes.Eof(); lignes.MoveNext()) {
        visite(lignes);
        if (!avancement.avance(0)) return false;
    }
    return true;
}

// To give so many back one by one takes as long as a slice of the work.
void rends(const Contexte& c, auto& valeurs) {
    db::attente(c)([&valeurs] { valeurs = {}; });
}

db::CleFilm film(const dao::Recordset& films) {
    return {films.texte("Titre"), films.texte("Realisateur")};
}

db::CleFilm filmPossede(const dao::Recordset& possessions) {
    return {possessions.texte("Titre2"), possessions.texte("Realisateur2")};
}

// Null and "" are two conditions, whose films are put in one order.
void sansChamp(const Contexte& c, Avancement& avancement, Constat& constat, const std::string& champ) {
    std::multimap<std::string, db::CleFilm> sans;
    for (const char* condition : {" Is Null", "=\"\""})
        parcourt(c, avancement, "SELECT Titre, Realisateur FROM films WHERE " + champ + condition,
                 [&](const dao::Recordset& films) {
                     db::CleFilm sien = film(films);
                     sans.emplace(cleDeFilm(sien), std::move(sien));
                 });
    for (auto& [cle, sien] : sans)
        constat.lignes.push_back({std::move(sien), ""});
    rends(c, sans);
}

// A pattern looks at the first bytes of a value only: no poster is read.
std::string enonceDesAffiches(const char* champs, std::string_view debut) {
    return "SELECT " + std::string(champs) + " FROM films WHERE Affiche LIKE \"" + std::string(debut) +
           "*\" ORDER BY Titre ASC";
}

std::vector<db::CleFilm> filmsSansAffiche(const Contexte& c, Avancement& avancement) {
    std::unordered_map<std::string, long> avec;  // by the very texts: films of one name count one by one
    const auto cle = [](const db::CleFilm& f) { return f.titre + '\0' + f.realisateur; };
    for (const std::string_view debut : {db::kDansUnFichier, db::kDansLaBase})
        parcourt(c, avancement, enonceDesAffiches("Titre, Realisateur", debut),
                 [&](const dao::Recordset& films) { ++avec[cle(film(films))]; });
    std::vector<db::CleFilm> sans;
    parcourt(c, avancement, "SELECT Titre, Realisateur FROM films ORDER BY Titre ASC",
             [&](const dao::Recordset& films) {
                 db::CleFilm sien = film(films);
                 if (const auto place = avec.find(cle(sien)); place != avec.end() && place->second > 0)
                     --place->second;
                 else
                     sans.push_back(std::move(sien));
             });
    rends(c, avec);
    return sans;
}

void sansAffiche(const Contexte& c, Avancement& avancement, Constat& constat) {
    for (db::CleFilm& sans : filmsSansAffiche(c, avancement))
        constat.lignes.push_back({std::move(sans), ""});
}

using Noms = std::unordered_set<std::string>;

void ajouteLesFichiers(const std::string& dossier, Noms& noms, dao::Cadence& cadence) {
    for (const std::string& nom : fichiers::listeFichiers(dossier)) {
        noms.insert(util::cleSansCasse(nom));
        cadence();
    }
}

// Every name under which a poster is found, each folder read once.
Noms affichesPresentes(const Contexte& c, const std::string& dossier) {
    Noms noms;
    const dao::Souffle souffle = db::souffle(c);
    dao::Cadence cadence(souffle);
    ajouteLesFichiers(dossier, noms, cadence);
    std::error_code erreur;
    const std::string base = std::filesystem::canonical(c.chemins.base, erreur).string();
    if (erreur) return noms;
    for (const std::string& voisin : {fichiers::dossierDe(base) + "Images/", fichiers::dossierDe(base)})
        ajouteLesFichiers(voisin, noms, cadence);
    return noms;
}

bool dossierPresent(const std::string& dossier) {
    return !dossier.empty() && fichiers::dossierExiste(dossier);
}

constexpr const char* kDossierAbsent = "Le dossier des images n'est pas là.";

// A folder that is away, with its disk, says nothing of its files.
void affichesAbsentes(const Contexte& c, Avancement& avancement, Constat& constat) {
    const std::string dossier = db::dossierImages(c);
    const bool present = dossierPresent(dossier);
    const Noms noms = affichesPresentes(c, dossier);
    parcourt(c, avancement, enonceDesAffiches("Titre, Realisateur, Affiche", db::kDansUnFichier),
             [&](const dao::Recordset& films) {
                 const std::string nom = db::nomDansLeDossier(films.texte("Affiche"));
                 if (!noms.contains(util::cleSansCasse(nom)))
                     constat.lignes.push_back({film(films), nom, true, present});
             });
    if (!present && !constat.lignes.empty()) constat.reserve = kDossierAbsent;
}

bool estUneImage(const std::string& nom) {
    const std::string extension = util::minuscules(fichiers::extension(nom));
    return extension == "jpg" || extension == "jpeg";
}

// One that bears the name of a film without a poster is that film's.
void affichesSansFilm(const Contexte& c, Avancement& avancement, Constat& constat) {
    const std::string dossier = db::dossierImages(c);
    Noms nommees;
    parcourt(c, avancement, enonceDesAffiches("Affiche", db::kDansUnFichier), [&](const dao::Recordset& films) {
        nommees.insert(util::cleSansCasse(db::nomDansLeDossier(films.texte("Affiche"))));
    });
    if (!dossierPresent(dossier)) {
        if (!nommees.empty()) constat.reserve = kDossierAbsent;
        return;
    }
    const dao::Souffle souffle = db::souffle(c);
    dao::Cadence cadence(souffle);
    std::unordered_map<std::string, db::CleFilm> attendues;
    for (const db::CleFilm& sans : filmsSansAffiche(c, avancement)) {
        attendues.try_emplace(util::cleSansCasse(db::nomFichierAffiche(sans.titre, sans.realisateur)), sans);
        cadence();
    }
    for (const std::string& nom : fichiers::listeFichiers(dossier)) {
        cadence();
        const std::string cle = util::cleSansCasse(nom);
        if (!estUneImage(nom) || nommees.contains(cle)) continue;
        const auto attendue = attendues.find(cle);
        const bool connue = attendue != attendues.end();
        constat.lignes.push_back({connue ? attendue->second : db::CleFilm{}, nom, connue, connue});
    }
    rends(c, attendues);
    rends(c, nommees);
}

void fichiersAbsents(const Contexte& c, Avancement& avancement, Constat& constat) {
    const std::vector<systeme::Volume> volumes = c.volumes.liste();
    parcourt(c, avancement, "SELECT * FROM personnel ORDER BY Titre2 ASC", [&](const dao::Recordset& possessions) {
        for (const char* champ : {"Fichier1", "Fichier2", "Fichier3"}) {
            const std::string fichier = possessions.texte(champ);
            if (!dao::egalJet(fichier, "") && !view::chercheFichier(fichiers::cheminTape(fichier, ""), volumes))
                constat.lignes.push_back({filmPossede(possessions), fichier});
        }
    });
}

Noms clesDesFilms(const Contexte& c, Avancement& avancement) {
    Noms cles;
    parcourt(c, avancement, "SELECT Titre, Realisateur FROM films",
             [&](const dao::Recordset& films) { cles.insert(cleDeFilm(film(films))); });
    return cles;
}

void possessionsSansFilm(const Contexte& c, Avancement& avancement, Constat& constat) {
    Noms films = clesDesFilms(c, avancement);
    parcourt(c, avancement, "SELECT * FROM personnel ORDER BY Titre2 ASC", [&](const dao::Recordset& possessions) {
        const db::CleFilm sien = filmPossede(possessions);
        const std::string cle = cleDeFilm(sien);
        if (films.contains(cle)) return;
        const std::string support = possessions.texte("Support");
        // One sheet is enough for two holdings of one name.
        const bool reparable = !dao::egalJet(sien.titre, "") && films.insert(cle + '\x1').second;
        constat.lignes.push_back({sien, support, false, reparable});
    });
    rends(c, films);
}

void possessionsDoubles(const Contexte& c, Avancement& avancement, Constat& constat) {
    struct Double {
        db::CleFilm film;
        ValeursDePossession valeurs;
        long combien = 1;
        bool joignables = true;
    };
    std::map<std::string, Double> connues;
    parcourt(c, avancement, "SELECT * FROM personnel ORDER BY Titre2 ASC", [&](const dao::Recordset& possessions) {
        const db::CleFilm sien = filmPossede(possessions);
        ValeursDePossession valeurs = litPossession(possessions);
        const auto [place, nouvelle] = connues.try_emplace(cleDeFilm(sien), Double{sien, valeurs});
        if (nouvelle) return;
        Double& connue = place->second;
        ++connue.combien;
        const auto ensemble = jointes(connue.valeurs, valeurs);
        connue.joignables = connue.joignables && ensemble;
        if (ensemble) connue.valeurs = *ensemble;
    });
    Noms films = clesDesFilms(c, avancement);
    for (const auto& [cle, connue] : connues)
        if (connue.combien > 1)
            constat.lignes.push_back(
                {connue.film,
                 std::to_string(connue.combien) + " possessions" + (connue.joignables ? "" : " qui se contredisent"),
                 films.contains(cle), connue.joignables});
    rends(c, connues);
    rends(c, films);
}

void titresACorriger(const Contexte& c, Avancement& avancement, Constat& constat) {
    parcourt(c, avancement, "SELECT Titre, Realisateur FROM films ORDER BY Titre ASC",
             [&](const dao::Recordset& films) {
                 db::CleFilm sien = film(films);
                 std::string corrige = util::metEnCapitales(sien.titre);
                 if (corrige != sien.titre) constat.lignes.push_back({std::move(sien), std::move(corrige), true, true});
             });
}

struct Genre {
    Mal mal;
    const char *titre, *reparation;
    void (*examine)(const Contexte&, Avancement&, Constat&);
};

constexpr std::array kGenres{
    Genre{Mal::SansAffiche, "Fiches sans affiche", "", sansAffiche},
    Genre{Mal::SansAnnee, "Fiches sans année", "",
          [](const Contexte& c, Avancement& a, Constat& constat) { sansChamp(c, a, constat, "Annee"); }},
    Genre{Mal::SansRealisateur, "Fiches sans réalisateur", "",
          [](const Contexte& c, Avancement& a, Constat& constat) { sansChamp(c, a, constat, "Realisateur"); }},
    Genre{Mal::SansResume, "Fiches sans résumé", "",
          [](const Contexte& c, Avancement& a, Constat& constat) { sansChamp(c, a, constat, "Resume"); }},
    Genre{Mal::AfficheAbsente, "Affiches dont le fichier manque", "Oublier les fichiers absents", affichesAbsentes},
    Genre{Mal::AfficheSansFilm, "Fichiers d'affiche sans film", "Rendre les affiches à leurs films", affichesSansFilm},
    Genre{Mal::FichierAbsent, "Fichiers joints introuvables", "", fichiersAbsents},
    Genre{Mal::PossessionSansFilm, "Possessions sans fiche", "Créer les fiches", possessionsSansFilm},
    Genre{Mal::PossessionDouble, "Films possédés deux fois", "Réunir les possessions", possessionsDoubles},
    Genre{Mal::TitreACorriger, "Titres à corriger", "Corriger les titres", titresACorriger},
};
static_assert(util::dansLOrdre(kGenres, &Genre::mal, Mal::TitreACorriger));

Constat examineGenre(const Contexte& c, Avancement& avancement, const Genre& genre) {
    Constat constat{genre.mal, genre.titre, genre.reparation};
    genre.examine(c, avancement, constat);
    return constat;
}

}  // namespace

long Constat::reparables() const {
    return std::count_if(lignes.begin(), lignes.end(), [](const LigneDeSante& ligne) { return ligne.reparable; });
}

std::string Constat::texte() const {
    if (!complet) return titre + " : l'examen a été arrêté";
    const long toutes = std::ssize(lignes), celles = reparables();
    std::string texte = titre + " : " + std::to_string(toutes);
    if (!reserve.empty()) return (toutes == 0 ? titre + " : " : texte + ". ") + reserve;
    if (celles != 0 && celles != toutes)
        texte += util::phraseCompte(celles, ", dont # réparable", ", dont # réparables");
    return texte;
}

std::string Constat::texteReparation() const {
    return reparables() == 0 ? "" : reparation + " (" + std::to_string(reparables()) + ")";
}

std::string LigneDeSante::pourquoiSansFiche() const {
    if (film.titre.empty()) return "Aucun film ne correspond à " + db::titreCite(detail) + ".";
    return db::titreCite(film.titre) + " n'a pas de fiche.";
}

std::string Examen::bilan() const {
    long lignes = 0;
    for (const Constat& constat : constats)
        lignes += std::ssize(constat.lignes);
    if (!complet) return "L'examen a été arrêté avant la fin.";
    return lignes == 0 ? "La base est en bonne santé."
                       : util::phraseCompte(lignes, "# point à revoir.", "# points à revoir.");
}

Examen examine(const Contexte& c) {
    Avancement avancement(c, std::ssize(kGenres), "Examen de la base");
    Examen examen;
    for (const Genre& genre : kGenres) {
        Constat constat = examineGenre(c, avancement, genre);
        examen.complet = avancement.avance();
        if (!examen.complet) return examen;
        examen.constats.push_back(std::move(constat));
    }
    return examen;
}

Constat examine(const Contexte& c, Mal mal) {
    Avancement avancement(c, 1, "Examen de la base");
    Constat constat = examineGenre(c, avancement, kGenres[static_cast<std::size_t>(mal)]);
    constat.complet = !avancement.arrete();
    if (!constat.complet) constat.lignes.clear();  // a part of it would pass for all
    return constat;
}

}  // namespace ensemble
