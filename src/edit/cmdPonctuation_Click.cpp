#include "edit/cmdPonctuation_Click.h"

#include "browse/AffichageApresModification.h"
#include "db/Sauvegardes.h"
#include "edit/TravailParLots.h"
#include "platform/dao/Comparaison.h"
#include "util/Capitales.h"
#include "util/Nombres.h"
#include "util/Sql.h"

#include <cstdint>

namespace edit {

namespace {

constexpr const char* kTitresDesFilms = "SELECT titre FROM films ORDER BY titre";
constexpr const char* kTitresPossedes = "SELECT titre2 FROM Personnel ORDER BY titre2";

// The current record gets its corrected title. True when that changed it.
bool corrige(dao::Recordset& lignes, const char* champ, const std::string& corrigee) {
    if (lignes.texte(champ) == corrigee) return false;
    lignes.Edit();
    lignes.assigne(champ, corrigee);
    lignes.Update();
    return true;
}

long corrigeToutes(dao::Recordset lignes, const char* champ) {
    long corrigees = 0;
    for (; !lignes.Eof(); lignes.MoveNext())
        if (corrige(lignes, champ, util::metEnCapitales(lignes.texte(champ)))) ++corrigees;
    return corrigees;
}

// Every film and every holding of a title; answers how many films changed.
long corrigeEnsemble(TravailParLots& travail, const std::string& titre) {
    const std::string texte = util::entreGuillemets(titre);
    corrigeToutes(travail.ouvre("SELECT titre2 FROM Personnel WHERE titre2 =" + texte), "titre2");
    return corrigeToutes(travail.ouvre("SELECT titre FROM films WHERE titre =" + texte), "titre");
}

}  // namespace

bool sauvegardeAvantLesTitres(const Contexte& c) {
    const std::int64_t lignes = c.base.films.RecordCount() + c.base.personnel.RecordCount();
    return db::sauvegardeAvant(c, db::Avant::Titres, lignes * db::kOctetsParLigne);
}

long corrigeTousLesTitres(const Contexte& c) {
    constexpr auto kNumero = db::NumeroErreur::cmdPonctuation;
    dao::Recordset films = db::ouvreRequete(c, kTitresDesFilms, kNumero);
    dao::Recordset possedes = db::ouvreRequete(c, kTitresPossedes, kNumero);
    TravailParLots travail(c, kNumero, films.RecordCount() + possedes.RecordCount());
    const bool tous = travail.execute(films.RecordCount(), [&](long rang) -> TravailParLots::Pas {
        if (rang > 0) films.MoveNext();
        const std::string titre = films.texte("titre"), corrigee = util::metEnCapitales(titre);
        if (titre != corrigee && !dao::egalJet(titre, corrigee)) return {corrigeEnsemble(travail, titre)};
        return {corrige(films, "titre", corrigee) ? 1 : 0};
    });
    if (tous)
        travail.execute(possedes.RecordCount(), [&](long rang) -> TravailParLots::Pas {
            if (rang > 0) possedes.MoveNext();
            corrige(possedes, "titre2", util::metEnCapitales(possedes.texte("titre2")));
            return {};
        });
    travail.termine();
    const long modifies = travail.faits();
    c.annulations.nomme("correction de " + util::phraseCompte(modifies, "# titre", "# titres"),
                        util::phraseCompte(modifies, "# titre corrigé.", "# titres corrigés."));
    return modifies;
}

namespace {

// The user stays where the button is.
void rafraichit(const Contexte& c) {
    const browse::EtatPanneaux panneaux = c.panneaux;
    browse::AffichageApresModification(c);
    c.panneaux = panneaux;
}

}  // namespace

void cmdPonctuation_Click(const Contexte& c) {
    if (c.dialogues.MsgBox("Êtes-vous sûr(e) de vouloir corriger tous les titres de la base ?", dialogues::kQuestion) !=
        dialogues::kOui)
        return;
    if (!sauvegardeAvantLesTitres(c)) return;
    const long modifies = corrigeTousLesTitres(c);
    if (modifies > 0) rafraichit(c);
    c.dialogues.MsgBox(rapportTitresModifies(modifies), dialogues::kInformation);
}

std::string rapportTitresModifies(long nombre) {
    if (nombre == 0) return "Aucun titre modifié.";
    if (nombre == 1) return "Un titre modifié.";
    return std::to_string(nombre) + " titres modifiés.";
}

}  // namespace edit
