#pragma once

#include "ui/Etiquettes.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

// How panels are put together: names, captions, distances.
namespace ui {

inline constexpr int kSerre = 4, kPetit = 8, kMoyen = 12, kGrand = 16, kLarge = 24;  // logical pixels

// Names the widget as the control is published, and tells screen readers what it is.
template <typename Widget>
Widget* nomme(Widget* widget, const char* nom, const QString& pourLecteur = {}) {
    widget->setObjectName(QLatin1String(nom));
    if (!pourLecteur.isEmpty()) widget->setAccessibleName(pourLecteur);
    return widget;
}
// A member of a control array: Text3_0, Text3_1...
template <typename Widget>
Widget* nomme(Widget* widget, const char* tableau, std::size_t indice, const QString& pourLecteur = {}) {
    return nomme(widget, (std::string(tableau) + "_" + std::to_string(indice)).c_str(), pourLecteur);
}

// A push button that Enter presses when it has the focus.
template <typename Bouton = QPushButton>
Bouton* bouton(const char* nom, const QString& texte, const QString& infobulle = {}) {
    auto* resultat = nomme(new Bouton(texte), nom);
    if constexpr (std::is_base_of_v<QPushButton, Bouton>) resultat->setAutoDefault(true);
    resultat->setToolTip(infobulle);
    return resultat;
}

// A caption in small quiet letters; with a buddy, its mnemonic leads there and it names the buddy to screen readers.
[[nodiscard]] Etiquette* legende(const QString& texte, QWidget* champ = nullptr);
// The caption above its control.
[[nodiscard]] QVBoxLayout* champ(const QString& texteLegende, QWidget* controle);
[[nodiscard]] QVBoxLayout* colonne(int espacement = kPetit);
[[nodiscard]] QHBoxLayout* rangee(std::initializer_list<QWidget*> widgets, int espacement = kPetit);
[[nodiscard]] QFrame* filetHorizontal();
[[nodiscard]] QFrame* filetVertical();
// Hidden it takes the room that it takes when it is shown: nothing around it moves.
void gardeSaPlace(QWidget* widget);
// No larger than the window that it opens over.
void metTaille(QWidget* boite, QSize voulue);

}  // namespace ui
