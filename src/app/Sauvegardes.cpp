#include "app/Sauvegardes.h"

#include "app/Saisies.h"
#include "db/Requete.h"
#include "db/RetourASauvegarde.h"
#include "db/cmdChargeOuvreBase_Click.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace app {

namespace {

constexpr const char* kIllisible = "illisible";
constexpr const char* kYRevenir = ".\nVoulez-vous y revenir ? Le fichier actuel sera gardé à côté.";
constexpr const char* kPlusLa = "Cette sauvegarde n'est plus là.";

std::string taille(std::int64_t octets) {
    const double mo = static_cast<double>(octets) / 1e6;
    if (octets < 1'000'000) return std::to_string((octets + 999) / 1000) + " ko";
    return util::texteDuNombre(util::tronque(mo, mo < 10 ? 1 : 0), systeme::separateurDecimal()) + " Mo";
}

EtatSauvegardes::Ligne ligneDe(const db::Sauvegarde& copie) {
    const auto contenu = copie.contenu();
    return {db::dateDe(copie), contenu ? std::to_string(contenu->films) : kIllisible,
            contenu ? std::to_string(contenu->possessions) : "", taille(copie.octets), db::libelle(copie.nom.avant)};
}

// What is told above the list: where the copies are, how many are kept, what they do not hold.
std::string texteDe(const std::string& base, std::size_t nombre) {
    const db::ReglesDesSauvegardes regles;
    const std::string dossier = db::dossierDesSauvegardes(base);
    if (nombre == 0)
        return "Aucune sauvegarde pour l'instant : la première sera prise avant la prochaine commande qui change "
               "beaucoup de films, dans " +
               dossier;
    return "Prises avant chaque commande qui change beaucoup de films, dans " + dossier + "\nLes " +
           std::to_string(regles.gardees) +
           " dernières sont gardées (une par heure pour une base de plus de 100 Mo). Les affiches rangées dans un "
           "dossier n'y sont pas.";
}

void lis(const Contexte& c) {
    EtatSauvegardes& etat = c.etats.sauvegardes;
    const std::string base = c.base.base.nom();
    std::vector<db::Sauvegarde> copies = db::sauvegardesDe(base);
    std::vector<EtatSauvegardes::Ligne> lignes;
    db::attente(c)([&] { std::ranges::transform(copies, std::back_inserter(lignes), ligneDe); });  // counts their rows
    etat.copies = std::move(copies);
    etat.lignes = std::move(lignes);
    etat.lblSauvegardes.Caption = texteDe(base, etat.copies.size());
    etat.txtComparaison.Text.clear();
}

// The copy of that line, as it is now.
std::optional<db::Sauvegarde> copieDe(const Contexte& c, int ligne) {
    const EtatSauvegardes& etat = c.etats.sauvegardes;
    if (ligne < 0 || ligne >= std::ssize(etat.copies)) return std::nullopt;
    const std::string chemin = etat.copies[static_cast<std::size_t>(ligne)].chemin;
    for (db::Sauvegarde& copie : db::sauvegardesDe(c.base.base.nom()))
        if (copie.chemin == chemin) return std::move(copie);
    c.dialogues.MsgBox(kPlusLa, dialogues::kExclamation);
    lis(c);
    return std::nullopt;
}

std::string decrit(const db::Sauvegarde& copie) {
    const auto contenu = copie.contenu();
    const std::string films =
        contenu ? ", " + util::phraseCompte(static_cast<long>(contenu->films), "# film", "# films") : "";
    return db::dateDe(copie) + films;
}

std::string question(const Contexte& c, const db::Sauvegarde& copie) {
    std::string texte = "Voulez-vous revenir à la sauvegarde du " + decrit(copie) +
                        " (avant : " + db::libelle(copie.nom.avant) +
                        ") ?\nLa base d'aujourd'hui sera d'abord sauvegardée.";
    try {
        if (const long absentes = db::affichesSansFichier(c, copie); absentes > 0)
            texte += "\n" + util::phraseCompte(absentes, "# affiche qu'elle nomme n'a plus son fichier.",
                                               "# affiches qu'elle nomme n'ont plus leur fichier.");
    } catch (const dao::ErreurDao&) {  // the way back will say what is wrong with it
    }
    return texte;
}

void revient(const Contexte& c, const db::Sauvegarde& copie);

// The copy that the way back took of what was there is its way back.
void annonceLeRetour(const Contexte& c, const db::Sauvegarde& copie) {
    const auto aujourdhui = db::derniereSauvegarde(c.base.base.nom());
    std::vector<ecran::Avis::Action> actions;
    if (aujourdhui && aujourdhui->nom.avant == db::Avant::Retour)
        actions.push_back({"Annuler", [c, avant = *aujourdhui] { revient(c, avant); }});
    c.avis.montre("La base est revenue à la sauvegarde du " + db::dateDe(copie) + ".", std::move(actions));
}

void revient(const Contexte& c, const db::Sauvegarde& copie) {
    if (!c.saisies.abandonneTout() || !db::revientA(c, copie)) return;
    annonceLeRetour(c, copie);
}

std::string offre(const std::string& base, const db::Sauvegarde& copie) {
    return "La base " + base + " ne s'ouvre pas. Dernière sauvegarde : " + decrit(copie);
}

void annonceRemise(const Contexte& c, const db::Sauvegarde& copie, const std::string& conservee) {
    c.avis.montre("La sauvegarde du " + db::dateDe(copie) +
                  " est en place. La base endommagée est gardée sous le nom " +
                  util::entreChevrons(fichiers::nomDeFichier(conservee)) + ".");
}

void remetEtOuvre(const Contexte& c, const std::string& base, const db::Sauvegarde& copie) {
    if (!db::estEndommagee(base)) {
        c.avis.montre("La base " + base + " n'est plus celle qui ne s'ouvrait pas : rien n'a été remis en place.");
        return;
    }
    if (!c.saisies.abandonneTout()) return;
    const auto conservee = db::remetEnPlace(c, copie);
    if (!conservee) return;
    db::changeDeBase(c, base);
    annonceRemise(c, copie, *conservee);
}

}  // namespace

void cmdSauvegardes_Click(const Contexte& c) {
    lis(c);
    c.etats.sauvegardes.frmSauvegardes.Visible = true;
    ++c.etats.sauvegardes.presentations;
}

void cmdComparerSauvegarde_Click(const Contexte& c, int ligne) {
    const auto copie = copieDe(c, ligne);
    if (!copie) return;
    try {
        c.etats.sauvegardes.txtComparaison.Text = db::comparaison(c, *copie);
    } catch (const dao::ErreurDao& erreur) {
        c.etats.sauvegardes.txtComparaison.Text = "Cette sauvegarde ne peut pas être lue.\n" + erreur.description;
    }
}

void cmdRevenirSauvegarde_Click(const Contexte& c, int ligne) {
    const auto copie = copieDe(c, ligne);
    if (!copie || c.dialogues.MsgBox(question(c, *copie), dialogues::kQuestion) != dialogues::kOui) return;
    revient(c, *copie);
    lis(c);
}

void cmdFermerSauvegardes_Click(const Contexte& c) {
    c.etats.sauvegardes.frmSauvegardes.Visible = false;
}

void annonceSauvegarde(const Contexte& c, const std::string& base) {
    if (base == c.chemins.base || !db::estEndommagee(base)) return;
    const auto copie = db::derniereSauvegarde(base);
    if (!copie) return;
    c.avis.montre(offre(base, *copie) + ".",
                  {{"Revenir à cette sauvegarde", [c, base, copie = *copie] { remetEtOuvre(c, base, copie); }}});
}

bool accepteLaSauvegarde(const Contexte& c, const std::string& base) {
    if (!db::estEndommagee(base)) return false;
    const auto copie = db::derniereSauvegarde(base);
    if (!copie || c.dialogues.MsgBox(offre(base, *copie) + kYRevenir, dialogues::kQuestion) != dialogues::kOui)
        return false;
    const auto conservee = db::remetEnPlace(c, *copie);
    if (conservee) annonceRemise(c, *copie, *conservee);
    return conservee.has_value();
}

void annonceBaseRefaite(const Contexte& c) {
    const std::string texte = "La base " + c.chemins.base + " n'existait plus : une base vide a été créée à sa place.";
    const auto copie = db::derniereSauvegarde(c.chemins.base);
    if (!copie) return c.avis.montre(texte);
    c.avis.montre(texte + " Dernière sauvegarde : " + decrit(*copie) + ".",
                  {{"Revenir à cette sauvegarde", [c, copie = *copie] {
                        if (c.base.base.estOuverte() && db::fichierDeLaBase(c.base.base.nom()) == copie.base)
                            revient(c, copie);
                    }}});
}

}  // namespace app
