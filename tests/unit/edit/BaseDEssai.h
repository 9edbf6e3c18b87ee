#pragma once

#include "db/Base.h"
#include "db/Schema.h"
#include "doubles/DossierTemporaire.h"
#include "platform/dao/DBEngine.h"

#include <string>
#include <utility>
#include <vector>

namespace doubles {

// A real base of the program's own schema, empty, in a folder of its own.
struct BaseDEssai {
    using Champs = std::vector<std::pair<std::string, dao::Valeur>>;

    DossierTemporaire dossier;
    db::Base base;

    BaseDEssai() {
        dao::DBEngine::CreateDatabase(dossier.chemin("Films.mdb"), db::schema());
        ouvre();
    }
    ~BaseDEssai() { base.ferme(); }

    void ouvre() {
        base.base = dao::DBEngine::OpenDatabase(dossier.chemin("Films.mdb"));
        base.films = base.base.OpenRecordset("Films");
        base.personnel = base.base.OpenRecordset("Personnel");
    }
    static void ajoute(dao::Recordset& table, const Champs& champs) {
        table.AddNew();
        for (const auto& [nom, valeur] : champs)
            table.assigne(nom, valeur);
        table.Update();
    }
    void ajouteFilm(const std::string& titre, const std::string& realisateur) {
        ajoute(base.films, {{"Titre", titre}, {"Realisateur", realisateur}});
    }
    // One column of a table or of a statement's rows, in their order.
    std::vector<std::string> colonne(const std::string& source, const std::string& champ) {
        std::vector<std::string> valeurs;
        for (dao::Recordset lignes = base.base.OpenRecordset(source); !lignes.Eof(); lignes.MoveNext())
            valeurs.push_back(lignes.texte(champ));
        return valeurs;
    }
    dao::Valeur film(const std::string& champ) {
        return base.base.OpenRecordset("Films").valeur(champ);
    }  // of the first
};

}  // namespace doubles
