#include "app/Extensions.h"

#include "platform/fichiers/Fichiers.h"

#include <algorithm>

namespace app {

namespace {

constexpr std::size_t kLigneMax = 4096;  // bytes; the system's own limit for a path

std::string valeur(const std::string& ligne) {
    return ligne.size() <= kLigneMax ? ligne : "";
}

}  // namespace

std::size_t litExtensions(const std::vector<std::string>& lignesDuFichier, TableExtensions& table) {
    const std::size_t nombre = std::min((lignesDuFichier.size() + 1) / 2, TableExtensions::kLignesLues);
    for (std::size_t i = 0; i < nombre; ++i) {
        const std::size_t programme = 2 * i + 1;
        table.lignes[i] = {valeur(lignesDuFichier[2 * i]),
                           programme < lignesDuFichier.size() ? valeur(lignesDuFichier[programme]) : ""};
    }
    return nombre;
}

std::string texteExtensions(const TableExtensions& table, std::size_t nombre) {
    std::string texte;
    for (std::size_t i = 0; i < std::min(nombre, TableExtensions::kLignes); ++i)
        texte += table.lignes[i][0] + '\n' + table.lignes[i][1] + '\n';
    return texte;
}

void enregistreExtensions(const Contexte& c) {
    const std::string chemin = c.chemins.dansDossier(kFichierExtensions);
    const auto nombre = static_cast<std::size_t>(c.etats.fonctions.Combo6[0].ListCount());
    if (!fichiers::remplace(chemin, texteExtensions(c.extensions, nombre)))
        c.dialogues.MsgBox("La liste des logiciels externes n'a pas pu être enregistrée (" + chemin + ").",
                           dialogues::kCritique);
}

}  // namespace app
