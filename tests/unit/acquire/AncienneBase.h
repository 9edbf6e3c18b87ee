#pragma once

#include "acquire/ImporterAncienneBase.h"
#include "parcours/Photo.h"
#include "unit/acquire/FenetreAcquisition.h"

#include <filesystem>

inline constexpr const char* kQuestion =
    "Cette fonction permet de récupérer la base de données et les images d'une précédente version.\nSouhaitez-vous "
    "continuer ?";
inline constexpr const char* kDossier = "Dossier de la précédente version";
inline constexpr const char* kImages = "Mes affiches/";

// An open base, and a previous installation with a base of ours and two pictures.
class AncienneBase : public FenetreAcquisition {
  protected:
    doubles::DossierTemporaire ancienne;
    std::string initial;  // folder that the box opens in
    std::string images = ancienne.chemin(kImages);

    AncienneBase() {
        ancienne.ecrit("AMBRELIS.INI",
                       "1\r\nC:\\Vid\xE9o\\Mes Affiches\\\r\n 9000\r\n 6000\r\n 2\r\nC:\\Vid\xE9o\\FILMS.MDB\r\n");
        ancienne.ecrit(kImages + std::string("Été - R.jpg"), "image d'été");
        ancienne.ecrit(kImages + std::string("grande.JPG"), std::string(230001, 'x'));
    }

    using Lignes = std::vector<Ligne>;
    void anciens(const Lignes& films, const Lignes& possessions) {
        const std::string chemin = ancienne.chemin("Films.mdb");
        std::filesystem::remove(chemin);
        dao::DBEngine::CreateDatabase(chemin, db::schema());
        dao::Database ouverte = dao::DBEngine::OpenDatabase(chemin);
        remplit(ouverte, films, possessions);
    }
    static void remplit(dao::Database& cible, const Lignes& films, const Lignes& possessions) {
        dao::Transaction ensemble(cible);
        dao::Recordset lesFilms = cible.OpenRecordset("Films"), lesPossessions = cible.OpenRecordset("Personnel");
        for (const auto& film : films)
            ajoute(lesFilms, film);
        for (const auto& possession : possessions)
            ajoute(lesPossessions, possession);
        ensemble.confirme();
    }
    static Ligne film(const std::string& titre, const dao::Valeur& affiche = {}) {
        return {{"Titre", titre}, {"Realisateur", "R"}, {"Affiche", affiche}};
    }
    static Ligne possession(const std::string& titre, const std::string& support = "") {
        return {{"Titre2", titre}, {"Realisateur2", "R"}, {"Support", support}};
    }
    // So many films, each owned and with its own poster in the old base.
    void nombreuxFilms(int nombre) {
        Lignes films, possessions;
        for (int i = 0; i < nombre; ++i) {
            films.push_back(film("Film " + std::to_string(i), dao::Valeur::octets("STO" + std::to_string(i))));
            possessions.push_back(possession("Film " + std::to_string(i)));
        }
        anciens(films, possessions);
    }

    void attendChoix(const std::string& choisi) {
        dialogues.attendMsgBox(kQuestion, dialogues::kQuestion, dialogues::kOui);
        dialogues.attendDossier(kDossier, std::exchange(initial, choisi), choisi);
    }
    void attendAccord(int reponse = dialogues::kOui) {
        dialogues.attendMsgBox(origine() + "\n\nSouhaitez-vous importer cette base ?", dialogues::kQuestion, reponse);
    }
    [[nodiscard]] std::string origine() const {
        return "Base : " + ancienne.chemin("Films.mdb") + "\nImages : " + (images.empty() ? "aucun dossier" : images);
    }
    // Imports, and checks that the previous installation is as it was.
    void importe(const std::string& rapport) {
        const auto avant = ancienne.contenu();
        attendChoix(ancienne.chemin());
        attendAccord();
        dialogues.attendMsgBox(rapport + "\n" + origine(), dialogues::kInformation);
        proposeImportAncienneBase(c);
        dialogues.verifie();
        EXPECT_EQ(ancienne.contenu(), avant);
        EXPECT_TRUE(std::filesystem::is_empty(chemins.dossierTmp));
        EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
        EXPECT_FALSE(ajout.ProgressBar1.Visible || base.base.enTransaction());
    }
    [[nodiscard]] parcours::Photo photo() const { return parcours::Photo(chemins.base); }
    [[nodiscard]] std::string image(const std::string& nom) { return dossier.lit("Images/" + nom); }
};
