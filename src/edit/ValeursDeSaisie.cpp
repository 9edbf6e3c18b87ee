#include "edit/ValeursDeSaisie.h"

#include "db/Requete.h"
#include "edit/Contexte.h"
#include "edit/LongueursChamps.h"
#include "util/Texte.h"

#include <algorithm>

namespace edit {

namespace {

struct Lecture {
    const char* enonce;
    const char* champ;
};
constexpr std::array<Lecture, ValeursDeSaisie::kListes> kLectures{
    {{"SELECT DISTINCT genre FROM films where genre<>\"\" ORDER BY Genre ASC ;", "Genre"},
     {"SELECT DISTINCT origine  FROM films where origine<>\"\" ORDER BY origine ASC ;", "origine"},  // its two blanks
     {"SELECT DISTINCT production FROM films where production<>\"\" ORDER BY production ASC ;", "production"}}};

std::vector<std::string> lit(const Contexte& c, const Lecture& lecture) {
    std::vector<std::string> lues;
    dao::Recordset valeurs = db::ouvreRequete(c, lecture.enonce, db::NumeroErreur::Command13);
    for (; !valeurs.Eof(); valeurs.MoveNext())
        lues.push_back(valeurs.texte(lecture.champ));
    return lues;
}

// Looks at the file: another program's change counts too. What cannot be read is told by the reading.
bool sontAJour(const Contexte& c) {
    try {
        c.base.base.prepareLesRecherches("Films");
        return c.base.base.version("Films") == c.ajout.valeurs.films;
    } catch (const dao::ErreurDao&) {
        return false;
    }
}

}  // namespace

void remplitListesDeSaisie(const Contexte& c) {
    const std::array<ecran::Liste*, ValeursDeSaisie::kListes> listes{&c.ajout.Combo2, &c.ajout.Combo3, &c.ajout.Combo4};
    ValeursDeSaisie& connues = c.ajout.valeurs;
    if (!sontAJour(c)) connues = {};
    for (std::size_t i = 0; i < listes.size(); ++i) {
        listes[i]->Clear();
        if (!connues.listes[i]) {
            connues.listes[i] = lit(c, kLectures[i]);
            if (connues.films == dao::Database::Version{}) connues.films = versionDesFilms(c);
        }
        listes[i]->Items = *connues.listes[i];
    }
}

dao::Database::Version versionDesFilms(const Contexte& c) {
    return c.base.base.version("Films");
}

void unFilmEstEcrit(const Contexte& c, const dao::Database::Version& avant) {
    ValeursDeSaisie& connues = c.ajout.valeurs;
    const dao::Database::Version apres = versionDesFilms(c);
    if (avant != connues.films || avant.epoque != apres.epoque) return;
    const std::array<std::string, ValeursDeSaisie::kListes> ecrites{
        util::coupe(c.ajout.Combo2.Text, kLongueurGenre), util::coupe(c.ajout.Combo3.Text, kLongueurOrigine),
        util::coupe(c.ajout.Combo4.Text, kLongueurProduction)};
    for (std::size_t i = 0; i < ecrites.size(); ++i) {
        auto& liste = connues.listes[i];
        if (!ecrites[i].empty() && liste && std::ranges::find(*liste, ecrites[i]) == liste->end()) liste.reset();
    }
    connues.films = apres;
}

}  // namespace edit
