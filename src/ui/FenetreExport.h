#pragma once

#include "ui/Atelier.h"
#include "ui/CoursExport.h"

#include <QDialog>
#include <array>
#include <functional>

class QComboBox;
class QListWidget;
class QPrinter;
class QProgressBar;
class QRadioButton;

namespace ui {

class BoutonAccent;
class DestinationExport;
class Etiquette;

// Which films, as what, with which fields, where to: all that leaves the program beside the lists. What is being done shows
// in it and is stopped from it.
class FenetreExport final : public QDialog {
    Q_OBJECT
  public:
    FenetreExport(const Atelier& atelier, QWidget* parent);
    void presente();  // for the listing that is shown now

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void reject() override;

  private:
    [[nodiscard]] QLayout* quoi();
    [[nodiscard]] QLayout* enQuoi();
    [[nodiscard]] QLayout* champs();
    [[nodiscard]] QLayout* pied();
    void proposeLesChamps();
    [[nodiscard]] Sortie sortie() const;
    [[nodiscard]] app::Etendue etendue() const;
    void suisLaSortie();
    void suisLeTravail();
    void noteLesChamps();
    [[nodiscard]] MiseEnPage miseEnPage() const;
    [[nodiscard]] ExportVoulu voulu() const;
    void exporte();
    void imprime();
    void apercu();
    [[nodiscard]] bool surImprimante(QPrinter& imprimante);
    [[nodiscard]] bool travaille(const std::function<bool(const app::Contexte&)>& travail);

    const Atelier m_atelier;
    std::array<QRadioButton*, 3> m_etendues{};
    std::array<QRadioButton*, kSorties.size()> m_sorties{};
    std::array<exportation::Champs, kSorties.size()> m_champsDe;
    QListWidget* m_champs;
    QComboBox* m_miseEnPage;
    QWidget* m_cadrePapier;
    Etiquette* m_explication;
    DestinationExport* m_destination;
    QProgressBar* m_progression;
    QPushButton* m_arreter;
    QPushButton* m_apercu;
    QPushButton* m_fermer;
    BoutonAccent* m_exporter;
    QWidget* m_contenu;
    Sortie m_montree = Sortie::Tableau;
    bool m_auTravail = false;
};

void ouvreExport(const Atelier& atelier, QWidget* widget);

}  // namespace ui
