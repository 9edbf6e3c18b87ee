#include "edit/SaisiePossession.h"

#include "browse/AffichePossession.h"
#include "platform/fichiers/Fichiers.h"

#include <iterator>
#include <string>

namespace edit {

namespace {

void attendValidation(const Contexte& c) {
    c.fiche.cmdValiderInfosPossessions.Visible = true;
}

}  // namespace

void Option1_Click(const Contexte& c) {
    attendValidation(c);
    browse::montrePossession(c.fiche);
}

void Combo7_Change(const Contexte& c, int) {
    attendValidation(c);
}

void Text10_Change(const Contexte& c, int) {
    attendValidation(c);
}

void Command2_Click(const Contexte& c, int indice) {
    if (indice < 0 || indice >= std::ssize(c.fiche.Command2)) return;
    const std::string choisi =
        c.dialogues.choisitFichier({"Ajouter un fichier à la fiche du film", "Tous types de fichiers|*.*",
                                    fichiers::dossierDe(c.fiche.Text10[indice].Text)});
    if (!choisi.empty()) attacheFichier(c, indice, choisi);
}

void attacheFichier(const Contexte& c, int indice, const std::string& fichier) {
    c.fiche.Text10[indice].Text = fichier;
    attendValidation(c);
}

}  // namespace edit
