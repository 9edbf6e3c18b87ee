#include "platform/dao/Tranches.h"

#include "platform/dao/Erreurs.h"

#include <vector>

namespace dao::interne {

namespace {

std::string enonce(const Table& table, std::span<const std::string_view> colonnes,
                   const std::optional<Valeur>& derniere) {
    std::string liste, premiere;
    for (const std::string_view nom : colonnes) {
        const auto rang = table.rang(nom);
        if (!rang) jette(kErreurParametre, "« " + std::string(nom) + " » n'est pas un champ.");
        if (premiere.empty()) premiere = table.colonneSql(*rang);
        liste.append(liste.empty() ? "SELECT " : ",").append(table.colonneSql(*rang));
    }
    liste.append(" FROM ").append(table.nomSql);
    if (derniere) liste.append(" WHERE ").append(premiere).append(derniere->estNull() ? " IS NOT NULL" : ">?1");
    return liste.append(" ORDER BY ").append(premiere);  // Null comes first
}

}  // namespace

bool litTranche(Connexion& connexion, const Table& table, std::span<const std::string_view> colonnes,
                std::optional<Valeur>& derniere, std::size_t lignes,
                const std::function<void(std::span<const std::string>)>& visite) {
    Requete lecture = connexion.prepare(enonce(table, colonnes, derniere));
    if (derniere && !derniere->estNull()) lecture.lie(1, *derniere);
    std::vector<std::string> textes(colonnes.size());
    std::string premiere, tampon;
    bool nulle = false;
    for (std::size_t lues = 0; lecture.avance(); ++lues) {
        const ValeurVue vue = lecture.vue(0);
        const std::string_view texte = texteDe(vue, tampon);
        if (lues >= lignes && (vue.estNulle() != nulle || texte != premiere)) return true;
        if (lues == 0 || vue.estNulle() != nulle || texte != premiere) {
            derniere = lecture.valeur(0);
            nulle = vue.estNulle();
            premiere = texte;
        }
        for (std::size_t i = 0; i < textes.size(); ++i)
            textes[i] = texteDe(lecture.vue(static_cast<int>(i)), tampon);
        visite(textes);
    }
    return false;
}

}  // namespace dao::interne
