#include "edit/ListesDeSaisie.h"

#include "db/Requete.h"

#include <string>

namespace edit {

namespace {

struct Source {
    const char* enonce;
    const char* champ;
};

// Genre, origin (with its two blanks), production.
constexpr std::array<Source, 3> kSources{
    {{"SELECT DISTINCT genre FROM films where genre<>\"\" ORDER BY Genre ASC ;", "Genre"},
     {"SELECT DISTINCT origine  FROM films where origine<>\"\" ORDER BY origine ASC ;", "origine"},
     {"SELECT DISTINCT production FROM films where production<>\"\" ORDER BY production ASC ;", "production"}}};

}  // namespace

ecran::Liste& ListesDeSaisie::liste(std::size_t rang) {
    if (rang == 0) return m_ajout.Combo2;
    return rang == 1 ? m_ajout.Combo3 : m_ajout.Combo4;
}

void ListesDeSaisie::remplit() {
    for (std::size_t rang = 0; rang < kSources.size(); ++rang)
        relit(rang);
}

void ListesDeSaisie::relit(std::size_t rang) {
    ecran::Liste& choix = liste(rang);
    choix.Clear();
    dao::Recordset valeurs =
        db::ouvreRequete(m_base.base, kSources[rang].enonce, db::NumeroErreur::Command13, m_dialogues);
    for (; !valeurs.Eof(); valeurs.MoveNext())
        choix.AddItem(valeurs.texte(kSources[rang].champ));
}

}  // namespace edit
