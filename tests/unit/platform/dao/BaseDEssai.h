#pragma once

#include "doubles/DossierTemporaire.h"
#include "platform/dao/DBEngine.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace essais {

inline constexpr std::string_view kSchema = R"(
CREATE TABLE Films (id INTEGER PRIMARY KEY, Titre TEXT, Realisateur TEXT, Annee TEXT, Origine TEXT, Genre TEXT, Duree TEXT,
  Acteurs TEXT, Resume TEXT, Production TEXT, Note INTEGER, DateAjout TEXT, Affiche BLOB);
CREATE TABLE Personnel (id INTEGER PRIMARY KEY, Titre2 TEXT, Realisateur2 TEXT, Rangement TEXT, Fichier1 TEXT, Fichier2 TEXT,
  Fichier3 TEXT, Pret TEXT, Reserve TEXT, Date TEXT, Divers TEXT, Support TEXT);
CREATE INDEX FilmsListe ON Films (Titre, Realisateur, Annee, Genre, Origine, Duree, Note, DateAjout);
CREATE INDEX PersonnelListe ON Personnel (Titre2, Realisateur2, Pret, Reserve, Support))";

using Champs = std::vector<std::pair<std::string, dao::Valeur>>;

// A new base in a folder of its own.
struct BaseDEssai {
    BaseDEssai() { dao::DBEngine::CreateDatabase(chemin, kSchema), ouvre(); }
    void ouvre() {
        base = dao::DBEngine::OpenDatabase(chemin);
        base.declareCles({{"titre", "realisateur"}, {"Titre2", "Realisateur2"}});
    }

    void ajoute(std::string_view table, const Champs& champs) {
        dao::Recordset jeu = base.OpenRecordset(table);
        jeu.AddNew();
        for (const auto& [nom, valeur] : champs)
            jeu.Fields(nom) = valeur;
        jeu.Update();
    }
    void film(std::string titre, std::string realisateur) {
        ajoute("Films", {{"Titre", titre}, {"Realisateur", realisateur}});
    }
    void possede(std::string titre, std::string realisateur) {
        ajoute("Personnel", {{"Titre2", titre}, {"Realisateur2", realisateur}});
    }

    // One field of every record of a statement, Null as "(Null)".
    std::vector<std::string> lit(std::string_view enonce, std::string_view champ = "Titre") {
        std::vector<std::string> valeurs;
        for (dao::Recordset jeu = base.OpenRecordset(enonce); !jeu.Eof(); jeu.MoveNext()) {
            valeurs.push_back(jeu.valeur(champ).estNull() ? "(Null)" : jeu.texte(champ));
        }
        return valeurs;
    }

    doubles::DossierTemporaire dossier;
    std::string chemin = dossier.chemin("films.mdb");
    dao::Database base;
};

// Another program at work on the same file.
class AutreProgramme {
  public:
    explicit AutreProgramme(const std::string& chemin) { sqlite3_open(chemin.c_str(), &m_base); }
    AutreProgramme(const AutreProgramme&) = delete;
    AutreProgramme& operator=(const AutreProgramme&) = delete;
    ~AutreProgramme() { sqlite3_close(m_base); }
    void execute(const char* sql) { EXPECT_EQ(essaie(sql), SQLITE_OK) << sqlite3_errmsg(m_base); }
    int essaie(const char* sql) { return sqlite3_exec(m_base, sql, nullptr, nullptr, nullptr); }

  private:
    sqlite3* m_base = nullptr;
};

// The number of the ErreurDao that the action throws; 0 when it throws none.
template <typename Action>
int numeroErreur(Action action) {
    try {
        action();
    } catch (const dao::ErreurDao& erreur) {
        EXPECT_FALSE(erreur.description.empty());
        return erreur.numero;
    }
    return 0;
}

}  // namespace essais
