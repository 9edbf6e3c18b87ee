#pragma once

#include "ui/Atelier.h"

#include <QWidget>
#include <string>

class QPushButton;

namespace ui {

// The tools that look after the base, by what they are for; those that take something away stand apart.
class PanneauOutils final : public QWidget {
    Q_OBJECT
  public:
    explicit PanneauOutils(const Atelier& atelier, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* base();
    [[nodiscard]] QWidget* importer();
    [[nodiscard]] QWidget* exporter();
    [[nodiscard]] QWidget* corriger();
    [[nodiscard]] QWidget* zoneDangereuse();
    template <typename Procedure>
    [[nodiscard]] QPushButton* outil(const char* nom, const QString& texte, const QString& infobulle,
                                     ecran::Bouton& etat, Procedure procedure);

    const Atelier m_atelier;
    std::string m_dossierDesCollections;  // last chosen, where the next choice begins
};

}  // namespace ui
