#include "export/CreeFichierRTF.h"

#include "db/Requete.h"
#include "export/DernierExport.h"
#include "export/ListeDesTitres.h"
#include "export/MiseEnForme.h"
#include "platform/fichiers/Fichiers.h"
#include "view/LanceFichier.h"

#include <optional>
#include <utility>

namespace exportation {

namespace {

// The captions are the program's name again however the list is left.
class NomEmprunte {
  public:
    explicit NomEmprunte(EtatNom& nom) : m_nom(nom) {
        m_nom.lblNom1.Caption = "0";
        m_nom.lblNom2.Caption = "%";
    }
    NomEmprunte(const NomEmprunte&) = delete;
    NomEmprunte& operator=(const NomEmprunte&) = delete;
    ~NomEmprunte() { m_nom.montreLeNom(); }

  private:
    EtatNom& m_nom;
};

// Nothing when the user stopped.
std::optional<texteriche::TexteRiche> metEnForme(const Contexte& c, std::string texteBalise) {
    const dao::Attente attente = db::attente(c);
    std::optional<MiseEnForme> miseEnForme;
    attente([&] { miseEnForme.emplace(std::move(texteBalise)); });
    c.nom.lblNom1.Caption = "Formatage";
    for (const Balise& balise : kBalises) {
        c.nom.lblNom2.Caption = balise.nom;
        c.ecran.rafraichit();
        if (!c.ecran.respire()) return std::nullopt;
        attente([&] { miseEnForme->applique(balise); });
    }
    return std::move(*miseEnForme).resultat();
}

// False when the user stopped, or when it cannot be written. The text stays in memory: what an older version left of it
// goes.
bool ecrit(const Contexte& c, const std::string& fichier, dao::Recordset& titres, bool parGenre) {
    Avancement avancement(c, titres.RecordCount(), &c.nom.lblNom1);
    fichiers::supprime(c.chemins.dansDossier("tmp.rtf"));
    TexteBalise texteBalise(parGenre);
    if (!parcourtLesFilms(titres, avancement, [&](const FilmDeLaListe& film) { texteBalise.ajoute(film); }))
        return false;
    auto texte = metEnForme(c, std::move(texteBalise).texte());
    if (!texte) return false;
    std::string rtf;
    db::attente(c)([&] {
        rtf = texteriche::enRtf(*texte);
        texte.reset();
    });
    return ecritExport(c, fichier, rtf);
}

}  // namespace

std::string CreeFichierRTF(const Contexte& c, const std::string& clauseOrderBy, int reponseTri) {
    std::string fichier = demandeFichierListe(c, ".rtf");
    if (fichier.empty()) return {};
    dao::Recordset titres = db::ouvreRequete(c, requeteListe(clauseOrderBy), db::NumeroErreur::cmdCreerListe);
    if (titres.Eof()) {
        c.dialogues.MsgBox(kAucunTitre, dialogues::kExclamation);
        return {};
    }
    const NomEmprunte nom(c.nom);
    if (!ecrit(c, fichier, titres, reponseTri == dialogues::kOui)) return {};
    c.dialogues.MsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    view::LanceFichier(c, "\"" + fichier + "\"", false, "open", "", "", "2", false);
    return fichier;
}

}  // namespace exportation
