#pragma once

#include "rapatrix/PageWeb.h"
#include "rapatrix/Reglages.h"
#include "rapatrix/Reseau.h"

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <chrono>
#include <deque>
#include <set>

namespace rapatrix {

// One search from its result pages to the sheets in their folder. It asks the site one thing at a time and waits where
// the site wants to be left in peace; a film that cannot be had is told, and the next one follows.
class Collecte final : public QObject {
    Q_OBJECT
  public:
    enum class Issue { Recue, Echouee };

    struct Delais {
        Reseau::Delais reseau;
        std::chrono::milliseconds seconde{1000};  // what a second of a pause lasts
    };

    explicit Collecte(const Reglages& reglages) : Collecte(reglages, Delais{}) {}
    Collecte(const Reglages& reglages, const Delais& delais);

    void cherche();                              // the result page and those that follow
    void telecharge(const QStringList& fiches);  // addresses of films' pages, in that order
    void arrete();                               // whole sheets stay, nothing else
    [[nodiscard]] bool occupee() const { return m_enCours; }

  signals:
    void trouvees(const std::vector<Lien>& fiches);  // with each result page, only new ones
    void rechercheFinie(const QString& probleme);    // "" when all went well
    void ficheCommencee(const QString& adresse);
    void ficheFinie(const QString& adresse, Issue issue, const QString& probleme);
    void attend(int secondes, const QString& pourquoi);  // each second, 0 when the wait is over
    void telechargementFini(const QString& probleme);    // "" also when single films failed

  private:
    using Suite = std::function<void(const Reponse&)>;
    void demande(const QUrl& adresse, qint64 limite, const Suite& suite, int essais);
    void patiente(int secondes, const QString& pourquoi, std::function<void()> suite);
    void page(const QUrl& adresse);
    void resultat(const Reponse& reponse);
    void ficheSuivante();
    void pageFiche(const Reponse& reponse);
    void archive(const Reponse& reponse);
    void range(const QByteArray& octets);
    void deposee(bool faite);
    void ficheFaite(Issue issue, const QString& probleme = {});
    void finit(void (Collecte::*signal)(const QString&), const QString& probleme);

    Reglages m_reglages;
    Delais m_delais;
    Reseau m_reseau;
    QTimer m_minuterie;
    int m_reste = 0;  // seconds to wait
    std::function<void()> m_apresAttente;
    QString m_pourquoi;
    bool m_enCours = false;
    std::deque<std::string> m_pages;  // result pages to come
    std::set<std::string> m_pagesVues, m_fichesVues;
    std::deque<QString> m_fiches;  // films to come, the present one first
    int m_depuisPause = 0;
    int m_echecsReseau = 0;  // in a row
};

}  // namespace rapatrix
