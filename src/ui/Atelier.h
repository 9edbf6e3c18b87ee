#pragma once

#include "app/Session.h"
#include "ui/Commande.h"
#include "ui/Liaison.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <type_traits>

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

    // Runs, in answer to a gesture of the user's, a command of any room or a procedure of the session.
    template <typename Procedure, typename... Arguments>
    Commande::Issue execute(Procedure procedure, Arguments... arguments) const {
        return commande.execute([&] {
            if constexpr (std::is_member_function_pointer_v<Procedure>)
                (session.*procedure)(arguments...);
            else
                session.execute(procedure, arguments...);
        });
    }
    // What runs it when a signal is raised, whatever the signal says.
    template <typename Procedure, typename... Arguments>
    [[nodiscard]] auto reponse(Procedure procedure, Arguments... arguments) const {
        return [atelier = *this, procedure, arguments...] { atelier.execute(procedure, arguments...); };
    }
    // A click of the user on the button.
    template <typename Procedure, typename... Arguments>
    void auClic(QAbstractButton* bouton, Procedure procedure, Arguments... arguments) const {
        QObject::connect(bouton, &QAbstractButton::clicked, &commande, reponse(procedure, arguments...));
    }
    // A text that the user types.
    template <typename Procedure, typename... Arguments>
    void aLaFrappe(QLineEdit* zone, Procedure procedure, Arguments... arguments) const {
        QObject::connect(zone, &QLineEdit::textEdited, &commande, reponse(procedure, arguments...));
    }
};

}  // namespace ui
