#include "browse/MarquesFilm.h"

#include "platform/dao/PlaceGardee.h"
#include "util/Ascii.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <exception>
#include <optional>

namespace browse {

namespace {

constexpr int kNoteMax = 10;
constexpr std::size_t kCaracteres = 200;

struct Ligne {
    std::string titre, realisateur, annee;
    int note = 0;
};

// Nothing where the row is gone, or the base: what is only looked at is no one's failure.
std::optional<Ligne> ligneDuNoeud(const Contexte& c, int noeud) {
    const Arbre& arbre = c.liste.TreeView1.Nodes;
    if (noeud < 1 || noeud > arbre.Count() || arbre.estGroupe(noeud) || !c.base.liste.estOuvert()) return std::nullopt;
    try {
        dao::Recordset& liste = c.base.liste;
        const dao::PlaceGardee place(liste);
        liste.MoveFirst();
        liste.Move(static_cast<long>(arbre.position(noeud)) - 1);
        const auto texte = [&liste](const char* champ) { return std::string(liste.vue(liste.colonne(champ))); };
        const int note = util::valEntier(texte("Note"));
        return Ligne{texte("Titre"), texte("Realisateur"), texte("Annee"), note < 1 || note > kNoteMax ? 0 : note};
    } catch (const std::exception&) {  // memory too: a row is painted
        return std::nullopt;
    }
}

MarquesFilm marquesDe(const Contexte& c, const Ligne& ligne) {
    return {c.liste.possedes.cherche(ligne.titre, ligne.realisateur), ligne.note};
}

void joint(std::string& texte, const char* separateur, const std::string& suite) {
    if (!texte.empty() && !suite.empty()) texte += separateur;
    texte += suite;
}

}  // namespace

MarquesFilm marquesDuNoeud(const Contexte& c, int noeud) {
    const auto ligne = ligneDuNoeud(c, noeud);
    return ligne ? marquesDe(c, *ligne) : MarquesFilm{};
}

std::string texteDesMarques(const MarquesFilm& marques) {
    std::string texte = marques.possession.possede ? "possédé" : "";
    if (marques.possession.prete) joint(texte, ", ", "prêté");
    if (marques.possession.reserve) joint(texte, ", ", "réservé");
    if (marques.note != 0) joint(texte, ", ", "noté " + std::to_string(marques.note) + "/10");
    return texte;
}

std::string infobulleDuNoeud(const Contexte& c, int noeud) {
    const auto ligne = ligneDuNoeud(c, noeud);
    if (!ligne) return {};
    std::string sous = ligne->realisateur;
    joint(sous, ", ", ligne->annee);
    std::string texte = util::coupe(ligne->titre, kCaracteres);
    joint(texte, "\n", util::coupe(sous, kCaracteres));
    std::string marques = texteDesMarques(marquesDe(c, *ligne));
    if (!marques.empty()) marques.front() = util::enMajuscule(marques.front());  // a plain letter in each
    joint(texte, "\n", marques);
    return texte;
}

bool suisLesMarques(const Contexte& c, std::chrono::milliseconds duree) {
    try {
        return c.liste.possedes.prepare(c, duree);
    } catch (const std::exception&) {  // none is told of idle work, which the next command begins anew
        return true;
    }
}

}  // namespace browse
