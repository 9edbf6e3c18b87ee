#include "app/Demarrage.h"

#include "app/APropos.h"
#include "app/TextesAide.h"
#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/FinDuProgramme.h"
#include "util/Texte.h"

namespace app {

namespace {

constexpr const char* kZones[] = {"Mes films",        "Tous les films",     "Mes films non prêtés",
                                  "Mes films prêtés", "Mes films réservés", "Films non possédés"};
constexpr const char* kTris[] = {"Tri par titre - 1",   "Tri par titre - 2 ", "Tri par année",
                                 "Tri par réalisateur", "Tri par genre",      "Tri par origine",
                                 "Tri par durée",       "Tri par notation",   "Tri par support"};

const std::string kDossierInutilisable =
    "Le nom du répertoire d'Ambrelis n'est pas écrit en UTF-8 : le programme ne peut pas y travailler. Renommez-le, "
    "puis "
    "recommencez.\n";

template <typename Textes>
void remplit(ecran::Liste& liste, const Textes& textes) {
    liste.Clear();
    for (const char* texte : textes)
        liste.AddItem(texte);
}

}  // namespace

void Demarrage::execute() {
    prendsInstance();
    verifieDossier();
    m_etats.menu = MenuContextuel::Aucun;
    verifieModele();
    litReglages();
    m_etats.fonctions.Label13.Caption = texteVersion();
    ouvreLaBase();
    remplit(m_etats.liste.ChoixZone, kZones);
    remplit(m_etats.liste.ChoixTri, kTris);
    choisitTriEtZone();
    litExtensions();
    metTextesAide(m_etats.fonctions);
    poursuit([this] { m_suites.rafraichissement.AfficheNbTitres(); });
}

void Demarrage::acheve() {
    poursuit([this] { m_suites.rafraichissement.RaffraichitBoitesDeroulantes(); });
}

void Demarrage::prendsInstance() {
    if (!m_instance.prends(m_chemins.dossier)) throw systeme::FinDuProgramme{};
}

void Demarrage::verifieDossier() {
    if (!util::estUtf8(m_chemins.dossier)) refuse(kDossierInutilisable + m_chemins.dossier);
    fichiers::assureDossierPrive(m_chemins.dossierTmp);
    const std::string essai = m_chemins.dossierTmp + "/tmp.tmp";
    if (!fichiers::ecrit(essai, "")) refuse("Le répertoire d'Ambrelis doit être en lecture-écriture");
    fichiers::supprime(essai);
}

void Demarrage::verifieModele() {
    if (!fichiers::existe(m_chemins.modele)) refuse("Le fichier " + m_chemins.modele + " n'existe pas.");
}

void Demarrage::litReglages() {
    if (!fichiers::existe(m_chemins.reglages)) fichiers::ecrit(m_chemins.reglages, "");
    const std::optional<Reglages> lus = chargeReglages(m_chemins.reglages, m_chemins.dossier);
    m_reglagesLus = lus.has_value();
    if (lus)
        applique(*lus);
    else
        m_dialogues.MsgBox("Les réglages n'ont pas pu être lus (" + m_chemins.reglages + ").", dialogues::kExclamation);
    activeStockage();
}

void Demarrage::applique(const Reglages& reglages) {
    ecran::choisit(m_etats.stockage.Option3, static_cast<std::size_t>(reglages.stockage));
    m_etats.stockage.Text4.Text = reglages.dossierImages;
    m_etats.frmPrincipal.Width = reglages.largeur;
    m_etats.frmPrincipal.Height = reglages.hauteur;
    m_triEnregistre = reglages.tri;
    m_baseNommee = !reglages.base.empty();
    if (m_baseNommee) m_chemins.base = reglages.base;
    m_etats.fonctions.chkLancerConnexion.Value = reglages.lancerConnexion ? 1 : 0;
    m_etats.liste.AffStats.Value = reglages.statistiques ? 1 : 0;
}

// A folder of posters is made only where posters go to one.
void Demarrage::activeStockage() {
    if (!m_etats.stockage.dansLaBase()) return m_suites.option3();
    m_etats.stockage.Text4.Enabled = false;
    m_etats.stockage.cmdParcourir.Enabled = false;
}

// Where none opens, the program ends.
void Demarrage::ouvreLaBase() {
    try {
        ouvreCelleDesReglages();
        ditLaquelleEstOuverte();
    } catch (const systeme::FinDuProgramme&) {
        if (!m_suites.cmdChargeOuvreBase.ouvreUneAutre()) throw;
    }
}

// A Jet base that was not converted fails to open.
void Demarrage::ouvreCelleDesReglages() {
    m_baseCreee = m_suites.ouvertureBase.assureLeFichier();
    std::optional<std::string> conversion;
    if (db::OuvertureJet::estJet(m_chemins.base)) conversion = m_suites.ouvertureJet(m_chemins.base);
    m_suites.ouvertureBase();
    if (conversion) m_dialogues.MsgBox(*conversion, dialogues::kInformation);
}

// An empty collection in the place of the user's own is never opened without a word.
void Demarrage::ditLaquelleEstOuverte() {
    if (!m_chemins.baseAbsente.empty())
        m_suites.baseAbsente.annonce();
    else if (m_baseCreee && m_baseNommee)
        m_suites.avis.montre("La base " + m_chemins.base + " n'existait plus : une base vide a été créée à sa place.");
}

// The sort first, then the zone; each selection raises its change event. Without a zone the first one lists nothing.
void Demarrage::choisitTriEtZone() {
    ecran::Liste& tri = m_etats.liste.ChoixTri;
    tri.selectionne(m_triEnregistre < tri.ListCount() ? m_triEnregistre : 0);
    poursuit([this] { m_suites.choixTri.Click(); });
    m_etats.liste.ChoixZone.selectionne(browse::kZoneMesFilms);
    poursuit([this] { m_suites.choixZone.Click(); });
}

void Demarrage::litExtensions() {
    const std::string chemin = m_chemins.dansDossier(kFichierExtensions);
    const auto lignes = fichiers::litLignes(chemin, 2 * TableExtensions::kLignesLues);
    if (!lignes) refuse("Le fichier 'Extensions.txt' est absent.");
    auto& [extensions, programmes] = m_etats.fonctions.Combo6;
    extensions.Clear();
    const std::size_t nombre = app::litExtensions(*lignes, m_extensions);
    for (std::size_t i = 0; i < nombre; ++i)
        extensions.AddItem(m_extensions.lignes[i][0]);
    programmes.AddItem(kLogicielParDefaut);
    programmes.selectionne(programmes.ListCount() - 1);
    if (nombre > 0) extensions.selectionne(0);
}

void Demarrage::poursuit(const std::function<void()>& etape) {
    try {
        etape();
    } catch (const db::RequeteEchouee&) {
    } catch (const dao::ErreurDao& erreur) {
        m_dialogues.MsgBox("Erreur " + std::to_string(erreur.numero) + " : " + erreur.description);
    }
}

void Demarrage::refuse(const std::string& message) {
    m_dialogues.MsgBox(message, dialogues::kCritique);
    throw systeme::FinDuProgramme{};
}

}  // namespace app
