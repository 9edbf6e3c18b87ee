#include "edit/AjoutePossession.h"

#include "edit/LongueursChamps.h"
#include "util/Texte.h"

namespace edit {

void ajoutePossession(dao::Recordset& personnel, const std::string& titre, const std::string& realisateur,
                      const std::string& support) {
    personnel.AddNew();
    nommeFilmPossede(personnel, titre, realisateur);
    for (const char* vide : {"Rangement", "Fichier1", "Fichier2", "Fichier3", "Pret", "Reserve", "Date", "Divers"})
        personnel.assigne(vide, "");
    personnel.assigne("Support", util::coupe(support, kLongueurSupport));
    personnel.Update();
}

void nommeFilmPossede(dao::Recordset& possession, const std::string& titre, const std::string& realisateur) {
    possession.assigne("Titre2", util::coupe(titre, kLongueurTitre));
    possession.assigne("Realisateur2", util::coupe(realisateur, kLongueurRealisateur));
}

}  // namespace edit
