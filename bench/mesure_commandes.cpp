// mesure_commandes recherche DOSSIER TEXTE | ajout DOSSIER | conversion DOSSIER FILMS
// Single commands of the program without its window, in a program folder, to be held against plancher_commandes.

#include "Mesure.h"
#include "SansFenetre.h"
#include "app/ChoixFonction.h"
#include "browse/ChoixTri.h"
#include "browse/TexteRequete.h"
#include "db/Option3_Click.h"
#include "db/Schema.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdMajBase_Click.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "platform/dao/DBEngine.h"

#include <algorithm>

#include <unistd.h>

namespace {

constexpr int kPassages = 5;

// The listing of the search, as its recordset; the tree is not filled from it.
void mesureRecherche(const std::string& dossier, const std::string& texte) {
    dao::Database base = dao::DBEngine::OpenDatabase(dossier + "/Films.mdb");
    base.declareCles(db::clesDesTables());
    const std::string enonce = browse::construitRequete(
        browse::kZoneTous, browse::kTriTitre2, browse::construitConditionRecherche(texte, {true, true, true, true}));
    long trouves = 0;
    const double duree = bench::meilleureDuree(kPassages, [&] { trouves = base.OpenRecordset(enonce).RecordCount(); });
    bench::declare("recherche", duree);
    bench::declare("trouves", static_cast<double>(trouves));
}

// A film by hand, without a poster, until the day's additions are listed; then that listing alone.
void mesureAjout(app::Session& session) {
    session.execute(app::Command13_Click, 1);
    auto& saisie = session.etats.ajout.Text3;
    int numero = 0;
    bench::declare("ajout", bench::meilleureDuree(kPassages, [&] {
                       saisie[0].Text = "Un film ajouté à la main " + std::to_string(++numero);
                       saisie[1].Text = "Ada Verrières";
                       session.execute(edit::cmdAjoutFilm_Click);
                   }));
    if (session.etats.liste.Frame1.Caption != "Liste de films (" + std::to_string(kPassages) + " titres)")
        throw std::runtime_error("listed: " + session.etats.liste.Frame1.Caption);
    bench::declare("listage", bench::meilleureDuree(kPassages, [&] { session.execute(browse::ChoixTri_Click); }));
}

double convertit(app::Session& session, std::size_t stockage) {
    ecran::choisit(session.etats.stockage.Option3, stockage);
    session.execute(db::Option3_Click);
    sync();  // what was written before is not part of it
    return bench::meilleureDuree(1, [&] { session.execute(db::cmdMajBase_Click); });
}

// Every poster to a folder, with the compaction that belongs to it, and back; then a compaction of the whole.
void mesureConversion(app::Session& session, const bench::Machine& machine, const std::string& films) {
    bench::declare("vers_dossier", convertit(session, 1));
    machine.attend(films + " fichiers créés.");
    bench::declare("vers_base", convertit(session, 0));
    machine.attend(films + " fichiers inclus.");
    sync();
    bench::declare("compactage", bench::meilleureDuree(1, [&] { session.execute(db::cmdCompacter_Click); }));
    machine.attend("Compactage effectué.");
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "";
    if (genre != "ajout" && (nombre < 4 || (genre != "recherche" && genre != "conversion")))
        throw std::invalid_argument("usage: mesure_commandes recherche|ajout|conversion DOSSIER [TEXTE|FILMS]");
    if (genre == "recherche") return mesureRecherche(mots[2], mots[3]), 0;
    bench::Machine machine;
    app::Session session(machine.pour(mots[2]));
    session.Form_Load();
    if (genre == "ajout")
        mesureAjout(session);
    else
        mesureConversion(session, machine, mots[3]);
    session.Form_Unload();
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_commandes: " << e.what() << '\n';
    return 1;
}
