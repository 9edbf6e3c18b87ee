#include "ui/ApercuDesFiches.h"

#include "acquire/ApercuFiches.h"
#include "app/ApercuFiches.h"
#include "ui/FenetreExamen.h"

#include <algorithm>
#include <memory>

namespace ui {

namespace {

// The sheets of a preview, which its rows are found again by.
class FichesVues {
  public:
    explicit FichesVues(const acquire::ApercuFiches& apercu) : m_dossier(apercu.dossier), m_fiches(apercu.dossier) {
        for (const edit::FilmExamine& film : apercu.films)
            m_noms.push_back(film.provenance);
    }

    [[nodiscard]] std::optional<FenetreExamen::Vue> vue(std::size_t rang) const {
        auto fiche = acquire::regardeFiche(m_fiches, m_noms[rang]);
        if (!fiche) return std::nullopt;
        return FenetreExamen::Vue{std::move(fiche->film), std::move(fiche->affiche)};
    }
    [[nodiscard]] acquire::FichesChoisies choisies(const FenetreExamen::Rangs& rangs) const {
        acquire::FichesChoisies fiches{m_dossier};
        for (const std::size_t rang : rangs)
            fiches.noms.push_back(m_noms[rang]);
        return fiches;
    }
    // Names in the order of `rangs`.
    [[nodiscard]] FenetreExamen::Rangs rangsDe(const FenetreExamen::Rangs& rangs,
                                               const std::vector<std::string>& noms) const {
        FenetreExamen::Rangs trouves;
        auto nom = noms.begin();
        for (const std::size_t rang : rangs)
            if (nom != noms.end() && m_noms[rang] == *nom) {
                trouves.push_back(rang);
                ++nom;
            }
        return trouves;
    }

  private:
    std::string m_dossier;
    acquire::DossierFiches m_fiches;
    std::vector<std::string> m_noms;
};

}  // namespace

void ouvreApercuDesFiches(const Atelier& atelier, QWidget* widget) {
    std::optional<acquire::ApercuFiches> apercu;
    atelier.execute([&](const app::Contexte& c) { apercu = acquire::apercuDesFiches(c); });
    if (!apercu || apercu->films.empty()) return;
    const auto fiches = std::make_shared<const FichesVues>(*apercu);
    const auto ajoute = [atelier, fiches](const FenetreExamen::Rangs& rangs) {
        atelier.execute(acquire::importeFichesChoisies, fiches->choisies(rangs));
    };
    const auto complete = [atelier, fiches](const FenetreExamen::Rangs& rangs) {
        std::vector<std::string> faites;
        atelier.execute([&](const app::Contexte& c) { faites = app::completeLesFilms(c, fiches->choisies(rangs)); });
        return fiches->rangsDe(rangs, faites);
    };
    (new FenetreExamen(atelier,
                       {.titre = FenetreExamen::tr("Aperçu de l'import"),
                        .provenance = FenetreExamen::tr("Fiche"),
                        .films = std::move(apercu->films),
                        .complet = apercu->complet,
                        .vue = [fiches](std::size_t rang) { return fiches->vue(rang); },
                        .ajoute = ajoute,
                        .complete = complete},
                       widget->window()))
        ->open();
}

}  // namespace ui
