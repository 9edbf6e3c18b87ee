#include "ensemble/MurDAffiches.h"

#include "browse/ZonesEtTris.h"
#include "platform/dao/Comparaison.h"
#include "platform/dao/LigneSupprimee.h"
#include "util/Ascii.h"
#include "util/Nombres.h"
#include "util/Repli.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace ensemble {

namespace {

constexpr std::size_t kAuPlus = 40;  // films of a line: what the widest screen has room for
constexpr int kBonneNote = 7;
constexpr long kGrandCatalogue = 30'000;  // films, whose holdings take too long to be joined for a first page

FilmDuMur litFilm(const dao::Recordset& ligne) {
    return {{ligne.texte("Titre"), ligne.texte("Realisateur")}, ligne.texte("Annee")};
}

// A film owned twice stands once.
void ajoute(std::vector<FilmDuMur>& films, FilmDuMur film) {
    if (films.empty() || !(films.back() == film)) films.push_back(std::move(film));
}

// The last rows of the catalogue, the newest first: no film leaves its row.
std::vector<FilmDuMur> derniersAjouts(const Contexte& c) {
    std::vector<FilmDuMur> films;
    dao::Recordset catalogue = c.base.base.OpenRecordset("Films");
    const long nombre = std::min(catalogue.RecordCount(), static_cast<long>(kAuPlus));
    catalogue.Move(std::numeric_limits<long>::max());
    for (long i = 0; i < nombre; ++i) {
        catalogue.Move(-1);
        static_cast<void>(dao::siPresente([&] { ajoute(films, litFilm(catalogue)); }));
    }
    return films;
}

// So many records from there on, going round within [debut, fin).
std::vector<FilmDuMur> lis(dao::Recordset& liste, long debut, long fin, long depuis) {
    std::vector<FilmDuMur> films;
    for (long i = 0; i < fin - debut && films.size() < kAuPlus; ++i) {
        liste.MoveFirst();
        liste.Move(debut + (depuis + i) % (fin - debut));
        static_cast<void>(dao::siPresente([&] { ajoute(films, litFilm(liste)); }));
    }
    return films;
}

std::string enonce(std::string_view condition, std::string_view tri) {
    return std::string("SELECT * ")
        .append(browse::kJointure)
        .append(" WHERE ")
        .append(condition)
        .append(" ORDER BY ")
        .append(tri)
        .append(" ASC, Titre2 ASC");
}

RangeeDuMur pretes(const Contexte& c) {
    dao::Recordset liste = c.base.base.OpenRecordset(enonce(R"(Pret<>"")", "Pret"));
    const long nombre = liste.RecordCount();
    return {"Prêtés", util::phraseCompte(nombre, "# film", "# films"), lis(liste, 0, nombre, 0)};
}

int noteA(dao::Recordset& liste, long position) {
    int note = 0;
    liste.MoveFirst();
    liste.Move(position);
    static_cast<void>(dao::siPresente([&] { note = util::valEntier(liste.texte("Note")); }));
    return note;
}

// Where the ratings begin that are at least so high, in a listing by rating.
long premiereNote(dao::Recordset& liste, int note) {
    long debut = 0, fin = liste.RecordCount();
    while (debut < fin) {
        const long milieu = debut + (fin - debut) / 2;
        if (noteA(liste, milieu) < note)
            debut = milieu + 1;
        else
            fin = milieu;
    }
    return debut;
}

// Another part of the listing each day.
long depuisAujourdhui(const Contexte& c, long nombre) {
    const auto jour = systeme::dateLue(c.horloge.dateDuJour(), systeme::ordreDesDates());
    if (!jour || nombre == 0) return 0;
    return std::chrono::sys_days(*jour).time_since_epoch().count() * static_cast<long>(kAuPlus / 2) % nombre;
}

RangeeDuMur aVoir(const Contexte& c) {
    dao::Recordset liste = c.base.base.OpenRecordset(enonce(R"(Pret="")", "Note"));
    const long notes = premiereNote(liste, 1), bonnes = premiereNote(liste, kBonneNote);
    if (notes > 0)
        return {"À voir", "possédés, non prêtés, pas encore notés", lis(liste, 0, notes, depuisAujourdhui(c, notes))};
    const long nombre = liste.RecordCount() - bonnes;
    return {"À voir", "possédés, non prêtés, les mieux notés",
            lis(liste, bonnes, liste.RecordCount(), depuisAujourdhui(c, nombre))};
}

void ajouteLaSection(const browse::Arbre& arbre, int groupe, bool entete, const LignesVues* vues, Mur& mur) {
    int nombre = 0;
    const auto enfants = arbre.enfants(groupe);
    if (!vues && !enfants.empty() && !arbre.estGroupe(enfants.front())) {
        nombre = static_cast<int>(enfants.size());
    } else if (vues) {
        for (const std::int32_t noeud : enfants) {
            if (arbre.estGroupe(noeud) || !vues->contient(arbre.position(noeud))) continue;
            mur.filtrees->push_back(noeud);
            ++nombre;
        }
    }
    if (nombre > 0) mur.sections.push_back({groupe, mur.nombre(), nombre, entete, false});
}

std::string sansBlancDevant(std::string_view texte) {
    return std::string(texte.substr(std::min(texte.find_first_not_of(' '), texte.size())));
}

// Of a million titles nearly all begin with another letter.
bool commenceAutrement(std::string_view titre, std::string_view frappe) {
    const std::size_t debut = std::min(titre.find_first_not_of(' '), titre.size());
    return debut < titre.size() && util::estUneLettre(titre[debut]) && util::estUneLettre(frappe.front()) &&
           util::enMinuscule(titre[debut]) != frappe.front();
}

bool commencePar(std::string_view titre, std::string_view frappe, std::string& repli) {
    constexpr std::size_t kOctetsParLettre = 4, kEnPlus = 16;
    if (commenceAutrement(titre, frappe)) return false;
    repli.clear();
    util::ajouteRepli(titre.substr(0, kOctetsParLettre * frappe.size() + kEnPlus), repli);
    const std::string_view texte = repli;
    return texte.substr(std::min(texte.find_first_not_of(' '), texte.size())).starts_with(frappe);
}

}  // namespace

std::vector<RangeeDuMur> rangeesDuMur(const Contexte& c) {
    std::vector<RangeeDuMur> rangees;
    const auto ajouteSiPleine = [&](RangeeDuMur rangee) {
        if (!rangee.films.empty()) rangees.push_back(std::move(rangee));
    };
    try {
        ajouteSiPleine({"Derniers ajouts", "", derniersAjouts(c)});
        if (c.base.base.OpenRecordset("Films").RecordCount() > kGrandCatalogue) return rangees;
        ajouteSiPleine(pretes(c));
        ajouteSiPleine(aVoir(c));
    } catch (const dao::ErreurDao&) {
        return rangees;
    }
    return rangees;
}

bool peutAvoirDesRangees(const browse::EtatListe& liste, const browse::PageDuGroupe& page) {
    const int zone = liste.zoneDeLArbre;
    return page.groupe == 0 && page.films > 0 && (zone == browse::kZoneTous || zone == browse::kZoneMesFilms);
}

int Mur::nombre() const {
    return sections.empty() ? 0 : sections.back().premiere + sections.back().nombre;
}

int Mur::desRangees() const {
    return rangees.empty() ? 0 : sections[rangees.size() - 1].premiere + sections[rangees.size() - 1].nombre;
}

const FilmDuMur* Mur::film(int tuile) const {
    if (tuile >= desRangees()) return nullptr;
    std::size_t rangee = 0;
    while (tuile >= sections[rangee].premiere + sections[rangee].nombre)
        ++rangee;
    return &rangees[rangee].films[static_cast<std::size_t>(tuile - sections[rangee].premiere)];
}

std::int32_t Mur::noeud(const browse::Arbre& arbre, int tuile) const {
    if (tuile < desRangees()) return 0;
    if (filtrees) return (*filtrees)[static_cast<std::size_t>(tuile - desRangees())];
    const auto apres = std::upper_bound(sections.begin(), sections.end(), tuile,
                                        [](int cherche, const Section& section) { return cherche < section.premiere; });
    const Section& section = *(apres - 1);
    return arbre.enfants(section.groupe)[static_cast<std::size_t>(tuile - section.premiere)];
}

std::string Mur::titre(const browse::Arbre& arbre, std::size_t section) const {
    if (section < rangees.size()) return rangees[section].titre;
    const Section& voulue = sections[section];
    if (!voulue.entete) return {};
    return voulue.groupe == 0 ? nomDeLaListe : sansBlancDevant(arbre.texteDuGroupe(voulue.groupe));
}

std::string Mur::precision(std::size_t section) const {
    if (section < rangees.size()) return rangees[section].precision;
    const Section& voulue = sections[section];
    return voulue.entete && voulue.groupe != 0 ? util::phraseCompte(voulue.nombre, "# film", "# films") : "";
}

Mur murDAffiches(const browse::EtatListe& liste, const browse::PageDuGroupe& page, const LignesVues* vues,
                 const std::vector<RangeeDuMur>& rangees) {
    const browse::Arbre& arbre = liste.TreeView1.Nodes;
    Mur mur;
    mur.rangees = rangees;
    for (const RangeeDuMur& rangee : rangees)
        mur.sections.push_back({0, mur.nombre(), static_cast<int>(rangee.films.size()), true, true});
    if (vues) mur.filtrees.emplace();
    if (!rangees.empty()) mur.nomDeLaListe = page.nom;
    if (page.groupe != 0) {
        ajouteLaSection(arbre, page.groupe, false, vues, mur);
        return mur;
    }
    const auto racines = arbre.enfants(0);
    if (!racines.empty() && !arbre.estGroupe(racines.front())) {
        ajouteLaSection(arbre, 0, !mur.nomDeLaListe.empty(), vues, mur);
        return mur;
    }
    for (const std::int32_t racine : racines)
        ajouteLaSection(arbre, racine, true, vues, mur);
    return mur;
}

std::string compteDuMur(const Mur& mur, const browse::PageDuGroupe& page) {
    return util::phraseCompte(mur.nombre() - mur.desRangees(), "# film", "# films") + " sur " +
           std::to_string(page.films);
}

std::string nomDuFilm(std::string_view titre, std::string_view realisateur, std::string_view annee) {
    std::string nom(titre);
    if (!realisateur.empty()) nom.append(", de ").append(realisateur);
    if (!annee.empty()) nom.append(", ").append(annee);
    return nom;
}

int tuileQuiCommencePar(const Mur& mur, const browse::Arbre& arbre, std::string_view frappe, int depuis) {
    std::string voulu, repli;
    util::ajouteRepli(frappe, voulu);
    const int saut = mur.desRangees(), nombre = mur.nombre() - saut;
    if (voulu.empty() || nombre == 0) return -1;
    const int premier = std::max(0, depuis - saut);
    for (int pas = 0; pas < nombre; ++pas) {
        const int tuile = saut + (premier % nombre + pas) % nombre;
        if (commencePar(arbre.Text(mur.noeud(arbre, tuile)), voulu, repli)) return tuile;
    }
    return -1;
}

}  // namespace ensemble
