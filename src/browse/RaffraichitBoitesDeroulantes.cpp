#include "browse/RaffraichitBoitesDeroulantes.h"

#include "db/Requete.h"

#include <string>
#include <utility>
#include <vector>

namespace browse {

namespace {

void remplit(const Contexte& c, ecran::Liste& liste, const std::string& champ) {
    std::vector<std::string> textes;
    dao::Recordset valeurs =
        db::ouvreRequete(c, "SELECT DISTINCT " + champ + " FROM personnel ORDER BY " + champ + " ASC ;",
                         db::NumeroErreur::RaffraichitBoitesDeroulantes);
    for (; !valeurs.Eof(); valeurs.MoveNext())
        if (std::string valeur = valeurs.texte(champ); !valeur.empty()) textes.push_back(std::move(valeur));
    liste.Items = std::move(textes);
    liste.ListIndex = -1;
}

}  // namespace

void RaffraichitBoitesDeroulantes(const Contexte& c) {
    remplit(c, c.fiche.Combo7[0], "pret");
    remplit(c, c.fiche.Combo7[2], "support");
    remplit(c, c.fiche.Combo7[1], "reserve");
}

}  // namespace browse
