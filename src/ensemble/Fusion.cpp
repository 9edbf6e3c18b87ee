#include "ensemble/Fusion.h"

#include "db/Affiches.h"
#include "db/ChampsPublies.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "db/TitreCite.h"
#include "ensemble/PossessionsJointes.h"
#include "ensemble/Suites.h"
#include "platform/dao/Comparaison.h"
#include "platform/dao/LigneSupprimee.h"
#include "util/Nombres.h"
#include "util/Tables.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace ensemble {

namespace {

constexpr auto kNumero = db::NumeroErreur::Ressemblances;
constexpr std::string_view kAffiche = "Affiche", kNote = "Note";

using Legende = std::pair<const char*, const char*>;
constexpr std::array kChampsDuFilm{Legende{"Titre", "Titre"},         Legende{"Realisateur", "Réalisateur"},
                                   Legende{"Annee", "Année"},         Legende{"Origine", "Origine"},
                                   Legende{"Genre", "Genre"},         Legende{"Duree", "Durée"},
                                   Legende{"Acteurs", "Acteurs"},     Legende{"Production", "Production"},
                                   Legende{"Resume", "Résumé"},       Legende{kNote.data(), "Note"},
                                   Legende{"DateAjout", "Ajouté le"}, Legende{kAffiche.data(), "Affiche"}};
constexpr std::array kLegendesDePossession{
    Legende{"Rangement", "Rangement"}, Legende{"Fichier1", "Fichier 1"}, Legende{"Fichier2", "Fichier 2"},
    Legende{"Fichier3", "Fichier 3"},  Legende{"Pret", "Prêté à"},       Legende{"Reserve", "Réservé à"},
    Legende{"Date", "Date"},           Legende{"Divers", "Divers"},      Legende{"Support", "Support"}};
static_assert(util::disentLesMemes(kLegendesDePossession, &Legende::first, db::kChampsDePossession));
static_assert(std::ranges::is_permutation(kChampsDuFilm, db::kChampsFilms, std::ranges::equal_to{},
                                          [](const Legende& legende) { return std::string_view(legende.first); }));

bool estVide(const std::string& texte) {
    return dao::egalJet(texte, "");
}

std::string texteDeLAffiche(const std::string& affiche) {
    if (db::estDansLaBase(affiche))
        return "Dans la base (" + std::to_string((affiche.size() - db::kTaillePrefixe + 1023) / 1024) + " Ko)";
    return db::nomDansLeDossier(affiche);
}

// The two rows of the films, which one statement or two bring.
class DeuxLignes {
  public:
    DeuxLignes(const Contexte& c, const std::string& gauche, const std::string& droite, bool ensemble)
        : m_gauche(db::ouvreRequete(c, gauche, kNumero)), m_droite(db::ouvreRequete(c, droite, kNumero)) {
        if (ensemble && !m_droite.Eof()) m_droite.MoveNext();
    }
    [[nodiscard]] dao::Recordset& gauche() { return m_gauche; }
    [[nodiscard]] dao::Recordset& droite() { return m_droite; }

  private:
    dao::Recordset m_gauche, m_droite;
};

DeuxLignes films(const Contexte& c, const db::CleFilm& gauche, const db::CleFilm& droite) {
    return {c, db::enonceFilmModifie(gauche), db::enonceFilmModifie(droite), db::memeFilm(gauche, droite)};
}

DeuxLignes possessions(const Contexte& c, const db::CleFilm& gauche, const db::CleFilm& droite) {
    return {c, db::enoncePossession(gauche), db::enoncePossession(droite), db::memeFilm(gauche, droite)};
}

ChampCompare compare(const char* champ, const char* legende, DeuxLignes& lignes) {
    ChampCompare compare{champ, legende, lignes.gauche().texte(champ), lignes.droite().texte(champ)};
    for (std::string* note : {&compare.gauche, &compare.droite})
        if (champ == kNote && *note == "0") note->clear();  // as other tools write that there is none
    if (champ == kAffiche) {
        compare.gauche = texteDeLAffiche(compare.gauche);
        compare.droite = texteDeLAffiche(compare.droite);
    }
    compare.prendDroite = estVide(compare.gauche) && !estVide(compare.droite);
    return compare;
}

bool estUnFichier(const ChampCompare& champ) {
    return std::string_view(champ.champ).starts_with("Fichier");
}

// The files of both find room, where there is enough.
void logeLesFichiers(PlanDeFusion& plan) {
    ValeursDePossession gauche, droite;
    for (std::size_t i = 0; i < plan.possession.size(); ++i) {
        if (!estUnFichier(plan.possession[i])) continue;
        gauche[i] = plan.possession[i].gauche;
        droite[i] = plan.possession[i].droite;
    }
    const auto loges = jointes(gauche, droite);
    for (std::size_t i = 0; loges && i < loges->size(); ++i) {
        ChampCompare& champ = plan.possession[i];
        if (!estUnFichier(champ)) continue;
        champ.prendDroite = (*loges)[i] != champ.gauche;
        champ.ailleurs = !champ.prendDroite;
        if (champ.prendDroite) champ.droite = (*loges)[i];
    }
}

PlanDeFusion sansChoix(PlanDeFusion plan) {
    for (auto* champs : {&plan.film, &plan.possession})
        for (ChampCompare& champ : *champs)
            champ.prendDroite = false;
    return plan;
}

void ecritLeFilm(DeuxLignes& lignes, const PlanDeFusion& plan) {
    std::vector<std::pair<const char*, dao::Valeur>> changes;
    for (const ChampCompare& champ : plan.film)
        if (champ.prendDroite) changes.emplace_back(champ.champ, lignes.droite().valeur(champ.champ));
    if (changes.empty()) return;
    lignes.gauche().Edit();
    for (const auto& [champ, valeur] : changes)
        lignes.gauche().assigne(champ, valeur);
    lignes.gauche().Update();
}

void nomme(dao::Recordset& possession, const db::CleFilm& film) {
    if (possession.texte("Titre2") == film.titre && possession.texte("Realisateur2") == film.realisateur) return;
    possession.Edit();
    possession.assigne("Titre2", film.titre);
    possession.assigne("Realisateur2", film.realisateur);
    possession.Update();
}

void ecritLaPossession(DeuxLignes& lignes, const PlanDeFusion& plan) {
    if (plan.possession.empty()) return;
    lignes.gauche().Edit();
    for (const ChampCompare& champ : plan.possession)
        if (champ.prendDroite) lignes.gauche().assigne(champ.champ, champ.droite);
    lignes.gauche().Update();
    lignes.droite().Delete();
    lignes.droite().MoveNext();
}

// Every holding of the two goes to the name that stays; of films of one name both statements bring the same ones.
void reunitLesPossessions(DeuxLignes& lignes, const PlanDeFusion& plan, const db::CleFilm& film) {
    ecritLaPossession(lignes, plan);
    const auto nommeToutes = [&film](dao::Recordset& possessions) {
        for (; !possessions.Eof(); possessions.MoveNext())
            dao::siPresente([&] { nomme(possessions, film); });
    };
    if (!db::memeFilm(plan.gauche, plan.droite)) nommeToutes(lignes.droite());
    nommeToutes(lignes.gauche());
}

db::CleFilm nomFinal(const PlanDeFusion& plan) {
    const auto valeur = [](const ChampCompare& champ) { return champ.prendDroite ? champ.droite : champ.gauche; };
    return {valeur(plan.film[0]), valeur(plan.film[1])};
}

std::string legendes(const std::vector<ChampCompare>& champs, bool (*convient)(const ChampCompare&)) {
    std::string texte;
    for (const ChampCompare& champ : champs)
        if (convient(champ)) texte += (texte.empty() ? "" : ", ") + util::minuscules(champ.legende);
    return texte;
}

}  // namespace

bool ChampCompare::conflit() const {
    return !ailleurs && !estVide(gauche) && !estVide(droite) && !dao::egalJet(gauche, droite);
}

std::string PlanDeFusion::texte() const {
    std::string texte = "La fiche " + db::titreCite(gauche.titre) + " reste, la fiche " + db::titreCite(droite.titre) +
                        " est supprimée.";
    const auto pris = [](const ChampCompare& champ) { return champ.prendDroite; };
    const auto perdu = [](const ChampCompare& champ) { return !champ.prendDroite && champ.conflit(); };
    const auto liste = [&](const char* debut, bool (*convient)(const ChampCompare&)) {
        const std::string duFilm = legendes(film, convient), deLaPossession = legendes(possession, convient);
        if (duFilm.empty() && deLaPossession.empty()) return;
        texte += debut + duFilm + (duFilm.empty() || deLaPossession.empty() ? "" : ", ") + deLaPossession + ".";
    };
    liste("\nElle en reçoit : ", pris);
    liste("\nElle garde, malgré une autre valeur : ", perdu);
    if (droitePossede && !gauchePossede) texte += "\nElle reçoit aussi sa possession.";
    return texte;
}

std::optional<PlanDeFusion> planDeFusion(const Contexte& c, const db::CleFilm& gauche, const db::CleFilm& droite) {
    DeuxLignes lignes = films(c, gauche, droite);
    if (lignes.gauche().Eof() || lignes.droite().Eof()) return std::nullopt;
    PlanDeFusion plan{gauche, droite};
    for (const auto& [champ, legende] : kChampsDuFilm)
        plan.film.push_back(compare(champ, legende, lignes));
    DeuxLignes siennes = possessions(c, gauche, droite);
    plan.gauchePossede = !siennes.gauche().Eof();
    plan.droitePossede = !siennes.droite().Eof();
    if (!plan.gauchePossede || !plan.droitePossede) return plan;
    for (const auto& [champ, legende] : kLegendesDePossession)
        plan.possession.push_back(compare(champ, legende, siennes));
    logeLesFichiers(plan);
    return plan;
}

bool fusionne(const Contexte& c, const PlanDeFusion& plan) {
    const auto present = planDeFusion(c, plan.gauche, plan.droite);
    if (!present || sansChoix(*present) != sansChoix(plan)) return false;
    DeuxLignes lignes = films(c, plan.gauche, plan.droite), siennes = possessions(c, plan.gauche, plan.droite);
    dao::Transaction ensemble(c.base.base);
    ecritLeFilm(lignes, plan);
    reunitLesPossessions(siennes, plan, nomFinal(plan));
    lignes.droite().Delete();
    ensemble.confirme();
    const std::string titres = db::titreCite(plan.gauche.titre) + " et " + db::titreCite(plan.droite.titre);
    c.annulations.nomme("fusion de " + titres, "Fiches " + titres + " réunies.");
    rafraichit(c, true);
    return true;
}

}  // namespace ensemble
