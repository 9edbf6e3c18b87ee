#include "ui/MenusArbre.h"

#include "app/RaccourcisClavier.h"
#include "edit/ModifieGroupe.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "export/cmdCreeFichierTxt_Click.h"
#include "ui/FenetreApercu.h"

#include <QMenu>
#include <functional>

namespace ui {

namespace {

struct Entree {
    const char* nom;
    QString texte;
    std::function<void()> reponse;
};

QMenu* menu(const Atelier& atelier, QWidget* fenetre, const char* nom, std::initializer_list<Entree> entrees) {
    auto* resultat = new QMenu(fenetre);
    resultat->setObjectName(QLatin1String(nom));
    for (const Entree& entree : entrees) {
        QAction* action = resultat->addAction(entree.texte);
        action->setObjectName(QLatin1String(entree.nom));
        QObject::connect(action, &QAction::triggered, &atelier.commande, entree.reponse);
    }
    return resultat;
}

}  // namespace

MenusArbre::MenusArbre(const Atelier& atelier, QWidget* fenetre)
    : m_film(menu(
          atelier, fenetre, "MenuClicDroitFilm",
          {{"ModifieFilm", QWidget::tr("&Modifier le film…\tF2"), atelier.reponse(app::cmdModifierTitre_Click)},
           {"SupprFilm", QWidget::tr("&Supprimer le film…\tSuppr"), atelier.reponse(edit::cmdSupprimerTitre_Click)},
           {"GenereFichierTxt", QWidget::tr("&Générer un fichier texte…"),
            atelier.reponse(exportation::cmdCreeFichierTxt_Click)}})),
      m_support(menu(atelier, fenetre, "MenuClicDroitSupport",
                     {{"RenommeSupportFilms", QWidget::tr("&Renommer le support…"),
                       atelier.reponse(edit::RenommeSupportFilms_Click)},
                      {"ApercuSupport", QWidget::tr("&Aperçu du renommage…"),
                       [atelier, fenetre] { ouvreApercuDuRenommage(atelier, fenetre, true); }}})),
      m_genre(menu(
          atelier, fenetre, "MenuClicDroitGenre",
          {{"RenommerGenreFilms", QWidget::tr("&Renommer le genre…"), atelier.reponse(edit::RenommerGenreFilms_Click)},
           {"ApercuGenre", QWidget::tr("&Aperçu du renommage…"),
            [atelier, fenetre] { ouvreApercuDuRenommage(atelier, fenetre, false); }}})) {}

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
