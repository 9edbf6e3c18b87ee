#include "acquire/cmdTelecharge_Click.h"

#include "acquire/AdresseRecherche.h"
#include "acquire/ConfigurationRapatrix.h"
#include "acquire/FichesRecues.h"
#include "acquire/cmdParcourir2_Click.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/Texte.h"

namespace acquire {

namespace {

constexpr int kToucheEntree = 13;

// How long the downloader works is not known: a progress without an end, on the screen as long as it does.
class AttenteVisible {
  public:
    explicit AttenteVisible(const AvancementTravail& avancement) : m_avancement(avancement) {
        m_avancement.barre.Max = m_avancement.barre.Value = 0;
        montre("'Le Rapatrix' recherche les fiches…");
    }
    AttenteVisible(const AttenteVisible&) = delete;
    AttenteVisible& operator=(const AttenteVisible&) = delete;
    ~AttenteVisible() { montre(""); }

  private:
    void montre(const std::string& texte) {
        m_avancement.texte.Caption = texte;
        m_avancement.barre.Visible = !texte.empty();
    }
    AvancementTravail m_avancement;
};

// Of a path that becomes one word of a command line.
std::string entreGuillemets(const std::string& chemin) {
    return '"' + util::remplace(util::remplace(chemin, "\\", "\\\\"), "\"", "\\\"") + '"';
}

Critere critereChoisi(const edit::EtatAjout& ajout) {
    for (std::size_t i = 0; i < ajout.OptionTelecharge.size(); ++i)
        if (ajout.OptionTelecharge[i].Value) return static_cast<Critere>(i);
    return Critere::Titre;
}

}  // namespace

void Telechargement::cmdTelecharge_Click() {
    if (m_outils.ajout.txtRechInternet.Text.find_first_not_of(' ') == std::string::npos) return;
    ouvrePage();  // it may have come, or gone
    const auto programme = prepare();
    if (!programme) return;
    const std::string attente = cherche(*programme);
    m_outils.ajout.lblNbFilms.Caption.clear();  // it told of another folder
    if (attente.empty()) return;
    m_outils.ajout.txtCheminAjoutAuto.Text = attente;  // one click goes on with them
    montreNombreDeFiches(m_outils.ajout, m_outils.chemins);
}

// Where sheets wait afterwards, empty when none does.
std::string Telechargement::cherche(const std::string& programme) {
    FichesRecues fiches(m_outils.chemins);
    m_outils.ecran.rafraichit();
    const bool fini = attends(programme);
    fichiers::supprime(m_configuration);
    m_outils.demandes.premierPlan = true;
    m_outils.demandes.focus = "txtRechInternet";  // for the next search
    m_outils.ajout.txtCheminAjoutAuto.Text = m_outils.chemins.dossierTmp;
    const long nombre = fiches.nombre();
    if (nombre == 0 || (!fini && !importeQuandMeme(nombre)))
        fiches.refusees();
    else
        m_outils.import.importe([&](RapportImport& rapport) { fiches.range(rapport); });
    return fiches.attente();
}

void Telechargement::txtRechInternet_KeyDown(int code, int /*majuscule*/) {
    if (code == kToucheEntree) cmdTelecharge_Click();
}

void Telechargement::ouvrePage() {
    const bool present = fichiers::existe(m_outils.chemins.dansDossier(kProgrammeRapatrix));
    m_outils.ajout.lblRapatrix.Visible = !present;
    m_outils.ajout.lblRapatrix.Caption =
        present
            ? ""
            : "Cette recherche se fait avec le logiciel 'Le Rapatrix', qui n'est pas là : placez Rapatrix.exe dans le "
              "dossier " +
                  m_outils.chemins.dansDossier(fichiers::dossierDe(kProgrammeRapatrix));
}

// The downloader's path, its configuration written; nothing, and nothing left, after a refusal.
std::optional<std::string> Telechargement::prepare() {
    const std::string refus = ecritConfiguration();
    const auto programme = fichiers::trouve(m_outils.chemins.dansDossier(kProgrammeRapatrix));
    if (refus.empty() && programme) return programme;
    fichiers::supprime(m_configuration);
    m_outils.dialogues.MsgBox(refus.empty() ? "Le logiciel 'Le Rapatrix' n'a pas été trouvé !" : refus,
                              dialogues::kExclamation);
    return std::nullopt;
}

// Why it could not be written, empty when it was.
std::string Telechargement::ecritConfiguration() {
    const DemandeRapatrix demande{adresseRecherche(critereChoisi(m_outils.ajout), m_outils.ajout.txtRechInternet.Text),
                                  m_outils.chemins.dossierTmp, m_outils.chkLancerConnexion.Value == 1};
    if (!seDitEn1252(demande.adresse))
        return "Le site de MovieCovers ne connaît pas tous les caractères de cette recherche.";
    if (!seDitEn1252(demande.dossierTmp))
        return "'Le Rapatrix' ne sait pas écrire dans le répertoire d'Ambrelis, dont le nom contient des caractères "
               "qu'il ne connaît pas :\n" +
               m_outils.chemins.dossier;
    if (!fichiers::ecrit(m_configuration, configurationRapatrix(demande)))
        return "Le fichier " + m_configuration + " n'a pas pu être écrit.";
    return "";
}

// True when the downloader ended by itself.
bool Telechargement::attends(const std::string& programme) {
    const AttenteVisible attente(m_outils.avancement);
    return m_outils.lanceFichier(programme, false, "open", entreGuillemets(m_configuration), "", "2", true);
}

// The user ended the downloader: what it has left may be all that was wanted.
bool Telechargement::importeQuandMeme(long fiches) {
    const std::string question = util::phraseCompte(fiches, "# fiche a déjà été reçue. Souhaitez-vous l'ajouter ?",
                                                    "# fiches ont déjà été reçues. Souhaitez-vous les ajouter ?");
    return m_outils.dialogues.MsgBox("Le téléchargement a été arrêté.\n" + question, dialogues::kQuestion) ==
           dialogues::kOui;
}

}  // namespace acquire
