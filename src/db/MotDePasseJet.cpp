#include "db/MotDePasseJet.h"

#include "platform/jet/LecteurJet.h"

namespace db {

std::optional<std::string> demandeMotDePasse(const std::string& base, dialogues::Dialogues& dialogues) {
    if (jet::accepteMotDePasse(base, "")) return "";
    for (;;) {
        auto saisi =
            dialogues.demandeMotDePasse("La base " + base + " est protégée par un mot de passe. Quel est-il ?");
        if (!saisi || jet::accepteMotDePasse(base, *saisi)) return saisi;
        dialogues.MsgBox("Ce mot de passe n'est pas celui de la base.", dialogues::kExclamation);
    }
}

}  // namespace db
