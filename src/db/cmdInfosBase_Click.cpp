#include "db/cmdInfosBase_Click.h"

#include "util/Nombres.h"

namespace db {

namespace {

std::string titres(long nombre) {
    return "Il y a " + util::phraseCompte(nombre, "# titre", "# titres");
}

}  // namespace

void cmdInfosBase_Click(const Contexte& c) {
    const auto compte = [&](const char* enonce) { return c.base.base.OpenRecordset(enonce).RecordCount(); };
    const long externes = compte("SELECT titre FROM films where Affiche like 'JPG*' order by titre");
    const long internes = compte("SELECT titre FROM films where Affiche like 'STO*' order by titre");
    c.dialogues.MsgBox(titres(externes) + " ayant un lien sur un fichier externe\n" + titres(internes) +
                           " ayant un lien sur un fichier interne",
                       dialogues::kInformation);
}

}  // namespace db
