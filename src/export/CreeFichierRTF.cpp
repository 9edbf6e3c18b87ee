#include "export/CreeFichierRTF.h"

#include "db/Requete.h"
#include "export/LecteurDeFilms.h"
#include "export/ListeDesTitres.h"
#include "export/MiseEnForme.h"
#include "platform/fichiers/Fichiers.h"
#include "view/LanceFichier.h"

#include <utility>

namespace exportation {

namespace {

// The captions are the program's name again however the list is left.
class NomEmprunte {
  public:
    explicit NomEmprunte(EtatNom& nom) : m_nom(nom) { montre("0", "%"); }
    NomEmprunte(const NomEmprunte&) = delete;
    NomEmprunte& operator=(const NomEmprunte&) = delete;
    ~NomEmprunte() { m_nom.montreLeNom(); }

    void montre(const std::string& debut, const std::string& fin) {
        m_nom.lblNom1.Caption = debut;
        m_nom.lblNom2.Caption = fin;
    }

  private:
    EtatNom& m_nom;
};

}  // namespace

std::string CreeFichierRTF::operator()(const std::string& clauseOrderBy, int reponseTri) {
    std::string fichier = demandeFichierListe(m_dialogues, m_chemins, ".rtf");
    if (fichier.empty()) return {};
    dao::Recordset titres =
        db::ouvreRequete(m_base.base, requeteListe(clauseOrderBy), db::NumeroErreur::cmdCreerListe, m_dialogues);
    if (titres.Eof()) {
        m_dialogues.MsgBox(kAucunTitre, dialogues::kExclamation);
        return {};
    }
    NomEmprunte nom(m_nom);
    if (!ecrit(fichier, titres, reponseTri == dialogues::kOui)) return {};
    m_dialogues.MsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    m_lance("\"" + fichier + "\"", false, "open", "", "", "2", false);
    return fichier;
}

// The text stays in memory: what an older version left of it goes.
bool CreeFichierRTF::ecrit(const std::string& fichier, dao::Recordset& titres, bool parGenre) {
    const ecran::Travail travail(m_ecran);
    Avancement avancement(m_progression, titres.RecordCount());
    fichiers::supprime(m_chemins.dansDossier("tmp.rtf"));
    auto texteBalise = rassemble(titres, parGenre, avancement);
    if (!texteBalise) return false;
    const auto texte = metEnForme(std::move(*texteBalise));
    return texte && m_dernierExport.ecrit(fichier, texteriche::enRtf(*texte));
}

std::optional<std::string> CreeFichierRTF::rassemble(dao::Recordset& titres, bool parGenre, Avancement& avancement) {
    const long total = titres.RecordCount();
    TexteBalise texte(parGenre);
    LecteurDeFilms lecteur(titres);
    long montre = 0;
    for (long faits = 1; !titres.Eof(); ++faits, titres.MoveNext()) {
        if (const FilmDeLaListe* film = lecteur.lit()) texte.ajoute(*film);
        const long pourcentage = faits * 100 / total;
        if (pourcentage != montre) m_nom.lblNom1.Caption = std::to_string(pourcentage);
        montre = pourcentage;
        avancement.avance();
        if (!m_ecran.respire()) return std::nullopt;
    }
    return std::move(texte).texte();
}

std::optional<texteriche::TexteRiche> CreeFichierRTF::metEnForme(std::string texteBalise) {
    MiseEnForme miseEnForme(std::move(texteBalise));
    m_nom.lblNom1.Caption = "Formatage";
    for (const Balise& balise : kBalises) {
        m_nom.lblNom2.Caption = balise.nom;
        m_ecran.rafraichit();
        if (!m_ecran.respire()) return std::nullopt;
        miseEnForme.applique(balise);
    }
    return std::move(miseEnForme).resultat();
}

}  // namespace exportation
