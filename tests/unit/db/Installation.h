#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "db/Schema.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/SansPrivileges.h"
#include "platform/dao/DBEngine.h"
#include "unit/edit/BaseDEssai.h"

#include <string>
#include <string_view>

using doubles::SansPrivileges;

// A program folder with its template, and what a test asks of its bases.
struct Installation {
    doubles::DossierTemporaire dossier;
    db::Chemins chemins = db::Chemins::depuis(dossier.chemin());

    Installation() { creeBase("Modele.dat"); }

    std::string creeBase(std::string_view nom) const {
        dao::DBEngine::CreateDatabase(dossier.chemin(nom), db::schema());
        return dossier.chemin(nom);
    }
    void ajouteFilm(std::string_view nom, const std::string& titre) const {
        dao::Database base = dao::DBEngine::OpenDatabase(dossier.chemin(nom));
        dao::Recordset films = base.OpenRecordset("Films");
        doubles::BaseDEssai::ajoute(films, {{"Titre", titre}});
    }
    [[nodiscard]] static std::string premierTitre(db::Base& base) {
        if (base.films.RecordCount() == 0) return "";
        base.films.MoveFirst();
        return base.films.texte("Titre");
    }
};
