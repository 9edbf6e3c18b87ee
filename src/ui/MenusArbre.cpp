#include "ui/MenusArbre.h"

#include <QMenu>

namespace ui {

namespace {

QMenu* menu(QWidget* fenetre, const char* nom, std::initializer_list<std::pair<const char*, QString>> entrees) {
    auto* resultat = new QMenu(fenetre);
    resultat->setObjectName(QLatin1String(nom));
    for (const auto& [nomEntree, texte] : entrees) {
        QAction* entree = resultat->addAction(texte);
        entree->setObjectName(QLatin1String(nomEntree));
        entree->setEnabled(false);  // until their commands exist
    }
    return resultat;
}

}  // namespace

MenusArbre::MenusArbre(QWidget* fenetre)
    : m_film(menu(fenetre, "MenuClicDroitFilm",
                  {{"ModifieFilm", QWidget::tr("&Modifier le film…")},
                   {"SupprFilm", QWidget::tr("&Supprimer le film…")},
                   {"GenereFichierTxt", QWidget::tr("&Générer un fichier texte…")}})),
      m_support(menu(fenetre, "MenuClicDroitSupport", {{"RenommeSupportFilms", QWidget::tr("&Renommer le support…")}})),
      m_genre(menu(fenetre, "MenuClicDroitGenre", {{"RenommerGenreFilms", QWidget::tr("&Renommer le genre…")}})) {}

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
