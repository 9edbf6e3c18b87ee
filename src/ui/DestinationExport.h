#pragma once

#include "ui/Atelier.h"
#include "ui/SortieExport.h"

#include <QWidget>
#include <optional>
#include <string>

class QLineEdit;

namespace ui {

// Where an export goes: a name where the last one went, until the user types or chooses another path.
class DestinationExport final : public QWidget {
    Q_OBJECT
  public:
    explicit DestinationExport(const Atelier& atelier);

    // What is shown is proposed again.
    void oublieLaSaisie();
    // `nom`, without an extension, until the user says otherwise; then his own, with the extension of the output.
    void propose(Sortie sortie, const QString& nom);
    // The path, whole, where it can be written and the user agrees to what that replaces. What prevents it was told.
    [[nodiscard]] std::optional<std::string> cheminAccorde();
    void retiens(const std::string& chemin);  // for the next export, and the next run

  private:
    void choisisLeDossier();  // where the last export went, else the user's documents
    void parcourt();
    [[nodiscard]] std::string cheminVoulu() const;
    [[nodiscard]] std::string refus(const std::string& chemin) const;

    const Atelier m_atelier;
    QLineEdit* m_chemin;
    Sortie m_sortie = Sortie::Tableau;
    QString m_dossier;          // where he chose last
    std::string m_remplacable;  // the file that the user agreed to replace when he chose it
};

}  // namespace ui
