#pragma once

#include "doubles/CollectionJson.h"
#include "platform/dao/DBEngine.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <glib.h>

// Genuine Jet bases among the real data, and what a base of ours holds in the form that tells them.
inline std::filesystem::path dossierBasesJet() {
    const char* choisi = std::getenv("AMBRELIS_DONNEES");
    return std::filesystem::path(choisi ? choisi : AMBRELIS_DONNEES_DEFAUT) / "bases-jet";
}

inline std::string enJson(const std::string& champ, const dao::Valeur& valeur) {
    if (champ != "Affiche" || !valeur.estOctets()) return valeur.texte();
    const std::string octets = valeur.texte().substr(3);
    char* somme =
        g_compute_checksum_for_data(G_CHECKSUM_SHA256, reinterpret_cast<const guchar*>(octets.data()), octets.size());
    const std::string texte = valeur.texte().substr(0, 3) + " " + std::to_string(octets.size()) + " " + somme;
    g_free(somme);
    return texte;
}

inline std::vector<doubles::LigneJson> litTable(dao::Database& base, const std::string& table) {
    static const std::vector<std::string> kChamps[] = {
        {"Titre", "Realisateur", "Annee", "Origine", "Genre", "Duree", "Acteurs", "Resume", "Production", "Affiche",
         "Note", "DateAjout"},
        {"Titre2", "Realisateur2", "Rangement", "Fichier1", "Fichier2", "Fichier3", "Pret", "Reserve", "Date", "Divers",
         "Support"}};
    std::vector<doubles::LigneJson> lignes;
    for (dao::Recordset lues = base.OpenRecordset(table); !lues.Eof(); lues.MoveNext()) {
        doubles::LigneJson& ligne = lignes.emplace_back();
        for (const std::string& champ : kChamps[table == "Films" ? 0 : 1]) {
            const dao::Valeur valeur = lues.valeur(champ);
            ligne[champ] = valeur.estNull() ? std::nullopt : std::optional(enJson(champ, valeur));
        }
    }
    return lignes;
}
