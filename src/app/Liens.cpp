#include "app/Liens.h"

namespace app {

void ouvreLien(const std::string& adresse, systeme::Documents& documents, dialogues::Dialogues& dialogues) {
    if (!documents.ouvre(adresse))
        dialogues.MsgBox("Le navigateur n'a pas pu être ouvert (" + adresse + ").", dialogues::kExclamation);
}

}  // namespace app
