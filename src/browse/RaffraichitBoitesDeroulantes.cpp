#include "edit/RaffraichitBoitesDeroulantes.h"

#include "db/Requete.h"

namespace edit {

void BoitesDeroulantes::RaffraichitBoitesDeroulantes() {
    remplit(m_fiche.Combo7[0], "pret");
    remplit(m_fiche.Combo7[2], "support");
    remplit(m_fiche.Combo7[1], "reserve");
}

void BoitesDeroulantes::remplit(ecran::Liste& liste, const std::string& champ) {
    const std::string enCours = liste.Text;
    liste.Clear();
    dao::Recordset valeurs =
        db::ouvreRequete(m_base.base, "SELECT DISTINCT " + champ + " FROM personnel ORDER BY " + champ + " ASC ;",
                         db::NumeroErreur::RaffraichitBoitesDeroulantes, m_dialogues);
    for (; !valeurs.Eof(); valeurs.MoveNext())
        if (std::string valeur = valeurs.texte(champ); !valeur.empty()) liste.AddItem(std::move(valeur));
    liste.Text = enCours;
}

}  // namespace edit
