#include "voisins/Lecteurs.h"

#include "util/Tables.h"
#include "util/Texte.h"
#include "voisins/Valeurs.h"

#include <array>

namespace voisins {

namespace {

// All that tells the collections of one program from the next, but for what they are recognised by.
struct Lecteur {
    Programme programme;
    const char* nom;
    const char* celles;  // which of them can be read, in a list
    void (*lit)(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films) = nullptr;
};
constexpr std::array kLecteurs{
    Lecteur{Programme::Tellico, "Tellico", "celles de Tellico (.tc)", litTellico},
    Lecteur{Programme::GCstar, "GCstar", "de GCstar (.gcs)", litGcstar},
    Lecteur{Programme::AntMovieCatalog, "Ant Movie Catalog", "d'Ant Movie Catalog (exportées en XML)", litAnt},
    Lecteur{Programme::Kodi, "Kodi", "de Kodi (dossiers de fiches .nfo, ou videodb.xml)", litVideodb},
    Lecteur{Programme::Csv, "CSV", "les tableaux CSV"}};
static_assert(util::dansLOrdre(kLecteurs, &Lecteur::programme, Programme::Csv));

const Lecteur& lecteurDe(Programme programme) {
    return kLecteurs.at(static_cast<std::size_t>(programme));
}

}  // namespace

std::string nomDe(Programme programme) {
    return lecteurDe(programme).nom;
}

std::string ceQuiSeLit() {
    std::string texte = kLecteurs.front().celles;
    for (std::size_t i = 1; i < kLecteurs.size(); ++i)
        texte.append(i + 1 < kLecteurs.size() ? ", " : " et ").append(kLecteurs[i].celles);
    return texte;
}

void litDocument(Programme programme, xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films) {
    if (const auto lit = lecteurDe(programme).lit) lit(document, affiches, suivi, films);
}

std::optional<Programme> programmeDuDocument(xml::Lecture& document) {
    const xml::Element* racine = document.suivant();
    if (!racine) return std::nullopt;
    if (racine->nom == "tellico" || racine->nom == "bookcase") return Programme::Tellico;
    if (racine->nom == "AntMovieCatalog") return Programme::AntMovieCatalog;
    if (racine->nom == "videodb" || racine->nom == "movie") return Programme::Kodi;
    if (racine->nom != "collection") return std::nullopt;
    const std::string_view sorte = racine->attribut("type");
    if (sorte == "GCfilms") return Programme::GCstar;
    if (sorte.starts_with("GC")) throw Refus{"Cette collection de GCstar n'est pas une collection de films."};
    return std::nullopt;
}

void avance(const Suivi& suivi, const Films& films) {
    if (suivi && !suivi(static_cast<long>(films.nombre()))) throw LectureArretee{};
}

std::vector<std::string> listeDe(std::string_view texte) {
    return morceaux(texte, texte.find(';') != std::string_view::npos ? ";\n" : ",/|\n");
}

std::vector<FicheBrute::Acteur> acteursDuTexte(std::string_view texte) {
    std::vector<FicheBrute::Acteur> acteurs;
    std::string nom, role;
    int profondeur = 0;
    const auto termine = [&] {
        FicheBrute::Acteur acteur{sansBlancs(nom), sansBlancs(role)};
        if (acteur.role.starts_with("as ")) acteur.role.erase(0, 3);
        if (!acteur.nom.empty()) acteurs.push_back(std::move(acteur));
        nom.clear();
        role.clear();
        profondeur = 0;
    };
    for (const char c : texte) {
        const bool fin = c == '\n' || c == ';' || (c == ',' && profondeur == 0);
        if (fin) {
            termine();
        } else if (c == '(') {
            if (profondeur++ > 0) role += c;
        } else if (c == ')' && profondeur > 0) {
            if (--profondeur > 0) role += c;
        } else {
            (profondeur > 0 ? role : nom) += c;
        }
    }
    termine();
    return acteurs;
}

std::string sansBalises(std::string_view texte) {
    std::string resultat;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const std::size_t fin = texte[i] == '<' ? texte.find('>', i) : std::string_view::npos;
        if (fin == std::string_view::npos) {
            resultat += texte[i];
            continue;
        }
        std::string balise = util::minuscules(texte.substr(i + 1, std::min(fin - i - 1, 20UL)));
        if (balise.ends_with('/')) balise.pop_back();
        balise = sansBlancs(balise);
        const bool saut = balise == "br" || balise == "/p";
        if (!saut && balise != "p" && balise != "b" && balise != "/b" && balise != "i" && balise != "/i" &&
            balise != "em" && balise != "/em") {
            resultat += texte[i];
            continue;
        }
        if (saut) resultat += '\n';
        i = fin;
    }
    return resultat;
}

}  // namespace voisins
