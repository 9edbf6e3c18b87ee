#include "ProgrammeDEssai.h"

#include <QLineEdit>
#include <QTreeView>

#include <sqlite3.h>

namespace {

// The rows that SQLite handed out, on any connection: the work that was done, whatever the machine does beside. What is done
// aside holds nobody up.
thread_local long g_lignes = 0;

int suisLesLignes(sqlite3* base, const char**, const sqlite3_api_routines*) {
    return sqlite3_trace_v2(
        base, SQLITE_TRACE_ROW,
        [](unsigned, void*, void*, void*) {
            ++g_lignes;
            return 0;
        },
        nullptr);
}

// While it lives, a millisecond goes by with each ten rows that are read, and with nothing else.
class MontreDesLignes {
  public:
    MontreDesLignes() { sqlite3_auto_extension(entree()); }
    MontreDesLignes(const MontreDesLignes&) = delete;
    MontreDesLignes& operator=(const MontreDesLignes&) = delete;
    ~MontreDesLignes() { sqlite3_cancel_auto_extension(entree()); }
    [[nodiscard]] static std::chrono::steady_clock::time_point heure() {
        return std::chrono::steady_clock::time_point(std::chrono::hours(1)) + std::chrono::microseconds(100 * g_lignes);
    }

  private:
    static void (*entree())() { return reinterpret_cast<void (*)()>(suisLesLignes); }
};

constexpr int kFilms = 3000;
// Without an event let through: a breath is due after 300, and asked for every 256 at least.
constexpr long kLignesSansEvenement = 900;

struct Vivacite : testing::Test {
    MontreDesLignes montre;
    essais::ProgrammeDEssai essai;
    QTimer veille;
    long vues = 0, pire = 0;
    int refusees = 0, lancees = 0;

    void SetUp() override {
        dao::DBEngine::CreateDatabase(essai.dossier.chemin("Films.mdb"), db::schema());
        dao::Database base = dao::DBEngine::OpenDatabase(essai.dossier.chemin("Films.mdb"));
        const std::string rangs =
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<" + std::to_string(kFilms) + ") ";
        base.Execute(rangs +
                     "INSERT INTO Films(Titre, Realisateur, Annee, Genre, Duree, Acteurs, Resume, Note, DateAjout) "
                     "SELECT printf('titre %c%c numéro %d', 97+i*7%26, 97+i%26, i), 'Cinéaste '||(i%700), 1930+i%90, "
                     "'Genre '||(i%40), '1H'||(10+i%50), 'Acteur '||i, 'Résumé', i%11, '01/02/2003' FROM n");
        base.Execute(
            rangs +
            "INSERT INTO Personnel(Titre2, Realisateur2, Support, Pret, Reserve, \"Date\") SELECT Titre, "
            "Realisateur, 'Support '||(rowid%300), CASE rowid%3 WHEN 0 THEN 'Ami '||(rowid%50) ELSE '' END, '', "
            "'' FROM Films WHERE rowid%10<>0");
        base.Close();
        essai.montre = &MontreDesLignes::heure;
        essai.demarre();
        QObject::connect(&veille, &QTimer::timeout, &essai.fenetre(), [this] { laisseVivre(); });
        veille.start(0);
        repose();
    }
    // Events are handled here; a command that runs has the base for itself.
    void laisseVivre() {
        pire = std::max(pire, g_lignes - vues);
        vues = g_lignes;
        ui::Commande& commande = essai.programme->commande();
        if (!commande.enCours()) return;
        const auto lance = [this] { ++lancees; };
        refusees += commande.execute(lance) == ui::Commande::Issue::Refusee;
        commande.lis(lance);
    }
    // What was left for idle moments is done: many turns, none of which reads a row.
    void repose() {
        for (int calmes = 0; calmes < 20;) {
            const long avant = g_lignes;
            QTest::qWait(1);
            calmes = g_lignes == avant && !essai.programme->commande().enCours() ? calmes + 1 : 0;
        }
    }
    void geste(const std::string& nom, const std::function<void()>& fait, long auPlus = kLignesSansEvenement) {
        SCOPED_TRACE(nom);
        QCoreApplication::processEvents();
        pire = 0;
        vues = g_lignes;
        fait();
        repose();
        laisseVivre();
        EXPECT_LT(pire, auPlus);
    }
    void geste(const char* bouton) {
        geste(bouton, [&] { clique(bouton); });
    }
    void clique(const char* nom) {
        auto& bouton = essai.trouve<QAbstractButton>(nom);
        ASSERT_TRUE(bouton.isVisible() && bouton.isEnabled()) << nom;
        bouton.click();
    }
    [[nodiscard]] int films() {
        const browse::Arbre& arbre = essai.etats().liste.TreeView1.Nodes;
        int nombre = 0;
        for (int i = 1; i <= arbre.Count(); ++i)
            nombre += arbre.estGroupe(i) ? 0 : 1;
        return nombre;
    }
    void montreUnFilm(int noeud) {
        ui::VueTitres& vue = essai.arbre();
        emit vue.clicked(vue.modele().indexDuNoeud(noeud));
    }
};

TEST_F(Vivacite, ListingsAndSearchesLetEventsThrough) {
    for (const int tri : {2, 3, 4, 5, 6, 7, 8, 0})
        geste("tri " + std::to_string(tri), [&] { essai.choisit("ChoixTri", tri); });
    for (const int zone : {2, 3, 4, 5, 0, 1})
        geste("zone " + std::to_string(zone), [&] { essai.choisit("ChoixZone", zone); });
    geste("AffStats");
    geste("cmdFonctionRecherche");
    essai.trouve<QLineEdit>("Text2").setText("11");
    geste("cmdRecherche");
    EXPECT_LT(films(), kFilms);
    geste("toutes", [&] { essai.choisit("ChoixZone", 1); });
    EXPECT_EQ(films(), kFilms);
    geste("filtre pris", [&] { essai.trouve("Filtre").setFocus(); });
    geste("filtre", [&] { QTest::keyClicks(&essai.trouve("Filtre"), "acteur 12"); });
    geste("filtre trié", [&] { essai.choisit("ChoixTri", 4); });
    geste("filtre vidé", [&] { QTest::keyClick(&essai.trouve("Filtre"), Qt::Key_Escape); });
    EXPECT_GT(refusees, 0);
    EXPECT_EQ(lancees, 0);
}

TEST_F(Vivacite, ChangesLetEventsThrough) {
    geste("toutes", [&] { essai.choisit("ChoixZone", 1); });
    geste("fiche", [&] { montreUnFilm(2000); });
    geste("cmdAutresInfos");
    geste("Option1_1");
    geste("cmdValiderInfosPossessions");
    essai.boites.reponse = "7";
    geste("cmdModifieNote");
    geste("cmdDefaire");
    geste("cmdRetablir");
    geste("cmdModifierTitre");
    geste("cmdConfigurer");
    // SQLite reads the rows of a lot again, in one call, to hand over what changed.
    geste(
        "cmdPonctuation", [&] { clique("cmdPonctuation"); }, kFilms);
    geste("cmdDefaire");
    geste("cmdCompacter");
    geste("cmdMultiSuppress");
    geste("Option4_1");
    auto& coches = essai.etats().liste.TreeView1.coches;
    for (int noeud = 1; noeud <= 1500; ++noeud)
        coches.insert(noeud);
    geste("coche", [&] {
        essai.arbre().modele().setData(essai.arbre().modele().indexDuNoeud(1501), Qt::Checked, Qt::CheckStateRole);
    });
    geste("cmdSupprTitresSelect");
    EXPECT_LE(films(), kFilms - 1500);
    geste("cmdDefaire");
    EXPECT_EQ(films(), kFilms);
    EXPECT_GT(refusees, 0);
    EXPECT_EQ(lancees, 0);
}

TEST_F(Vivacite, PagesAndExportsLetEventsThrough) {
    geste("cmdCollection");
    for (const char* onglet : {"OngletPrets", "OngletStatistiques", "OngletCeSoir", "OngletAffiches", "OngletSante"})
        geste(onglet);
    geste("cmdExaminer");
    geste("cmdConfigurer");
    for (const char* format : {"optCsv", "optHtml", "optPdf", "optFiches"}) {
        clique("cmdExporter");
        clique(format);
        auto& chemin = essai.trouve<QLineEdit>("txtCheminExport");
        chemin.setText(QString::fromStdString(essai.dossier.chemin(std::string("export ") + format)));
        chemin.setModified(true);
        geste("cmdFaireExport");
    }
    essai.boites.reponse = essai.dossier.chemin("liste");
    geste("cmdCreerListe");
    geste("cmdApercuTitres");
    clique("cmdFermerApercu");
    geste("cmdConfig_1");
    geste("cmdSauvegardes");
    EXPECT_GT(refusees, 0);
    EXPECT_EQ(lancees, 0);
}

}  // namespace
