#include "db/cmdEnregistreJet_Click.h"

#include "db/TravauxInacheves.h"
#include "db/VersJet.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Verrou.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <ctime>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace db {

namespace {

namespace fs = std::filesystem;

constexpr const char* kExtension = ".mdb";

struct Refus {
    std::string texte;
};

// The file itself, wherever a link to it lies.
std::string fichierVise(const std::string& choisi) {
    std::error_code erreur;
    const fs::path reel = fs::weakly_canonical(choisi, erreur);
    return erreur ? choisi : reel.string();
}

void exigeUnAutreFichier(const Contexte& c, const std::string& fichier) {
    if (const auto identite = fichiers::identite(fichier);
        identite && identite == fichiers::identite(c.base.base.nom()))
        throw Refus{"Ce fichier est la base ouverte : choisissez un autre nom."};
    std::error_code ignoree;
    const fs::file_status la = fs::status(fichier, ignoree);
    if (!fs::exists(la)) return;
    if (fs::is_directory(la)) throw Refus{"Un dossier porte déjà ce nom."};
    // Opened as it is, a file shows whether the user may write it; anything else is never opened.
    if (!fs::is_regular_file(la) || !std::fstream(fichier, std::ios::in | std::ios::out | std::ios::binary))
        throw Refus{"Le fichier " + fichier + " ne peut pas être remplacé."};
}

// Those of the file that it replaces, or of the base that it is a copy of.
fs::perms droitsPour(const Contexte& c, const std::string& fichier) {
    std::error_code ignoree;
    const fs::file_status remplace = fs::status(fichier, ignoree);
    return (fs::exists(remplace) ? remplace : fs::status(c.base.base.nom(), ignoree)).permissions() & fs::perms::all;
}

// The box asks about the name that it was given; the one that the extension makes of it may be another file's.
bool accepteLeNom(const Contexte& c, const std::string& choisi, const std::string& fichier) {
    return fichier == choisi || !fichiers::existe(fichier) ||
           c.dialogues.MsgBox("Le fichier " + fichier + " existe déjà. Voulez-vous le remplacer ?",
                              dialogues::kQuestion) == dialogues::kOui;
}

// "Films.mdb" is proposed as "Films (Jet).mdb", beside it.
std::string demandeFichier(const Contexte& c) {
    const fs::path base(c.base.base.nom());
    const std::string choisi = c.dialogues.choisitFichier({.titre = "Enregistrer au format Jet",
                                                           .filtre = "Bases Access (Jet)|*.mdb",
                                                           .dossier = base.parent_path().string(),
                                                           .peutCreer = true,
                                                           .nom = base.stem().string() + " (Jet)" + kExtension});
    if (choisi.empty()) return {};
    const std::string fichier = util::minuscules(choisi).ends_with(kExtension) ? choisi : choisi + kExtension;
    exigeUnAutreFichier(c, fichier);
    return accepteLeNom(c, choisi, fichier) ? fichierVise(fichier) : "";
}

// Gone again unless it is kept, and marked as in use.
class FichierDeTravail {
  public:
    FichierDeTravail(const std::string& chemin, fs::perms droits) : m_chemin(chemin), m_verrou(cree(chemin)) {
        std::error_code ignoree;
        fs::permissions(m_chemin, droits | fs::perms::owner_read | fs::perms::owner_write, ignoree);
    }
    FichierDeTravail(const FichierDeTravail&) = delete;
    FichierDeTravail& operator=(const FichierDeTravail&) = delete;
    ~FichierDeTravail() {
        if (m_aEffacer) fichiers::supprime(m_chemin);
    }
    [[nodiscard]] const std::string& chemin() const { return m_chemin; }
    void devient(const std::string& fichier) {
        if (!fichiers::renomme(m_chemin, fichier)) throw Refus{"Le fichier " + fichier + " n'a pas pu être remplacé."};
        m_aEffacer = false;
    }

  private:
    // What a run that was killed has left gives way.
    static const std::string& cree(const std::string& chemin) {
        std::error_code ignoree;
        if (fs::exists(fs::symlink_status(chemin, ignoree))) {
            const bool enUsage =
                fs::is_regular_file(fs::symlink_status(chemin, ignoree)) && !fichiers::Verrou(chemin).estPris();
            if (enUsage || !estInacheve(chemin) || !fichiers::supprime(chemin))
                throw Refus{"Le fichier " + chemin + " gêne l'enregistrement. Déplacez-le, puis recommencez."};
        }
        if (fichiers::cree(chemin, "") != fichiers::Creation::Faite)
            throw Refus{"Aucun fichier ne peut y être créé (" + fichiers::raisonDeLEchec() + ")."};
        return chemin;
    }

    std::string m_chemin;
    fichiers::Verrou m_verrou;
    bool m_aEffacer = true;
};

// Days since 30 December 1899, in the machine's time zone.
double jourDe(std::time_t instant) {
    constexpr double kPremierJanvier1970 = 25569, kSecondes = 86400;
    std::tm date{};
    localtime_r(&instant, &date);
    return kPremierJanvier1970 + static_cast<double>(instant + date.tm_gmtoff) / kSecondes;
}

RapportVersJet ecrit(const Contexte& c, const std::string& travail, bool& interrompu) {
    EtatTravaux& travaux = c.travaux;
    travaux.lblTravail.Caption = "Enregistrement au format Jet...";
    travaux.ProgressBar3.Visible = true;
    IssueVersJet issue =
        VersJet(travaux.ProgressBar3, c.ecran)(c.base.base.nom(), travail, jourDe(c.horloge.maintenant()));
    travaux.ProgressBar3.Visible = false;
    travaux.lblTravail.Caption.clear();
    if (issue.echec) throw Refus{*issue.echec};
    interrompu = issue.interrompu;
    return std::move(issue.rapport);
}

void montreLesEcarts(const Contexte& c, const RapportVersJet& rapport) {
    if (rapport.ecarts.empty()) return;
    dialogues::Rapport liste{"Jet ne peut pas tout dire. Dans le fichier enregistré :", rapport.ecarts};
    for (const std::string& ecart : rapport.ecarts)
        liste.texte += "\n- " + ecart;
    if (rapport.autresEcarts > 0) {
        liste.lignes.push_back("et " + std::to_string(rapport.autresEcarts) + " de plus");
        liste.texte += "\n- " + liste.lignes.back();
    }
    liste.texte += "\nVotre base n'a pas changé.";
    c.dialogues.montre(liste);
}

void annonce(const Contexte& c, const std::string& fichier, const RapportVersJet& rapport) {
    const std::string dossier = fichiers::dossierDe(fichier);
    const auto ouvre = [c, dossier] {
        if (c.documents.ouvreFichier(dossier, dossier) != systeme::Ouverture::Faite)
            c.dialogues.MsgBox("Le dossier " + dossier + " n'a pas pu être ouvert.", dialogues::kExclamation);
    };
    c.avis.montre("Base enregistrée au format Jet (" + util::phraseCompte(rapport.films, "# film", "# films") + ", " +
                      util::phraseCompte(rapport.possessions, "# possession", "# possessions") + ") : " + fichier,
                  {{"Ouvrir le dossier", ouvre, true}});
}

}  // namespace

void cmdEnregistreJet_Click(const Contexte& c) {
    try {
        const std::string fichier = demandeFichier(c);
        if (fichier.empty()) return;
        FichierDeTravail travail(fichier + std::string(kVersJet), droitsPour(c, fichier));
        bool interrompu = false;
        const RapportVersJet rapport = ecrit(c, travail.chemin(), interrompu);
        if (interrompu)
            return c.avis.montre("L'enregistrement au format Jet a été arrêté : aucun fichier n'a été écrit.");
        travail.devient(fichier);
        annonce(c, fichier, rapport);
        montreLesEcarts(c, rapport);
    } catch (const Refus& refus) {
        c.dialogues.MsgBox("La base n'a pas pu être enregistrée au format Jet.\n" + refus.texte, dialogues::kCritique);
    }
}

}  // namespace db
