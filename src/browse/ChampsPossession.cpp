#include "browse/ChampsPossession.h"

#include "browse/EtatFiche.h"

#include <cstddef>

namespace browse {

namespace {

constexpr std::size_t kNonPossede = 0, kPossede = 1;

template <typename Textes>
void reporte(const Textes& lus, const Textes& saisis, Textes& base) {
    for (std::size_t i = 0; i < base.size(); ++i)
        if (saisis[i] != lus[i]) base[i] = saisis[i];
}

}  // namespace

ChampsPossession champsPossession(const EtatFiche& fiche) {
    ChampsPossession champs;
    champs.possede = !fiche.Option1[kNonPossede].Value;
    for (std::size_t i = 0; i < champs.Text10.size(); ++i)
        champs.Text10[i] = fiche.Text10[i].Text;
    for (std::size_t i = 0; i < champs.Combo7.size(); ++i)
        champs.Combo7[i] = fiche.Combo7[i].Text;
    return champs;
}

void ecritChampsPossession(EtatFiche& fiche, const ChampsPossession& champs) {
    ecran::choisit(fiche.Option1, champs.possede ? kPossede : kNonPossede);
    for (std::size_t i = 0; i < champs.Text10.size(); ++i)
        fiche.Text10[i].Text = champs.Text10[i];
    for (std::size_t i = 0; i < champs.Combo7.size(); ++i) {
        fiche.Combo7[i].ListIndex = -1;  // a text that need not be one of the list
        fiche.Combo7[i].Text = champs.Combo7[i];
    }
}

ChampsPossession reporteSaisie(const ChampsPossession& lus, const ChampsPossession& saisis, ChampsPossession base) {
    if (saisis.possede != lus.possede) base.possede = saisis.possede;
    reporte(lus.Text10, saisis.Text10, base.Text10);
    reporte(lus.Combo7, saisis.Combo7, base.Combo7);
    return base;
}

}  // namespace browse
