#include "edit/SaisiePossession.h"

#include "browse/AffichePossession.h"
#include "platform/fichiers/Fichiers.h"

#include <string>

namespace edit {

void SaisiePossession::Option1_Click() {
    attendValidation();
    browse::montrePossession(m_fiche);
}

void SaisiePossession::Combo7_Change() {
    attendValidation();
}

void SaisiePossession::Text10_Change() {
    attendValidation();
}

void SaisiePossession::Command2_Click(std::size_t indice) {
    if (indice >= m_fiche.Command2.size()) return;
    std::string& fichier = m_fiche.Text10[indice].Text;
    const std::string choisi = m_dialogues.choisitFichier(
        {"Ajouter un fichier à la fiche du film", "Tous types de fichiers|*.*", fichiers::dossierDe(fichier)});
    if (choisi.empty()) return;
    fichier = choisi;
    attendValidation();
}

}  // namespace edit
