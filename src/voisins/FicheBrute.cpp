#include "voisins/FicheBrute.h"

#include "acquire/FicheFilm.h"
#include "edit/LongueursChamps.h"
#include "ensemble/CleDeFilm.h"
#include "util/Nombres.h"
#include "util/Texte.h"
#include "voisins/Valeurs.h"

#include <algorithm>
#include <tuple>

namespace voisins {

namespace {

constexpr std::string_view kFin = "\r\n";  // of the lines of a summary that is typed here
constexpr std::size_t kLongueurPersonne = edit::kLongueurDivers;

// On one line, of UTF-8 alone, without what no column can hold.
std::string surUneLigne(std::string_view texte) {
    std::string propre = util::estUtf8(texte) ? std::string(texte) : util::decodeTexteExterne(texte);
    std::erase(propre, '\0');
    std::ranges::replace_if(
        propre, [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
    return sansBlancs(propre);
}

// Of many lines, which end as those of a summary do.
std::string surDesLignes(std::string_view texte) {
    std::string propre = util::estUtf8(texte) ? std::string(texte) : util::decodeTexteExterne(texte);
    std::erase(propre, '\0');
    std::string resultat;
    const std::string sansBords = sansBlancs(propre);
    for (std::size_t place = 0; place < sansBords.size();) {
        const std::string_view ligne = util::ligneSuivante(sansBords, place);
        resultat.append(resultat.empty() ? "" : kFin).append(ligne);
    }
    return resultat;
}

// The pieces that fit together; all of them, and what they did not fit, in a line.
std::string tient(FicheBrute& fiche, const std::vector<std::string>& pieces, std::string_view entre,
                  std::size_t longueur, const char* nomDeLaLigne) {
    std::vector<std::string> propres;
    for (const std::string& piece : pieces)
        if (std::string propre = surUneLigne(piece);
            !propre.empty() && std::ranges::find(propres, propre) == propres.end())
            propres.push_back(std::move(propre));
    std::string texte;
    for (const std::string& piece : propres) {
        const std::string plus = texte.empty() ? piece : texte + std::string(entre) + piece;
        if (util::longueur(plus) > longueur) break;
        texte = plus;
    }
    if (texte.empty() && !propres.empty()) texte = util::coupe(propres.front(), longueur);
    const std::string tout = assemble(propres, entre);
    if (texte != tout) fiche.ligne(nomDeLaLigne, tout);
    return texte;
}

std::vector<std::string> traduits(Lexique lexique, const std::vector<std::string>& mots) {
    std::vector<std::string> resultat;
    std::ranges::transform(mots, std::back_inserter(resultat),
                           [&](const std::string& mot) { return enFrancais(lexique, mot); });
    return resultat;
}

// A sheet's casts are names between semicolons; the roles are told below the summary.
std::string acteursDe(FicheBrute& fiche) {
    std::vector<std::string> noms, avecRoles;
    bool roles = false;
    for (const FicheBrute::Acteur& acteur : fiche.acteurs) {
        const std::string nom = surUneLigne(acteur.nom), role = surUneLigne(acteur.role);
        if (nom.empty()) continue;
        noms.push_back(nom);
        avecRoles.push_back(role.empty() ? nom : nom + " (" + role + ")");
        roles = roles || !role.empty();
    }
    if (roles) fiche.ligne("Distribution", assemble(avecRoles, ", "));
    FicheBrute sansLigne;
    return tient(roles ? sansLigne : fiche, noms, ";", edit::kLongueurActeurs, "Distribution");
}

std::string texteDuResume(const FicheBrute& fiche) {
    std::string texte = surDesLignes(fiche.resume);
    const auto paragraphe = [&](const std::string& suite) {
        if (!suite.empty()) texte.append(texte.empty() ? "" : "\r\n\r\n").append(suite);
    };
    for (const std::string& commentaire : fiche.commentaires)
        paragraphe(surDesLignes(commentaire));
    std::string lignes;
    for (const auto& [nom, valeur] : fiche.lignes)
        lignes.append(lignes.empty() ? "" : kFin).append(nom + " : " + valeur);
    paragraphe(lignes);
    return texte;
}

void range(FicheBrute& fiche, PossessionVoisine& possession) {
    const auto coupee = [&](std::string& valeur, std::size_t longueur, const char* nom) {
        const std::string entiere = surUneLigne(valeur);
        valeur = util::coupe(entiere, longueur);
        if (valeur != entiere) fiche.ligne(nom, entiere);
    };
    possession.support = enFrancais(Lexique::Support, possession.support);
    coupee(possession.support, edit::kLongueurSupport, "Support");
    coupee(possession.divers, edit::kLongueurDivers, "Divers");
    coupee(possession.pret, kLongueurPersonne, "Prêté à");
    coupee(possession.reserve, kLongueurPersonne, "Réservé à");
    possession.rangement = surUneLigne(possession.rangement);
    possession.date = surUneLigne(possession.date);
    std::size_t rang = 0;
    for (const std::string& fichier : fiche.fichiers) {
        if (sansBlancs(fichier).empty()) continue;
        if (rang < possession.fichiers.size())
            possession.fichiers[rang++] = surUneLigne(fichier);
        else
            fiche.ligne("Fichier", fichier);
    }
}

std::size_t octetsDe(const FilmVoisin& film) {
    return film.titre.size() + film.realisateur.size() + film.acteurs.size() + film.resume.size() + 256;
}

std::string texteDeLExemplaire(const FilmVoisin& film) {
    if (!film.possession) return "";
    const PossessionVoisine& celui = *film.possession;
    std::vector<std::string> dits;
    for (const std::string& valeur : {celui.support, celui.rangement, celui.divers, celui.fichiers[0]})
        if (!valeur.empty()) dits.push_back(valeur);
    if (!celui.pret.empty())
        dits.push_back("prêté à " + celui.pret + (celui.date.empty() ? "" : " depuis le " + celui.date));
    return assemble(dits, ", ");
}

// Another copy of the same film: what is new in it.
void noteExemplaire(FilmVoisin& premier, const FilmVoisin& autre) {
    if (autre.possession && !premier.possession) {
        premier.possession = autre.possession;
    } else if (const std::string dits = texteDeLExemplaire(autre);
               !dits.empty() && autre.possession != premier.possession) {
        premier.resume += (premier.resume.empty() ? "" : "\r\n") + std::string("Autre exemplaire : ") + dits;
    }
    if (premier.affiche.ou == AfficheVoisine::Ou::Nulle) premier.affiche = autre.affiche;
    if (autre.resume != premier.resume && premier.resume.find(autre.resume) == std::string::npos)
        premier.resume += (premier.resume.empty() ? "" : "\r\n\r\n") + autre.resume;
    if (premier.note == 0) premier.note = autre.note;
}

bool memeFiche(const FilmVoisin& a, const FilmVoisin& b) {
    const auto champs = [](const FilmVoisin& film) {
        return std::tie(film.annee, film.origine, film.genre, film.duree, film.acteurs, film.resume, film.production,
                        film.note, film.dateAjout);
    };
    return champs(a) == champs(b);
}

}  // namespace

void FicheBrute::ligne(std::string nom, std::string_view valeur) {
    if (std::string propre = surUneLigne(valeur); !propre.empty())
        lignes.emplace_back(std::move(nom), std::move(propre));
}

bool FicheBrute::estSansTitre() const {
    return surUneLigne(titre).empty() && surUneLigne(titreOriginal).empty();
}

FilmVoisin redige(FicheBrute fiche, bool possede) {
    FilmVoisin film;
    const std::string original = surUneLigne(fiche.titreOriginal);
    std::string titre = surUneLigne(fiche.titre);
    if (titre.empty()) titre = original;
    if (original != titre) fiche.ligne("Titre original", original);
    film.titre = util::coupe(titre, edit::kLongueurTitre);
    if (film.titre != titre) fiche.ligne("Titre complet", titre);
    if (film.titre.empty()) film.titre = acquire::kNonDefini;
    film.realisateur = tient(fiche, fiche.realisateurs, ", ", edit::kLongueurRealisateur, "Réalisation");
    if (film.realisateur.empty()) film.realisateur = acquire::kNonDefini;
    film.annee = anneeDe(fiche.annee);
    if (film.annee.empty()) fiche.ligne("Année", fiche.annee);
    film.duree = dureeDe(fiche.duree);
    if (film.duree.empty()) fiche.ligne("Durée", fiche.duree);
    film.genre = tient(fiche, traduits(Lexique::Genre, fiche.genres), " / ", edit::kLongueurGenre, "Genres");
    film.origine = tient(fiche, traduits(Lexique::Pays, fiche.pays), " / ", edit::kLongueurOrigine, "Pays");
    film.production = tient(fiche, fiche.productions, " / ", edit::kLongueurProduction, "Production");
    film.acteurs = acteursDe(fiche);
    film.note = fiche.note;
    film.dateAjout = fiche.dateAjout;
    film.affiche = std::move(fiche.affiche);
    PossessionVoisine possession = fiche.possession;
    range(fiche, possession);
    if (possede || possession != PossessionVoisine()) film.possession = std::move(possession);
    film.resume = texteDuResume(fiche);
    return film;
}

void Films::ajoute(FicheBrute fiche, bool possede) {
    if (fiche.estSansTitre())
        ++m_sansTitre;
    else
        ajoute(redige(std::move(fiche), possede));
}

void Films::ajouteExemplaire(FilmVoisin& premier, const FilmVoisin& autre) {
    if (m_exemplairesEn == Exemplaires::AuResume || !memeFiche(premier, autre) || !premier.possession ||
        !autre.possession) {
        ++m_exemplaires;
        return noteExemplaire(premier, autre);
    }
    const bool connue = autre.possession == premier.possession ||
                        std::ranges::find(premier.autres, *autre.possession) != premier.autres.end();
    if (connue && m_exemplairesEn == Exemplaires::SiAutres) return;
    ++m_possessions;
    premier.autres.push_back(*autre.possession);
}

void Films::ajoute(FilmVoisin film) {
    if (film.titre.empty()) {
        ++m_sansTitre;
        return;
    }
    m_texte += octetsDe(film);
    if (++m_lues > kFilmsAuPlus || m_texte > kTexteAuPlus)  // copies count: each makes the first one longer
        throw Refus{"Cette collection est trop grande pour être lue d'un seul coup."};
    const auto [place, nouveau] = m_rangs.try_emplace(ensemble::cleDeFilm(film), m_films.size());
    if (nouveau) {
        m_films.push_back(std::move(film));
        return;
    }
    FilmVoisin& premier = m_films[place->second];
    if (film.annee.empty() || premier.annee.empty() || film.annee == premier.annee)
        return ajouteExemplaire(premier, film);
    film.titre = util::coupe(film.titre, edit::kLongueurTitre - 7) + " (" + film.annee + ")";
    if (const auto [autre, encoreNouveau] = m_rangs.try_emplace(ensemble::cleDeFilm(film), m_films.size());
        encoreNouveau) {
        ++m_annees;
        m_films.push_back(std::move(film));
    } else {
        ajouteExemplaire(m_films[autre->second], film);
    }
}

void Films::verse(Collection& collection) {
    const auto remarque = [&](long nombre, std::string_view un, std::string_view plusieurs) {
        if (nombre > 0) collection.remarques.push_back(util::phraseCompte(nombre, un, plusieurs));
    };
    remarque(m_sansTitre, "# fiche sans titre laissée de côté.", "# fiches sans titre laissées de côté.");
    remarque(m_exemplaires, "# autre exemplaire d'un film de la collection, noté dans son résumé.",
             "# autres exemplaires de films de la collection, notés dans leur résumé.");
    remarque(m_possessions, "# ligne d'un autre exemplaire du même film : il a une possession de plus.",
             "# lignes d'autres exemplaires des mêmes films : ils ont autant de possessions de plus.");
    remarque(m_annees, "# film du même titre et du même réalisateur qu'un autre : son année est ajoutée à son titre.",
             "# films du même titre et du même réalisateur que d'autres : leur année est ajoutée à leur titre.");
    collection.films = std::move(m_films);
}

}  // namespace voisins
