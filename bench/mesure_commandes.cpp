// mesure_commandes recherche DOSSIER TEXTE | ajout DOSSIER | note DOSSIER | modification DOSSIER | sauvegarde DOSSIER | conversion DOSSIER FILMS |
// conversion_copiee DOSSIER FILMS | annulation DOSSIER FICHES
// Single commands of the program without its window, in a program folder, to be held against plancher_commandes.

#include "Mesure.h"
#include "SansFenetre.h"
#include "Sqlite.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "app/Annulation.h"
#include "app/ChoixFonction.h"
#include "app/Commandes.h"
#include "app/Sauvegardes.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"
#include "browse/TexteRequete.h"
#include "db/Option3_Click.h"
#include "db/Sauvegardes.h"
#include "db/Schema.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdMajBase_Click.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "edit/cmdPonctuation_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "platform/dao/DBEngine.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <limits>
#include <vector>

#include <fcntl.h>
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

// One film's rating, until it is in the base and shown; each time another film's.
void mesureNote(app::Session& session) {
    const browse::Arbre& arbre = session.etats.liste.TreeView1.Nodes;
    int noeud = 1;
    double meilleure = std::numeric_limits<double>::max();
    for (int passage = 0; passage < kPassages; ++passage) {
        do
            ++noeud;
        while (arbre.estGroupe(noeud));
        session.execute(app::TreeView1_NodeClick, noeud);
        const int note = session.etats.fiche.note == 9 ? 8 : 9;
        sync();
        meilleure =
            std::min(meilleure, bench::meilleureDuree(1, [&] { session.execute(edit::etoilesNote_Change, note); }));
        if (session.etats.fiche.note != note) throw std::runtime_error("the rating is not shown");
    }
    bench::declare("note", meilleure);
}

double mediane(std::vector<double> durees) {
    std::ranges::sort(durees);
    return durees[durees.size() / 2];
}

// The same bytes as a rating's: the base's first page, the film's, and that of its entry in the index.
double ajouteALaFin(int fichier) {
    static const std::string octets(3 * 4096, 'x');
    return bench::meilleureDuree(1, [&] {
        if (write(fichier, octets.data(), octets.size()) < 0 || fdatasync(fichier) != 0)
            throw std::runtime_error("cannot write");
    });
}

// A film's rating stored by its command, by bare SQLite in a copy of the base, and its bytes at the end of a file, in turn:
// medians, since the disk's own times differ more than what is measured.
void mesureModification(app::Session& session, const std::string& dossier) {
    constexpr int kTours = 61;
    const std::string copie = dossier + "/nue.db", temoin = dossier + "/temoin";
    std::filesystem::copy_file(dossier + "/Films.mdb", copie, std::filesystem::copy_options::overwrite_existing);
    bench::Sqlite nue(copie);
    nue.execute("PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL; PRAGMA cache_size=-8000");
    bench::Enonce ecrit(nue, "UPDATE Films SET Note=?1 WHERE Titre=?2 AND Realisateur=?3");
    const int fichier = open(temoin.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    const browse::Arbre& arbre = session.etats.liste.TreeView1.Nodes;
    std::vector<double> commandes, sqlite, ajouts;
    sync();
    for (int tour = 0, noeud = 1; tour < kTours; ++tour) {
        do
            noeud += 7;
        while (arbre.estGroupe(noeud));
        session.execute(app::TreeView1_NodeClick, noeud);
        db::CleFilm film;
        session.execute([&film](const app::Contexte& c) { film = {c.film.titre, c.film.realisateur}; });
        const int note = session.etats.fiche.note == 9 ? 8 : 9;
        commandes.push_back(bench::meilleureDuree(1, [&] { session.execute(edit::etoilesNote_Change, note); }));
        sqlite.push_back(bench::meilleureDuree(1, [&] {
            nue.execute("BEGIN IMMEDIATE");
            ecrit.lie(1, static_cast<long long>(note));
            ecrit.lie(2, film.titre);
            ecrit.lie(3, film.realisateur);
            ecrit.ligne();
            ecrit.recommence();
            nue.execute("COMMIT");
        }));
        ajouts.push_back(ajouteALaFin(fichier));
    }
    close(fichier);
    bench::declare("note", mediane(commandes));
    bench::declare("note_sqlite", mediane(sqlite));
    bench::declare("note_ajoutee", mediane(ajouts));
}

double convertit(app::Session& session, std::size_t stockage) {
    ecran::choisit(session.etats.stockage.Option3, stockage);
    session.execute(db::Option3_Click);
    sync();  // what was written before is not part of it
    return bench::meilleureDuree(1, [&] { session.execute(db::cmdMajBase_Click); });
}

// Every poster to a folder, with the compaction that belongs to it, and back; then a compaction of the whole. Each with the
// safety copy that it takes, or without one: a large base that has one of this hour takes no other.
void mesureConversion(app::Session& session, const bench::Machine& machine, const std::string& dossier,
                      const std::string& films, bool copies) {
    const auto prepare = [&] {
        if (copies)
            std::filesystem::remove_all(dossier + "/Sauvegardes");
        else
            session.execute([](const db::Contexte& c) { (void)db::sauvegarde(c, db::Avant::Compactage); });
    };
    prepare();
    bench::declare("vers_dossier", convertit(session, 1));
    machine.attend(films + " fichiers créés.");
    bench::declare("vers_base", convertit(session, 0));
    machine.attend(films + " fichiers inclus.");
    prepare();
    sync();
    bench::declare("compactage", bench::meilleureDuree(1, [&] { session.execute(db::cmdCompacter_Click); }));
    machine.attend("Compactage effectué.");
}

// The same command, recorded or not, each in its turn.
class AvecEtSans {
  public:
    AvecEtSans(app::Session& session, std::string base) : m_session(session), m_base(std::move(base)) {}

    // `apres`: the statements that make the base what the next passage needs.
    template <typename Prepare, typename Commande>
    void mesure(const std::string& nom, int passages, Prepare prepare, Commande commande, const std::string& apres) {
        double durees[2] = {}, processeur[2] = {};
        for (int passage = 0; passage < 2 * passages; ++passage) {
            prepare();
            const bool note = passage % 2 == 1;
            sync();
            const std::clock_t debut = std::clock();
            const double duree = bench::meilleureDuree(1, [&] {
                m_session.execute([&](const app::Contexte& c) {
                    if (!note) c.annulations.renonce();
                    commande(c);
                });
            });
            const double travail = static_cast<double>(std::clock() - debut) * 1000 / CLOCKS_PER_SEC;
            const auto garde = [passage](double& meilleure, double valeur) {
                if (passage < 2 || valeur < meilleure) meilleure = valeur;
            };
            garde(durees[note ? 1 : 0], duree);
            garde(processeur[note ? 1 : 0], travail);
            if (note && passage == 2 * passages - 1)
                bench::declare(nom + "_annulee",
                               bench::meilleureDuree(1, [&] { m_session.execute(app::cmdAnnuler_Click); }));
            if (!apres.empty()) dao::DBEngine::OpenDatabase(m_base).Execute(apres);
        }
        bench::declare(nom + "_sans", durees[0]);
        bench::declare(nom + "_avec", durees[1]);
        bench::declare(nom + "_rapport", durees[1] / durees[0]);
        bench::declare(nom + "_processeur_sans", processeur[0]);  // less disturbed by what else the machine does
        bench::declare(nom + "_processeur_avec", processeur[1]);
        bench::declare(nom + "_processeur_rapport", processeur[1] / processeur[0]);
    }

  private:
    app::Session& m_session;
    std::string m_base;
};

// Commands that are recorded so that they can be taken back, against the same ones that are not.
void mesureAnnulation(app::Session& session, const std::string& dossier, const std::string& fiches) {
    AvecEtSans deux(session, dossier + "/Films.mdb");
    session.etats.liste.ChoixZone.selectionne(browse::kZoneTous);
    session.execute(browse::ChoixZone_Click);
    int noeud = 1;
    const auto film = [&] {
        const browse::Arbre& arbre = session.etats.liste.TreeView1.Nodes;
        do
            noeud += 7;
        while (noeud <= arbre.Count() && arbre.estGroupe(noeud));
        if (noeud > arbre.Count()) throw std::runtime_error("too few films are listed");
        session.execute(app::TreeView1_NodeClick, noeud);
    };
    deux.mesure(
        "suppression", 3 * kPassages, film, [](const auto& c) { edit::cmdSupprimerTitre_Click(c); }, "");
    const auto enPetit = [&] {
        dao::DBEngine::OpenDatabase(dossier + "/Films.mdb").Execute("UPDATE Films SET Titre=lower(Titre)");
    };
    deux.mesure(
        "correction", 2, enPetit, [](const auto& c) { edit::cmdPonctuation_Click(c); }, "");
    session.etats.ajout.txtCheminAjoutAuto.Text = fiches;
    deux.mesure(
        "import", kPassages, [] {}, [](const auto& c) { acquire::cmdAjoutAuto_Click(c); },
        "DELETE FROM Films WHERE DateAjout='" + systeme::HorlogeSysteme().dateDuJour() + "'; DELETE FROM Personnel");
    bench::declare("memoire", bench::memoireDePointe());
}

// A safety copy, whatever the hour; then what the window shows of it.
void mesureSauvegarde(app::Session& session) {
    constexpr db::ReglesDesSauvegardes kToujours{.gardees = 1, .grosseBase = std::numeric_limits<std::int64_t>::max()};
    sync();
    bench::declare("sauvegarde", bench::meilleureDuree(3, [&] {
                       session.execute([&](const db::Contexte& c) {
                           if (db::sauvegarde(c, db::Avant::Titres, kToujours).issue != db::IssueSauvegarde::Faite)
                               throw std::runtime_error("no copy");
                       });
                   }));
    bench::declare("fenetre", bench::meilleureDuree(3, [&] { session.execute(app::cmdSauvegardes_Click); }));
    bench::declare("comparaison",
                   bench::meilleureDuree(3, [&] { session.execute(app::cmdComparerSauvegarde_Click, 0); }));
    bench::declare("retour", bench::meilleureDuree(1, [&] { session.execute(app::cmdRevenirSauvegarde_Click, 0); }));
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "";
    if (genre != "ajout" && genre != "note" && genre != "modification" && genre != "sauvegarde" &&
        (nombre < 4 ||
         (genre != "recherche" && genre != "conversion" && genre != "conversion_copiee" && genre != "annulation")))
        throw std::invalid_argument(
            "usage: mesure_commandes "
            "recherche|ajout|note|modification|sauvegarde|conversion|conversion_copiee|annulation DOSSIER "
            "[TEXTE|FILMS|FICHES]");
    if (genre == "recherche") return mesureRecherche(mots[2], mots[3]), 0;
    bench::Machine machine;
    app::Session session(machine.pour(mots[2]));
    session.Form_Load();
    if (genre == "ajout")
        mesureAjout(session);
    else if (genre == "note")
        mesureNote(session);
    else if (genre == "modification")
        mesureModification(session, mots[2]);
    else if (genre == "annulation")
        mesureAnnulation(session, mots[2], mots[3]);
    else if (genre == "sauvegarde")
        mesureSauvegarde(session);
    else
        mesureConversion(session, machine, mots[2], mots[3], genre == "conversion");
    session.Form_Unload();
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_commandes: " << e.what() << '\n';
    return 1;
}
