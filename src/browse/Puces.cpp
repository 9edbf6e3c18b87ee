#include "browse/Puces.h"

#include "browse/AfficheVolet.h"
#include "util/Texte.h"

#include <algorithm>
#include <cctype>

namespace browse {

namespace {

constexpr std::size_t kPret = 0, kReserve = 1, kSupport = 2;  // in Combo7
constexpr std::size_t kRangement = 3, kDate = 6;              // in Text10

// A value as it stands in a line: its line ends are blanks, and of a very long one there is the beginning.
std::string enLigne(std::string_view valeur) {
    constexpr std::size_t kOctetsLus = 4096, kCaracteres = 100;
    std::string ligne(valeur.substr(0, kOctetsLus));
    std::ranges::replace_if(
        ligne, [](unsigned char c) { return std::iscntrl(c) != 0; }, ' ');
    const std::size_t debut = ligne.find_first_not_of(' ');
    if (debut == std::string::npos) return {};
    ligne = ligne.substr(debut, ligne.find_last_not_of(' ') + 1 - debut);
    const std::string courte = util::coupe(ligne, kCaracteres);
    return courte.size() < ligne.size() ? courte + "…" : ligne;
}

std::string precede(const std::string& mots, const std::string& valeur) {
    return valeur.empty() ? valeur : mots + valeur;
}

// The date is stored as typed: "12/11/2026", but also "hier" or "été 2025".
std::string depuis(const std::string& date) {
    const bool enChiffres = !date.empty() && std::isdigit(static_cast<unsigned char>(date.front()));
    return precede(enChiffres ? " depuis le " : " · ", date);
}

std::string champDe(const EtatFiche& fiche, int puce) {
    if (!fiche.framePossession.Visible) return "Option1_0";
    if (puce == kPucePret) return "Combo7_0";
    if (puce == kPuceReserve) return "Combo7_1";
    const bool lieuSeul = fiche.Combo7[kSupport].Text.empty() && !fiche.Text10[kRangement].Text.empty();
    return lieuSeul ? "Text10_3" : "Combo7_2";
}

}  // namespace

void montrePuces(EtatFiche& fiche, const ChampsPossession& champs) {
    for (const Puce puce : {kPucePossede, kPucePret, kPuceReserve}) {
        ecran::Bouton& bouton = fiche.cmdPuce[puce];
        bouton.Caption = textePuce(champs, puce);
        bouton.Visible = !bouton.Caption.empty();
    }
    fiche.cmdPuce[kPucePossede].FontBold = champs.possede;
}

void cmdPuce_Click(const Contexte& c, int puce) {
    if (!c.film.estUnFilm()) return;
    AfficheVolet(c, kVoletAutresInfos);
    c.demandes.focus = champDe(c.fiche, puce);
}

std::string textePuce(const ChampsPossession& champs, Puce puce) {
    if (!champs.possede) return puce == kPucePossede ? "Non possédé" : "";
    switch (puce) {
        case kPucePret: {
            const std::string qui = precede("Prêté à ", enLigne(champs.Combo7[kPret]));
            return qui.empty() ? qui : qui + depuis(enLigne(champs.Text10[kDate]));
        }
        case kPuceReserve:
            return precede("Réservé pour ", enLigne(champs.Combo7[kReserve]));
        case kPucePossede:
            break;
    }
    return "Possédé" + precede(" · ", enLigne(champs.Combo7[kSupport])) +
           precede(" · ", enLigne(champs.Text10[kRangement]));
}

}  // namespace browse
