#include "ui/MenusArbre.h"

#include <QMenu>

namespace ui {

namespace {

struct Entree {
    const char* nom;
    QString texte;
    void (app::Session::*procedure)();  // none: greyed until its command exists
};

QMenu* menu(const Atelier& atelier, QWidget* fenetre, const char* nom, std::initializer_list<Entree> entrees) {
    auto* resultat = new QMenu(fenetre);
    resultat->setObjectName(QLatin1String(nom));
    for (const Entree& entree : entrees) {
        QAction* action = resultat->addAction(entree.texte);
        action->setObjectName(QLatin1String(entree.nom));
        action->setEnabled(entree.procedure != nullptr);
        QObject::connect(action, &QAction::triggered, &atelier.commande,
                         [s = &atelier.session, c = &atelier.commande, procedure = entree.procedure] {
                             c->execute([=] { (s->*procedure)(); });
                         });
    }
    return resultat;
}

}  // namespace

MenusArbre::MenusArbre(const Atelier& atelier, QWidget* fenetre)
    : m_film(menu(
          atelier, fenetre, "MenuClicDroitFilm",
          {{"ModifieFilm", QWidget::tr("&Modifier le film…\tF2"), &app::Session::ModifieFilm_Click},
           {"SupprFilm", QWidget::tr("&Supprimer le film…\tSuppr"), &app::Session::SupprFilm_Click},
           {"GenereFichierTxt", QWidget::tr("&Générer un fichier texte…"), &app::Session::GenereFichierTxt_Click}})),
      m_support(menu(
          atelier, fenetre, "MenuClicDroitSupport",
          {{"RenommeSupportFilms", QWidget::tr("&Renommer le support…"), &app::Session::RenommeSupportFilms_Click}})),
      m_genre(menu(
          atelier, fenetre, "MenuClicDroitGenre",
          {{"RenommerGenreFilms", QWidget::tr("&Renommer le genre…"), &app::Session::RenommerGenreFilms_Click}})) {}

void MenusArbre::montre(app::MenuContextuel demande, const QPoint& endroit) {
    switch (demande) {
        case app::MenuContextuel::MenuClicDroitFilm:
            m_film->popup(endroit);
            break;
        case app::MenuContextuel::MenuClicDroitSupport:
            m_support->popup(endroit);
            break;
        case app::MenuContextuel::MenuClicDroitGenre:
            m_genre->popup(endroit);
            break;
        case app::MenuContextuel::Aucun:
            break;
    }
}

}  // namespace ui
