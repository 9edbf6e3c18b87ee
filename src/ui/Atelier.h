#pragma once

#include "app/Session.h"
#include "ui/Commande.h"
#include "ui/Liaison.h"

#include <QAbstractButton>
#include <QLineEdit>

namespace ui {

class EcranQt;
class ImagesQt;

// What a panel is built with. Everything outlives the panels.
struct Atelier {
    app::Session& session;
    Liaison& liaison;
    Commande& commande;
    ImagesQt& images;
    EcranQt& ecran;

    [[nodiscard]] app::Etats& etats() const { return session.etats; }

    // A click of the user on the button runs that command of the session.
    void auClic(QAbstractButton* bouton, void (app::Session::*procedure)()) const {
        QObject::connect(bouton, &QAbstractButton::clicked, &commande,
                         [s = &session, c = &commande, procedure] { c->execute([=] { (s->*procedure)(); }); });
    }
    void auClic(QAbstractButton* bouton, void (app::Session::*procedure)(int), int indice) const {
        QObject::connect(
            bouton, &QAbstractButton::clicked, &commande,
            [s = &session, c = &commande, procedure, indice] { c->execute([=] { (s->*procedure)(indice); }); });
    }
    // The same for a text that the user types.
    void aLaFrappe(QLineEdit* zone, void (app::Session::*procedure)(int), int indice) const {
        QObject::connect(zone, &QLineEdit::textEdited, &commande, [s = &session, c = &commande, procedure, indice] {
            c->execute([=] { (s->*procedure)(indice); });
        });
    }
};

}  // namespace ui
