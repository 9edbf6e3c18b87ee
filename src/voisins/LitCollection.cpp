#include "voisins/LitCollection.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"
#include "voisins/Valeurs.h"

#include <algorithm>
#include <array>

namespace voisins {

namespace {

std::string inconnue() {
    return "Ce fichier n'est pas une collection que le programme sait lire. Sont lues " + ceQuiSeLit() + ".";
}
constexpr const char* kAnt =
    "Ce fichier est un catalogue d'Ant Movie Catalog (.amc), que ce programme ne lit pas. Dans Ant Movie Catalog, "
    "choisissez "
    "« Fichier », « Exporter », « XML » avec les images, puis importez le fichier .xml obtenu.";

// Where the document of a collection is: a file, or an entry of an archive.
struct Ou {
    std::string chemin;
    std::optional<long> entree{};  // its rank
    std::string nom{};
};

std::string debutDe(const std::string& chemin) {
    std::string debut(512, '\0');
    const std::ptrdiff_t lus = sourceDuFichier(chemin)(debut.data(), debut.size());
    debut.resize(lus > 0 ? static_cast<std::size_t>(lus) : 0);
    return debut;
}

bool estUnDocument(const std::string& chemin) {
    const std::string debut = debutDe(chemin);
    const auto large = util::decodeTexteLarge(debut);
    std::string texte = sansBlancs(large ? *large : debut);
    if (texte.starts_with("\xEF\xBB\xBF")) texte = sansBlancs(texte.substr(3));
    return texte.starts_with('<');
}

bool nommeUnDocument(const std::string& nom) {
    const std::string extension = util::minuscules(fichiers::extension(nom));
    return extension == "gcs" || extension == "xml";
}

// Of the entries of an archive the one that is a collection; nothing where there is none.
std::optional<Ou> documentDeLArchive(const std::string& chemin, Affiches* affiches) {
    auto archive = archives::Archive::ouvre(chemin);
    std::optional<Ou> trouve;
    std::size_t profondeur = 0;
    while (archive) {
        const auto entree = archive->suivante();
        if (!entree) break;
        if (affiches) affiches->connaisEntree(entree->nom, entree->rang);
        const auto barres = static_cast<std::size_t>(std::ranges::count(entree->nom, '/'));
        if (!nommeUnDocument(entree->nom) || (trouve && barres >= profondeur)) continue;
        trouve = {chemin, entree->rang, entree->nom};
        profondeur = barres;
    }
    if (archive && archive->abimee()) throw Refus{"L'archive " + chemin + " est abîmée, ou trop grande."};
    return trouve;
}

// Of a folder: what bears the name of a collection in it.
std::optional<Ou> documentDuDossier(const std::string& dossier) {
    const std::vector<std::string> noms = fichiers::listeFichiers(dossier);
    for (const char* connu : {"tellico.xml", "videodb.xml", "collection.gcs"})
        for (const std::string& nom : noms)
            if (util::egalSansCasse(nom, connu)) return Ou{dossier + nom};
    std::optional<Ou> seul;
    for (const std::string& nom : noms) {
        const std::string extension = util::minuscules(fichiers::extension(nom));
        if (extension != "tc" && extension != "gcs") continue;
        if (seul) throw Refus{"Ce dossier contient plusieurs collections : choisissez le fichier de l'une d'elles."};
        seul = Ou{dossier + nom};
    }
    return seul;
}

xml::Source sourceDe(const Ou& ou) {
    if (!ou.entree) return sourceDuFichier(ou.chemin);
    auto archive = std::make_shared<std::optional<archives::Archive>>(archives::Archive::ouvre(ou.chemin));
    while (*archive) {
        const auto entree = (*archive)->suivante();
        if (entree && entree->rang < *ou.entree) continue;
        if (!entree) archive->reset();
        break;
    }
    return [archive](char* vers, std::size_t place) -> std::ptrdiff_t {
        return *archive ? (*archive)->lis(vers, place) : -1;
    };
}

// The document of a collection of that path, and where its pictures may be. Nothing for a text.
std::optional<Ou> situeDocument(const std::string& chemin, Affiches* affiches) {
    Ou ou{chemin};
    if (archives::Archive::ouvre(chemin)) {
        const auto dedans = documentDeLArchive(chemin, affiches);
        if (!dedans) throw Refus{inconnue()};
        ou = *dedans;
        if (affiches) affiches->poseArchive(chemin);
    } else if (!estUnDocument(chemin)) {
        return std::nullopt;
    }
    if (!affiches) return ou;
    const std::string sansExtension = fichiers::sansExtension(chemin);
    for (const char* suite : {"_files", "_images", "_pictures"})
        affiches->ajouteDossier(sansExtension + suite);
    affiches->ajouteDossier(fichiers::dossierDe(chemin) + "images");
    affiches->ajouteDossier(fichiers::dossierDe(chemin));
    for (const char* propre : {"~/.local/share/tellico/data", "~/.local/share/gcstar/images"})
        affiches->ajouteDossier(fichiers::cheminTape(propre, ""));
    return ou;
}

[[noreturn]] void refuseIllisible(const Ou& ou, const xml::Illisible& erreur) {
    const std::string nom = ou.nom.empty() ? fichiers::nomDeFichier(ou.chemin) : ou.nom;
    throw Refus{"La collection " + ou.chemin + " ne peut pas être lue : " + nom + " est abîmé, coupé ou démesuré" +
                (erreur.ligne > 0 ? " (ligne " + std::to_string(erreur.ligne) + ")" : std::string()) +
                ".\nRien n'a été importé."};
}

// Of a folder, its document; the folder itself where it is one of sheets.
std::string cheminDe(const std::string& chemin) {
    if (!fichiers::dossierExiste(chemin)) return chemin;
    const auto document = documentDuDossier(util::avecSeparateur(chemin));
    if (document) return document->chemin;
    if (!aDesFichesKodi(chemin))
        throw Refus{"Le dossier " + chemin + " ne contient ni collection ni fiche .nfo que le programme sache lire."};
    return chemin;
}

Programme reconnaisDocument(const Ou& ou) {
    xml::Lecture document(sourceDe(ou));
    try {
        if (const auto programme = programmeDuDocument(document)) return *programme;
    } catch (const xml::Illisible& erreur) {
        refuseIllisible(ou, erreur);
    }
    throw Refus{inconnue()};
}

void lisDocument(const Ou& ou, Collection& collection, const Suivi& suivi, Films& films) {
    xml::Lecture document(sourceDe(ou));
    try {
        litDocument(collection.programme, document, *collection.affiches, suivi, films);
    } catch (const xml::Illisible& erreur) {
        refuseIllisible(ou, erreur);
    }
}

}  // namespace

Programme reconnais(const std::string& voulu) {
    const std::string chemin = cheminDe(voulu);
    if (fichiers::dossierExiste(chemin)) return Programme::Kodi;
    if (fichiers::longueur(chemin) < 0) throw Refus{"Le fichier " + chemin + " n'existe pas, ou ne peut pas être lu."};
    const std::string debut = debutDe(chemin);
    if (debut.empty()) throw Refus{"Le fichier " + chemin + " est vide, ou ne peut pas être lu."};
    if (debut.starts_with(" AMC_")) throw Refus{kAnt};
    if (const auto document = situeDocument(chemin, nullptr)) return reconnaisDocument(*document);
    if (!util::decodeTexteLarge(debut) && debut.find('\0') != std::string::npos) throw Refus{inconnue()};
    return Programme::Csv;
}

Collection litCollection(const std::string& voulu, const Suivi& suivi) {
    Collection collection{reconnais(voulu), cheminDe(voulu)};
    collection.affiches = std::make_shared<Affiches>();
    Films films;
    if (fichiers::dossierExiste(collection.chemin)) {
        const long autres = litDossierKodi(collection.chemin, suivi, films);
        if (autres > 0)
            collection.remarques.push_back(
                util::phraseCompte(autres, "# fiche .nfo n'est pas celle d'un film : elle est laissée de côté.",
                                   "# fiches .nfo ne sont pas celles de films : elles sont laissées de côté."));
    } else if (const auto document = situeDocument(collection.chemin, collection.affiches.get())) {
        if (!document->entree) collection.affiches->poseDocument(document->chemin);
        lisDocument(*document, collection, suivi, films);
    }
    films.verse(collection);
    if (collection.films.empty()) throw Refus{"La collection " + collection.chemin + " ne contient aucun film."};
    return collection;
}

}  // namespace voisins
