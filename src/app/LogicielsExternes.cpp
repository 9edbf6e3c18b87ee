#include "app/LogicielsExternes.h"

#include "app/EnregistreExtensions.h"
#include "platform/fichiers/Fichiers.h"

#include <algorithm>

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

}  // namespace

void LogicielsExternes::montre() {
    auto& [extensions, programmes] = m_etat.Combo6;
    programmes.Clear();
    for (std::size_t i = 0; i < nombre(); ++i) {
        const std::string& programme = m_table.lignes[i][1];
        const auto& connus = programmes.Items;
        if (!estParDefaut(programme) && std::find(connus.begin(), connus.end(), programme) == connus.end())
            programmes.AddItem(programme);
    }
    programmes.AddItem(kLogicielParDefaut);
    const auto* ligne = ligneChoisie();
    const auto choisi =
        ligne ? std::find(programmes.Items.begin(), programmes.Items.end(), (*ligne)[1]) : programmes.Items.end();
    programmes.selectionne(choisi == programmes.Items.end() ? programmes.ListCount() - 1
                                                            : static_cast<int>(choisi - programmes.Items.begin()));
    extensions.Enabled = nombre() > 0;
    programmes.Enabled = m_etat.cmdParcourirLogiciel.Enabled = m_etat.cmdSupprExtension.Enabled = ligne != nullptr;
}

void LogicielsExternes::Combo6_Click(int indice) {
    if (indice == 0)
        montre();
    else
        donneLogiciel(m_etat.Combo6[1].Text);
}

void LogicielsExternes::cmdParcourirLogiciel_Click() {
    const auto* ligne = ligneChoisie();
    if (!ligne) return;
    const std::string& actuel = (*ligne)[1];
    const std::string dossier = fichiers::existe(actuel) ? fichiers::dossierDe(actuel) : kDossierLogiciels;
    const std::string choisi =
        m_dialogues.choisitFichier({"Logiciel des fichiers " + (*ligne)[0], "Tous les fichiers|*.*", dossier, false});
    if (choisi.empty()) return;
    if (!fichiers::executable(choisi) || !tientSurUneLigne(choisi))
        m_dialogues.MsgBox("Ce fichier n'est pas un logiciel qui peut être lancé :\n" + choisi,
                           dialogues::kExclamation);
    else
        donneLogiciel(choisi);
}

void LogicielsExternes::cmdAjoutExtension_Click() {
    const std::string extension = extensionTapee(m_etat.txtNouvelleExtension.Text);
    if (const std::string texte = refus(extension); !texte.empty()) return refuse(extension, texte);
    ecran::Liste& extensions = m_etat.Combo6[0];
    m_table.lignes[nombre()] = {extension, kLogicielParDefaut};
    extensions.AddItem(extension);
    extensions.selectionne(extensions.ListCount() - 1);
    m_etat.txtNouvelleExtension.Text.clear();
    changee();
    m_demandes.focus = "cmdParcourirLogiciel";
}

// An extension that is there already is shown, with its program.
void LogicielsExternes::refuse(const std::string& extension, const std::string& raison) {
    if (const auto place = placeDe(extension)) {
        m_etat.Combo6[0].selectionne(*place);
        montre();
    }
    m_dialogues.MsgBox(raison, dialogues::kExclamation);
    m_demandes.focus = "txtNouvelleExtension";
}

void LogicielsExternes::cmdSupprExtension_Click() {
    auto* ligne = ligneChoisie();
    if (!ligne) return;
    if (m_dialogues.MsgBox("Retirer l'extension \"" + (*ligne)[0] +
                               "\" de la liste ?\nSes fichiers s'ouvriront avec le logiciel par défaut.",
                           dialogues::kQuestion) != dialogues::kOui)
        return;
    ecran::Liste& extensions = m_etat.Combo6[0];
    std::rotate(ligne, ligne + 1, m_table.lignes.data() + nombre());
    m_table.lignes[nombre() - 1] = {};
    extensions.Items.erase(extensions.Items.begin() + extensions.ListIndex);
    extensions.selectionne(std::min(extensions.ListIndex, extensions.ListCount() - 1));
    changee();
}

std::size_t LogicielsExternes::nombre() const {
    return std::min(static_cast<std::size_t>(m_etat.Combo6[0].ListCount()), TableExtensions::kLignes);
}

std::array<std::string, 2>* LogicielsExternes::ligneChoisie() {
    const auto choisie = static_cast<std::size_t>(m_etat.Combo6[0].ListIndex);
    return choisie < nombre() ? &m_table.lignes[choisie] : nullptr;
}

std::optional<int> LogicielsExternes::placeDe(const std::string& extension) const {
    const std::size_t ligne = m_table.ligneDe(extension);
    return ligne < nombre() ? std::optional(static_cast<int>(ligne)) : std::nullopt;
}

std::string LogicielsExternes::refus(const std::string& extension) const {
    if (extension.empty()) return "Tapez d'abord une extension, par exemple avi.";
    if (!peutFinirUnNom(extension))
        return "Une extension s'écrit sans espace, sans point et sans \"/\", par exemple avi.";
    if (placeDe(extension)) return "L'extension \"" + extension + "\" est déjà dans la liste.";
    return nombre() < TableExtensions::kLignesLues ? "" : kTropDExtensions;
}

void LogicielsExternes::donneLogiciel(const std::string& programme) {
    auto* ligne = ligneChoisie();
    if (!ligne || (*ligne)[1] == programme) return;
    (*ligne)[1] = programme;
    changee();
}

void LogicielsExternes::changee() {
    montre();
    enregistreExtensions(m_table, nombre(), m_chemins, m_dialogues);
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
