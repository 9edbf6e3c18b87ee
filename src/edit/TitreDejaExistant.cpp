#include "edit/TitreDejaExistant.h"

#include "db/Requete.h"
#include "util/Sql.h"

namespace edit {

std::string requeteTitreDejaExistant(const std::string& titre, const std::string& realisateur) {
    return "SELECT * FROM films WHERE titre =" + util::entreGuillemets(titre) +
           " AND Realisateur =  " + util::entreGuillemets(realisateur) + "ORDER BY Titre ASC ;";
}

// A base that cannot be read is told of when the question is asked.
void Doublons::prepare() const {
    try {
        m_base.base.prepareLesRecherches("Films");
    } catch (const dao::ErreurDao&) {
    }
}

bool Doublons::TitreDejaExistant(const std::string& titre, const std::string& realisateur) const {
    return db::ouvreRequete(m_base.base, requeteTitreDejaExistant(titre, realisateur),
                            db::NumeroErreur::TitreDejaExistant, m_dialogues)
               .RecordCount() >= 1;
}

}  // namespace edit
