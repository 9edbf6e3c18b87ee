#pragma once

#include "app/Exporter.h"
#include "ui/Atelier.h"
#include "ui/ExportPapier.h"

#include <QDialog>
#include <array>

class QComboBox;
class QLineEdit;
class QListWidget;
class QPrinter;
class QProgressBar;
class QRadioButton;

namespace ui {

class BoutonAccent;
class Etiquette;

// Which films, as what, with which fields, where to: all that leaves the program beside the lists. What is being done shows
// in it and is stopped from it.
class FenetreExport final : public QDialog {
    Q_OBJECT
  public:
    enum class Sortie { Tableau, Page, Pdf, Papier, Fiches };
    static constexpr std::size_t kSorties = 5;

    FenetreExport(const Atelier& atelier, QWidget* parent);
    void presente();  // for the listing that is shown now

  protected:
    void closeEvent(QCloseEvent* evenement) override;
    void reject() override;

  private:
    [[nodiscard]] QLayout* quoi();
    [[nodiscard]] QLayout* enQuoi();
    [[nodiscard]] QLayout* champs();
    [[nodiscard]] QLayout* ou();
    [[nodiscard]] QLayout* pied();
    void proposeLesChamps();
    void choisisLeDossier();  // where the last export went, else the user's documents
    void retiensLeDossier(const std::string& chemin);
    [[nodiscard]] Sortie sortie() const;
    [[nodiscard]] app::Etendue etendue() const;
    void suisLaSortie();
    void suisLeTravail();
    void noteLesChamps();
    [[nodiscard]] exportation::Champs champsCoches() const;
    void parcourt();
    [[nodiscard]] std::string cheminVoulu() const;
    [[nodiscard]] bool peutEcrire(const std::string& chemin);
    void exporte();
    void exporteVers(const std::string& chemin);
    void imprime();
    void apercu();
    [[nodiscard]] CatalogueSurPapier::Sujet sujet(const app::Contexte& c,
                                                  const exportation::FilmsAExporter& films) const;
    [[nodiscard]] exportation::Bilan dessine(const app::Contexte& c, app::FilmsChoisis& choix,
                                             QPagedPaintDevice& papier, int resolution, int pagesAuPlus) const;
    [[nodiscard]] bool surImprimante(QPrinter& imprimante, int pagesAuPlus);

    const Atelier m_atelier;
    std::array<QRadioButton*, 3> m_etendues{};
    std::array<QRadioButton*, kSorties> m_sorties{};
    std::array<exportation::Champs, kSorties> m_champsDe;
    QListWidget* m_champs;
    QComboBox* m_miseEnPage;
    QWidget* m_cadrePapier;
    QWidget* m_cadreOu;
    Etiquette* m_explication;
    QLineEdit* m_chemin;
    QProgressBar* m_progression;
    QPushButton* m_arreter;
    QPushButton* m_apercu;
    QPushButton* m_fermer;
    BoutonAccent* m_exporter;
    QWidget* m_contenu;
    std::string m_remplacable;  // the file that the user agreed to replace when he chose it
    QString m_dossier;          // where he chose last
    Sortie m_montree = Sortie::Tableau;
    bool m_auTravail = false;
};

void ouvreExport(const Atelier& atelier, QWidget* widget);

}  // namespace ui
