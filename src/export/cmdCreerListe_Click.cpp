#include "export/cmdCreerListe_Click.h"

#include "db/Requete.h"
#include "export/CreeFichierRTF.h"
#include "export/DernierExport.h"
#include "export/ListeDesTitres.h"
#include "export/TexteListe.h"
#include "view/LanceFichier.h"

#include <optional>
#include <string>

namespace exportation {

namespace {

constexpr const char* kQuestionRTF =
    "Souhaitez-vous créer un fichier RTF (texte riche) ?\n\nDans le cas contraire, un simple fichier texte sera créé.";
constexpr const char* kQuestionTri =
    "Souhaitez-vous trier les titres par genre ?\n\nDans le cas contraire, un simple tri alphanumérique sera appliqué.";

// Nothing when the user stopped.
std::optional<std::string> texteDeLaListe(const Contexte& c, dao::Recordset& titres, bool parGenre) {
    Avancement avancement(c, titres.RecordCount());
    TexteListe liste(parGenre);
    const auto ajoute = [&](const FilmDeLaListe& film) { liste.ajoute(film); };
    return parcourtLesFilms(titres, avancement, ajoute) ? std::optional(liste.texte()) : std::nullopt;
}

void creeFichierTexte(const Contexte& c, const std::string& clause, bool parGenre) {
    dao::Recordset titres = db::ouvreRequete(c, requeteListe(clause), db::NumeroErreur::cmdCreerListe);
    if (titres.RecordCount() == 0) {
        c.dialogues.MsgBox(kAucunTitre, dialogues::kExclamation);
        return;
    }
    const std::string fichier = demandeFichierListe(c, ".txt");
    if (fichier.empty()) return;
    const auto liste = texteDeLaListe(c, titres, parGenre);
    if (!liste || !ecritExport(c, fichier, *liste)) return;
    c.dialogues.MsgBox("Le fichier texte " + fichier +
                           " a été créé.\nLes séparateurs de champs étant des tabulations, réglez-les avec votre "
                           "traitement de texte.",
                       dialogues::kInformation, kTitreListe);
    view::LanceFichier(c, "\"" + fichier + "\"", false, "open", "", "", "2", false);
}

}  // namespace

void cmdCreerListe_Click(const Contexte& c) {
    const auto demande = [&](const char* question) { return c.dialogues.MsgBox(question, dialogues::kQuestion); };
    const bool enRTF = demande(kQuestionRTF) == dialogues::kOui;
    const int reponseTri = demande(kQuestionTri);
    const bool parGenre = reponseTri == dialogues::kOui;
    const std::string clause = parGenre ? "genre asc, titre asc" : "titre2 asc";
    if (enRTF)
        CreeFichierRTF(c, clause, reponseTri);
    else
        creeFichierTexte(c, clause, parGenre);
}

}  // namespace exportation
