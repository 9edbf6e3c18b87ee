#pragma once

#include "ui/Atelier.h"

#include <QBoxLayout>

class QScrollArea;

namespace ui {

// The sections of the help captions, as the state numbers them.
enum class Aide : std::size_t {
    Fiches,
    Ponctuation,
    Internet,
    TitresPersonnels,
    Compactage,
    Images,
    Logiciels,
    Recherche,
    FichierTexte,
    MultiSuppression
};

// A title, its description, and room for the section's controls below them.
[[nodiscard]] QVBoxLayout* section(const Atelier& atelier, Aide aide, double grandeur = 1.08);
[[nodiscard]] QVBoxLayout* section(const QString& titre, const QString& description);
// Several sections under one name.
[[nodiscard]] QVBoxLayout* groupe(const QString& nom);
// Controls side by side, kept left.
[[nodiscard]] QHBoxLayout* aGauche(std::initializer_list<QWidget*> widgets);
// Groups one below the other, no wider than their lines read well.
[[nodiscard]] QWidget* pile(std::initializer_list<QWidget*> widgets);
// The panel's content scrolls where the window is too low, and stays readable where it is very wide.
[[nodiscard]] QScrollArea* defilant(QLayout* contenu);

}  // namespace ui
