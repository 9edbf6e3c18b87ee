#include "ui/Composition.h"

#include "ui/Couleurs.h"
#include "ui/Lecteur.h"

#include <QComboBox>
#include <QPainter>

namespace ui {

namespace {

class Filet final : public QFrame {
  public:
    Filet() { seLit(this, {.role = QAccessible::Separator}); }

  protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), filet(palette())); }
};

QString sansMnemonique(QString texte) {
    return texte.remove(QLatin1Char('&'));
}

}  // namespace

Etiquette* legende(const QString& texte, QWidget* champ) {
    auto* etiquette = (new Etiquette(champ ? texte : sansMnemonique(texte)))->avecTon(Ton::Discret)->avecPolice(0.9);
    etiquette->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    if (!champ) return etiquette;
    etiquette->setBuddy(champ);
    if (champ->accessibleName().isEmpty()) champ->setAccessibleName(sansMnemonique(texte));
    if (auto* liste = qobject_cast<QComboBox*>(champ); liste && liste->lineEdit())
        liste->lineEdit()->setAccessibleName(champ->accessibleName());
    return etiquette;
}

QVBoxLayout* champ(const QString& texteLegende, QWidget* controle) {
    auto* boite = colonne(kSerre);
    boite->addWidget(legende(texteLegende, controle));
    boite->addWidget(controle);
    return boite;
}

QVBoxLayout* colonne(int espacement) {
    auto* boite = new QVBoxLayout;
    boite->setContentsMargins(0, 0, 0, 0);
    boite->setSpacing(espacement);
    return boite;
}

QHBoxLayout* rangee(std::initializer_list<QWidget*> widgets, int espacement) {
    auto* boite = new QHBoxLayout;
    boite->setContentsMargins(0, 0, 0, 0);
    boite->setSpacing(espacement);
    for (QWidget* widget : widgets)
        boite->addWidget(widget);
    return boite;
}

void gardeSaPlace(QWidget* widget) {
    QSizePolicy politique = widget->sizePolicy();
    politique.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(politique);
}

void metTaille(QWidget* boite, QSize voulue) {
    const QWidget* dessous = boite->parentWidget();
    boite->resize(dessous ? voulue.boundedTo(dessous->window()->size()) : voulue);
}

QFrame* filetHorizontal() {
    auto* resultat = new Filet;
    resultat->setFixedHeight(1);
    return resultat;
}

QFrame* filetVertical() {
    auto* resultat = new Filet;
    resultat->setFixedWidth(1);
    return resultat;
}

}  // namespace ui
