#include "export/TexteBalise.h"

#include <array>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace exportation {

namespace {

constexpr std::string_view kALaLigne = "\r\n";
constexpr std::string_view kEntreDeuxFilms = "\r\n\r\n\r\n";

void ajouteMorceaux(std::string& texte, std::initializer_list<std::string_view> morceaux) {
    for (const std::string_view morceau : morceaux)
        texte += morceau;
}

}  // namespace

void TexteBalise::ajoute(const FilmDeLaListe& film) {
    if (m_parGenre && film.genre != m_genre) {
        ajouteMorceaux(m_texte, {"<g>- Genre : ", film.genre, " -</g>", kALaLigne, kALaLigne});
        m_genre = film.genre;
    }
    ajouteMorceaux(m_texte, {"<t>", film.titre, "</t>", kALaLigne});
    ajouteMorceaux(m_texte, {"<r>de ", film.realisateur, "</r>", kALaLigne});
    ajouteMorceaux(m_texte, {"<d>", film.duree, "</d>", kALaLigne});
    ajouteMorceaux(m_texte, {film.genre, " - ", film.annee, " - ", film.origine, kALaLigne});
    ajouteMorceaux(m_texte, {"<a>Avec ", film.acteurs, "</a>", kALaLigne, kALaLigne});
    ajouteMorceaux(m_texte, {"<f>", film.resume, "</f>", kALaLigne});
    ajoutePossession(film);
    ajouteMorceaux(m_texte, {kALaLigne, kEntreDeuxFilms});
}

void TexteBalise::ajoutePossession(const FilmDeLaListe& film) {
    const std::array<std::pair<std::string_view, std::string_view>, 3> lignes{
        {{"Rangement : ", film.rangement}, {"Divers : ", film.divers}, {"Support : ", film.support}}};
    std::string_view separateur;
    for (const auto& [intitule, valeur] : lignes) {
        if (valeur.empty()) continue;
        ajouteMorceaux(m_texte, {separateur, intitule, valeur});
        separateur = " - ";
    }
}

}  // namespace exportation
