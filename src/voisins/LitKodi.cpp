#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"
#include "voisins/Lecteurs.h"
#include "voisins/Valeurs.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <system_error>

namespace voisins {

namespace {

constexpr int kProfondeur = 12;                 // of the folders below the one chosen
constexpr std::int64_t kFicheAuPlus = 8 << 20;  // bytes
constexpr std::array kImages = {".jpg", ".jpeg", ".png", ".webp", ".tbn"};
constexpr std::string_view kVideos[] = {"avi",  "divx", "iso", "m2ts", "m4v", "mkv",  "mov", "mp4",
                                        "mpeg", "mpg",  "ogm", "ts",   "vob", "webm", "wmv"};

std::vector<std::string> textesDe(const xml::Element& film, std::string_view nom) {
    std::vector<std::string> textes;
    for (const xml::Element& enfant : film.enfants)
        if (enfant.nom == nom)
            for (std::string& morceau : morceaux(enfant.texte, nom == "studio" || nom == "tag" ? "\n" : "/\n"))
                textes.push_back(std::move(morceau));
    return textes;
}

// The rating that the program shows, as a line: it is the public's.
void metNotes(const xml::Element& film, FicheBrute& fiche) {
    fiche.note = noteDe(film.texteDe("userrating"), 10);
    std::string note(film.texteDe("rating"));
    double sur = 10;
    if (const xml::Element* notes = film.enfant("ratings"))
        for (const xml::Element& celle : notes->enfants) {
            if (!note.empty() && celle.attribut("default") != "true") continue;
            note = celle.texteDe("value");
            sur = util::Val(celle.attribut("max"));
        }
    const double valeur = util::Val(note);
    if (valeur > 0)
        fiche.ligne("Note du public", util::texteDuNombre(util::tronque(valeur, 1), ",") + "/" +
                                          util::texteDuNombre(sur > 0 ? sur : 10, ","));
}

void metPistes(const xml::Element& film, FicheBrute& fiche) {
    const xml::Element* fichier = film.enfant("fileinfo");
    const xml::Element* pistes = fichier ? fichier->enfant("streamdetails") : nullptr;
    if (!pistes) return;
    std::vector<std::string> images, sons, sousTitres;
    for (const xml::Element& piste : pistes->enfants) {
        const std::string codec = sansBlancs(piste.texteDe("codec"));
        const std::string langue = sansBlancs(piste.texteDe("language"));
        if (piste.nom == "video") {
            const std::string largeur = sansBlancs(piste.texteDe("width")),
                              hauteur = sansBlancs(piste.texteDe("height"));
            images.push_back(codec + (largeur.empty() ? "" : " " + largeur + " × " + hauteur));
        } else if (piste.nom == "audio") {
            const std::string canaux = sansBlancs(piste.texteDe("channels"));
            sons.push_back(
                assemble(morceaux(langue + ";" + codec + ";" + (canaux.empty() ? "" : canaux + " canaux"), ";"), " "));
        } else if (piste.nom == "subtitle" && !langue.empty()) {
            sousTitres.push_back(langue);
        }
    }
    fiche.ligne("Format vidéo", assemble(images, ", "));
    fiche.ligne("Pistes audio", assemble(sons, ", "));
    fiche.ligne("Sous-titres", assemble(sousTitres, ", "));
}

void metLignes(const xml::Element& film, FicheBrute& fiche) {
    const auto texte = [&](const char* nom) { return sansBlancs(film.texteDe(nom)); };
    fiche.ligne("Titre de tri", texte("sorttitle") == fiche.titre ? "" : texte("sorttitle"));
    fiche.ligne("Accroche", texte("tagline"));
    fiche.ligne("Scénario", assemble(textesDe(film, "credits"), ", "));
    fiche.ligne("Classification", texte("mpaa"));
    if (const xml::Element* saga = film.enfant("set"))
        fiche.ligne("Saga", saga->enfant("name") ? saga->texteDe("name") : std::string_view(saga->texte));
    fiche.ligne("Mots-clés", assemble(textesDe(film, "tag"), ", "));
    const bool vu = util::Val(texte("playcount")) > 0 || texte("watched") == "true";
    fiche.ligne(kVu, vu ? "oui" : "");
    fiche.ligne("Vu le", dateDe(texte("lastplayed")));
    bool identifie = false;
    for (const xml::Element& enfant : film.enfants)
        if (enfant.nom == "uniqueid") {
            identifie = true;
            fiche.ligne("Identifiant " + std::string(enfant.attribut("type")), enfant.texte);
        }
    if (!identifie) fiche.ligne("Identifiant", texte("id"));
    if (const std::string annonce = texte("trailer"); !annonce.starts_with("plugin:"))
        fiche.ligne("Bande-annonce", annonce);
}

FicheBrute ficheDe(const xml::Element& film) {
    FicheBrute fiche;
    const auto texte = [&](const char* nom) { return sansBlancs(film.texteDe(nom)); };
    fiche.titre = texte("title");
    fiche.titreOriginal = texte("originaltitle");
    fiche.annee = anneeDe(texte("year")).empty() ? texte("premiered") : texte("year");
    fiche.duree = texte("runtime");
    fiche.realisateurs = textesDe(film, "director");
    fiche.genres = textesDe(film, "genre");
    fiche.pays = textesDe(film, "country");
    fiche.productions = textesDe(film, "studio");
    fiche.resume = texte("plot").empty() ? texte("outline") : texte("plot");
    fiche.dateAjout = dateDe(texte("dateadded"));
    if (const std::string fichier = texte("filenameandpath"); !fichier.empty()) fiche.fichiers.push_back(fichier);
    for (const xml::Element& enfant : film.enfants)
        if (enfant.nom == "actor")
            fiche.acteurs.push_back({std::string(enfant.texteDe("name")), std::string(enfant.texteDe("role"))});
    metNotes(film, fiche);
    metLignes(film, fiche);
    metPistes(film, fiche);
    return fiche;
}

// What no file name can hold, as that program writes it.
std::string nomLegal(const std::string& nom) {
    return util::nettoieNomFichier(nom, "_");
}

// In an export in one file, the pictures bear the film's title and year.
AfficheVoisine afficheExportee(const FicheBrute& fiche, const Affiches& affiches) {
    const std::string nom = nomLegal(fiche.titre) + "_" + anneeDe(fiche.annee);
    for (const char* dossier : {"movies/", ""})
        for (const char* suite : {"-poster", ""})
            for (const char* extension : kImages)
                if (AfficheVoisine affiche = affiches.trouve(dossier + nom + suite + extension);
                    affiche.ou != AfficheVoisine::Ou::Nulle)
                    return affiche;
    return {};
}

struct Dossier {
    std::string chemin;                           // with its final separator
    std::vector<std::string> fichiers, dossiers;  // names, sorted
};

// A link leads out of the collection: it is passed over.
Dossier lisDossier(const std::string& chemin) {
    Dossier dossier{util::avecSeparateur(chemin), {}, {}};
    for (std::string& nom : fichiers::listeNoms(dossier.chemin)) {
        std::error_code ignoree;
        const auto sorte = std::filesystem::symlink_status(dossier.chemin + nom, ignoree).type();
        if (sorte == std::filesystem::file_type::regular)
            dossier.fichiers.push_back(std::move(nom));
        else if (sorte == std::filesystem::file_type::directory)
            dossier.dossiers.push_back(std::move(nom));
    }
    std::ranges::sort(dossier.fichiers);
    std::ranges::sort(dossier.dossiers);
    return dossier;
}

bool estUneFiche(const std::string& nom) {
    return util::minuscules(fichiers::extension(nom)) == "nfo";
}

bool estUneVideo(const std::string& nom) {
    const std::string extension = util::minuscules(fichiers::extension(nom));
    return std::ranges::find(kVideos, extension) != std::end(kVideos);
}

// Of a folder that holds one film: any video, any poster. Of one with several, those that bear the sheet's name.
struct Voisinage {
    const Dossier& dossier;
    std::string racine;  // of the sheet's name
    bool seul;

    [[nodiscard]] std::string video() const {
        for (const std::string& nom : dossier.fichiers)
            if (estUneVideo(nom) && util::egalSansCasse(fichiers::sansExtension(nom), racine))
                return dossier.chemin + nom;
        if (!seul) return "";
        const auto premiere = std::ranges::find_if(dossier.fichiers, estUneVideo);
        return premiere == dossier.fichiers.end() ? "" : dossier.chemin + *premiere;
    }
    [[nodiscard]] std::string affiche() const {
        std::vector<std::string> radicaux = {racine + "-poster", racine + "-cover", racine};
        if (seul)
            for (const char* nom : {"poster", "folder", "cover", "movie"})
                radicaux.emplace_back(nom);
        for (const std::string& radical : radicaux)
            for (const char* extension : kImages)
                for (const std::string& nom : dossier.fichiers)
                    if (util::egalSansCasse(nom, radical + extension)) return dossier.chemin + nom;
        return "";
    }
};

// Behind the film's document an address may follow, which makes it no document any more.
xml::Source sourceDeLaFiche(const std::string& chemin) {
    auto octets = std::make_shared<std::string>(fichiers::litSansLien(chemin, kFicheAuPlus).value_or(""));
    constexpr std::string_view kFin = "</movie>";
    if (const std::size_t fin = octets->rfind(kFin); fin != std::string::npos) octets->resize(fin + kFin.size());
    return [octets, place = std::size_t{0}](char* vers, std::size_t nombre) mutable {
        nombre = std::min(nombre, octets->size() - place);
        std::copy_n(octets->begin() + static_cast<std::ptrdiff_t>(place), nombre, vers);
        place += nombre;
        return static_cast<std::ptrdiff_t>(nombre);
    };
}

class Parcours {
  public:
    Parcours(const Suivi& suivi, Films& films) : m_suivi(suivi), m_films(films) {}

    void lis(const std::string& chemin, int profondeur) {
        const Dossier dossier = lisDossier(chemin);
        std::vector<std::string> fiches;
        std::ranges::copy_if(dossier.fichiers, std::back_inserter(fiches), estUneFiche);
        for (const std::string& nom : fiches)
            lisFiche(dossier, nom, fiches.size() == 1);
        if (profondeur == 0) return;
        for (const std::string& nom : dossier.dossiers) {
            lis(dossier.chemin + nom, profondeur - 1);
            avance(m_suivi, m_films);
        }
    }
    [[nodiscard]] long autres() const { return m_autres; }

  private:
    void lisFiche(const Dossier& dossier, const std::string& nom, bool seule) {
        std::optional<xml::Element> film;
        try {
            xml::Lecture document(sourceDeLaFiche(dossier.chemin + nom));
            if (const xml::Element* racine = document.suivant(); racine && racine->nom == "movie")
                film = document.prends();
        } catch (const xml::Illisible&) {
        }
        if (!film) {
            ++m_autres;
            return;
        }
        FicheBrute fiche = ficheDe(*film);
        const Voisinage voisinage{dossier, fichiers::sansExtension(nom), seule};
        if (const std::string video = voisinage.video(); !video.empty())
            fiche.fichiers.insert(fiche.fichiers.begin(), video);
        fiche.fichiers.resize(
            std::min<std::size_t>(fiche.fichiers.size(), 1));  // the other one is of the machine that wrote it
        fiche.possession.support = "Fichier";
        if (std::string affiche = voisinage.affiche(); !affiche.empty())
            fiche.affiche = {.ou = AfficheVoisine::Ou::Dossier, .nom = std::move(affiche), .nommee = true};
        m_films.ajoute(std::move(fiche), true);
        avance(m_suivi, m_films);
    }

    const Suivi& m_suivi;
    Films& m_films;
    long m_autres = 0;
};

}  // namespace

void litVideodb(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films) {
    while (const xml::Element* element = document.suivant()) {
        if (element->nom != "movie") continue;
        FicheBrute fiche = ficheDe(document.prends());
        fiche.possession.support = "Fichier";
        fiche.affiche = afficheExportee(fiche, affiches);
        films.ajoute(std::move(fiche), true);
        avance(suivi, films);
    }
}

long litDossierKodi(const std::string& dossier, const Suivi& suivi, Films& films) {
    Parcours parcours(suivi, films);
    parcours.lis(dossier, kProfondeur);
    return parcours.autres();
}

bool aDesFichesKodi(const std::string& dossier) {
    const std::function<bool(const std::string&, int)> aDesFiches = [&](const std::string& chemin, int profondeur) {
        const Dossier lu = lisDossier(chemin);
        return std::ranges::any_of(lu.fichiers, estUneFiche) ||
               (profondeur > 0 && std::ranges::any_of(lu.dossiers, [&](const std::string& nom) {
                    return aDesFiches(lu.chemin + nom, profondeur - 1);
                }));
    };
    return aDesFiches(dossier, 3);
}

}  // namespace voisins
