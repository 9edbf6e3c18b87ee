#include "acquire/FicheFilm.h"
#include "app/Extensions.h"
#include "app/Reglages.h"
#include "edit/LongueursChamps.h"
#include "export/MiseEnForme.h"
#include "export/TexteBalise.h"
#include "hostile/Cibles.h"
#include "platform/fichiers/CheminTape.h"
#include "util/Capitales.h"
#include "util/Nombres.h"
#include "util/NomsFichiers.h"
#include "util/Similarite.h"
#include "util/Texte.h"
#include "voisins/Lecteurs.h"
#include "voisins/Tableau.h"

#include <algorithm>
#include <array>
#include <functional>

namespace hostile {

namespace {

using std::literals::operator""s;

std::vector<std::string_view> lignesDe(std::string_view texte) {
    std::vector<std::string_view> lignes;
    for (std::size_t place = 0; place < texte.size();)
        lignes.push_back(util::ligneSuivante(texte, place));
    return lignes;
}

void fiche(std::string_view octets) {
    const auto lue = acquire::analyseFiche(octets);
    if (!lue) return;
    exige(!lue->titre.empty() && !lue->realisateur.empty(), "a film has a title and a director");
    exige(util::longueur(lue->titre) <= edit::kLongueurTitre, "the title fits its column");
    exige(util::longueur(lue->acteurs) <= edit::kLongueurActeurs, "the cast fits its column");
    for (const std::string* texte : {&lue->titre, &lue->premiereLigne, &lue->realisateur, &lue->annee, &lue->genre,
                                     &lue->acteurs, &lue->resume, &lue->production}) {
        exige(util::estUtf8(*texte), "a field is UTF-8");
        exige(texte->find_first_of("\0\r\n"s) == std::string::npos, "a field is one line without NUL");
    }
}

void reglages(std::string_view octets) {
    const std::string dossier = "/opt/Ambrelis/";
    const app::Reglages lus = app::litReglages(octets, dossier);
    exige((lus.stockage == 0 || lus.stockage == 1) && lus.tri >= 0 && lus.largeur >= 0, "numbers within their bounds");
    const std::string texte = app::texteReglages(lus, dossier);
    exige(lignesDe(texte).size() == 8, "eight lines are written");
    exige(app::litReglages(texte, dossier) == lus, "what is written is read as it was");
}

void extensions(std::string_view octets) {
    const std::string texte = util::decodeTexteExterne(octets);
    std::vector<std::string> lignes;
    for (const std::string_view ligne : lignesDe(texte))
        lignes.emplace_back(ligne);
    app::TableExtensions table, relue;
    const std::size_t nombre = app::litExtensions(lignes, table);
    exige(nombre <= app::TableExtensions::kLignesLues, "no row beyond those there is room for");
    lignes.clear();
    const std::string ecrit = app::texteExtensions(table, nombre);
    for (const std::string_view ligne : lignesDe(ecrit))
        lignes.emplace_back(ligne);
    exige(app::litExtensions(lignes, relue) == nombre && relue.lignes == table.lignes,
          "what is written is read as it was");
    for (const char* extension : {"avi", "", "AVI;MPG", "\xC9"})
        exige(!table.logiciel(extension).empty(), "every extension has a program");
}

void codage(std::string_view octets) {
    exige(util::estUtf8(util::decodeTexteExterne(octets)), "a text of the outside world becomes UTF-8");
    const auto large = util::decodeTexteLarge(octets);
    exige(!large || util::estUtf8(*large), "a wide text becomes UTF-8");
    exige(util::vers1252(util::depuis1252(octets)) == octets, "every byte of code page 1252 comes back");
    std::u16string unites;
    for (std::size_t i = 0; i + 1 < octets.size(); i += 2)
        unites += static_cast<char16_t>(static_cast<unsigned char>(octets[i]) |
                                        static_cast<unsigned char>(octets[i + 1]) << 8);
    exige(util::estUtf8(util::depuisUtf16(unites)), "UTF-16 becomes UTF-8");

    std::string assemble;
    for (const std::string_view caractere : util::caracteres(octets))
        assemble += caractere;
    exige(assemble == octets, "characters are the text, in pieces");
    const std::size_t longueur = util::longueur(octets);
    exige(util::coupe(octets, longueur / 2) == octets.substr(0, util::coupe(octets, longueur / 2).size()),
          "a cut is a beginning");
    exige(util::longueur(util::coupe(octets, longueur / 2)) <= longueur / 2, "a cut is as short as asked");
    const std::string titre = util::metEnCapitales(octets);
    const auto contient = [&](std::string_view lettre) { return octets.find(lettre) != std::string_view::npos; };
    const bool turc = contient("ı") || contient("İ");  // whose other case is the one of another letter
    exige(turc || util::egalSansCasse(titre, octets), "capitals change letter case alone");
    exige(util::metEnCapitales(titre) == titre, "capitals are put once");
    exige(util::nettoieNomFichier(octets).find('/') == std::string::npos, "a name leads to no folder");
    const int ressemblance = util::similarite(octets, octets);
    exige(ressemblance == 100 || ressemblance == 0, "a text is like itself");
    static_cast<void>(util::valEntier(octets));
    static_cast<void>(fichiers::cheminTape(octets, "/opt/Ambrelis/"));
}

// A refusal, or films that fit their columns.
void examineFilms(const std::function<std::vector<voisins::FilmVoisin>()>& lit) {
    std::vector<voisins::FilmVoisin> films;
    try {
        films = lit();
    } catch (const voisins::Refus& refus) {
        exige(!refus.texte.empty(), "a refusal says why");
    } catch (const xml::Illisible&) {
    }
    for (const voisins::FilmVoisin& film : films) {
        exige(!film.titre.empty() && !film.realisateur.empty(), "a film has a title and a director");
        exige(util::longueur(film.titre) <= edit::kLongueurTitre, "the title fits its column");
        exige(util::longueur(film.acteurs) <= edit::kLongueurActeurs, "the cast fits its column");
        exige(film.note >= 0 && film.note <= 10, "a note is none, or 1 to 10");
        for (const std::string* texte :
             {&film.titre, &film.realisateur, &film.genre, &film.origine, &film.acteurs, &film.resume})
            exige(util::estUtf8(*texte) && texte->find('\0') == std::string::npos, "a field is UTF-8 without NUL");
    }
}

// What any reader of RTF relies on: one group, closed at the very end, of ASCII alone.
bool estUnRtf(const std::string& rtf) {
    long profondeur = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (static_cast<unsigned char>(rtf[i]) >= 0x80 || rtf[i] == '\0') return false;
        if (rtf[i] == '\\') {
            ++i;
        } else if (rtf[i] == '{') {
            ++profondeur;
        } else if (rtf[i] == '}' && --profondeur == 0) {
            return i + 3 >= rtf.size();  // a line end may follow
        }
    }
    return false;
}

// The bytes' lines are a film's fields, and the whole also stands there as a marked-up text.
void rtf(std::string_view octets) {
    std::array<std::string, 11> champs;
    std::size_t place = 0;
    for (std::string& champ : champs)
        champ = util::ligneSuivante(octets, place);
    const auto& [titre, realisateur, duree, genre, annee, origine, acteurs, resume, rangement, divers, support] =
        champs;
    exportation::TexteBalise liste(true);
    liste.ajoute({titre, realisateur, duree, genre, annee, origine, acteurs, resume, rangement, divers, support});
    for (const std::string& texte : {liste.texte(), std::string(octets)}) {
        exportation::MiseEnForme miseEnForme(texte);
        for (const exportation::Balise& balise : exportation::kBalises)
            miseEnForme.applique(balise);
        const texteriche::TexteRiche riche = std::move(miseEnForme).resultat();
        std::size_t avant = 0;
        for (const texteriche::Passage& passage : riche.passages) {
            exige(passage.fin >= avant && passage.fin <= riche.texte.size(), "passages follow each other in the text");
            exige(passage.style < riche.styles.size(), "a passage has a style");
            avant = passage.fin;
        }
        exige(estUnRtf(texteriche::enRtf(riche)), "an RTF document is made");
    }
}

// The first byte is the program, the others its document.
void voisin(std::string_view octets) {
    if (octets.empty()) return;
    const std::string_view reste = octets.substr(1);
    if (octets[0] == 'C') {
        voisins::Tableau tableau = voisins::analyseTableau(reste);
        exige(tableau.colonnes.size() == tableau.entetes.size(), "each column is matched");
        if (tableau.aUnTitre() && !tableau.lignes.empty())
            examineFilms([&] { return voisins::collectionDe(tableau).films; });
        return;
    }
    examineFilms([&] {
        xml::Lecture document([reste, place = std::size_t{0}](char* vers, std::size_t nombre) mutable {
            nombre = std::min(nombre, reste.size() - place);
            std::copy_n(reste.begin() + static_cast<std::ptrdiff_t>(place), nombre, vers);
            place += nombre;
            return static_cast<std::ptrdiff_t>(nombre);
        });
        voisins::Affiches affiches;
        voisins::Films films;
        if (octets[0] == 'T') voisins::litTellico(document, affiches, {}, films);
        if (octets[0] == 'G') voisins::litGcstar(document, affiches, {}, films);
        if (octets[0] == 'A') voisins::litAnt(document, affiches, {}, films);
        if (octets[0] == 'K') voisins::litVideodb(document, affiches, {}, films);
        voisins::Collection collection;
        films.verse(collection);
        return collection.films;
    });
}

constexpr std::array kCibles{Cible{"fiche", fiche, 4096, 1500},
                             Cible{"reglages", reglages, 1024, 3000},
                             Cible{"extensions", extensions, 1024, 3000},
                             Cible{"codage", codage, 512, 3000},
                             Cible{"rtf", rtf, 2048, 1500},
                             Cible{"voisin", voisin, 4096, 1500}};

}  // namespace

std::span<const Cible> ciblesDesTextes() {
    return kCibles;
}

}  // namespace hostile
