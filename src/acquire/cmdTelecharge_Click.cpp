#include "acquire/cmdTelecharge_Click.h"

#include "acquire/AdresseRecherche.h"
#include "acquire/ConfigurationRapatrix.h"
#include "acquire/FichesRecues.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "acquire/cmdParcourir2_Click.h"
#include "browse/CreeRequeteAffichage.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/Texte.h"
#include "view/LanceFichier.h"

#include <optional>
#include <string>

namespace acquire {

namespace {

constexpr int kToucheEntree = 13;

// How long the downloader works is not known: a progress without an end, on the screen as long as it does.
class AttenteVisible {
  public:
    explicit AttenteVisible(db::EtatTravaux& travaux) : m_travaux(travaux) {
        m_travaux.ProgressBar3.Max = m_travaux.ProgressBar3.Value = 0;
        montre("'Le Rapatrix' recherche les fiches…");
    }
    AttenteVisible(const AttenteVisible&) = delete;
    AttenteVisible& operator=(const AttenteVisible&) = delete;
    ~AttenteVisible() { montre(""); }

  private:
    void montre(const std::string& texte) {
        m_travaux.lblTravail.Caption = texte;
        m_travaux.ProgressBar3.Visible = !texte.empty();
    }
    db::EtatTravaux& m_travaux;
};

// Where the downloader is told what to look for.
std::string fichierConfiguration(const Contexte& c) {
    return c.chemins.dossierTmp + "/RechFilms.tmp";
}

// Of a path that becomes one word of a command line.
std::string entreGuillemets(const std::string& chemin) {
    return '"' + util::remplace(util::remplace(chemin, "\\", "\\\\"), "\"", "\\\"") + '"';
}

Critere critereChoisi(const edit::EtatAjout& ajout) {
    for (std::size_t i = 0; i < ajout.OptionTelecharge.size(); ++i)
        if (ajout.OptionTelecharge[i].Value) return static_cast<Critere>(i);
    return Critere::Titre;
}

// Why it could not be written, empty when it was.
std::string ecritConfiguration(const Contexte& c) {
    const DemandeRapatrix demande{adresseRecherche(critereChoisi(c.ajout), c.ajout.txtRechInternet.Text),
                                  c.chemins.dossierTmp, c.chkLancerConnexion.Value == 1};
    if (!seDitEn1252(demande.adresse))
        return "Le site de MovieCovers ne connaît pas tous les caractères de cette recherche.";
    if (!seDitEn1252(demande.dossierTmp))
        return "'Le Rapatrix' ne sait pas écrire dans le répertoire d'Ambrelis, dont le nom contient des caractères "
               "qu'il ne connaît pas :\n" +
               c.chemins.dossier;
    const std::string fichier = fichierConfiguration(c);
    if (!fichiers::ecrit(fichier, configurationRapatrix(demande)))
        return "Le fichier " + fichier + " n'a pas pu être écrit.";
    return "";
}

// The downloader's path, its configuration written; nothing, and nothing left, after a refusal.
std::optional<std::string> prepare(const Contexte& c) {
    const std::string refus = ecritConfiguration(c);
    const auto programme = fichiers::trouve(c.chemins.dansDossier(kProgrammeRapatrix));
    if (refus.empty() && programme) return programme;
    fichiers::supprime(fichierConfiguration(c));
    c.dialogues.MsgBox(refus.empty() ? "Le logiciel 'Le Rapatrix' n'a pas été trouvé !" : refus,
                       dialogues::kExclamation);
    return std::nullopt;
}

// True when the downloader ended by itself.
bool attends(const Contexte& c, const std::string& programme) {
    const AttenteVisible attente(c.travaux);
    return view::LanceFichier(c, programme, false, "open", entreGuillemets(fichierConfiguration(c)), "", "2", true);
}

// The user ended the downloader: what it has left may be all that was wanted.
bool importeQuandMeme(const Contexte& c, long fiches) {
    const std::string question = util::phraseCompte(fiches, "# fiche a déjà été reçue. Souhaitez-vous l'ajouter ?",
                                                    "# fiches ont déjà été reçues. Souhaitez-vous les ajouter ?");
    return c.dialogues.MsgBox("Le téléchargement a été arrêté.\n" + question, dialogues::kQuestion) == dialogues::kOui;
}

// Where sheets wait afterwards, empty when none does.
std::string cherche(const Contexte& c, const std::string& programme) {
    FichesRecues fiches(c.chemins);
    c.ecran.rafraichit();
    const bool fini = attends(c, programme);
    fichiers::supprime(fichierConfiguration(c));
    c.demandes.premierPlan = true;
    c.demandes.focus = "txtRechInternet";  // for the next search
    c.ajout.txtCheminAjoutAuto.Text = c.chemins.dossierTmp;
    const long nombre = fiches.nombre();
    if (nombre == 0 || (!fini && !importeQuandMeme(c, nombre)))
        fiches.refusees();
    else
        importeFiches(c, {dossierDesFiches(c)}, [&](RapportImport& rapport) { fiches.range(rapport); });
    return fiches.attente();
}

void telecharge(const Contexte& c) {
    if (c.ajout.txtRechInternet.Text.find_first_not_of(' ') == std::string::npos) return;
    ouvrePageTelechargement(c);  // it may have come, or gone
    const auto programme = prepare(c);
    if (!programme) return;
    const std::string attente = cherche(c, *programme);
    c.ajout.lblNbFilms.Caption.clear();  // it told of another folder
    c.ajout.fichesAImporter = false;
    if (attente.empty()) return;
    c.ajout.txtCheminAjoutAuto.Text = attente;  // one click goes on with them
    montreNombreDeFiches(c);
}

}  // namespace

void cmdTelecharge_Click(const Contexte& c) {
    browse::puisVersLaListe(c, [&c] { telecharge(c); });
}

void txtRechInternet_KeyDown(const Contexte& c, int code, int /*majuscule*/) {
    if (code == kToucheEntree) cmdTelecharge_Click(c);
}

void ouvrePageTelechargement(const Contexte& c) {
    const bool present = fichiers::existe(c.chemins.dansDossier(kProgrammeRapatrix));
    c.ajout.lblRapatrix.Visible = !present;
    c.ajout.lblRapatrix.Caption =
        present
            ? ""
            : "Cette recherche se fait avec le logiciel 'Le Rapatrix', qui n'est pas là : placez Rapatrix.exe dans le "
              "dossier " +
                  c.chemins.dansDossier(fichiers::dossierDe(kProgrammeRapatrix));
}

}  // namespace acquire
