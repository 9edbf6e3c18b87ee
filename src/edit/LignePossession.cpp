#include "edit/LignePossession.h"

#include "db/ChampsPublies.h"
#include "db/EnonceFilm.h"
#include "edit/LongueursChamps.h"
#include "platform/dao/LigneSupprimee.h"
#include "util/Texte.h"

namespace edit {

void ajoutePossession(dao::Recordset& personnel, const db::CleFilm& film, const std::string& support) {
    personnel.AddNew();
    nommeFilmPossede(personnel, film);
    for (const std::string_view vide : db::kChampsDePossession)
        personnel.assigne(vide, "");
    personnel.assigne("Support", util::coupe(support, kLongueurSupport));
    personnel.Update();
}

void nommeFilmPossede(dao::Recordset& possession, const db::CleFilm& film) {
    possession.assigne("Titre2", util::coupe(film.titre, kLongueurTitre));
    possession.assigne("Realisateur2", util::coupe(film.realisateur, kLongueurRealisateur));
}

bool supprimePossession(dao::Database& base, const db::CleFilm& film) {
    dao::Recordset possession = base.OpenRecordset(db::enoncePossession(film));
    return !possession.Eof() && dao::siPresente([&] { possession.Delete(); });
}

}  // namespace edit
