#include "acquire/ImporterAncienneBase.h"
#include "app/Annulation.h"
#include "app/RaccourcisClavier.h"
#include "db/Affiches.h"
#include "db/Option3_Click.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdMajBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "doubles/Lignes.h"
#include "edit/ModifieGroupe.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "edit/cmdPonctuation_Click.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "ensemble/Fusion.h"
#include "ensemble/Prets.h"
#include "ensemble/Sante.h"
#include "parcours/Gestes.h"
#include "view/cmdRemplacerImage_Click.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>

#include <gmock/gmock.h>

namespace {

using namespace parcours;
namespace fs = std::filesystem;
using testing::HasSubstr;

// The user who agrees to everything, and gives what the test has made ready.
class DialoguesFaciles final : public dialogues::Dialogues {
  public:
    int MsgBox(const std::string&, int style, const std::string&) override {
        return style == dialogues::kQuestion ? dialogues::kOui : dialogues::kOk;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return texte; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return fichier; }
    std::string choisitDossier(const std::string&, const std::string&) override { return dossier; }

    std::string texte, fichier, dossier;
};

std::string image(int numero) {
    return "\xFF\xD8 image " + std::to_string(numero) +
           std::string(numero % 4 == 0 ? 60000 : 300, static_cast<char>('a' + numero));
}

// Every field of every row, and every poster file.
using Photographie = std::map<std::string, std::string>;

Photographie photographie(const doubles::DossierTemporaire& installation) {
    Photographie photo;
    dao::Database base = dao::DBEngine::OpenDatabase(installation.chemin("Films.mdb"));
    for (const auto& [table, champs] :
         {std::pair("Films", "Titre Realisateur Annee Genre Resume Note DateAjout Affiche"),
          std::pair("Personnel", "Titre2 Realisateur2 Rangement Pret Support")})
        for (dao::Recordset lignes = base.OpenRecordset(table); !lignes.Eof(); lignes.MoveNext()) {
            std::string& ligne = photo[table + (" " + lignes.texte("id"))];
            std::istringstream noms(champs);
            for (std::string nom; noms >> nom;)
                ligne += (lignes.Fields(nom).estNull() ? "Null" : "'" + lignes.texte(nom) + "'") + ", ";
        }
    if (installation.existe("Images"))
        for (const auto& entree : fs::directory_iterator(installation.chemin("Images")))
            photo[entree.path().filename()] = installation.lit("Images/" + entree.path().filename().string());
    return photo;
}

// What differs, in short: posters are long.
std::string differences(const Photographie& voulue, const Photographie& trouvee) {
    std::string texte;
    const auto ajoute = [&](const char* signe, const auto& ligne) {
        texte += signe + ligne.first + " : " + ligne.second.substr(0, 200) + "\n";
    };
    for (const auto& ligne : voulue)
        if (const auto autre = trouvee.find(ligne.first); autre == trouvee.end() || autre->second != ligne.second)
            ajoute("- ", ligne);
    for (const auto& ligne : trouvee)
        if (const auto autre = voulue.find(ligne.first); autre == voulue.end() || autre->second != ligne.second)
            ajoute("+ ", ligne);
    return texte;
}

class UneAnnulation : public testing::Test {
  protected:
    UneAnnulation() {
        for (int i = 0; i < 12; ++i)
            installation.ecrit("Sources/" + std::to_string(i) + ".jpg", image(i));
        const std::string ancienne = installation.chemin("Ancienne/Films.mdb");
        fs::create_directories(installation.chemin("Ancienne/Images"));
        for (const auto& [chemin, nom, nombre] :
             {std::tuple(ancienne, "ancien", 5), std::tuple(installation.chemin("Films.mdb"), "film", 60)}) {
            dao::DBEngine::CreateDatabase(chemin, db::schema());
            remplis(chemin, nom, nombre);
        }
        for (int i = 1; i < 60; i += 6)
            installation.ecrit("Images/film " + std::to_string(i) + ".jpg", image(i % 12));
        session.Form_Load();
        session.Form_Activate();
        choisitZone(execution, browse::kZoneTous);
    }
    ~UneAnnulation() override { session.Form_Unload(); }

    // Posters in the base, in files, gone, none; holdings, one of them without its film; two films of one name.
    static void remplis(const std::string& chemin, const std::string& nom, int nombre) {
        dao::Database base = dao::DBEngine::OpenDatabase(chemin);
        dao::Recordset films = base.OpenRecordset("Films"), personnel = base.OpenRecordset("Personnel");
        for (int i = 0; i < nombre; ++i) {
            const std::string titre = nom + " " + std::to_string(i == 50 ? 49 : i), de = "Ada " + std::to_string(i % 7);
            dao::Valeur affiche;
            if (i % 3 == 0) affiche = db::valeurAfficheDansLaBase(image(i % 12));
            if (i % 3 == 1) affiche = db::valeurAfficheFichier(titre + ".jpg");
            doubles::ajoute(films, {{"Titre", titre},
                                    {"Realisateur", i == 8 ? dao::Valeur() : dao::Valeur(de)},
                                    {"Annee", std::to_string(1950 + i)},
                                    {"Genre", i % 2 == 0 ? "Drame" : "Comédie"},
                                    {"Affiche", affiche}});
            if (i % 4 != 0) continue;
            doubles::ajoute(personnel, {{"Titre2", titre}, {"Realisateur2", de}, {"Support", "DVD"}});
        }
        doubles::ajoute(personnel, {{"Titre2", nom + " perdu"}, {"Pret", "Zoé"}});
    }

    int auHasard(int nombre) { return static_cast<int>(hasard() % static_cast<unsigned>(nombre)); }
    std::string source() { return installation.chemin("Sources/" + std::to_string(auHasard(12)) + ".jpg"); }
    bool choisisUnFilm() {
        const browse::Arbre& arbre = etats.liste.TreeView1.Nodes;
        for (int essai = 0; essai < 50 && arbre.Count() > 0; ++essai)
            if (const int n = 1 + auHasard(arbre.Count()); !arbre.estGroupe(n)) {
                session.execute(app::TreeView1_NodeClick, n);
                return true;
            }
        return false;
    }
    void choisisUnGroupe() {
        const browse::Arbre& arbre = etats.liste.TreeView1.Nodes;
        for (int n = 1; n <= arbre.Count(); ++n)
            if (arbre.estGroupe(n)) return session.execute(app::TreeView1_NodeClick, n);
    }
    void liste(int zone, int cle) {
        choisitZone(execution, zone);
        choisitTri(execution, cle);
    }

    // A command and what the user does before it, so that what is shown when it begins is what the base holds.
    struct Geste {
        std::function<bool()> prepare;
        std::function<void()> commande;
    };
    Geste surUnFilm(std::function<void()> commande) {
        return {[this] { return choisisUnFilm(); }, std::move(commande)};
    }
    std::vector<Geste> gestes() {
        const auto rien = [] { return true; };
        return {
            surUnFilm([this] {
                boites.texte = auHasard(3) == 0 ? "" : std::to_string(1 + auHasard(10));
                session.execute(edit::cmdModifieNote_Click);
            }),
            surUnFilm([this] { session.execute(edit::cmdSupprimerTitre_Click); }),
            surUnFilm([this] {
                ecran::choisit(etats.fiche.Option1, auHasard(3) == 0 ? 0 : 1);
                etats.fiche.Text10[3].Text = "étagère " + std::to_string(auHasard(9));
                session.execute(edit::cmdValiderInfosPossessions_Click);
            }),
            surUnFilm([this] {
                session.execute(app::cmdModifierTitre_Click);
                etats.ajout.Text3[0].Text = "le film corrigé " + std::to_string(auHasard(1000));
                session.execute(edit::cmdAjoutFilm_Click);
            }),
            surUnFilm([this] {
                boites.fichier = source();
                session.execute(app::Label12_Click);
            }),
            surUnFilm([this] {
                boites.fichier = source();
                session.execute(view::cmdRemplacerImage_Click);
            }),
            {[this] {
                 session.execute(app::SaisieManuelle);
                 return true;
             },
             [this] {
                 boites.fichier = auHasard(3) == 0 ? "" : source();
                 etats.ajout.Text3[0].Text = "un film saisi " + std::to_string(auHasard(30));
                 etats.ajout.Text3[1].Text = "Ada";
                 session.execute(edit::cmdAjoutFilm_Click);
             }},
            {[this] {
                 liste(browse::kZoneTous, browse::kTriGenre);
                 choisisUnGroupe();
                 return true;
             },
             [this] {
                 boites.texte = "genre " + std::to_string(auHasard(4));
                 session.execute(edit::RenommerGenreFilms_Click);
             }},
            {[this] {
                 liste(browse::kZoneMesFilms, browse::kTriSupport);
                 choisisUnGroupe();
                 return true;
             },
             [this] {
                 boites.texte = "support " + std::to_string(auHasard(4));
                 session.execute(edit::RenommeSupportFilms_Click);
             }},
            {[this] {
                 etats.liste.TreeView1.Checkboxes = true;
                 for (int i = 0; i < 3; ++i)
                     if (const int nombre = etats.liste.TreeView1.Nodes.Count(); nombre > 0)
                         session.execute(app::TreeView1_NodeCheck, 1 + auHasard(nombre), true);
                 return true;
             },
             [this] { session.execute(edit::cmdSupprTitresSelect_Click); }},
            {[this] { return choisisUnFilm(); },
             [this] {
                 const bool rend = auHasard(2) == 0;
                 session.execute([rend](const ensemble::Contexte& c) {
                     const auto films = ensemble::filmsChoisis(c, {});
                     rend ? ensemble::rendFilms(c, films) : ensemble::preteFilms(c, films, "Zoé");
                 });
             }},
            {rien,
             [this] {
                 session.execute([this](const ensemble::Contexte& c) {
                     const auto cle = [&] {
                         return db::CleFilm{"film " + std::to_string(auHasard(20)),
                                            "Ada " + std::to_string(auHasard(7))};
                     };
                     for (int essai = 0; essai < 60; ++essai)
                         if (const auto plan = ensemble::planDeFusion(c, cle(), cle())) {
                             EXPECT_TRUE(ensemble::fusionne(c, *plan));
                             return;
                         }
                 });
             }},
            {[this] { return auHasard(2) == 0; },
             [this] {
                 using ensemble::Mal;
                 const std::array maux{Mal::AfficheAbsente, Mal::AfficheSansFilm, Mal::PossessionSansFilm,
                                       Mal::PossessionDouble, Mal::TitreACorriger};
                 const Mal mal = maux[static_cast<std::size_t>(auHasard(5))];
                 session.execute([mal](const ensemble::Contexte& c) { ensemble::repare(c, mal); });
             }},
            {rien, [this] { importe(); }},
            {[this] { return auHasard(4) == 0; }, [this] { session.execute(edit::cmdPonctuation_Click); }},
            {[this] { return auHasard(8) == 0; }, [this] { session.execute(db::cmdSupprInfosPerso_Click); }},
            {[this] { return auHasard(4) == 0; }, [this] { session.execute(db::cmdCompacter_Click); }},
            {[this] { return auHasard(8) == 0; },
             [this] {
                 boites.dossier = installation.chemin("Ancienne");
                 session.execute(acquire::ImporterAncienneBase);
             }},
            {rien,
             [this] {
                 ecran::choisit(etats.stockage.Option3, static_cast<std::size_t>(auHasard(2)));
                 session.execute(db::Option3_Click);
             }},
        };
    }
    // Two sheets, with their posters.
    void importe() {
        fs::remove_all(installation.chemin("Fiches"));
        for (int i = 0; i < 2; ++i) {
            const std::string numero = std::to_string(auHasard(40));
            installation.ecrit("Fiches/" + numero + ".FILM",
                               fiche(("une fiche " + numero).c_str(), "Ada", "1970", "France", "Drame"));
            installation.ecrit("Fiches/" + numero + ".jpg", image(auHasard(12)));
        }
        session.execute(app::cmdAfficherFonctions_Click);
        boites.dossier = installation.chemin("Fiches");
        boites.texte = "DVD";
        session.execute(acquire::cmdParcourir2_Click);
        session.execute(acquire::cmdAjoutAuto_Click);
    }

    // What the user sees of the base.
    [[nodiscard]] std::string vue() const {
        std::string lignes;
        for (const std::string& texte : arbre(etats))
            lignes += texte + "\n";
        return lignes + legendes();
    }
    [[nodiscard]] std::string legendes() const {
        std::string lignes;
        for (const std::string& texte :
             {etats.liste.Frame1.Caption, etats.liste.Label9[0].Caption, etats.liste.Label9[1].Caption,
              etats.liste.ChoixZone.Text, etats.liste.ChoixTri.Text})
            lignes += texte + "\n";
        return lignes;
    }
    // The film of the sheet with what the sheet says of it; "" where a panel covers it.
    [[nodiscard]] std::string filmVu() const {
        if (etats.panneaux.frameListeFonctions.Visible) return "?";
        if (filmMontre(etats).empty()) return "";
        const std::string holder =
            etats.fiche.Text10[3].Text + etats.fiche.Label12.Caption + etats.fiche.lblNote.Caption;
        return filmMontre(etats) + " " + holder;
    }

    const Installation installation;
    DialoguesFaciles boites;
    Execution execution{installation.chemin(), boites};
    app::Session& session = execution.session;
    app::Etats& etats = execution.etats;
    std::mt19937 hasard;
};

TEST_F(UneAnnulation, TakesBackEveryCommandToTheFirstAndMakesThemAgain) {
    const char* demandees = std::getenv("AMBRELIS_SUITES");
    for (unsigned graine = 1; graine <= (demandees ? std::strtoul(demandees, nullptr, 10) : 1); ++graine) {
        SCOPED_TRACE(graine);
        hasard.seed(graine);
        liste(browse::kZoneTous, browse::kTriTitre1);
        struct Etape {
            Photographie photo;
            std::string vue, film, quoi, legendes{};
        };
        const std::vector<Geste> tous = gestes();
        std::vector<Etape> avant;
        Photographie derniere = photographie(installation);
        for (int i = 0; i < 200; ++i) {
            choisitTri(execution, auHasard(3));
            const Geste& geste = tous[static_cast<std::size_t>(auHasard(static_cast<int>(tous.size())))];
            if (!geste.prepare()) continue;
            Etape etape{derniere, vue(), filmVu(), ""};
            geste.commande();
            Photographie apres = photographie(installation);
            if (apres == derniere) continue;
            ASSERT_TRUE(etats.annulation.cmdAnnuler.Enabled);
            ASSERT_NE(etats.annulation.aAnnuler, "dernière modification");
            etape.quoi = etats.annulation.aAnnuler;
            etape.legendes = legendes();
            avant.push_back(std::move(etape));
            derniere = std::move(apres);
        }
        ASSERT_GE(avant.size(), 60U);
        for (auto etape = avant.rbegin(); etape != avant.rend(); ++etape) {
            SCOPED_TRACE(etape->quoi);
            ASSERT_EQ(etats.annulation.aAnnuler, etape->quoi);
            session.execute(app::cmdAnnuler_Click);
            ASSERT_EQ(differences(etape->photo, photographie(installation)), "");
            ASSERT_EQ(etape->vue, vue());
            if (const std::string film = filmVu(); film != "?" && etape->film != "?") {
                ASSERT_EQ(etape->film, film);
            }
        }
        EXPECT_FALSE(etats.annulation.cmdAnnuler.Enabled);
        for (std::size_t i = 0; i < avant.size(); ++i) {
            SCOPED_TRACE(avant[i].quoi);
            ASSERT_EQ(etats.annulation.aRetablir, avant[i].quoi);
            session.execute(app::cmdRetablir_Click);
            const Photographie& voulue = i + 1 < avant.size() ? avant[i + 1].photo : derniere;
            ASSERT_EQ(differences(voulue, photographie(installation)), "");
            ASSERT_EQ(avant[i].legendes, legendes());
        }
        EXPECT_FALSE(etats.annulation.cmdRetablir.Enabled);
        while (etats.annulation.cmdAnnuler.Enabled)
            session.execute(app::cmdAnnuler_Click);
    }
}

// The keys have moved to the film before the command that shows it begins.
TEST_F(UneAnnulation, ARatingBroughtToTheNewScaleBecomesTheOldOneAgain) {
    liste(browse::kZoneTous, browse::kTriTitre2);
    const browse::Arbre& noeuds = etats.liste.TreeView1.Nodes;
    dao::DBEngine::OpenDatabase(installation.chemin("Films.mdb"))
        .Execute("UPDATE Films SET Note = 85 WHERE Titre = '" + std::string(noeuds.Text(2)) + "'");
    const Photographie avant = photographie(installation);
    session.execute(app::TreeView1_NodeClick, 1);
    const std::string film = filmVu();
    etats.liste.TreeView1.SelectedItem = 2;
    session.execute(app::TreeView1_NodeClick, 2);
    EXPECT_EQ(etats.fiche.lblNote.Caption, "Note : 8/10");
    EXPECT_THAT(etats.avis.lblAvis.Caption, HasSubstr("sa note, sur 100, est passée sur 10."));
    session.execute(app::cmdAnnuler_Click);
    EXPECT_EQ(filmVu(), film);
    EXPECT_EQ(differences(avant, photographie(installation)), "");
    session.execute(app::cmdRetablir_Click);
    EXPECT_EQ(etats.fiche.lblNote.Caption, "Note : 8/10");
}

}  // namespace
