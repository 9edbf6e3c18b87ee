#include "db/Requete.h"

namespace db {

std::string texteErreurRequete(NumeroErreur numero) {
    return "Erreur (" + std::to_string(static_cast<int>(numero)) + ") : Etablissement de requête";
}

dao::Recordset ouvreRequete(dao::Database& base, const std::string& enonce, NumeroErreur numero,
                            dialogues::Dialogues& dialogues) {
    try {
        return base.OpenRecordset(enonce);
    } catch (const dao::ErreurDao&) {
    }
    dialogues.MsgBox(texteErreurRequete(numero), dialogues::kCritique);
    throw RequeteEchouee{};
}

}  // namespace db
