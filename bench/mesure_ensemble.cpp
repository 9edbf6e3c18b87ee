// mesure_ensemble filtre DOSSIER | doublons DOSSIER
// What looks at a whole collection, in a program folder and without its window: the filter of the tree letter by letter,
// beside `grep -i` over the same texts, and the resemblances of all its films.

#include "Mesure.h"
#include "SansFenetre.h"
#include "browse/ChoixTri.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "ensemble/FiltreTitres.h"
#include "ensemble/Ressemblances.h"
#include "util/Similarite.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

constexpr int kPassages = 5;
constexpr long kAssezPeu = 3000;  // films; of more, comparing each with each would only make one wait
constexpr std::array<const char*, 6> kSaisies{"coeur de l'horloger", "zoé lamlet", "drame 1979", "l ete",
                                              "Agnès Ber k",         "introuvable"};

// Each state of the field while the texts are typed, and taken back.
std::vector<std::string> frappes() {
    std::vector<std::string> etats;
    for (const std::string saisie : kSaisies) {
        for (std::size_t n = 1; n <= saisie.size(); ++n)
            if (n == saisie.size() || (static_cast<unsigned char>(saisie[n]) & 0xc0) != 0x80)
                etats.push_back(saisie.substr(0, n));
        etats.push_back(saisie.substr(0, 2));
        etats.emplace_back();
    }
    return etats;
}

// What a keystroke has to have done before the tree can be painted; each at its best of several passes.
void mesureFrappes(const ensemble::Contexte& c, ensemble::FiltreTitres& filtre) {
    const std::vector<std::string> etats = frappes();
    std::vector<double> durees(etats.size());
    for (int passage = 0; passage < kPassages; ++passage) {
        for (std::size_t i = 0; i < etats.size(); ++i) {
            const double duree = bench::meilleureDuree(1, [&] {
                filtre.filtre(c, etats[i]);
                if (filtre.noeudsVus(c.liste.TreeView1.Nodes).empty() && filtre.vues().nombre() != 0)
                    throw std::runtime_error("no node for what is found");
            });
            if (passage == 0 || duree < durees[i]) durees[i] = duree;
        }
    }
    std::sort(durees.begin(), durees.end());
    bench::declare("frappe_mediane", durees[durees.size() / 2]);
    bench::declare("frappe_pire", durees.back());
}

void mesureGrep(const ensemble::Contexte& c, const std::string& fichier) {
    std::ofstream textes(fichier);
    dao::Recordset& films = c.base.liste;
    for (films.MoveFirst(); !films.Eof(); films.MoveNext()) {
        for (const char* champ : {"Titre", "Realisateur", "Annee", "Genre", "Acteurs"})
            textes << films.texte(champ) << '\t';
        textes << '\n';
    }
    textes.close();
    bench::declare("grep", bench::meilleureDuree(kPassages, [&] {
                       const std::string commande =
                           "LC_ALL=C.UTF-8 grep -i -c 'horloger' '" + fichier + "' | cat >/dev/null";
                       if (std::system(commande.c_str()) != 0) throw std::runtime_error(commande);
                   }));
}

void mesureFiltre(const ensemble::Contexte& c, const std::string& dossier) {
    ensemble::FiltreTitres filtre;
    bench::declare("index", bench::meilleureDuree(1, [&] { filtre.filtre(c, ""); }));
    bench::declare("memoire_index", static_cast<double>(filtre.octets()) / 1e6);
    mesureFrappes(c, filtre);
    mesureGrep(c, dossier + "/textes");
}

// Every pair by the measure itself, as an import asks it.
long pairesUneAUne(const ensemble::Contexte& c) {
    std::vector<std::pair<util::CompteLettres, util::CompteLettres>> films;
    for (dao::Recordset lignes = edit::ouvreFilmsParTitre(c); !lignes.Eof(); lignes.MoveNext())
        films.emplace_back(util::compteLettres(lignes.texte("Titre")),
                           util::compteLettres(lignes.texte("Realisateur")));
    long paires = 0;
    for (std::size_t i = 0; i < films.size(); ++i)
        for (std::size_t j = i + 1; j < films.size(); ++j)
            paires += util::similarite(films[i].first, films[j].first) > edit::kSeuilRessemblance &&
                      util::similarite(films[i].second, films[j].second) > edit::kSeuilRessemblance;
    return paires;
}

void mesureDoublons(const ensemble::Contexte& c) {
    ensemble::Ressemblances trouvees;
    bench::declare("doublons", bench::meilleureDuree(2, [&] { trouvees = ensemble::ressemblances(c); }));
    bench::declare("paires", static_cast<double>(trouvees.trouvees));
    if (c.base.films.RecordCount() > kAssezPeu) return;
    long paires = 0;
    bench::declare("une_a_une", bench::meilleureDuree(2, [&] { paires = pairesUneAUne(c); }));
    if (paires != trouvees.trouvees) throw std::runtime_error("the plain measure finds other pairs");
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "", dossier = nombre > 2 ? mots[2] : "";
    if (genre != "filtre" && genre != "doublons")
        throw std::invalid_argument("usage: mesure_ensemble filtre|doublons DOSSIER");
    bench::Machine machine;
    app::Session session(machine.pour(dossier));
    session.Form_Load();
    session.etats.liste.ChoixZone.selectionne(browse::kZoneTous);
    session.etats.liste.ChoixTri.selectionne(browse::kTriTitre1);
    session.execute(browse::ChoixTri_Click);
    session.execute([&](const app::Contexte& c) { genre == "filtre" ? mesureFiltre(c, dossier) : mesureDoublons(c); });
    session.Form_Unload();
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_ensemble: " << e.what() << '\n';
    return 1;
}
