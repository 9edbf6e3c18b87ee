#include "ui/Lecteur.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace ui {

namespace {

// Lies in the widget that it speaks of.
class PourLecteur final : public QObject {
  public:
    PourLecteur(QWidget* widget, Lecture voulue) : QObject(widget), lecture(std::move(voulue)) {}
    Lecture lecture;
};

PourLecteur* pourLecteur(const QObject* widget) {
    for (QObject* enfant : widget->children())
        if (auto* trouve = dynamic_cast<PourLecteur*>(enfant)) return trouve;
    return nullptr;
}

QString texteVisible(const QWidget& widget) {
    if (const auto* etiquette = qobject_cast<const QLabel*>(&widget)) return etiquette->text();
    const auto* bouton = qobject_cast<const QAbstractButton*>(&widget);
    if (!bouton) return {};
    QString texte = bouton->text();
    return texte.replace(QLatin1String("&&"), QString(QChar(1)))
        .remove(QLatin1Char('&'))
        .replace(QChar(1), QLatin1Char('&'));
}

class WidgetLu final : public QAccessibleWidget {
  public:
    WidgetLu(QWidget* widget, const PourLecteur& dit) : QAccessibleWidget(widget), m_dit(dit) {}

    QAccessible::Role role() const override { return m_dit.lecture.role; }
    QString text(QAccessible::Text quoi) const override {
        if (quoi == QAccessible::Name && m_dit.lecture.nom) return m_dit.lecture.nom();
        QString texte = QAccessibleWidget::text(quoi);
        return quoi == QAccessible::Name && texte.isEmpty() ? texteVisible(*widget()) : texte;
    }
    QAccessible::State state() const override {
        QAccessible::State etat = QAccessibleWidget::state();
        if (m_dit.lecture.choisie) {
            etat.selectable = true;
            etat.selected = m_dit.lecture.choisie();
        }
        if (m_dit.lecture.enfoncee) {
            etat.checkable = true;
            etat.checked = m_dit.lecture.enfoncee();
        }
        return etat;
    }
    QStringList actionNames() const override {
        QStringList noms = QAccessibleWidget::actionNames();
        if (m_dit.lecture.presse && widget()->isEnabled()) noms.prepend(pressAction());
        return noms;
    }
    void doAction(const QString& nom) override {
        if (nom == pressAction() && m_dit.lecture.presse && widget()->isEnabled())
            m_dit.lecture.presse();
        else
            QAccessibleWidget::doAction(nom);
    }

  private:
    const PourLecteur& m_dit;  // goes with the widget, as this does
};

QAccessibleInterface* fabrique(const QString&, QObject* objet) {
    auto* widget = qobject_cast<QWidget*>(objet);
    const PourLecteur* dit = widget ? pourLecteur(widget) : nullptr;
    return dit ? new WidgetLu(widget, *dit) : nullptr;
}

void envoie(QWidget* widget, QAccessible::Event quoi) {
    QAccessibleEvent evenement(widget, quoi);
    QAccessible::updateAccessibility(&evenement);
}

// The keys have one stop in it, at the page that shows, and the arrows go from page to page; readers are told which shows.
class ListeDOnglets final : public QWidget {
  public:
    explicit ListeDOnglets(QLayout* contenu) {
        setLayout(contenu);
        m_onglets = findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly);
        for (QAbstractButton* onglet : m_onglets) {
            onglet->installEventFilter(this);
            seLit(onglet, {.role = QAccessible::PageTab,
                           .presse = [onglet] { onglet->click(); },
                           .choisie = [onglet] { return onglet->font().bold(); }});
        }
    }
    // The page beside the one that shows, the first beside the last.
    void tourne(qsizetype pas) {
        const qsizetype voulu = (std::max<qsizetype>(choisi(), 0) + pas + m_onglets.size()) % m_onglets.size();
        m_onglets[voulu]->setFocus(Qt::TabFocusReason);
        m_onglets[voulu]->click();
    }

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (evenement->type() == QEvent::FontChange) suis();
        if (evenement->type() != QEvent::KeyPress) return QWidget::eventFilter(objet, evenement);
        const int touche = static_cast<QKeyEvent*>(evenement)->key();
        if (touche != Qt::Key_Left && touche != Qt::Key_Right) return false;
        tourne(touche == Qt::Key_Left ? -1 : 1);
        return true;
    }

  private:
    [[nodiscard]] qsizetype choisi() const {
        const auto gras = std::ranges::find_if(m_onglets, [](const auto* onglet) { return onglet->font().bold(); });
        return gras == m_onglets.end() ? -1 : gras - m_onglets.begin();
    }
    void suis() {
        const qsizetype maintenant = choisi();
        if (maintenant == m_choisi) return;
        m_choisi = maintenant;
        for (qsizetype rang = 0; rang < m_onglets.size(); ++rang) {
            m_onglets[rang]->setFocusPolicy(m_choisi < 0 || rang == m_choisi ? Qt::StrongFocus : Qt::ClickFocus);
            envoie(m_onglets[rang], rang == m_choisi ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
        }
    }

    QList<QAbstractButton*> m_onglets;
    qsizetype m_choisi = -1;
};

// It takes no room and shows nothing.
class Annonce final : public QLabel {
  public:
    explicit Annonce(QWidget* fenetre) : QLabel(fenetre) {
        setObjectName(QStringLiteral("lblAnnonce"));
        setTextFormat(Qt::PlainText);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(0, 0, 1, 1);
        seLit(this, {.role = QAccessible::Notification});
    }

  protected:
    void paintEvent(QPaintEvent*) override {}
};

}  // namespace

void seLit(QWidget* widget, Lecture lecture) {
    static const bool installee = (QAccessible::installFactory(fabrique), true);
    Q_UNUSED(installee);
    if (PourLecteur* deja = pourLecteur(widget))
        deja->lecture = std::move(lecture);
    else
        new PourLecteur(widget, std::move(lecture));
}

void seLitCommeGroupe(QWidget* widget, const QString& nom) {
    seLit(widget, {.role = QAccessible::Grouping});  // before the name, which has the widget looked at
    widget->setAccessibleName(nom);
}

QWidget* listeDOnglets(QLayout* onglets, const QString& nom) {
    auto* liste = new ListeDOnglets(onglets);
    seLit(liste, {.role = QAccessible::PageTabList});
    liste->setAccessibleName(nom);
    return liste;
}

bool tourneLaPage(QWidget* fenetre, int pas) {
    for (QWidget* widget : fenetre->findChildren<QWidget*>())
        if (auto* onglets = dynamic_cast<ListeDOnglets*>(widget); onglets && onglets->isVisible()) {
            onglets->tourne(pas);
            return true;
        }
    return false;
}

void annonce(QWidget* fenetre, const QString& texte) {
    if (texte.isEmpty()) return;
    auto* etiquette = fenetre->findChild<QLabel*>(QStringLiteral("lblAnnonce"), Qt::FindDirectChildrenOnly);
    if (!etiquette) etiquette = new Annonce(fenetre);
    etiquette->hide();
    etiquette->setText(texte);
    etiquette->show();
    envoie(etiquette, QAccessible::Alert);
}

void annonce(const QLabel* etiquette) {
    annonce(etiquette->window(), etiquette->text());
}

void annonceCoche(QWidget* liste) {
    if (!QAccessible::isActive()) return;  // nobody hears it
    QAccessibleInterface* lue = QAccessible::queryAccessibleInterface(liste);
    QAccessibleInterface* rangee = lue ? lue->focusChild() : nullptr;
    if (!rangee) return;
    QAccessible::State change;
    change.checked = true;
    QAccessibleStateChangeEvent evenement(rangee, change);
    QAccessible::updateAccessibility(&evenement);
}

void litDansLOrdre(std::initializer_list<QWidget*> widgets) {
    for (QWidget* widget : widgets)
        widget->raise();
}

}  // namespace ui
