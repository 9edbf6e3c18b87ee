#include "db/Affiches.h"
#include "db/Requete.h"
#include "db/RetourASauvegarde.h"
#include "platform/dao/Ecarts.h"
#include "util/Nombres.h"

#include <algorithm>

namespace db {

namespace {

constexpr std::size_t kPremieres = 10;

struct Phrases {
    std::string un, plusieurs;  // "#" is how many
};

void ajoute(std::string& texte, const dao::LotDeLignes& lot, const Phrases& phrases) {
    if (lot.nombre == 0) return;
    texte += "\n" + util::phraseCompte(lot.nombre, phrases.un, phrases.plusieurs) + "\n";
    for (const std::string& ligne : lot.premieres)
        texte += "    " + ligne + "\n";
    if (std::ssize(lot.premieres) < lot.nombre) texte += "    …\n";
}

bool sontVides(const dao::Ecarts& ecarts) {
    return ecarts.seulementLa.nombre + ecarts.seulementIci.nombre + ecarts.differentes.nombre == 0;
}

std::string compte(long long nombre, const char* un, const char* plusieurs) {
    return util::phraseCompte(static_cast<long>(nombre), un, plusieurs);
}

std::string decrit(const dao::DBEngine::Contenu& contenu) {
    return compte(contenu.films, "# film", "# films") + ", " +
           compte(contenu.possessions, "# exemplaire", "# exemplaires");
}

struct Comparees {
    dao::DBEngine::Contenu alors, aujourdhui;
    dao::Ecarts films, exemplaires;
};

Comparees compare(const std::string& la, const std::string& ici) {
    return {dao::DBEngine::contenuDe(la), dao::DBEngine::contenuDe(ici),
            dao::ecarts(la, ici, "Films", "Titre", "Realisateur", kPremieres),
            dao::ecarts(la, ici, "Personnel", "Titre2", "Realisateur2", kPremieres)};
}

}  // namespace

std::string comparaison(const Contexte& c, const Sauvegarde& copie) {
    const std::string ici = fichierAJour(c);
    Comparees comparees;
    attente(c)([&] { comparees = compare(copie.chemin, ici); });
    const auto& [alors, aujourdhui, films, exemplaires] = comparees;
    std::string texte = "Sauvegarde du " + dateDe(copie) + ", avant : " + libelle(copie.nom.avant) + "\n    " +
                        decrit(alors) + "\nAujourd'hui\n    " + decrit(aujourdhui) + "\n";
    if (sontVides(films)) texte += "\nLes films sont les mêmes.\n";
    ajoute(texte, films.seulementLa,
           {"# film n'est que dans la sauvegarde :", "# films ne sont que dans la sauvegarde :"});
    ajoute(texte, films.seulementIci,
           {"# film n'est que dans la base d'aujourd'hui :", "# films ne sont que dans la base d'aujourd'hui :"});
    ajoute(texte, films.differentes, {"# film a changé depuis :", "# films ont changé depuis :"});
    if (sontVides(exemplaires)) texte += "\nLes exemplaires sont les mêmes.\n";
    ajoute(texte, exemplaires.seulementLa,
           {"# exemplaire n'est que dans la sauvegarde :", "# exemplaires ne sont que dans la sauvegarde :"});
    ajoute(texte, exemplaires.seulementIci,
           {"# exemplaire n'est que dans la base d'aujourd'hui :",
            "# exemplaires ne sont que dans la base d'aujourd'hui :"});
    ajoute(texte, exemplaires.differentes, {"# exemplaire a changé depuis :", "# exemplaires ont changé depuis :"});
    if (const long absentes = affichesSansFichier(c, copie); absentes > 0)
        texte += "\n" +
                 util::phraseCompte(absentes, "# affiche que nomme la sauvegarde n'a plus son fichier.",
                                    "# affiches que nomme la sauvegarde n'ont plus leur fichier.") +
                 "\n";
    return texte;
}

// A value that is longer than any name is a picture.
long affichesSansFichier(const Contexte& c, const Sauvegarde& copie) {
    const std::string dossier = dossierImages(c);
    long absentes = 0;
    attente(c)([&] {
        const std::vector<std::string> noms = dao::DBEngine::textesDe(
            copie.chemin,
            "SELECT CAST(Affiche AS TEXT) FROM Films WHERE length(Affiche) BETWEEN 4 AND 4096 AND "
            "CAST(substr(Affiche, 1, 3) AS TEXT)='JPG'");
        absentes = std::ranges::count_if(noms, [&](const std::string& affiche) {
            return !fichierAffiche(dossier, affiche) && !afficheVoisine(copie.base, affiche);
        });
    });
    return absentes;
}

}  // namespace db
