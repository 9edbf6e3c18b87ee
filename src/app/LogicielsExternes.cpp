#include "app/LogicielsExternes.h"

#include "app/Extensions.h"
#include "platform/fichiers/Fichiers.h"

#include <algorithm>
#include <optional>

namespace app {

namespace {

bool estParDefaut(const std::string& programme) {
    return programme.empty() || programme == kLogicielParDefaut;
}

constexpr const char* kTropDExtensions =
    "La liste est complète : elle ne contient pas plus de quinze extensions. Retirez-en une pour en ajouter une autre.";
constexpr const char* kDossierLogiciels = "/usr/bin";
constexpr const char* kBlancsDuClavier = " \t";

bool tientSurUneLigne(const std::string& texte) {
    return std::none_of(texte.begin(), texte.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; });
}

// An extension is what follows the last point of a name.
bool peutFinirUnNom(const std::string& extension) {
    return tientSurUneLigne(extension) && extension.find_first_of(" ./\\") == std::string::npos &&
           extension.find("\u00A0") == std::string::npos;
}

// The rows of the table that have an extension to choose them by.
std::size_t nombre(const Contexte& c) {
    return std::min(static_cast<std::size_t>(c.etats.fonctions.Combo6[0].ListCount()), TableExtensions::kLignes);
}

// None without an extension.
std::array<std::string, 2>* ligneChoisie(const Contexte& c) {
    const auto choisie = static_cast<std::size_t>(c.etats.fonctions.Combo6[0].ListIndex);
    return choisie < nombre(c) ? &c.extensions.lignes[choisie] : nullptr;
}

std::optional<int> placeDe(const Contexte& c, const std::string& extension) {
    const std::size_t ligne = c.extensions.ligneDe(extension);
    return ligne < nombre(c) ? std::optional(static_cast<int>(ligne)) : std::nullopt;
}

// Why it cannot be added, empty if it can.
std::string refus(const Contexte& c, const std::string& extension) {
    if (extension.empty()) return "Tapez d'abord une extension, par exemple avi.";
    if (!peutFinirUnNom(extension))
        return "Une extension s'écrit sans espace, sans point et sans \"/\", par exemple avi.";
    if (placeDe(c, extension)) return "L'extension \"" + extension + "\" est déjà dans la liste.";
    return nombre(c) < TableExtensions::kLignesLues ? "" : kTropDExtensions;
}

// The table was changed: shows and keeps it.
void changee(const Contexte& c) {
    montreLogiciels(c);
    enregistreExtensions(c);
}

void donneLogiciel(const Contexte& c, const std::string& programme) {
    auto* ligne = ligneChoisie(c);
    if (!ligne || (*ligne)[1] == programme) return;
    (*ligne)[1] = programme;
    changee(c);
}

// An extension that is there already is shown, with its program.
void refuse(const Contexte& c, const std::string& extension, const std::string& raison) {
    if (const auto place = placeDe(c, extension)) {
        c.etats.fonctions.Combo6[0].selectionne(*place);
        montreLogiciels(c);
    }
    c.dialogues.MsgBox(raison, dialogues::kExclamation);
    c.demandes.focus = "txtNouvelleExtension";
}

}  // namespace

void montreLogiciels(const Contexte& c) {
    EtatFonctions& fonctions = c.etats.fonctions;
    auto& [extensions, programmes] = fonctions.Combo6;
    programmes.Clear();
    for (std::size_t i = 0; i < nombre(c); ++i) {
        const std::string& programme = c.extensions.lignes[i][1];
        const auto& connus = programmes.Items;
        if (!estParDefaut(programme) && std::find(connus.begin(), connus.end(), programme) == connus.end())
            programmes.AddItem(programme);
    }
    programmes.AddItem(kLogicielParDefaut);
    const auto* ligne = ligneChoisie(c);
    const auto choisi =
        ligne ? std::find(programmes.Items.begin(), programmes.Items.end(), (*ligne)[1]) : programmes.Items.end();
    programmes.selectionne(choisi == programmes.Items.end() ? programmes.ListCount() - 1
                                                            : static_cast<int>(choisi - programmes.Items.begin()));
    extensions.Enabled = nombre(c) > 0;
    programmes.Enabled = fonctions.cmdParcourirLogiciel.Enabled = fonctions.cmdSupprExtension.Enabled =
        ligne != nullptr;
}

void Combo6_Click(const Contexte& c, int indice) {
    if (indice == 0)
        montreLogiciels(c);
    else
        donneLogiciel(c, c.etats.fonctions.Combo6[1].Text);
}

void cmdParcourirLogiciel_Click(const Contexte& c) {
    const auto* ligne = ligneChoisie(c);
    if (!ligne) return;
    const std::string& actuel = (*ligne)[1];
    const std::string dossier = fichiers::existe(actuel) ? fichiers::dossierDe(actuel) : kDossierLogiciels;
    const std::string choisi =
        c.dialogues.choisitFichier({"Logiciel des fichiers " + (*ligne)[0], "Tous les fichiers|*.*", dossier, false});
    if (choisi.empty()) return;
    if (!fichiers::executable(choisi) || !tientSurUneLigne(choisi))
        c.dialogues.MsgBox("Ce fichier n'est pas un logiciel qui peut être lancé :\n" + choisi,
                           dialogues::kExclamation);
    else
        donneLogiciel(c, choisi);
}

void cmdAjoutExtension_Click(const Contexte& c) {
    const std::string extension = extensionTapee(c.etats.fonctions.txtNouvelleExtension.Text);
    if (const std::string texte = refus(c, extension); !texte.empty()) return refuse(c, extension, texte);
    ecran::Liste& extensions = c.etats.fonctions.Combo6[0];
    c.extensions.lignes[nombre(c)] = {extension, kLogicielParDefaut};
    extensions.AddItem(extension);
    extensions.selectionne(extensions.ListCount() - 1);
    c.etats.fonctions.txtNouvelleExtension.Text.clear();
    changee(c);
    c.demandes.focus = "cmdParcourirLogiciel";
}

void cmdSupprExtension_Click(const Contexte& c) {
    auto* ligne = ligneChoisie(c);
    if (!ligne) return;
    if (c.dialogues.MsgBox("Retirer l'extension \"" + (*ligne)[0] +
                               "\" de la liste ?\nSes fichiers s'ouvriront avec le logiciel par défaut.",
                           dialogues::kQuestion) != dialogues::kOui)
        return;
    ecran::Liste& extensions = c.etats.fonctions.Combo6[0];
    std::rotate(ligne, ligne + 1, c.extensions.lignes.data() + nombre(c));
    c.extensions.lignes[nombre(c) - 1] = {};
    extensions.Items.erase(extensions.Items.begin() + extensions.ListIndex);
    extensions.selectionne(std::min(extensions.ListIndex, extensions.ListCount() - 1));
    changee(c);
}

std::string extensionTapee(const std::string& texte) {
    const std::size_t debut = texte.find_first_not_of(kBlancsDuClavier);
    if (debut == std::string::npos) return "";
    std::string extension = texte.substr(debut, texte.find_last_not_of(kBlancsDuClavier) - debut + 1);
    for (const char ornement : {'*', '.'})
        if (extension.starts_with(ornement)) extension.erase(0, 1);
    return extension;
}

}  // namespace app
