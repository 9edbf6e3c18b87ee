#include "ensemble/Apercus.h"

#include "browse/LigneDuNoeud.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LongueursChamps.h"
#include "ensemble/Avancement.h"
#include "ensemble/CleDeFilm.h"
#include "util/Capitales.h"
#include "util/Nombres.h"
#include "util/Sql.h"
#include "util/Texte.h"

#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace ensemble {

namespace {

constexpr auto kNumero = db::NumeroErreur::Apercus;

// Films that are several for the base now and one afterwards.
class Rencontres {
  public:
    void ajoute(const db::CleFilm& film, const std::string& apres) {
        Groupe& groupe = m_groupes[cleDeFilm(apres, film.realisateur)];
        groupe.avant.insert(cleDeFilm(film));
        groupe.collision.titre = apres;
        groupe.collision.films.push_back(film);
    }
    [[nodiscard]] std::vector<Collision> collisions() && {
        std::vector<Collision> trouvees;
        for (auto& [cle, groupe] : m_groupes)
            if (groupe.avant.size() > 1) trouvees.push_back(std::move(groupe.collision));
        return trouvees;
    }

  private:
    struct Groupe {
        std::set<std::string> avant;
        Collision collision;
    };
    std::map<std::string, Groupe> m_groupes;
};

dao::Recordset ouvreLesFilms(const Contexte& c) {
    return db::ouvreRequete(c, "SELECT Titre, Realisateur FROM films ORDER BY Titre ASC", kNumero);
}

// Nearly every correction leaves a title equal for the base; only a rare letter makes another of it.
std::vector<Collision> rencontres(const Contexte& c) {
    Rencontres rencontres;
    const dao::Souffle souffle = db::souffle(c);
    for (dao::Recordset films = ouvreLesFilms(c); !films.Eof(); films.MoveNext()) {
        souffle();
        const db::CleFilm film{films.texte("Titre"), films.texte("Realisateur")};
        rencontres.ajoute(film, util::metEnCapitales(film.titre));
    }
    return std::move(rencontres).collisions();
}

std::string texteDesCollisions(const std::vector<Collision>& collisions) {
    std::string texte;
    for (const Collision& collision : collisions)
        texte += (texte.empty() ? " Plusieurs films porteront alors le même nom : " : ", ") +
                 util::entreChevrons(collision.titre);
    return texte.empty() ? texte : texte + ".";
}

// How many films bear the value already, under other headings.
long dejaLa(const Contexte& c, const std::string& champ, const std::string& valeur, bool personnel) {
    return db::ouvreRequete(c,
                            "SELECT * FROM " + std::string(personnel ? "personnel" : "films") + " WHERE " + champ +
                                " =" + util::entreGuillemets(valeur),
                            kNumero)
        .RecordCount();
}

}  // namespace

Apercu apercuDesTitres(const Contexte& c) {
    Apercu apercu;
    bool autresPourLaBase = false;
    dao::Recordset films = ouvreLesFilms(c);
    Avancement avancement(c, films.RecordCount(), "Aperçu des titres corrigés");
    for (; !films.Eof() && apercu.complet; films.MoveNext()) {
        db::CleFilm film{films.texte("Titre"), films.texte("Realisateur")};
        std::string apres = util::metEnCapitales(film.titre);
        if (apres != film.titre) {
            autresPourLaBase = autresPourLaBase || !dao::egalJet(apres, film.titre);
            apercu.changements.push_back({film, film.titre, std::move(apres)});
        }
        apercu.complet = avancement.avance();
    }
    if (autresPourLaBase) apercu.collisions = rencontres(c);
    const long nombre = std::ssize(apercu.changements);
    apercu.texte = nombre == 0 ? "Aucun titre ne changera."
                               : util::phraseCompte(nombre, "# titre changera.", "# titres changeront.");
    apercu.texte += texteDesCollisions(apercu.collisions);
    if (!apercu.complet) apercu.texte = "L'aperçu a été arrêté avant la fin. " + apercu.texte;
    return apercu;
}

Apercu apercuDuGroupe(const Contexte& c, const std::string& champ, const std::string& valeur, bool personnel) {
    const browse::VueArbre& vue = c.liste.TreeView1;
    Apercu apercu{.texte = "Aucun film ne changera."};
    const int noeud = vue.SelectedItem;
    if (valeur.empty() || noeud < 1 || noeud > vue.Nodes.Count() || !vue.Nodes.estGroupe(noeud)) return apercu;
    const std::string nouvelle = util::coupe(valeur, personnel ? edit::kLongueurSupport : edit::kLongueurGenre);
    long egaux = 0;
    std::string sansLigne;
    for (const std::int32_t enfant : vue.Nodes.enfants(noeud)) {
        const auto film = browse::filmDuNoeud(c, enfant);
        dao::Recordset ligne;
        if (film)
            ligne =
                db::ouvreRequete(c, personnel ? db::enoncePossession(*film) : db::enonceFilmModifie(*film), kNumero);
        if (!film || ligne.Eof()) {
            sansLigne = film ? film->titre : std::string(vue.Nodes.Text(enfant));
            break;
        }
        const std::string avant = ligne.texte(champ);
        egaux += dao::egalJet(avant, nouvelle);
        if (avant != nouvelle) apercu.changements.push_back({*film, avant, nouvelle});
    }
    const long nombre = std::ssize(apercu.changements), autres = dejaLa(c, champ, nouvelle, personnel) - egaux;
    if (nombre > 0) apercu.texte = util::phraseCompte(nombre, "# film changera.", "# films changeront.");
    if (nouvelle != valeur) apercu.texte += " Le nom sera coupé : " + util::entreChevrons(nouvelle) + ".";
    if (nombre > 0 && autres > 0)
        apercu.texte +=
            util::phraseCompte(autres, " # autre film porte déjà ce nom", " # autres films portent déjà ce nom") +
            " : les deux groupes n'en feront qu'un.";
    if (!sansLigne.empty())
        apercu.texte +=
            " Le changement s'arrêtera à " + util::entreChevrons(sansLigne) + ", qui n'a pas de ligne dans la base.";
    return apercu;
}

}  // namespace ensemble
