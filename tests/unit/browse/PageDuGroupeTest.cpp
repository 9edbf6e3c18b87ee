#include "Fenetre.h"
#include "browse/AfficheNbTitres.h"
#include "browse/AfficheTitres.h"
#include "browse/ListeVide.h"
#include "browse/PageDuGroupe.h"
#include "browse/cmdRecherche_Click.h"
#include "db/Affiches.h"

#include <gmock/gmock.h>

namespace {

using browse::Renommage;
using testing::Optional;

struct PageDuGroupeTest : Fenetre {
    [[nodiscard]] browse::PageDuGroupe page() const { return browse::pageDuGroupe(liste); }
};

TEST_F(PageDuGroupeTest, NamesTheChosenHeadingElseTheWholeListing) {
    for (const auto& [titre, genre] : {std::pair("A", "Drame"), std::pair("B", "Comédie"), std::pair("C", "Drame")})
        ajouteFilm(titre, {{"Genre", genre}});
    liste.AffStats.Value = 1;
    recherche.Text2.Text = "b";
    cmdRecherche_Click(c);
    EXPECT_EQ(page().nom, "Recherche");
    montre(browse::kZoneTous, browse::kTriGenre);
    EXPECT_EQ(page().nom, "Tous les films");
    EXPECT_EQ(page().compte, "3 films");
    EXPECT_EQ(page().renommage, Renommage::Aucun);

    const auto cliqueGroupe = [&](std::size_t rang) { TreeView1_NodeClick(c, liste.TreeView1.Nodes.enfants(0)[rang]); };
    cliqueGroupe(1);
    EXPECT_EQ(page().nom, "Drame") << "without its share";
    EXPECT_EQ(page().compte, "2 films");
    EXPECT_EQ(page().groupe, liste.TreeView1.Nodes.enfants(0)[1]);
    EXPECT_EQ(page().renommage, Renommage::Genre);

    ajouteFilm("D");
    montre(browse::kZoneTous, browse::kTriGenre);
    cliqueGroupe(0);
    EXPECT_EQ(page().nom, "Hors tri !");
    montre(browse::kZoneTous, browse::kTriTitre1);
    cliqueGroupe(0);
    EXPECT_EQ(page().renommage, Renommage::Aucun) << "letters are not renamed";
}

TEST_F(PageDuGroupeTest, ReadsAPosterWhereverItIsAndSettlesNothing) {
    ajouteFilm("Dans la base", {{"Affiche", db::valeurAfficheDansLaBase("octets")}});
    ajouteFilm("En fichier", {{"Affiche", db::valeurAfficheFichier("a.jpg")}});
    ajouteFilm("Perdue", {{"Affiche", db::valeurAfficheFichier("perdue.jpg")}});
    ajouteFilm("Sans");
    ajouteFilm("Vide", {{"Affiche", "STO"}});
    const std::string longue(static_cast<std::size_t>(browse::kTailleMaxApercu) + 1, 'x');
    ajouteFilm("Trop longue", {{"Affiche", db::valeurAfficheDansLaBase(longue)}});
    ajouteFilm("Fichier trop long", {{"Affiche", db::valeurAfficheFichier("longue.jpg")}});
    dossier.ecrit("Images/a.jpg", "fichier");
    dossier.ecrit("Images/longue.jpg", longue);
    montre(browse::kZoneTous, browse::kTriTitre2);
    const auto affiche = [&](std::string_view titre) {
        return browse::octetsDe(browse::sourceDuNoeud(c, noeud(titre)));
    };
    EXPECT_THAT(affiche("Dans la base"), Optional(std::string("octets")));
    EXPECT_THAT(affiche("En fichier"), Optional(std::string("fichier")));
    for (const char* titre : {"Perdue", "Sans", "Vide", "Trop longue", "Fichier trop long"})
        EXPECT_EQ(affiche(titre), std::nullopt) << titre;
    EXPECT_EQ(stockage.Text4.Text, "") << "the folder of the posters is settled by who needs it";
    EXPECT_FALSE(etatAvis.frameAvis.Visible);

    const int disparu = noeud("Dans la base");
    base.base.Execute("DELETE FROM Films WHERE Titre = 'Dans la base'");
    for (const int ailleurs : {disparu, 0, -1, 1000})
        EXPECT_EQ(browse::octetsDe(browse::sourceDuNoeud(c, ailleurs)), std::nullopt);
}

TEST_F(PageDuGroupeTest, AnEmptyListSaysWhyAndLeadsToAllFilms) {
    EXPECT_EQ(browse::listeVide(browse::EtatListe{}), std::nullopt) << "not filled yet";
    const auto raison = [&](int zone) {
        montre(zone, browse::kTriTitre1);
        AfficheNbTitres(c);
        return browse::listeVide(liste);
    };
    EXPECT_EQ(raison(browse::kZoneMesFilms), (browse::ListeVide{"La base ne contient aucun film.", false}));
    ajouteFilm("A", {{"Realisateur", "R"}});
    const browse::ListeVide aucun{"Aucun film n'est déclaré comme étant en votre possession.", true};
    EXPECT_EQ(raison(browse::kZoneMesFilms), aucun);
    EXPECT_EQ(raison(browse::kZonePretes), aucun) << "the nearest reason";
    EXPECT_EQ(raison(browse::kZoneTous), std::nullopt);
    possede("A", "R", {{"Pret", ""}, {"Reserve", ""}, {"Support", "DVD"}});
    EXPECT_EQ(raison(browse::kZonePretes), (browse::ListeVide{"Aucun de vos films n'est prêté.", true}));
    EXPECT_EQ(raison(browse::kZoneNonPossedes), (browse::ListeVide{"Vous possédez tous les films de la base.", true}));

    recherche.Text2.Text = "introuvable";
    cmdRecherche_Click(c);
    EXPECT_EQ(browse::listeVide(liste), (browse::ListeVide{"Aucun film ne répond à cette recherche.", true}));
    browse::cmdTousLesFilms_Click(c);
    EXPECT_EQ(titres(), std::vector<std::string>{"A"});
    EXPECT_EQ(liste.ChoixZone.Text, "Tous les films");
    EXPECT_EQ(liste.ChoixTri.ListIndex, browse::kTriTitre2);
    EXPECT_EQ(demandes.focus, "TreeView1");
    montre(browse::kZonePretes, browse::kTriSupport);
    browse::cmdTousLesFilms_Click(c);
    EXPECT_EQ(liste.ChoixTri.ListIndex, browse::kTriTitre1) << "not all films have a support";
    EXPECT_EQ(titres(), std::vector<std::string>{"A"});
}

}  // namespace
