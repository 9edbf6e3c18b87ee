#include "ensemble/GestesDesPrets.h"

#include "edit/LongueursChamps.h"
#include "util/Texte.h"

namespace ensemble {

namespace {

std::string sansBlancsAuBord(std::string_view texte) {
    const std::size_t debut = texte.find_first_not_of(" \t"), fin = texte.find_last_not_of(" \t");
    return debut == std::string_view::npos ? std::string() : std::string(texte.substr(debut, fin - debut + 1));
}

}  // namespace

void cmdRendu_Click(const Contexte& c, const std::vector<db::CleFilm>& films) {
    const BilanDesPrets bilan = rendFilms(c, films);
    std::vector<ecran::Avis::Action> actions;
    std::vector<db::CleFilm> attendus;
    for (const Pret& pret : bilan.attendus)
        attendus.push_back(pret.film);
    if (!attendus.empty())
        actions.push_back({attendus.size() == 1 ? "Le lui prêter" : "Les leur prêter",
                           [c, attendus] { cmdPreterAQuiAttend_Click(c, attendus); }});
    c.avis.montre(bilan.texte("rendu"), std::move(actions));
}

void cmdPreter_Click(const Contexte& c, const FiltreTitres& filtre, const std::string& saisie) {
    const std::string aQui = util::coupe(sansBlancsAuBord(saisie), edit::kLongueurDivers);
    const std::vector<db::CleFilm> films = filmsChoisis(c, filtre);
    if (films.empty()) return c.avis.montre("Choisissez d'abord dans la liste le film à prêter.");
    if (aQui.empty()) return c.avis.montre("Tapez le nom de la personne à qui prêter.");
    c.avis.montre(preteFilms(c, films, aQui).texte("prêté"));
}

void cmdPreterAQuiAttend_Click(const Contexte& c, const std::vector<db::CleFilm>& films) {
    c.avis.montre(preteAQuiAttend(c, films).texte("prêté"));
}

}  // namespace ensemble
