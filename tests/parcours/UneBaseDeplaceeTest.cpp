#include "app/Commandes.h"
#include "db/Requete.h"
#include "db/cmdCompacter_Click.h"
#include "edit/SaisiePossession.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "parcours/Collectionneur.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

// What happens to the base's file while the program runs. Each gesture begins with vaCommencer, as the window's do.
class UneBaseDeplacee : public Collectionneur {
  protected:
    void SetUp() override {
        demarre();
        importe(*execution, installation);
        zone(0);
        tri(1);
    }
    // Another copy of the program compacted the base: a new file stands in its place.
    void remplace(const std::string& autreTitre = "") {
        fs::copy_file(base, base + ".copie");
        if (!autreTitre.empty())
            dao::DBEngine::OpenDatabase(base + ".copie")
                .Execute("UPDATE Films SET Titre='" + autreTitre + "' WHERE Titre='Sans Rien'");
        fs::rename(base + ".copie", base);
    }
    template <typename Geste>
    void fais(Geste geste) {
        session().vaCommencer();
        geste();
    }
    void cliqueSur(int indice) {
        fais([&] { session().execute(app::TreeView1_NodeClick, indice); });
    }
    [[nodiscard]] std::string avis() const {
        const ecran::EtatAvis& etat = execution->etats.avis;
        return etat.frameAvis.Visible ? etat.lblAvis.Caption : "";
    }

    const std::string base = installation.chemin("Films.mdb");
    const std::string rouverte = "La base a été remplacée par un autre programme : elle a été rouverte.";
};

TEST_F(UneBaseDeplacee, AReplacedBaseIsReopenedWithTheFilmAndWhatWasTyped) {
    cliqueSur(noeud(etats(), "Le Cercle Rouge"));
    etats().fiche.Combo7[0].Text = "Zoé";
    session().execute(edit::Combo7_Change, 0);
    remplace("A");  // before the film that is shown
    static_cast<void>(changements());
    fais([&] { session().execute(edit::cmdValiderInfosPossessions_Click); });
    EXPECT_EQ(avis(), rouverte);
    EXPECT_THAT(changements(), ElementsAre("*Personnel : Le Cercle Rouge de Jean-Pierre Melville"));
    EXPECT_EQ(filmMontre(etats()), "Le Cercle Rouge de Jean-Pierre Melville");
    EXPECT_THAT(arbre(etats()), testing::Contains("Été Violent"));
}

// The node under the pointer is another one by now.
TEST_F(UneBaseDeplacee, AGestureOnTheOldTreeReachesNoFilmOfTheNew) {
    const int cercle = noeud(etats(), "Le Cercle Rouge");
    remplace("A");
    cliqueSur(cercle);
    EXPECT_EQ(avis(), rouverte);
    EXPECT_EQ(filmMontre(etats()), "");
    EXPECT_THAT(arbre(etats()), ElementsAre("Été Violent", "Le Cercle Rouge", "Le Samouraï"));
    cliqueSur(noeud(etats(), "Le Samouraï"));
    EXPECT_EQ(filmMontre(etats()), "Le Samouraï de Jean-Pierre Melville");
    remplace();
    etats().liste.TreeView1.coches = {1};
    fais([&] { session().execute(app::TreeView1_NodeCheck, 1, true); });
    EXPECT_THAT(etats().liste.TreeView1.coches, IsEmpty());
    remplace();
    fais([&] { session().execute(app::TreeView1_MouseUpDroit, 1); });
    EXPECT_EQ(etats().menu, app::MenuContextuel::Aucun);
    EXPECT_EQ(filmMontre(etats()), "Le Samouraï de Jean-Pierre Melville");  // shown before, and still there
}

TEST_F(UneBaseDeplacee, ABaseThatIsGoneIsToldTheListStaysAndTheSettingsNameIt) {
    const auto titres = arbre(etats());
    fs::rename(base, base + ".ailleurs");
    const auto echec = [&](const auto& geste) -> std::string {
        try {
            fais(geste);
        } catch (const dao::ErreurDao& erreur) {
            return std::to_string(erreur.numero) + " " + erreur.description;
        }
        return "";
    };
    const std::string attendu = "3024 La base « " + base +
                                " » n'est plus à sa place : son disque est débranché, ou le fichier a été déplacé, "
                                "renommé, supprimé ou remplacé.";
    EXPECT_EQ(echec([&] { session().execute(app::TreeView1_NodeClick, 1); }), attendu);
    execution->boites.attendMsgBox("Erreur (1) : Etablissement de requête", dialogues::kCritique);
    EXPECT_THROW(tri(4), db::RequeteEchouee);
    EXPECT_EQ(etats().liste.ChoixTri.ListIndex, 1);
    execution->boites.attendMsgBox("Le compactage n'a pas pu être effectué.\nLe fichier de la base n'existe plus.",
                                   dialogues::kCritique);
    fais([&] { session().execute(db::cmdCompacter_Click); });
    EXPECT_EQ(arbre(etats()), titres);
    installation.ecrit("Films.mdb", "of another kind");  // nothing that can be opened
    EXPECT_EQ(echec([&] { session().execute(app::TreeView1_NodeClick, 1); }), attendu);
    EXPECT_EQ(arbre(etats()), titres);
    fs::rename(base + ".ailleurs", base);
    EXPECT_EQ(echec([&] { session().execute(app::TreeView1_NodeClick, 1); }), "");
    fs::rename(base, base + ".ailleurs");
    session().vaCommencer();
    session().Form_Unload();
    EXPECT_NE(installation.lit("Ambrelis.ini").find("Films.mdb"), std::string::npos);
    EXPECT_FALSE(fs::exists(base));
}

}  // namespace
