#pragma once

#include "db/OuvertureBase.h"
#include "db/Schema.h"
#include "doubles/Lignes.h"
#include "doubles/MachineDEssai.h"
#include "doubles/SansPrivileges.h"
#include "platform/dao/DBEngine.h"

#include <string>
#include <string_view>

using doubles::SansPrivileges;

// A program folder with its template, and what a test asks of its bases.
struct Installation : doubles::MachineDEssai {
    const db::Contexte& c = machine;

    Installation() { creeBase("Modele.dat"); }

    [[nodiscard]] std::string chemin(std::string_view nom) const { return dossier.chemin(nom); }
    std::string creeBase(std::string_view nom) const {
        dao::DBEngine::CreateDatabase(chemin(nom), db::schema());
        return chemin(nom);
    }
    void ajouteFilm(std::string_view nom, const std::string& titre) const {
        dao::Database fermee = dao::DBEngine::OpenDatabase(chemin(nom));
        dao::Recordset films = fermee.OpenRecordset("Films");
        doubles::ajoute(films, {{"Titre", titre}});
    }
    [[nodiscard]] std::string premierTitre() {
        if (base.films.RecordCount() == 0) return "";
        base.films.MoveFirst();
        return base.films.texte("Titre");
    }
};
