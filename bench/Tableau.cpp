#include "Tableau.h"

#include <cstdio>

namespace bench {

namespace {

std::string nombre(double valeur) {
    char texte[32];
    std::snprintf(texte, sizeof texte, valeur < 10 ? "%.2f" : valeur < 100 ? "%.1f" : "%.0f", valeur);
    return texte;
}

}  // namespace

void Tableau::titre(const std::string& texte) {
    std::printf("\n%s\n%-46s %9s %9s %7s %8s\n", texte.c_str(), "", "figure", "floor", "ratio", "target");
}

void Tableau::ajoute(const Ligne& l) {
    const double rapport = l.plancher ? l.valeur / *l.plancher : 0;
    const bool tenue = !l.cible || (l.cibleEnRapport ? rapport : l.valeur) <= *l.cible;
    if (!tenue) ++m_depassements;
    const std::string cible = l.cible ? (l.cibleEnRapport ? "x " : "") + nombre(*l.cible) : "";
    std::printf("  %-44s %9s %9s %7s %8s  %s\n", (l.mesure + ", " + l.unite).c_str(), nombre(l.valeur).c_str(),
                l.plancher ? nombre(*l.plancher).c_str() : "", l.plancher ? nombre(rapport).c_str() : "", cible.c_str(),
                !l.cible ? ""
                : tenue  ? "ok"
                         : "OVER");
    std::fflush(stdout);
}

}  // namespace bench
