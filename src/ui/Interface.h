#pragma once

#include <QSettings>
#include <QString>
#include <algorithm>

namespace ui {

// What the window remembers of its own from one run to the next, in "Interface.ini" of the program folder. Nothing is lost
// with it: a value that is not there, or makes no sense, is the one of the first start.
class Interface final {
  public:
    explicit Interface(const std::string& dossier)  // which ends with a separator
        : m_reglages(QString::fromStdString(dossier) + QStringLiteral("Interface.ini"), QSettings::IniFormat) {}

    [[nodiscard]] int nombre(const QString& cle, int defaut, int auMoins, int auPlus) const {
        bool lisible = false;
        const int valeur = m_reglages.value(cle, defaut).toInt(&lisible);
        return lisible ? std::clamp(valeur, auMoins, auPlus) : defaut;
    }
    void note(const QString& cle, int valeur) { m_reglages.setValue(cle, valeur); }
    [[nodiscard]] QString texte(const QString& cle) const { return m_reglages.value(cle).toString(); }
    void note(const QString& cle, const QString& valeur) { m_reglages.setValue(cle, valeur); }

  private:
    QSettings m_reglages;
};

}  // namespace ui
