#pragma once

#include "platform/ecran/Ecran.h"
#include "platform/systeme/Montre.h"
#include "ui/Liaison.h"

#include <QEventLoop>
#include <QList>
#include <QObject>
#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace ui {

// The screen of long work: shows the state between two items and lets only "Annuler" and the closing of the window
// through. The strip that offers "Annuler" belongs to the window, which follows travailCommence and travailFini.
class EcranQt final : public QObject, public ecran::Ecran {
    Q_OBJECT
  public:
    explicit EcranQt(Liaison& liaison, systeme::Montre montre = std::chrono::steady_clock::now)
        : m_liaison(liaison), m_montre(std::move(montre)) {}

    bool respire() override;
    void rafraichit() override;
    void patiente() override;
    void debutTravail() override;
    void finTravail() override;

    // Whether a command runs: the state is no one else's to show.
    void patientePendant(std::function<bool()> commandeEnCours) { m_commandeEnCours = std::move(commandeEnCours); }

    // The user wants the work to stop. Forgotten when the work ends.
    void demandeArret() { m_arretDemande = true; }
    void arretePourDeBon() { m_finDemandee = true; }                // that work and any other: the program ends
    void laissePasser(QObject* widget) { m_admis.append(widget); }  // it takes input during work, as few others do

    bool eventFilter(QObject* objet, QEvent* evenement) override;

  signals:
    void travailCommence();
    void travailFini();

  private:
    [[nodiscard]] bool vientDeSouffler() const;
    void laisseVivre(QEventLoop::ProcessEventsFlags quoi);
    [[nodiscard]] bool continuer() const { return !m_arretDemande && !m_finDemandee; }

    Liaison& m_liaison;
    std::function<bool()> m_commandeEnCours;
    QList<QObject*> m_admis;
    const systeme::Montre m_montre;
    std::optional<std::chrono::steady_clock::time_point> m_souffle;  // the last one of the work under way
    int m_travaux = 0;                                               // works may lie within one another
    bool m_vit = false;                                              // the window shows the state, or handles events
    bool m_arretDemande = false;
    bool m_finDemandee = false;
};

}  // namespace ui
