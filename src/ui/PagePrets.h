#pragma once

#include "ui/Interface.h"
#include "ui/ModelePrets.h"
#include "ui/PageCollection.h"

class QPushButton;
class QSpinBox;

namespace ui {

class Etiquette;
class ListeDeroulante;
class TablePrets;

// The loan desk: who has what since when, who waits for what; films come back and go out from here.
class PagePrets final : public PageCollection {
    Q_OBJECT
  public:
    explicit PagePrets(const Atelier& atelier);

  protected:
    void relis(const app::Contexte& c) override;

  private:
    [[nodiscard]] QLayout* entete();
    [[nodiscard]] QLayout* depart();
    [[nodiscard]] QWidget* prets();
    [[nodiscard]] QWidget* reservations();
    void montreLeBilan();
    void suisLeChoix();
    void activeLesBoutons();
    void prete();
    void rend();
    void preteAQuiAttend();
    void copieUnRappel();
    void montreLaFiche(const db::CleFilm& film);

    std::optional<Interface> m_interface;
    ensemble::BureauDesPrets m_bureau;
    Etiquette *m_bilan = nullptr, *m_choix = nullptr, *m_vide = nullptr;
    QSpinBox* m_retard = nullptr;
    ListeDeroulante* m_aQui = nullptr;
    QPushButton *m_preter = nullptr, *m_rendu = nullptr, *m_rappel = nullptr, *m_servir = nullptr;
    TablePrets *m_prets = nullptr, *m_reservations = nullptr;
    QWidget *m_partPrets = nullptr, *m_partReservations = nullptr;
};

}  // namespace ui
