#pragma once

#include "app/Exporter.h"
#include "db/Affiches.h"
#include "parcours/Gestes.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

inline constexpr auto kTableau = app::DemandeDExport::Format::Tableau;
inline constexpr auto kPage = app::DemandeDExport::Format::Page;
inline constexpr auto kFiches = app::DemandeDExport::Format::Fiches;

// A session whose films leave it, to files whose names begin with "sortie".
class Export : public testing::Test {
  protected:
    parcours::Installation installation;
    parcours::Execution execution{installation.chemin()};
    std::string affiche = "\xFF\xD8 octets\0de l'affiche";

    void SetUp() override { ASSERT_TRUE(execution.demarre()); }

    template <typename Geste>
    void avec(Geste geste) {
        execution.session.execute([&](const app::Contexte& c) { geste(c); });
    }
    using Ligne = std::map<std::string, dao::Valeur>;
    void ajoute(const char* table, const std::vector<Ligne>& lignes) {
        avec([&](const app::Contexte& c) {
            dao::Transaction transaction(c.base.base);
            dao::Recordset cible = c.base.base.OpenRecordset(table);
            for (const Ligne& ligne : lignes) {
                cible.AddNew();
                for (const auto& [champ, valeur] : ligne)
                    cible.assigne(champ, valeur);
                cible.Update();
            }
            transaction.confirme();
        });
    }
    void ajouteFilm(const Ligne& valeurs) { ajoute("Films", {valeurs}); }
    void possede(const Ligne& valeurs) { ajoute("Personnel", {valeurs}); }
    void liste(int zone, int tri) {
        parcours::choisitZone(execution, zone);
        parcours::choisitTri(execution, tri);
    }
    bool exporte(app::DemandeDExport::Format format, app::Etendue etendue, const std::string& nom,
                 const exportation::Champs& champs = exportation::Champs::tous()) {
        bool faite = false;
        avec([&](const app::Contexte& c) {
            faite = app::exporte(c, {format, etendue, champs, installation.chemin(nom)},
                                 [](const std::string& octets, int largeur) {
                                     return exportation::Vignette{octets, largeur, 2 * largeur};
                                 });
        });
        return faite;
    }
    [[nodiscard]] std::string avis() const { return execution.etats.avis.lblAvis.Caption; }
    [[nodiscard]] std::vector<std::string> noms() const {
        std::vector<std::string> trouves;
        for (const auto& [nom, octets] : installation.contenu())
            if (nom.starts_with("sortie")) trouves.push_back(nom);
        return trouves;
    }
};
