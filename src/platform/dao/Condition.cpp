#include "platform/dao/Condition.h"

#include "platform/dao/CleJet.h"
#include "platform/dao/Jointure.h"

#include <algorithm>

namespace dao::interne {

namespace {

using Genre = Expression::Genre;

ValeurVue verite(bool vraie) {
    return ValeurVue::deNombre(vraie ? -1 : 0);
}

double nombreDe(const ValeurVue& valeur) {
    return valeur.genre == ValeurVue::Genre::Nombre ? valeur.nombre : nombreDeTexte(valeur.texte);
}

int signeDeDifference(double gauche, double droite) {
    return gauche < droite ? -1 : gauche > droite ? 1 : 0;
}

// A number beside a text makes the comparison one of numbers.
int compare(const ValeurVue& gauche, const ValeurVue& droite, const std::string& cleDroite) {
    const bool textes = gauche.genre == ValeurVue::Genre::Texte && droite.genre == ValeurVue::Genre::Texte;
    if (!textes) return signeDeDifference(nombreDe(gauche), nombreDe(droite));
    if (gauche.texte == droite.texte) return 0;
    thread_local std::string cle;
    cle.clear();
    ajouteCleJet(gauche.texte, cle);
    return cle.compare(cleDroite.empty() ? cleJet(droite.texte) : cleDroite);
}

}  // namespace

bool Condition::estVraie(const LignesVues& lignes) const {
    const ValeurVue resultat = valeur(lignes);
    return !resultat.estNulle() && nombreDe(resultat) != 0;
}

ValeurVue Condition::valeur(const LignesVues& lignes) const {
    switch (genre) {
        case Genre::Texte:
            return ValeurVue::deTexte(texte);
        case Genre::Nombre:
            return ValeurVue::deNombre(nombre);
        case Genre::Nul:
            return ValeurVue::nulle();
        case Genre::Colonne: {
            const ValeurVue* table = lignes.tables[place.table];
            const ValeurVue lue = table == nullptr ? ValeurVue::nulle() : table[place.rang];
            return nulEstVide && lue.estNulle() ? ValeurVue::deTexte("") : lue;
        }
        case Genre::Ou:
        case Genre::Et:
        case Genre::Non:
            return connecteur(lignes);
        case Genre::EstNul:
            return verite(termes[0].valeur(lignes).estNulle());
        case Genre::EstNonNul:
            return verite(!termes[0].valeur(lignes).estNulle());
        case Genre::Plus:
        case Genre::Moins:
        case Genre::Instr:
        case Genre::Comme:
            return calcul(lignes);
        default:
            return comparaison(lignes);
    }
}

ValeurVue Condition::connecteur(const LignesVues& lignes) const {
    if (genre == Genre::Non) {
        const ValeurVue terme = termes[0].valeur(lignes);
        return terme.estNulle() ? terme : verite(nombreDe(terme) == 0);
    }
    const bool decisif = genre == Genre::Ou;  // the truth that decides alone
    bool nulle = false;
    for (const Condition& condition : termes) {
        const ValeurVue terme = condition.valeur(lignes);
        if (terme.estNulle()) {
            nulle = true;
        } else if ((nombreDe(terme) != 0) == decisif) {
            return verite(decisif);
        }
    }
    return nulle ? ValeurVue::nulle() : verite(!decisif);
}

ValeurVue Condition::comparaison(const LignesVues& lignes) const {
    const ValeurVue gauche = termes[0].valeur(lignes);
    const ValeurVue droite = termes[1].valeur(lignes);
    if (gauche.estNulle() || droite.estNulle()) return ValeurVue::nulle();
    const int ordre = compare(gauche, droite, termes[1].cle);
    switch (genre) {
        case Genre::Egal:
            return verite(ordre == 0);
        case Genre::Different:
            return verite(ordre != 0);
        case Genre::Inferieur:
            return verite(ordre < 0);
        case Genre::InferieurOuEgal:
            return verite(ordre <= 0);
        case Genre::Superieur:
            return verite(ordre > 0);
        default:
            return verite(ordre >= 0);
    }
}

ValeurVue Condition::calcul(const LignesVues& lignes) const {
    const ValeurVue gauche = termes[0].valeur(lignes);
    if (gauche.estNulle()) return gauche;
    const ValeurVue droite = termes[1].valeur(lignes);
    if (droite.estNulle()) return droite;
    std::string tampon;
    std::string autreTampon;
    if (genre == Genre::Comme) {
        const std::string_view texteLu = texteDe(gauche, tampon);
        return verite(motif ? motif->convient(texteLu) : Motif(texteDe(droite, autreTampon)).convient(texteLu));
    }
    if (genre == Genre::Instr) {
        if (termes[1].genre == Genre::Texte)
            return ValeurVue::deNombre(static_cast<double>(instr(texteDe(gauche, tampon), termes[1].plis)));
        std::string plisCherches;
        plie(texteDe(droite, autreTampon), plisCherches);
        return ValeurVue::deNombre(static_cast<double>(instr(texteDe(gauche, tampon), plisCherches)));
    }
    return ValeurVue::deNombre(genre == Genre::Plus ? nombreDe(gauche) + nombreDe(droite)
                                                    : nombreDe(gauche) - nombreDe(droite));
}

unsigned Condition::tables() const {
    unsigned resultat = genre == Genre::Colonne ? 1U << place.table : 0U;
    for (const Condition& terme : termes)
        resultat |= terme.tables();
    return resultat;
}

}  // namespace dao::interne
