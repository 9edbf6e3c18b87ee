#pragma once

#include "ensemble/Statistiques.h"
#include "ui/PageCollection.h"

#include <map>
#include <optional>

class QComboBox;

namespace ui {

class Etiquette;
class VueBarres;

// What the films of the listing are counted by.
class PageStatistiques final : public PageCollection {
    Q_OBJECT
  public:
    explicit PageStatistiques(const Atelier& atelier);

  protected:
    void relis(const app::Contexte& c) override;

  private:
    [[nodiscard]] QLayout* choix();
    void compteLaSuite();
    void recommence();
    void montre();
    void demandeLesFilms(int rang);
    void copie();
    void enregistre();
    void imprime();
    [[nodiscard]] const ensemble::Diagramme* diagramme() const;

    std::map<ensemble::Sujet, ensemble::Diagramme> m_diagrammes;
    std::optional<ensemble::Comptage> m_comptage;  // until all is counted
    Lecture m_comptee;
    QComboBox* m_sujet = nullptr;
    Etiquette *m_compte = nullptr, *m_vide = nullptr;
    VueBarres* m_barres = nullptr;
    std::vector<QWidget*> m_sorties;
    std::string m_dossier;  // of the last picture
};

}  // namespace ui
