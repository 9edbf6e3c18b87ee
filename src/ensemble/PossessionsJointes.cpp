#include "ensemble/PossessionsJointes.h"

#include "platform/dao/Comparaison.h"

#include <algorithm>

namespace ensemble {

namespace {

constexpr std::size_t kPremierFichier = 1, kApresLesFichiers = 4;
static_assert(db::kChampsDePossession[kPremierFichier] == "Fichier1" &&
              db::kChampsDePossession[kApresLesFichiers - 1] == "Fichier3");

bool estVide(const std::string& valeur) {
    return dao::egalJet(valeur, "");
}

bool prendLeFichier(ValeursDePossession& valeurs, const std::string& fichier) {
    const auto debut = valeurs.begin() + kPremierFichier, fin = valeurs.begin() + kApresLesFichiers;
    if (estVide(fichier) || std::find(debut, fin, fichier) != fin) return true;
    const auto libre = std::find_if(debut, fin, estVide);
    if (libre == fin) return false;
    *libre = fichier;
    return true;
}

}  // namespace

ValeursDePossession litPossession(const dao::Recordset& ligne) {
    ValeursDePossession valeurs;
    for (std::size_t i = 0; i < valeurs.size(); ++i)
        valeurs[i] = ligne.texte(db::kChampsDePossession[i]);
    return valeurs;
}

void ecritPossession(dao::Recordset& ligne, const ValeursDePossession& valeurs) {
    ligne.Edit();
    for (std::size_t i = 0; i < valeurs.size(); ++i)
        ligne.assigne(db::kChampsDePossession[i], valeurs[i]);
    ligne.Update();
}

std::optional<ValeursDePossession> jointes(const ValeursDePossession& une, const ValeursDePossession& autre) {
    ValeursDePossession valeurs = une;
    for (std::size_t i = 0; i < valeurs.size(); ++i) {
        if (i >= kPremierFichier && i < kApresLesFichiers) {
            if (!prendLeFichier(valeurs, autre[i])) return std::nullopt;
        } else if (estVide(valeurs[i])) {
            valeurs[i] = autre[i];
        } else if (!estVide(autre[i]) && !dao::egalJet(valeurs[i], autre[i])) {
            return std::nullopt;
        }
    }
    return valeurs;
}

}  // namespace ensemble
