#pragma once

#include "browse/AffichageApresModification.h"
#include "browse/Contexte.h"
#include "browse/TreeView1.h"
#include "db/Schema.h"
#include "doubles/MachineDEssai.h"
#include "platform/dao/DBEngine.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

using Ligne = std::vector<std::pair<const char*, dao::Valeur>>;

// The left and right sides of a window without a window, over a real base. Commands of the room take `c`.
class Fenetre : public ::testing::Test, protected doubles::MachineDEssai {
  protected:
    browse::EtatListe liste;
    browse::EtatRecherche recherche;
    browse::EtatFiche fiche;
    browse::EtatPanneaux panneaux;
    browse::FilmCourant film;
    browse::Contexte fenetre{machine, liste, recherche, fiche, panneaux, film};
    const browse::Contexte& c = fenetre;

    void SetUp() override {
        std::filesystem::create_directory(chemins.dossierTmp);
        dao::DBEngine::CreateDatabase(chemins.base, db::schema());
        ouvre();
        for (const browse::Zone& zone : browse::kZones)
            liste.ChoixZone.AddItem(zone.legende);
        for (const browse::Tri& tri : browse::kTris)
            liste.ChoixTri.AddItem(tri.legende);
        choisit(browse::kZoneTous, browse::kTriTitre2);
    }

    void ouvre() {
        base.base = dao::DBEngine::OpenDatabase(chemins.base);
        base.base.declareCles(db::clesDesTables());
        base.films = base.base.OpenRecordset("Films");
        base.personnel = base.base.OpenRecordset("Personnel");
        base.liste = base.base.OpenRecordset("Films");
    }

    static void ajoute(dao::Recordset& table, const Ligne& ligne) {
        table.AddNew();
        for (const auto& [champ, valeur] : ligne)
            table.assigne(champ, valeur);
        table.Update();
    }
    void ajouteFilm(const char* titre, Ligne autres = {}) {
        autres.insert(autres.begin(), {"Titre", titre});
        ajoute(base.films, autres);
    }
    void possede(const char* titre, const char* realisateur, Ligne autres = {}) {
        autres.insert(autres.begin(), {{"Titre2", titre}, {"Realisateur2", realisateur}});
        ajoute(base.personnel, autres);
    }
    void choisit(int zone, int tri) {
        liste.ChoixZone.selectionne(zone);
        liste.ChoixTri.selectionne(tri);
    }
    void montre(int zone, int tri) {
        choisit(zone, tri);
        AffichageApresModification(c);
    }
    // The tree as text: "Key=Text", films under a heading indented by ">".
    [[nodiscard]] std::vector<std::string> arbreEnTexte() const {
        const browse::Arbre& noeuds = liste.TreeView1.Nodes;
        std::vector<std::string> lignes;
        for (const int racine : noeuds.enfants(0)) {
            lignes.push_back(noeuds.Key(racine) + "=" + std::string(noeuds.Text(racine)));
            if (!noeuds.estGroupe(racine)) continue;
            for (const int enfant : noeuds.enfants(racine)) {
                EXPECT_EQ(noeuds.Parent(enfant), racine);
                lignes.push_back(">" + noeuds.Key(enfant) + "=" + std::string(noeuds.Text(enfant)));
            }
        }
        return lignes;
    }
    [[nodiscard]] std::vector<std::string> titres() const {
        const browse::Arbre& noeuds = liste.TreeView1.Nodes;
        std::vector<std::string> textes;
        for (int i = 1; i <= noeuds.Count(); ++i)
            if (!noeuds.estGroupe(i)) textes.emplace_back(noeuds.Text(i));
        return textes;
    }
    // The first node of that text.
    [[nodiscard]] int noeud(std::string_view texte) const {
        for (int i = 1; i <= liste.TreeView1.Nodes.Count(); ++i)
            if (liste.TreeView1.Nodes.Text(i) == texte) return i;
        ADD_FAILURE() << "no such node: " << texte;
        return 0;
    }
    void clique(std::string_view texte) { TreeView1_NodeClick(c, noeud(texte)); }
    // One column of a table's rows, or of a statement's.
    std::vector<std::string> colonne(const std::string& source, const std::string& champ) {
        std::vector<std::string> valeurs;
        for (dao::Recordset lignes = base.base.OpenRecordset(source); !lignes.Eof(); lignes.MoveNext())
            valeurs.push_back(lignes.texte(champ));
        return valeurs;
    }
};
