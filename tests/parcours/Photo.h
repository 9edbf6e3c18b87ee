#pragma once

#include "platform/dao/DBEngine.h"

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace parcours {

// Every row of a base as another program reads them, to tell which rows a command changed.
class Photo {
  public:
    Photo() = default;
    explicit Photo(const std::string& chemin) {
        dao::Database base = dao::DBEngine::OpenDatabase(chemin);
        prends(base.OpenRecordset("Films"), "Films",
               {"Titre", "Realisateur", "Annee", "Origine", "Genre", "Duree", "Acteurs", "Resume", "Production", "Note",
                "DateAjout", "Affiche"});
        prends(base.OpenRecordset("Personnel"), "Personnel",
               {"Titre2", "Realisateur2", "Rangement", "Fichier1", "Fichier2", "Fichier3", "Pret", "Reserve", "Date",
                "Divers", "Support"});
    }

    // "+Films : Titre de Realisateur" for a row that came, "-" for one that went, "*" for one that changed.
    [[nodiscard]] std::vector<std::string> depuis(const Photo& avant) const {
        std::vector<std::string> changements;
        for (const auto& [cle, ligne] : m_lignes) {
            const auto ancienne = avant.m_lignes.find(cle);
            if (ancienne == avant.m_lignes.end())
                changements.push_back("+" + ligne.film);
            else if (ancienne->second.champs != ligne.champs)
                changements.push_back("*" + ligne.film);
        }
        for (const auto& [cle, ligne] : avant.m_lignes)
            if (!m_lignes.contains(cle)) changements.push_back("-" + ligne.film);
        return changements;
    }

  private:
    struct Ligne {
        std::string film;
        std::vector<std::string> champs;
    };

    void prends(dao::Recordset lignes, const std::string& table, std::initializer_list<const char*> champs) {
        for (; !lignes.Eof(); lignes.MoveNext()) {
            Ligne ligne;
            for (const char* champ : champs)
                ligne.champs.push_back(lignes.Fields(champ).estNull() ? "Null" : lignes.texte(champ));
            ligne.film = table + " : " + ligne.champs[0] + " de " + ligne.champs[1];
            EXPECT_TRUE(m_lignes.emplace(table + lignes.texte("id"), ligne).second) << ligne.film;
        }
    }

    std::map<std::string, Ligne> m_lignes;  // by table and row id
};

}  // namespace parcours
