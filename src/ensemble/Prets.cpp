#include "ensemble/Prets.h"

#include "browse/LigneDuNoeud.h"
#include "db/EnonceFilm.h"
#include "edit/TravailParLots.h"
#include "ensemble/Suites.h"
#include "platform/dao/Comparaison.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
#include <tuple>

namespace ensemble {

namespace {

constexpr auto kNumero = db::NumeroErreur::Prets;
constexpr const char* kPretes = "SELECT * FROM personnel WHERE Pret<>\"\" ORDER BY Pret ASC ;";
constexpr const char* kReserves = "SELECT * FROM personnel WHERE Reserve<>\"\" ORDER BY Reserve ASC ;";

constexpr std::array<std::string_view, 7> kPortees{"Titre2", "Realisateur2", "Pret",     "Reserve",
                                                   "Date",   "Support",      "Rangement"};

// Since when, counted in days up to today.
class Anciennete {
  public:
    explicit Anciennete(const Contexte& c)
        : m_ordre(systeme::ordreDesDates()), m_aujourdhui(systeme::dateLue(c.horloge.dateDuJour(), m_ordre)) {}

    [[nodiscard]] std::optional<int> jours(std::string_view date) const {
        const auto depuis = systeme::dateLue(date, m_ordre);
        if (!depuis || !m_aujourdhui) return std::nullopt;
        const auto jours = (std::chrono::sys_days(*m_aujourdhui) - std::chrono::sys_days(*depuis)).count();
        return jours < 0 ? std::nullopt : std::optional(static_cast<int>(jours));
    }

  private:
    systeme::OrdreDate m_ordre;
    std::optional<std::chrono::year_month_day> m_aujourdhui;
};

Pret litPret(const dao::Recordset& lignes, const Anciennete& anciennete) {
    Pret pret{.film = {lignes.texte("Titre2"), lignes.texte("Realisateur2")},
              .aQui = lignes.texte("Pret"),
              .pourQui = lignes.texte("Reserve"),
              .date = lignes.texte("Date"),
              .support = lignes.texte("Support"),
              .rangement = lignes.texte("Rangement")};
    pret.jours = anciennete.jours(pret.date);
    return pret;
}

std::vector<Pret> lit(const Contexte& c, const char* enonce) {
    const Anciennete anciennete(c);
    std::vector<Pret> prets;
    for (dao::Recordset lignes = db::ouvreRequete(c, enonce, kNumero, kPortees); !lignes.Eof(); lignes.MoveNext())
        prets.push_back(litPret(lignes, anciennete));
    return prets;
}

std::string nomme(const Pret& pret) {
    std::string texte = util::entreChevrons(pret.film.titre);
    if (!pret.film.realisateur.empty()) texte += " de " + pret.film.realisateur;
    if (!pret.support.empty()) texte += " (" + pret.support + ")";
    return texte;
}

constexpr std::size_t kNommes = 3;  // of each kind, in one line

std::string listeDe(const std::vector<db::CleFilm>& films) {
    std::string texte;
    for (std::size_t i = 0; i < std::min(films.size(), kNommes); ++i)
        texte += (i == 0 ? "" : ", ") + util::entreChevrons(films[i].titre);
    return films.size() > kNommes ? texte + "…" : texte;
}

// " « Alien » est chez Zoé." for the first ones, and how many there are beside.
std::string phrases(const std::vector<Pret>& prets, const char* verbe, std::string Pret::*qui, const char* participe) {
    std::string texte;
    for (std::size_t i = 0; i < std::min(prets.size(), kNommes); ++i)
        texte += " " + util::entreChevrons(prets[i].film.titre) + verbe + prets[i].*qui + ".";
    if (prets.size() <= kNommes) return texte;
    const std::string autre(participe);
    return texte + util::phraseCompte(std::ssize(prets) - static_cast<std::ptrdiff_t>(kNommes),
                                      " # autre film est " + autre + ".", " # autres films sont " + autre + "s.");
}

// Each film's holding in turn, in transactions; `change` says whether the row is to be stored.
template <typename Change>
void surChaque(const Contexte& c, const std::vector<db::CleFilm>& films, const char* quoi, BilanDesPrets& bilan,
               Change change) {
    edit::TravailParLots travail(c, kNumero, std::ssize(films));
    travail.execute(std::ssize(films), [&](long rang) -> edit::TravailParLots::Pas {
        dao::Recordset ligne = travail.ouvre(db::enoncePossession(films[rang]));
        if (ligne.Eof()) {
            bilan.nonPossedes.push_back(films[rang]);
            return {};
        }
        return {change(ligne) ? 1 : 0};
    });
    travail.termine();
    bilan.faits = travail.faits();
    c.annulations.nomme(quoi + util::phraseCompte(bilan.faits, " d'un film", " de # films"), "Prêts modifiés.");
    if (bilan.faits > 0) rafraichit(c, true);
}

void ecrit(dao::Recordset& ligne, std::initializer_list<std::pair<const char*, std::string>> champs) {
    ligne.Edit();
    for (const auto& [champ, valeur] : champs)
        ligne.assigne(champ, valeur);
    ligne.Update();
}

}  // namespace

BureauDesPrets bureauDesPrets(const Contexte& c) {
    return {lit(c, kPretes), lit(c, kReserves)};
}

void trie(std::vector<Pret>& prets, TriDesPrets tri) {
    struct Cle {
        int jours;
        std::string personne, titre, realisateur;
        std::size_t rang;
    };
    const auto personne = [tri](const Pret& pret) -> const std::string& {
        return pret.aQui.empty() || tri == TriDesPrets::Attente ? pret.pourQui : pret.aQui;
    };
    const bool parPersonne = tri == TriDesPrets::Personne || tri == TriDesPrets::Attente;
    std::vector<Cle> cles;
    for (const Pret& pret : prets)
        cles.push_back({-pret.jours.value_or(-1), parPersonne ? dao::cleDeComparaison(personne(pret)) : std::string(),
                        dao::cleDeComparaison(pret.film.titre), dao::cleDeComparaison(pret.film.realisateur),
                        cles.size()});
    std::stable_sort(cles.begin(), cles.end(), [&](const Cle& a, const Cle& b) {
        const auto parFilm = [](const Cle& cle) { return std::tie(cle.titre, cle.realisateur); };
        if (tri == TriDesPrets::Jours && a.jours != b.jours) return a.jours < b.jours;
        if (a.personne != b.personne) return a.personne < b.personne;
        return parFilm(a) < parFilm(b);
    });
    std::vector<Pret> tries;
    for (const Cle& cle : cles)
        tries.push_back(std::move(prets[cle.rang]));
    prets = std::move(tries);
}

bool enRetard(const Pret& pret, int jours) {
    return !pret.aQui.empty() && pret.jours.value_or(0) > jours;
}

std::string texteDepuis(const Pret& pret) {
    if (!pret.jours) return pret.date.empty() ? "" : "depuis " + util::entreChevrons(pret.date);
    if (*pret.jours == 0) return "aujourd'hui";
    return util::phraseCompte(*pret.jours, "depuis hier", "depuis # jours");
}

std::string bilan(const BureauDesPrets& bureau, int jours) {
    if (bureau.prets.empty() && bureau.reservations.empty()) return "Aucun film n'est prêté ni réservé.";
    std::set<std::string> personnes;
    long retards = 0;
    for (const Pret& pret : bureau.prets) {
        personnes.insert(dao::cleDeComparaison(pret.aQui));
        retards += enRetard(pret, jours);
    }
    std::string texte = "Aucun film n'est prêté";
    if (!bureau.prets.empty())
        texte = util::phraseCompte(std::ssize(bureau.prets), "# film prêté", "# films prêtés") +
                util::phraseCompte(std::ssize(personnes), " à # personne", " à # personnes");
    if (retards > 0)
        texte += util::phraseCompte(retards, ", dont # depuis plus de ", ", dont # depuis plus de ") +
                 util::phraseCompte(jours, "# jour", "# jours");
    texte += ".";
    if (!bureau.reservations.empty())
        texte += util::phraseCompte(std::ssize(bureau.reservations), " # film réservé.", " # films réservés.");
    return texte;
}

std::vector<std::string> personnes(const BureauDesPrets& bureau) {
    std::map<std::string, std::string> noms;
    for (const Pret& pret : bureau.prets)
        noms.try_emplace(dao::cleDeComparaison(pret.aQui), pret.aQui);
    for (const Pret& pret : bureau.reservations)
        noms.try_emplace(dao::cleDeComparaison(pret.pourQui), pret.pourQui);
    std::vector<std::string> resultat;
    for (auto& [cle, nom] : noms)
        resultat.push_back(std::move(nom));
    return resultat;
}

std::string texteDuRappel(const std::vector<Pret>& prets, const std::string& personne) {
    std::vector<Pret> siens;
    std::copy_if(prets.begin(), prets.end(), std::back_inserter(siens),
                 [&](const Pret& pret) { return dao::egalJet(pret.aQui, personne); });
    if (siens.empty()) return {};
    trie(siens, TriDesPrets::Jours);
    const bool un = siens.size() == 1;
    std::string texte =
        "Bonjour " + personne + ",\n\n" +
        (un ? "Ce film de ma collection est chez vous :\n" : "Ces films de ma collection sont chez vous :\n");
    for (const Pret& pret : siens) {
        texte += "- " + nomme(pret);
        if (!pret.date.empty()) texte += pret.jours ? ", depuis le " + pret.date : ", " + texteDepuis(pret);
        texte += "\n";
    }
    return texte + (un ? "\nPourriez-vous me le rendre quand vous l'aurez vu ?\n\nMerci !\n"
                       : "\nPourriez-vous me les rendre quand vous les aurez vus ?\n\nMerci !\n");
}

std::string BilanDesPrets::texte(const std::string& participe) const {
    const long nombre = std::ssize(personnes);
    const std::string suite = nombre == 0   ? ""
                              : nombre == 1 ? " à " + personnes.front()
                                            : " à " + std::to_string(nombre) + " personnes";
    std::string texte = util::phraseCompte(faits, "# film " + participe, "# films " + participe + "s") + suite + ".";
    if (!nonPossedes.empty())
        texte += util::phraseCompte(std::ssize(nonPossedes),
                                    " # film n'est pas possédé : ", " # films ne sont pas possédés : ") +
                 listeDe(nonPossedes) + ".";
    texte += phrases(dejaPretes, " est chez ", &Pret::aQui, "prêté");
    return texte + phrases(attendus, " est attendu par ", &Pret::pourQui, "attendu");
}

BilanDesPrets rendFilms(const Contexte& c, const std::vector<db::CleFilm>& films) {
    const Anciennete anciennete(c);
    BilanDesPrets bilan;
    surChaque(c, films, "retour", bilan, [&](dao::Recordset& ligne) {
        const Pret pret = litPret(ligne, anciennete);
        if (pret.aQui.empty()) return false;
        ecrit(ligne, {{"Pret", ""}});
        if (!pret.pourQui.empty()) bilan.attendus.push_back(pret);
        return true;
    });
    return bilan;
}

namespace {

// Lends what nobody has from today, to whom `aQui` says of its holding: "" for nobody.
template <typename Choix>
BilanDesPrets prete(const Contexte& c, const std::vector<db::CleFilm>& films, Choix aQui) {
    BilanDesPrets bilan;
    const Anciennete anciennete(c);
    const std::string date = c.horloge.dateDuJour();
    surChaque(c, films, "prêt", bilan, [&](dao::Recordset& ligne) {
        const Pret pret = litPret(ligne, anciennete);
        if (!dao::egalJet(pret.aQui, "")) {
            bilan.dejaPretes.push_back(pret);
            return false;
        }
        const std::string& personne = aQui(pret);
        if (dao::egalJet(personne, "")) return false;
        ecrit(ligne, {{"Pret", personne},
                      {"Reserve", dao::egalJet(pret.pourQui, personne) ? "" : pret.pourQui},
                      {"Date", date}});
        if (std::ranges::none_of(bilan.personnes, [&](const std::string& p) { return dao::egalJet(p, personne); }))
            bilan.personnes.push_back(personne);
        return true;
    });
    return bilan;
}

// Of the tree: the nodes that are ticked, else those in sight under the heading that is selected, else the one that is.
std::vector<std::int32_t> noeudsChoisis(const browse::VueArbre& vue, const FiltreTitres& filtre) {
    std::vector<std::int32_t> noeuds(vue.coches.begin(), vue.coches.end());
    const auto existe = [&](std::int32_t noeud) { return noeud >= 1 && noeud <= vue.Nodes.Count(); };
    std::erase_if(noeuds, [&](std::int32_t noeud) { return !existe(noeud) || vue.Nodes.estGroupe(noeud); });
    if (!noeuds.empty() || !existe(vue.SelectedItem)) return noeuds;
    if (!vue.Nodes.estGroupe(vue.SelectedItem)) return {vue.SelectedItem};
    const auto& enfants = vue.Nodes.enfants(vue.SelectedItem);
    std::ranges::copy_if(enfants, std::back_inserter(noeuds),
                         [&](std::int32_t noeud) { return filtre.estVu(vue.Nodes, noeud); });
    return noeuds;
}

}  // namespace

BilanDesPrets preteFilms(const Contexte& c, const std::vector<db::CleFilm>& films, const std::string& aQui) {
    if (dao::egalJet(aQui, "")) return {};
    return prete(c, films, [&](const Pret&) -> const std::string& { return aQui; });
}

BilanDesPrets preteAQuiAttend(const Contexte& c, const std::vector<db::CleFilm>& films) {
    return prete(c, films, [](const Pret& pret) -> const std::string& { return pret.pourQui; });
}

std::vector<db::CleFilm> filmsChoisis(const Contexte& c, const FiltreTitres& filtre) {
    std::vector<db::CleFilm> films;
    for (const std::int32_t noeud : noeudsChoisis(c.liste.TreeView1, filtre))
        if (auto film = browse::filmDuNoeud(c, noeud)) films.push_back(std::move(*film));
    return films;
}

std::string texteDuChoix(const browse::VueArbre& vue, const FiltreTitres& filtre) {
    const std::vector<std::int32_t> noeuds = noeudsChoisis(vue, filtre);
    if (noeuds.empty()) return {};
    if (noeuds.size() == 1) return util::entreChevrons(vue.Nodes.Text(noeuds.front()));
    const std::string films = util::phraseCompte(std::ssize(noeuds), "# film", "# films");
    return vue.coches.empty() ? films + " de " + util::entreChevrons(vue.Nodes.Text(vue.SelectedItem))
                              : films + " cochés";
}

}  // namespace ensemble
