#include "db/RetourASauvegarde.h"

#include "db/CopieVisible.h"
#include "db/OuvertureBase.h"
#include "db/OuvertureJet.h"
#include "db/Requete.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Restes.h"
#include "platform/fichiers/Retenu.h"
#include "util/Texte.h"

#include <array>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

namespace db {

namespace {

namespace fs = std::filesystem;

constexpr int kNomsEssayes = 1000;
constexpr std::array<const char*, 3> kSuitesDUneBase = {"-journal", "-wal", "-shm"};

struct RetourImpossible {
    std::string texte;
};
struct RetourArrete {};

bool sOuvreCommeBase(const std::string& chemin) {
    dao::Database base = dao::DBEngine::OpenDatabase(chemin);
    for (const char* table : {"Films", "Personnel"})
        (void)base.OpenRecordset(table);
    return true;
}

// The checked copy of a safety copy, beside the base whose place it is to take; gone unless it took it.
class BasePrete {
  public:
    BasePrete(const Contexte& c, const Sauvegarde& copie)
        : m_base(copie.base), m_chemin(fichiers::dossierDe(m_base) + fichiers::nomProvisoire()) {
        CopieVisible visible(c, "Lecture de la sauvegarde…");
        if (visible.copie(copie.chemin, m_chemin) == dao::DBEngine::IssueDeCopie::Arretee) throw RetourArrete{};
        try {
            attente(c)([this] {
                dao::DBEngine::verifieEntierement(m_chemin);
                (void)sOuvreCommeBase(m_chemin);
            });
        } catch (...) {
            fichiers::supprime(m_chemin);
            throw;
        }
        std::error_code ignoree;
        fs::permissions(m_chemin, fs::status(m_base, ignoree).permissions() & fs::perms::all, ignoree);
    }
    BasePrete(const BasePrete&) = delete;
    BasePrete& operator=(const BasePrete&) = delete;
    ~BasePrete() {
        if (!m_enPlace) fichiers::supprime(m_chemin);
    }
    void prendsLaPlace() {
        m_enPlace = fichiers::renomme(m_chemin, m_base);
        if (!m_enPlace) throw RetourImpossible{"Le fichier " + m_base + " n'a pas pu être remplacé."};
    }

  private:
    std::string m_base, m_chemin;
    bool m_enPlace = false;
};

// Without it the way back would itself have no way back.
void sauveAujourdhui(const Contexte& c, const Sauvegarde& copie) {
    constexpr ReglesDesSauvegardes kChaqueFois{.grosseBase = std::numeric_limits<std::int64_t>::max()};
    const ResultatSauvegarde resultat = sauvegarde(c, Avant::Retour, kChaqueFois, copie.chemin);
    if (resultat.issue == IssueSauvegarde::Arretee) throw RetourArrete{};
    if (resultat.issue != IssueSauvegarde::Faite)
        throw RetourImpossible{"L'état actuel de la base n'a pas pu être sauvegardé : " + resultat.raison + "."};
}

void remplace(const Contexte& c, const Sauvegarde& copie, std::optional<fichiers::Retenu>& ancien) {
    if (fichierDeLaBase(c.base.base.nom()) != copie.base)
        throw RetourImpossible{"Cette sauvegarde est celle d'une autre base."};
    BasePrete prete(c, copie);
    sauveAujourdhui(c, copie);
    c.base.base.Execute("PRAGMA journal_mode=DELETE");  // a base made elsewhere may keep a log of its own
    dao::DBEngine::seulAvecLaBase(copie.base, [&] {
        c.base.ferme();
        ancien.emplace(copie.base);
        prete.prendsLaPlace();
    });
}

// Runs it, and tells what ends it before its end.
bool raconte(const Contexte& c, const std::string& debut, const std::string& fin, const auto& travail) {
    std::string raison;
    try {
        travail();
        return true;
    } catch (const RetourArrete&) {
        c.avis.montre("Le retour à la sauvegarde a été arrêté : rien n'a changé.");
        return false;
    } catch (const RetourImpossible& echec) {
        raison = echec.texte;
    } catch (const dao::ErreurDao& erreur) {
        raison = erreur.description;
    }
    c.dialogues.MsgBox(debut + "\n" + raison + "\n" + fin, dialogues::kCritique);
    return false;
}

// "Films (endommagée).mdb", "Films (endommagée 2).mdb"…
std::string nomMisDeCote(const std::string& base, int numero) {
    const fs::path chemin(base);
    const std::string marque = numero == 1 ? " (endommagée)" : " (endommagée " + std::to_string(numero) + ")";
    return (chemin.parent_path() / (chemin.stem().string() + marque + chemin.extension().string())).string();
}

// A journal that stayed would be taken for the new file's.
void metDeCoteLesSuites(const std::string& base, const std::string& autre) {
    std::error_code ignoree;
    for (const char* suite : kSuitesDUneBase)
        if (fs::exists(fs::symlink_status(base + suite, ignoree)) && !fichiers::renomme(base + suite, autre + suite))
            throw RetourImpossible{"Le fichier " + base + suite + " n'a pas pu être mis de côté."};
}

// A way back that was cut off may have given it that name already.
std::string metDeCote(const std::string& base) {
    std::error_code ignoree;
    for (int numero = 1; numero < kNomsEssayes; ++numero) {
        const std::string autre = nomMisDeCote(base, numero);
        const auto creation = fichiers::donneAutreNom(base, autre);
        if (creation == fichiers::Creation::ExisteDeja && !fs::equivalent(base, autre, ignoree)) continue;
        if (creation == fichiers::Creation::Echouee) break;
        metDeCoteLesSuites(base, autre);
        return autre;
    }
    throw RetourImpossible{"Le fichier endommagé n'a pas pu être mis de côté."};
}

}  // namespace

bool revientA(const Contexte& c, const Sauvegarde& copie) {
    std::optional<fichiers::Retenu> ancien;
    const bool revenu = raconte(c, "La base n'a pas pu revenir à la sauvegarde du " + dateDe(copie) + ".",
                                "Rien n'a changé.", [&] { remplace(c, copie, ancien); });
    if (c.base.base.estOuverte()) return revenu;
    c.rafraichissement.AfficheAccueil();
    if (revenu)
        ouvreLaBase(c);  // another base, for all that was kept of the rows of this one
    else
        reprendLaBase(c);
    attente(c)([&ancien] { ancien.reset(); });
    c.rafraichissement.reconstruitListe();
    c.rafraichissement.RaffraichitBoitesDeroulantes();
    c.rafraichissement.AfficheNbTitres();
    return revenu;
}

bool estEndommagee(const std::string& base) {
    if (!fichiers::existe(base) || estJet(base)) return false;
    try {
        return !sOuvreCommeBase(fichierDeLaBase(base));
    } catch (const dao::ErreurDao& erreur) {
        return erreur.numero == dao::kErreurFormat || erreur.numero == dao::kErreurTableIntrouvable;
    }
}

std::optional<std::string> remetEnPlace(const Contexte& c, const Sauvegarde& copie) {
    std::optional<std::string> conservee;
    const auto travail = [&] {
        BasePrete prete(c, copie);
        conservee = metDeCote(copie.base);
        prete.prendsLaPlace();
    };
    const std::string debut = "La sauvegarde du " + dateDe(copie) + " n'a pas pu être remise en place.";
    return raconte(c, debut, "Le fichier " + copie.base + " n'a pas été modifié.", travail) ? conservee : std::nullopt;
}

}  // namespace db
