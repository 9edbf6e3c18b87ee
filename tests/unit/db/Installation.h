#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "db/Schema.h"
#include "doubles/DossierTemporaire.h"
#include "platform/dao/DBEngine.h"

#include <string>
#include <string_view>

#include <unistd.h>

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
        films.AddNew();
        films.assigne("Titre", titre);
        films.Update();
    }
    [[nodiscard]] static std::string premierTitre(db::Base& base) {
        if (base.films.RecordCount() == 0) return "";
        base.films.MoveFirst();
        return base.films.texte("Titre");
    }
};

// The rights of an ordinary user: what is read-only is so for root's tests too.
class SansPrivileges {
  public:
    SansPrivileges() {
        if (geteuid() == 0) m_change = setresuid(kPersonne, kPersonne, 0) == 0;
    }
    SansPrivileges(const SansPrivileges&) = delete;
    SansPrivileges& operator=(const SansPrivileges&) = delete;
    ~SansPrivileges() {
        if (m_change) m_rendu = setresuid(0, 0, 0) == 0;
    }

  private:
    static constexpr uid_t kPersonne = 65534;
    bool m_change = false;
    bool m_rendu = false;
};
