#include "util/Nombres.h"
#include "util/Texte.h"
#include "voisins/Lecteurs.h"
#include "voisins/Valeurs.h"

#include <algorithm>
#include <unordered_map>

namespace voisins {

namespace {

using Noms = std::unordered_map<std::string, std::string>;  // of the user's own fields

struct Ligne {
    std::string_view attribut;
    const char* nom;
    const char* unite = "";
};
constexpr Ligne kLignes[] = {{"Source", "Provenance"},
                             {"DateWatched", "Vu le"},
                             {"Producer", "Producteurs"},
                             {"Writer", "Scénario"},
                             {"Composer", "Musique"},
                             {"Certification", "Classification"},
                             {"URL", "Lien"},
                             {"VideoFormat", "Format vidéo"},
                             {"VideoBitrate", "Débit vidéo", " kbit/s"},
                             {"AudioFormat", "Format audio"},
                             {"AudioBitrate", "Débit audio", " kbit/s"},
                             {"Resolution", "Définition"},
                             {"Framerate", "Images par seconde"},
                             {"Size", "Taille", " Mo"},
                             {"FormattedTitle", ""},
                             {"Number", "Numéro"},
                             {"PictureName", ""},
                             {"PictureSize", ""},
                             {"PictureOperation", ""}};

bool estDate(std::string_view nom) {
    return nom == "DateWatched";
}

bool metDansUnChamp(const std::string& nom, const std::string& texte, FicheBrute& fiche) {
    if (nom == "TranslatedTitle")
        fiche.titre = texte;
    else if (nom == "OriginalTitle")
        fiche.titreOriginal = texte;
    else if (nom == "Director")
        fiche.realisateurs = listeDe(texte);
    else if (nom == "Year")
        fiche.annee = texte;
    else if (nom == "Length")
        fiche.duree = texte;
    else if (nom == "Country")
        fiche.pays = listeDe(texte);
    else if (nom == "Category")
        fiche.genres = listeDe(texte);
    else if (nom == "Actors")
        fiche.acteurs = acteursDuTexte(texte);
    else if (nom == "Description")
        fiche.resume = texte;
    else if (nom == "Comments")
        fiche.commentaires.push_back(texte);
    else if (nom == "Date")
        fiche.dateAjout = dateDe(texte);
    else if (nom == "MediaType")
        fiche.possession.support = texte;
    else if (nom == "MediaLabel")
        fiche.possession.divers = texte;
    else if (nom == "Borrower")
        fiche.possession.pret = texte;
    else if (nom == "FilePath")
        fiche.fichiers = listeDe(util::remplace(texte, "|", ";"));
    else
        return false;
    return true;
}

// The user's own note counts before the one of a web site.
void metNotes(const xml::Element& film, FicheBrute& fiche) {
    const std::string_view sienne = film.attribut("UserRating"), duSite = film.attribut("Rating");
    fiche.note = noteDe(sienne, 10);
    if (fiche.note == 0)
        fiche.note = noteDe(duSite, 10);
    else if (noteDe(duSite, 10) > 0)
        fiche.ligne("Note du site", std::string(duSite) + "/10");
}

void metEnLigne(const std::string& nom, const std::string& texte, const Noms& noms, FicheBrute& fiche) {
    const auto connue = std::ranges::find(kLignes, std::string_view(nom), &Ligne::attribut);
    if (connue != std::end(kLignes)) {
        if (*connue->nom == '\0' || texte == "0") return;
        const std::string jour = estDate(nom) ? dateDe(texte) : "";
        fiche.ligne(connue->nom, (jour.empty() ? texte : jour) + connue->unite);
    } else if (nom == "Languages" || nom == "Subtitles") {
        std::vector<std::string> langues = listeDe(texte);
        for (std::string& langue : langues)
            langue = enFrancais(Lexique::Langue, langue);
        fiche.ligne(nom == "Languages" ? "Langues" : "Sous-titres", assemble(langues, ", "));
    } else if (nom == "Checked") {
        if (!ouiOuNon(texte).value_or(true)) fiche.ligne("Coché", "non");
    } else if (nom == "Disks") {
        fiche.ligne("Nombre de supports", texte == "1" || texte == "0" ? "" : texte);
    } else if (nom == "ColorTag") {
        fiche.ligne("Couleur de l'étiquette", texte == "0" ? "" : texte);
    } else if (nom != "UserRating" && nom != "Rating" && nom != "Picture") {
        const auto propre = noms.find(nom);
        const auto oui = texte == "True" || texte == "False" ? ouiOuNon(texte) : std::nullopt;
        fiche.ligne(propre == noms.end() ? nom : propre->second, oui ? (*oui ? "oui" : "non") : texte);
    }
}

void metExtra(const xml::Element& extra, FicheBrute& fiche) {
    std::vector<std::string> dits;
    for (const char* nom : {"Title", "Description", "Comments", "URL"})
        if (std::string dit = sansBlancs(extra.attribut(nom)); !dit.empty()) dits.push_back(std::move(dit));
    fiche.ligne("Complément", assemble(dits, " – "));
}

FicheBrute ficheDe(xml::Element film, const Noms& noms, const Affiches& affiches) {
    FicheBrute fiche;
    for (xml::Element& enfant : film.enfants) {
        if (enfant.nom == "CustomFields") {
            for (auto& attribut : enfant.attributs)
                film.attributs.push_back(std::move(attribut));
            for (xml::Element& champ : enfant.enfants) {
                const bool nomme = !champ.attribut("Tag").empty();
                film.attributs.emplace_back(nomme ? champ.attribut("Tag") : std::string_view(champ.nom),
                                            nomme ? std::string(champ.attribut("Value")) + champ.texte : champ.texte);
            }
        } else if (enfant.nom == "Extras") {
            for (const xml::Element& extra : enfant.enfants)
                metExtra(extra, fiche);
        } else {
            film.attributs.emplace_back(enfant.nom, enfant.texte);
        }
    }
    for (const auto& [nom, texte] : film.attributs)
        if (!sansBlancs(texte).empty() && !metDansUnChamp(nom, texte, fiche)) metEnLigne(nom, texte, noms, fiche);
    metNotes(film, fiche);
    fiche.affiche = affiches.trouve(sansBlancs(film.attribut("Picture")));
    return fiche;
}

}  // namespace

void litAnt(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films) {
    Noms noms;
    while (const xml::Element* element = document.suivant()) {
        if (element->nom == "CustomField") {
            noms[std::string(element->attribut("Tag"))] = element->attribut("Name");
        } else if (element->nom == "Movie") {
            films.ajoute(ficheDe(document.prends(), noms, affiches), true);
            avance(suivi, films);
        }
    }
}

}  // namespace voisins
