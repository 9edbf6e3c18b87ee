#include "util/Nombres.h"
#include "util/Texte.h"
#include "voisins/Lecteurs.h"
#include "voisins/Valeurs.h"

#include <unordered_map>

namespace voisins {

namespace {

using Noms = std::unordered_map<std::string, std::string>;  // of the user's own fields

// The lines of a list, each with its columns; of a text, its pieces.
std::vector<std::vector<std::string>> lignesDe(const xml::Element& element) {
    std::vector<std::vector<std::string>> lignes;
    for (const xml::Element& ligne : element.enfants) {
        if (ligne.nom != "line") continue;
        auto& colonnes = lignes.emplace_back();
        for (const xml::Element& colonne : ligne.enfants)
            colonnes.push_back(sansBlancs(colonne.texte));
        if (colonnes.empty()) lignes.pop_back();
    }
    if (lignes.empty())
        for (std::string& morceau : listeDe(element.texte))
            lignes.push_back({std::move(morceau)});
    return lignes;
}

std::vector<std::string> premieres(const xml::Element& element) {
    std::vector<std::string> textes;
    for (auto& ligne : lignesDe(element))
        if (!ligne[0].empty()) textes.push_back(std::move(ligne[0]));
    return textes;
}

// The lines between commas, their columns between dashes.
std::string enUneLigne(const xml::Element& element, bool langues = false) {
    std::vector<std::string> textes;
    for (auto& ligne : lignesDe(element)) {
        if (langues) ligne[0] = enFrancais(Lexique::Langue, ligne[0]);
        std::erase(ligne, "");
        textes.push_back(assemble(ligne, " – "));
    }
    return assemble(textes, ", ");
}

std::string publicDe(std::string_view age) {
    const int ans = util::valEntier(age);
    if (ans <= 1) return "";
    if (ans <= 4) return "tous publics";
    return ans <= 9 ? "accord parental" : "dès " + std::to_string(ans) + " ans";
}

bool estNul(std::string_view texte) {
    const std::string propre = sansBlancs(texte);
    return propre.empty() || propre == "0";
}

std::string ouiSi(std::string_view texte) {
    return ouiOuNon(texte).value_or(false) ? "oui" : "";
}

// False where it has no field of its own.
bool metDansUnChamp(const xml::Element& valeur, FicheBrute& fiche) {
    const std::string& nom = valeur.nom;
    const std::string texte = sansBlancs(valeur.texte);
    if (nom == "title")
        fiche.titre = texte;
    else if (nom == "original")
        fiche.titreOriginal = texte;
    else if (nom == "date" || nom == "release")
        fiche.annee = texte;
    else if (nom == "time")
        fiche.duree = texte;
    else if (nom == "director" || nom == "directors")
        fiche.realisateurs = premieres(valeur);
    else if (nom == "country")
        fiche.pays = premieres(valeur);
    else if (nom == "genre")
        fiche.genres = premieres(valeur);
    else if (nom == "synopsis")
        fiche.resume = valeur.texte;
    else if (nom == "comment")
        fiche.commentaires.push_back(valeur.texte);
    else if (nom == "rating")
        fiche.note = noteDe(texte, 10);
    else if (nom == "added")
        fiche.dateAjout = dateDe(texte);
    else if (nom == "format")
        fiche.possession.support = texte;
    else if (nom == "place")
        fiche.possession.rangement = texte;
    else if (nom == "borrower")
        fiche.possession.pret = texte == "none" ? "" : texte == "unknown" ? "Inconnu" : texte;
    else if (nom == "lendDate")
        fiche.possession.date = dateDe(texte);
    else if (nom == "trailer")
        fiche.fichiers.push_back(texte);
    else
        return false;
    return true;
}

void metEnLigne(const xml::Element& valeur, const Noms& noms, FicheBrute& fiche) {
    const std::string& nom = valeur.nom;
    const std::string texte = sansBlancs(valeur.texte);
    if (nom == "webPage")
        fiche.ligne("Lien", texte.substr(0, texte.find("##")));
    else if (nom == "seen")
        fiche.ligne(kVu, ouiSi(texte));
    else if (nom == "favourite")
        fiche.ligne("Favori", ouiSi(texte));
    else if (nom == "region")
        fiche.ligne("Zone", texte);
    else if (nom == "number")
        fiche.ligne("Nombre de supports", texte == "1" ? "" : texte);
    else if (nom == "identifier")
        fiche.ligne("Identifiant", estNul(texte) ? "" : texte);
    else if (nom == "ratingpress")
        fiche.ligne("Note de la presse", estNul(texte) ? "" : texte + "/10");
    else if (nom == "age")
        fiche.ligne("Public", publicDe(texte));
    else if (nom == "audio")
        fiche.ligne("Langues", enUneLigne(valeur, true));
    else if (nom == "subt")
        fiche.ligne("Sous-titres", enUneLigne(valeur, true));
    else if (nom == "video")
        fiche.ligne("Format vidéo", texte);
    else if (nom == "serie")
        fiche.ligne("Série", texte);
    else if (nom == "rank")
        fiche.ligne("Rang dans la série", texte);
    else if (nom == "tags")
        fiche.ligne("Mots-clés", enUneLigne(valeur));
    else if (nom == "borrowings")
        fiche.ligne("Prêts passés", enUneLigne(valeur));
    else if (const auto propre = noms.find(nom); propre != noms.end())
        fiche.ligne(propre->second, enUneLigne(valeur));
    else if (nom != "id" && nom != "gcsautoid" && nom != "image" && nom != "backpic" && nom != "actors")
        fiche.ligne(nom, enUneLigne(valeur));
}

FicheBrute ficheDe(xml::Element item, const Noms& noms, const Affiches& affiches) {
    FicheBrute fiche;
    // Simple values are attributes, and were elements once.
    for (auto& [nom, texte] : item.attributs)
        item.enfants.push_back({nom, {}, texte, {}});
    for (const xml::Element& valeur : item.enfants) {
        if (valeur.nom == "actors")
            for (const auto& ligne : lignesDe(valeur))
                fiche.acteurs.push_back({ligne[0], ligne.size() > 1 ? ligne[1] : ""});
        else if (valeur.nom == "image")
            fiche.affiche = affiches.trouve(sansBlancs(valeur.texte));
        else if (!metDansUnChamp(valeur, fiche))
            metEnLigne(valeur, noms, fiche);
    }
    if (fiche.possession.pret.empty()) fiche.possession.date.clear();
    return fiche;
}

}  // namespace

void litGcstar(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films) {
    Noms noms;
    while (const xml::Element* element = document.suivant()) {
        if (element->nom == "field") {
            noms[std::string(element->attribut("value"))] = element->attribut("label");
        } else if (element->nom == "item") {
            films.ajoute(ficheDe(document.prends(), noms, affiches), true);
            avance(suivi, films);
        }
    }
}

}  // namespace voisins
