#include "ensemble/QueRegarder.h"

#include "db/Requete.h"
#include "ensemble/Valeurs.h"
#include "platform/dao/Comparaison.h"
#include "util/Durees.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace ensemble {

namespace {

constexpr auto kNumero = db::NumeroErreur::QueRegarder;
constexpr std::string_view kPossedes =
    "FROM Films INNER JOIN Personnel ON (Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2)";

// Read with the rows: one by one they would be asked of the file each on its own.
constexpr std::array<std::string_view, 9> kPortees{"Titre", "Realisateur", "Annee",     "Genre", "Duree",
                                                   "Note",  "Support",     "Rangement", "Pret"};

bool convient(const FilmPropose& film, const Envies& envies) {
    if (film.note < envies.noteAuMoins) return false;
    if (const auto minutes = util::minutesDe(film.duree);
        envies.minutesAuPlus > 0 && (!minutes || *minutes > envies.minutesAuPlus))
        return false;
    if (envies.genre.empty()) return true;
    const std::vector<std::string_view> genres = valeursDe(film.genre);
    return dao::egalJet(film.genre, envies.genre) ||
           std::any_of(genres.begin(), genres.end(), [&](auto genre) { return dao::egalJet(genre, envies.genre); });
}

}  // namespace

std::string FilmPropose::texte() const {
    std::string texte = util::entreChevrons(film.titre);
    if (!film.realisateur.empty()) texte += " de " + film.realisateur;
    if (!annee.empty()) texte += " (" + annee + ")";
    if (const auto minutes = util::minutesDe(duree))
        texte += ", " + util::texteDesMinutes(*minutes);
    else if (!duree.empty())
        texte += ", " + duree;
    if (note > 0) texte += ", noté " + std::to_string(note) + "/10";
    for (const std::string& ou : {support, rangement})
        if (!ou.empty()) texte += ", " + ou;
    return texte;
}

// Of a film owned twice, which another tool may have made, one copy at home is enough, and one chance.
QueRegarder::QueRegarder(const Contexte& c, const Envies& envies, Hasard hasard) : m_hasard(std::move(hasard)) {
    std::unordered_set<std::string> connus;
    dao::Recordset films =
        db::ouvreRequete(c, "SELECT * " + std::string(kPossedes) + " ORDER BY Titre ASC", kNumero, kPortees);
    const dao::Souffle souffle = db::souffle(c);
    dao::Cadence cadence(souffle);
    for (; !films.Eof(); films.MoveNext()) {
        cadence();
        if (!dao::egalJet(films.texte("Pret"), "")) continue;
        FilmPropose film{.film = {films.texte("Titre"), films.texte("Realisateur")},
                         .annee = films.texte("Annee"),
                         .genre = films.texte("Genre"),
                         .duree = films.texte("Duree"),
                         .support = films.texte("Support"),
                         .rangement = films.texte("Rangement")};
        film.note = std::clamp(util::valEntier(films.texte("Note")), 0, 10);
        if (!convient(film, envies)) continue;
        if (connus.insert(dao::cleDeComparaison(film.film.titre) + '\0' + dao::cleDeComparaison(film.film.realisateur))
                .second)
            m_films.push_back(std::move(film));
    }
    m_reste = m_films.size();
}

std::optional<FilmPropose> QueRegarder::prochain() {
    if (m_films.empty()) return std::nullopt;
    std::size_t parmi = m_reste;
    if (m_reste == 0) {
        m_reste = m_films.size();
        parmi = std::max<std::size_t>(1, m_reste - 1);
        std::swap(m_films.front(), m_films.back());  // the film shown last stands first: it waits at the end
    }
    std::swap(m_films[m_hasard(parmi) % parmi], m_films[m_reste - 1]);
    return m_films[--m_reste];
}

std::string QueRegarder::texteDuNombre() const {
    if (m_films.empty()) return "Aucun film possédé et non prêté ne convient.";
    return util::phraseCompte(static_cast<long>(m_films.size()), "Un seul film convient.", "Parmi # films.");
}

std::vector<std::string> genresPossedes(const Contexte& c) {
    dao::Recordset films =
        db::ouvreRequete(c, "SELECT DISTINCT Genre " + std::string(kPossedes) + " ORDER BY Genre ASC", kNumero);
    std::vector<std::pair<std::string, std::string>> genres;
    for (; !films.Eof(); films.MoveNext()) {
        const std::string champ = films.texte("Genre");
        for (const std::string_view genre : valeursDe(champ))
            genres.emplace_back(dao::cleDeComparaison(genre), genre);
    }
    std::stable_sort(genres.begin(), genres.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string> noms;
    for (std::size_t i = 0; i < genres.size(); ++i)
        if (i == 0 || genres[i].first != genres[i - 1].first) noms.push_back(genres[i].second);
    return noms;
}

}  // namespace ensemble
