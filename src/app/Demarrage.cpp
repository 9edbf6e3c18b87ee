#include "app/Demarrage.h"

#include "app/Aide.h"
#include "app/Extensions.h"
#include "app/Ouvertures.h"
#include "app/Sauvegardes.h"
#include "browse/AfficheNbTitres.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "browse/ZonesEtTris.h"
#include "db/DossierImages.h"
#include "db/Option3_Click.h"
#include "db/OuvertureBase.h"
#include "db/OuvertureJet.h"
#include "db/Requete.h"
#include "db/Sauvegardes.h"
#include "db/TravauxInacheves.h"
#include "db/cmdChargeOuvreBase_Click.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Restes.h"
#include "platform/systeme/FinDuProgramme.h"
#include "util/Texte.h"

#include <filesystem>
#include <set>
#include <system_error>

namespace app {

namespace {

const std::string kDossierInutilisable =
    "Le nom du répertoire d'Ambrelis n'est pas écrit en UTF-8 : le programme ne peut pas y travailler. Renommez-le, "
    "puis "
    "recommencez.\n";

template <typename Lignes>
void remplit(ecran::Liste& liste, const Lignes& lignes) {
    liste.Clear();
    for (const auto& ligne : lignes)
        liste.AddItem(std::string(ligne.legende));
}

}  // namespace

void Demarrage::execute() {
    prendsInstance();
    verifieDossier();
    m_c.etats.menu = MenuContextuel::Aucun;
    verifieModele();
    litReglages();
    m_c.etats.fonctions.Label13.Caption = texteVersion();
    ouvreLaBase();
    remplit(m_c.liste.ChoixZone, browse::kZones);
    remplit(m_c.liste.ChoixTri, browse::kTris);
    choisitTriEtZone();
    litExtensions();
    metTextesAide(m_c.etats.fonctions);
    poursuit([this] { browse::AfficheNbTitres(m_c); });
}

void Demarrage::acheve() {
    poursuit([this] { browse::RaffraichitBoitesDeroulantes(m_c); });
    effaceRestes();
}

// From the folders that the program writes to: its own, "Tmp", the images', that of requests, the base's and that of its safety copies.
// Nothing else goes.
void Demarrage::effaceRestes() {
    const db::EtatStockage montre = m_c.stockage;
    const std::string images = db::dossierImages(m_c);
    m_c.stockage = montre;  // the folder stays named as it is
    std::error_code ignoree;
    const auto base =
        std::filesystem::weakly_canonical(m_c.chemins.base, ignoree);  // beside the file, not beside a link
    for (const std::string& dossier : std::set<std::string>{
             m_c.chemins.dossier, m_c.chemins.dossierTmp + "/", images, dossierDesDemandes(m_c.chemins.dossier),
             fichiers::dossierDe(base.string()), db::dossierDesSauvegardes(m_c.chemins.base)})
        fichiers::supprimeRestes(dossier);
    for (const std::string& dossier : {m_c.chemins.dossier, fichiers::dossierDe(base.string())})
        db::effaceTravauxInacheves(dossier);
}

void Demarrage::prendsInstance() {
    if (!m_instance.prends(m_c.chemins.dossier)) throw systeme::FinDuProgramme{};
}

void Demarrage::verifieDossier() {
    if (!util::estUtf8(m_c.chemins.dossier)) refuse(kDossierInutilisable + m_c.chemins.dossier);
    fichiers::assureDossierPrive(m_c.chemins.dossierTmp);
    const std::string essai = m_c.chemins.dossierTmp + "/tmp.tmp";
    if (!fichiers::ecrit(essai, "")) refuse("Le répertoire d'Ambrelis doit être en lecture-écriture");
    fichiers::supprime(essai);
}

void Demarrage::verifieModele() {
    if (!fichiers::existe(m_c.chemins.modele)) refuse("Le fichier " + m_c.chemins.modele + " n'existe pas.");
}

void Demarrage::litReglages() {
    if (!fichiers::existe(m_c.chemins.reglages)) fichiers::ecrit(m_c.chemins.reglages, "");
    const std::optional<Reglages> lus = chargeReglages(m_c.chemins.reglages, m_c.chemins.dossier);
    m_reglagesLus = lus.has_value();
    if (lus)
        applique(*lus);
    else
        m_c.dialogues.MsgBox("Les réglages n'ont pas pu être lus (" + m_c.chemins.reglages + ").",
                             dialogues::kExclamation);
    activeStockage();
}

void Demarrage::applique(const Reglages& reglages) {
    ecran::choisit(m_c.stockage.Option3, static_cast<std::size_t>(reglages.stockage));
    m_c.stockage.Text4.Text = reglages.dossierImages;
    m_c.etats.frmPrincipal.Width = reglages.largeur;
    m_c.etats.frmPrincipal.Height = reglages.hauteur;
    m_triEnregistre = reglages.tri;
    m_baseNommee = !reglages.base.empty();
    if (m_baseNommee) m_c.chemins.base = reglages.base;
    m_c.etats.fonctions.chkLancerConnexion.Value = reglages.lancerConnexion ? 1 : 0;
    m_c.liste.AffStats.Value = reglages.statistiques ? 1 : 0;
}

// A folder of posters is made only where posters go to one.
void Demarrage::activeStockage() {
    if (!m_c.stockage.dansLaBase()) return db::Option3_Click(m_c);
    m_c.stockage.Text4.Enabled = false;
    m_c.stockage.cmdParcourir.Enabled = false;
}

// Where none opens, the program ends.
void Demarrage::ouvreLaBase() {
    try {
        ouvreCelleDesReglages();
        ditLaquelleEstOuverte();
    } catch (const systeme::FinDuProgramme&) {
        const std::string refusee = m_c.chemins.base;
        if (db::ouvreUneAutreBase(m_c)) return annonceSauvegarde(m_c, refusee);
        if (!accepteLaSauvegarde(m_c, refusee)) throw;
        db::reprendLaBase(m_c);
    }
}

// A Jet base that was not converted fails to open.
void Demarrage::ouvreCelleDesReglages() {
    m_baseCreee = db::assureLeFichier(m_c);
    std::optional<std::string> conversion;
    if (db::estJet(m_c.chemins.base)) conversion = db::convertitJet(m_c, m_c.chemins.base);
    db::ouvreLaBase(m_c);
    if (conversion) m_c.dialogues.MsgBox(*conversion, dialogues::kInformation);
}

// An empty collection in the place of the user's own is never opened without a word.
void Demarrage::ditLaquelleEstOuverte() {
    if (!m_c.chemins.baseAbsente.empty())
        m_baseAbsente.annonce();
    else if (m_baseCreee && m_baseNommee)
        annonceBaseRefaite(m_c);
}

// The sort first, then the zone; each selection raises its change event. Without a zone the first one lists nothing.
void Demarrage::choisitTriEtZone() {
    ecran::Liste& tri = m_c.liste.ChoixTri;
    tri.selectionne(m_triEnregistre < tri.ListCount() ? m_triEnregistre : 0);
    poursuit([this] { browse::ChoixTri_Click(m_c); });
    m_c.liste.ChoixZone.selectionne(browse::kZoneMesFilms);
    poursuit([this] { browse::ChoixZone_Click(m_c); });
}

void Demarrage::litExtensions() {
    const std::string chemin = m_c.chemins.dansDossier(kFichierExtensions);
    const auto lignes = fichiers::litLignes(chemin, 2 * TableExtensions::kLignesLues);
    if (!lignes) refuse("Le fichier 'Extensions.txt' est absent.");
    auto& [extensions, programmes] = m_c.etats.fonctions.Combo6;
    extensions.Clear();
    const std::size_t nombre = app::litExtensions(*lignes, m_c.extensions);
    for (std::size_t i = 0; i < nombre; ++i)
        extensions.AddItem(m_c.extensions.lignes[i][0]);
    programmes.AddItem(kLogicielParDefaut);
    programmes.selectionne(programmes.ListCount() - 1);
    if (nombre > 0) extensions.selectionne(0);
}

void Demarrage::poursuit(const std::function<void()>& etape) {
    try {
        etape();
    } catch (const db::RequeteEchouee&) {
    } catch (const dao::ErreurDao& erreur) {
        m_c.dialogues.MsgBox(erreur.texte());
    }
}

void Demarrage::refuse(const std::string& message) {
    m_c.dialogues.MsgBox(message, dialogues::kCritique);
    throw systeme::FinDuProgramme{};
}

}  // namespace app
