#include "voisins/ImporteCollection.h"

#include "browse/CreeRequeteAffichage.h"
#include "db/Sauvegardes.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "voisins/LitCollection.h"
#include "voisins/PassageVoisins.h"

#include <algorithm>
#include <functional>

namespace voisins {

namespace {

constexpr const char* kFiltre =
    "Collections (*.tc, *.gcs, *.xml, *.nfo, "
    "*.csv…)|*.tc;*.gcs;*.gcz;*.zip;*.tar;*.gz;*.xml;*.nfo;*.csv;*.tsv;*.txt;*.amc";

void refuse(const acquire::Contexte& c, const std::string& texte) {
    c.dialogues.MsgBox(texte, dialogues::kExclamation);
}

template <typename Resultat>
std::optional<Resultat> ouRefuse(const acquire::Contexte& c, const std::function<Resultat()>& lit) {
    try {
        return lit();
    } catch (const Refus& refus) {
        refuse(c, refus.texte);
    } catch (const LectureArretee&) {
        c.avis.montre("L'import a été arrêté : rien n'a été ajouté.");
    }
    return std::nullopt;
}

Collection litAvecProgression(const acquire::Contexte& c, const std::string& chemin) {
    ensemble::Avancement avancement(c, 0, "Lecture de " + fichiers::nomDeFichier(chemin));
    return litCollection(chemin, [&](long) { return avancement.avance(0); });
}

Collection lisLesLignes(const acquire::Contexte& c, const Tableau& tableau) {
    ensemble::Avancement avancement(c, std::ssize(tableau.lignes),
                                    "Lecture de " + fichiers::nomDeFichier(tableau.chemin));
    return collectionDe(tableau, [&](long) { return avancement.avance(); });
}

// About what it will take in the base.
std::int64_t octetsAAjouter(const Examen& examen) {
    constexpr std::int64_t kAffiche = 100'000;
    std::int64_t octets = 0, affiches = 0;
    for (const FilmVoisin& film : examen.collection.films) {
        octets += db::kOctetsParLigne + static_cast<std::int64_t>(film.resume.size());
        if (film.affiche.ou != AfficheVoisine::Ou::Nulle) affiches += kAffiche;
    }
    const std::int64_t fichier = fichiers::longueur(examen.collection.chemin);
    const bool dedans =
        std::ranges::any_of(examen.collection.films, [](const FilmVoisin& film) { return film.affiche.rang >= 0; });
    return octets + (dedans && fichier > 0 ? std::min(fichier, affiches) : affiches);
}

}  // namespace

std::optional<CollectionChoisie> reconnaitCollection(const acquire::Contexte& c, const std::string& chemin) {
    return ouRefuse<CollectionChoisie>(c, [&] { return CollectionChoisie{chemin, reconnais(chemin)}; });
}

std::optional<CollectionChoisie> choisitCollection(const acquire::Contexte& c, bool unDossier,
                                                   const std::string& depart) {
    const std::string chemin = unDossier ? c.dialogues.choisitDossier("Dossier de la collection à importer", depart)
                                         : c.dialogues.choisitFichier({"Collection à importer", kFiltre, depart});
    if (chemin.empty()) return std::nullopt;
    return reconnaitCollection(c, chemin);
}

std::optional<Examen> examineCollection(const acquire::Contexte& c, const std::string& chemin) {
    return ouRefuse<Examen>(c, [&] { return examine(c, litAvecProgression(c, chemin)); });
}

std::optional<Tableau> litTableauChoisi(const acquire::Contexte& c, const std::string& chemin) {
    return ouRefuse<Tableau>(c, [&] { return litTableau(chemin); });
}

// Of a table that says nothing of any copy, films are not the user's own until he says so.
std::optional<Examen> examineTableau(const acquire::Contexte& c, const Tableau& tableau) {
    auto examen = ouRefuse<Examen>(c, [&] { return examine(c, lisLesLignes(c, tableau)); });
    if (examen)
        examen->possedes = std::ranges::find(tableau.colonnes, Colonne::Possede) != tableau.colonnes.end() ||
                           std::ranges::any_of(examen->collection.films, [](const FilmVoisin& film) {
                               return film.possession && *film.possession != PossessionVoisine();
                           });
    return examen;
}

void importeCollection(const acquire::Contexte& c, const Examen& examen) {
    browse::puisVersLaListe(c, [&] {
        if (!db::sauvegardeAvant(c, db::Avant::ImportCollection, octetsAAjouter(examen))) return;
        const acquire::RapportImport rapport = PassageVoisins(c, examen).execute();
        c.annulations.nomme(
            "import de " + util::phraseCompte(rapport.ajoutes, "# film", "# films") +
                (examen.collection.programme == Programme::Csv ? "" : " de " + nomDe(examen.collection.programme)),
            "Import : " + util::phraseCompte(rapport.ajoutes, "# film ajouté.", "# films ajoutés."));
        c.dialogues.montre(rapport.texte());
        c.rafraichissement.AffichageApresModification();
        c.rafraichissement.RaffraichitBoitesDeroulantes();
        c.rafraichissement.AfficheNbTitres();
    });
}

}  // namespace voisins
