#include "acquire/ApercuFiches.h"

#include "acquire/AfficheDeFiche.h"
#include "acquire/FicheFilm.h"
#include "acquire/PassageComplement.h"
#include "acquire/ProgressionVisible.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "acquire/cmdParcourir2_Click.h"
#include "browse/CreeRequeteAffichage.h"
#include "db/Affiches.h"
#include "db/Sauvegardes.h"
#include "edit/JugeFilms.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"

#include <chrono>

namespace acquire {

namespace {

constexpr std::chrono::milliseconds kEntreDeuxSouffles{50};

edit::FilmExamine examine(const Contexte& c, edit::JugeFilms& juge, const DossierFiches& dossier,
                          const std::string& nom) {
    const std::optional<FicheFilm> fiche = litFiche(dossier.chemin(nom));
    if (!fiche) return {.film = {}, .provenance = nom, .sort = edit::SortDuFilm::Illisible};
    c.ajout.lblProgression.Caption = fiche->premiereLigne;
    edit::FilmExamine examen =
        juge.examine(*fiche, [&] { return afficheDeFiche(dossier, nom, c.stockage.dansLaBase()).sort; });
    if (edit::peutEtreAjoute(examen)) juge.ajoute(*fiche);
    examen.provenance = nom;
    examen.film.resume = {};
    return examen;
}

ApercuFiches examineTout(const Contexte& c, const DossierFiches& dossier) {
    ApercuFiches apercu;
    const ecran::Travail travail(c.ecran);
    const ProgressionVisible progression(c.ajout, static_cast<long>(dossier.fiches().size()));
    edit::JugeFilms juge(c, true);
    std::chrono::steady_clock::time_point souffle;
    for (const std::string& nom : dossier.fiches()) {
        apercu.films.push_back(examine(c, juge, dossier, nom));
        ++c.ajout.ProgressBar1.Value;
        if (c.montre() - souffle < kEntreDeuxSouffles) continue;
        apercu.complet = c.ecran.respire();
        souffle = c.montre();
        if (!apercu.complet) break;
    }
    return apercu;
}

std::string questionComplement(long nombre) {
    return util::phraseCompte(nombre, "Souhaitez-vous compléter le film déjà présent avec ce que dit sa fiche ?",
                              "Souhaitez-vous compléter les # films déjà présents avec ce que disent leurs fiches ?") +
           "\n\nSeuls les champs vides et les affiches absentes sont remplis : rien de ce qui est écrit ne change.";
}

std::string bilanDuComplement(const RapportImport& rapport) {
    const auto nombre = [](const auto& fiches) { return static_cast<long>(fiches.size()); };
    std::string texte = util::phraseCompte(nombre(rapport.fichesCompletees), "# film complété.", "# films complétés.");
    if (!rapport.fichesIllisibles.empty())
        texte += util::phraseCompte(nombre(rapport.fichesIllisibles), " # fiche n'a pas pu être lue.",
                                    " # fiches n'ont pas pu être lues.");
    if (!rapport.fichesRestantes.empty())
        texte += util::phraseCompte(nombre(rapport.fichesRestantes), " Interrompu avant la fin : il reste une fiche.",
                                    " Interrompu avant la fin : il reste # fiches.");
    return texte;
}

}  // namespace

std::optional<ApercuFiches> apercuDesFiches(const Contexte& c) {
    if (!remplaceCheminWindows(c)) return std::nullopt;
    montreNombreDeFiches(c);
    const std::string chemin = dossierDesFiches(c);
    const DossierFiches dossier(chemin);
    if (dossier.fiches().empty()) {
        c.avis.montre("Aucune fiche .FILM dans ce dossier : il n'y a rien à montrer.");
        return std::nullopt;
    }
    ApercuFiches apercu = examineTout(c, dossier);
    apercu.dossier = chemin;
    return apercu;
}

std::optional<FicheVue> regardeFiche(const DossierFiches& dossier, const std::string& nom) {
    std::optional<FicheFilm> fiche = litFiche(dossier.chemin(nom));
    if (!fiche) return std::nullopt;
    const auto affiche = dossier.trouveAffiche(nom);
    return FicheVue{std::move(*fiche), affiche ? fichiers::lit(*affiche, db::kTailleMaxImage) : std::nullopt};
}

void importeFichesChoisies(const Contexte& c, const FichesChoisies& fiches) {
    browse::puisVersLaListe(c, [&] { importeFiches(c, fiches, [](RapportImport&) {}); });
}

std::vector<std::string> completeLesFilms(const Contexte& c, const FichesChoisies& fiches) {
    if (c.dialogues.MsgBox(questionComplement(fiches.nombre()), dialogues::kQuestion) != dialogues::kOui) return {};
    if (!db::sauvegardeAvant(c, db::Avant::Complement, fiches.octets(c.stockage.dansLaBase()))) return {};
    RapportImport rapport = PassageComplement(c, fiches).execute();
    const auto nombre = static_cast<long>(rapport.fichesCompletees.size());
    c.annulations.nomme("complément de " + util::phraseCompte(nombre, "# film", "# films"), bilanDuComplement(rapport));
    if (nombre == 0) c.avis.montre(bilanDuComplement(rapport));
    return rapport.fichesCompletees;
}

}  // namespace acquire
