#include "ensemble/FiltreTitres.h"

#include "platform/dao/LigneSupprimee.h"
#include "platform/dao/PlaceGardee.h"
#include "util/Ascii.h"
#include "util/Nombres.h"
#include "util/Repli.h"

#include <algorithm>
#include <cstring>

namespace ensemble {

namespace {

constexpr std::array<const char*, 5> kChamps{"Titre", "Realisateur", "Annee", "Genre", "Acteurs"};
constexpr char kEntreChamps = '\n';  // no word holds it
constexpr std::size_t kLignesParPas = 256;

// Letters and digits each have a bit of their own.
std::uint64_t bitDeLettre(char lettre) {
    if (util::estUneMinuscule(lettre)) return 1ULL << (lettre - 'a');
    if (util::estUnChiffre(lettre)) return 1ULL << (26 + lettre - '0');
    return 1ULL << (36 + static_cast<unsigned char>(lettre) % 28);
}

bool estDecisive(const std::string& mot) {
    return mot.size() == 1 && (util::estUneMinuscule(mot[0]) || util::estUnChiffre(mot[0]));
}

bool contient(std::string_view texte, std::string_view mot) {
    return memmem(texte.data(), texte.size(), mot.data(), mot.size()) != nullptr;
}

std::string_view coupeEntiere(std::string_view texte, std::size_t auPlus) {
    if (texte.size() <= auPlus) return texte;
    while (auPlus > 0 && (static_cast<unsigned char>(texte[auPlus]) & 0xc0) == 0x80)
        --auPlus;
    return texte.substr(0, auPlus);
}

std::string groupeParMilliers(long nombre) {
    std::string texte = std::to_string(nombre);
    for (std::size_t i = texte.size(); i > 3; i -= 3)
        texte.insert(i - 3, "\u202f");
    return texte;
}

std::string cleDeLaLigne(const dao::Recordset& liste, dao::Colonne titre, dao::Colonne realisateur) {
    std::string cle(liste.vue(titre));
    return (cle += kEntreChamps).append(liste.vue(realisateur));
}

}  // namespace

void FiltreTitres::ajouteSignes(std::string_view texte, Signes& signes) {
    for (std::size_t i = 0; i < texte.size(); ++i) {
        signes.lettres |= bitDeLettre(texte[i]);
        if (i == 0) continue;
        const std::uint32_t avant = static_cast<unsigned char>(texte[i - 1]),
                            lettre = static_cast<unsigned char>(texte[i]);
        const std::uint32_t place = ((avant << 8 | lettre) * 0x9e3779b1U) >> 23;
        signes.paires[place / 64] |= 1ULL << (place % 64);
    }
}

// A word that stands in another is asked for by that one.
std::vector<std::string> FiltreTitres::motsDe(std::string_view saisie) {
    std::string repli;
    util::ajouteRepli(saisie, repli);
    std::vector<std::string> mots;
    for (std::size_t debut = 0; debut < repli.size();) {
        const std::size_t fin = std::min(repli.find(' ', debut), repli.size());
        if (fin > debut) mots.push_back(repli.substr(debut, fin - debut));
        debut = fin + 1;
    }
    std::sort(mots.begin(), mots.end(), [](const auto& a, const auto& b) { return a.size() > b.size(); });
    std::vector<std::string> gardes;
    for (std::string& mot : mots)
        if (std::none_of(gardes.begin(), gardes.end(), [&](const std::string& autre) { return contient(autre, mot); }))
            gardes.push_back(std::move(mot));
    return gardes;
}

// Whether what has all of `mots` has all of `autres`.
bool FiltreTitres::prolonge(const std::vector<std::string>& mots, const std::vector<std::string>& autres) {
    return std::all_of(autres.begin(), autres.end(), [&](const std::string& autre) {
        return std::any_of(mots.begin(), mots.end(), [&](const std::string& mot) { return contient(mot, autre); });
    });
}

void FiltreTitres::suisLaListe(const Contexte& c) {
    const int remplissage = c.liste.TreeView1.Nodes.remplissages();
    if (remplissage == m_remplissage) return;
    FiltreTitres neuf;
    neuf.m_version = m_version;
    neuf.m_mots = std::move(m_mots);
    if (m_base == c.chemins.base) neuf.m_limites = std::move(m_limites);
    neuf.m_base = c.chemins.base;
    *this = std::move(neuf);
    m_remplissage = remplissage;
    m_lignes = c.base.liste.estOuvert() ? static_cast<std::size_t>(c.base.liste.RecordCount()) : 0;
    m_fins.reserve(m_lignes);
    m_signes.reserve(m_lignes);
    for (std::size_t i = 0; m_lignes > 0 && i < kChamps.size(); ++i)
        m_colonnes[i] = c.base.liste.colonne(kChamps[i]);
    m_limiteALire = estLimite();
    if (m_limiteALire) m_limite = LignesVues(m_lignes);
}

bool FiltreTitres::estVu(const browse::Arbre& arbre, int noeud) const {
    return !actif() || m_perimees || m_remplissage != arbre.remplissages() || m_vues.contient(arbre.position(noeud));
}

bool FiltreTitres::prepare(const Contexte& c, std::chrono::milliseconds duree) {
    suisLaListe(c);
    const auto fin = c.montre() + duree;
    while (lues() < m_lignes && c.montre() < fin)
        lit(c, kLignesParPas);
    return lues() == m_lignes;
}

bool FiltreTitres::tarderait(const Contexte& c) const {
    const browse::Arbre& arbre = c.liste.TreeView1.Nodes;
    if (!c.base.liste.estOuvert()) return false;
    const std::size_t connues = m_remplissage == arbre.remplissages() ? lues() : 0;
    return c.base.liste.RecordCount() - static_cast<long>(connues) > kLuesDUnCoup;
}

void FiltreTitres::lit(const Contexte& c, std::size_t lignes) {
    dao::Recordset& liste = c.base.liste;
    const std::size_t fin = std::min(m_lignes, lues() + lignes);
    if (lues() == fin) return;
    const dao::PlaceGardee garde(liste);
    liste.MoveFirst();
    liste.Move(static_cast<long>(lues()));
    for (; lues() < fin; liste.MoveNext())
        ajouteLigne(liste);
}

// A row that someone deleted meanwhile has no text.
void FiltreTitres::ajouteLigne(dao::Recordset& liste) {
    if (m_limiteALire) suisLaLimite(liste);
    const std::size_t debut = m_textes.size();
    const bool presente = dao::siPresente([&] {
        const bool plein = debut > kOctetsMax;
        ajouteChamp(liste.vue(m_colonnes[0]), plein ? kOctetsParChamp / 16 : kOctetsParChamp);
        for (std::size_t i = 1; !plein && i < m_colonnes.size(); ++i)
            ajouteChamp(liste.vue(m_colonnes[i]), kOctetsParChamp);
    });
    if (!presente) m_textes.resize(debut);
    ajouteSignes(std::string_view(m_textes).substr(debut), m_signes.emplace_back());
    m_fins.push_back(static_cast<std::uint32_t>(m_textes.size()));
}

void FiltreTitres::suisLaLimite(const dao::Recordset& liste) {
    dao::siPresente([&] {
        const bool voulu = m_limites->contains(cleDeLaLigne(liste, m_colonnes[0], m_colonnes[1]));
        if (voulu) m_limite->ajoute(static_cast<std::uint32_t>(lues()) + 1);
    });
}

void FiltreTitres::ajouteChamp(std::string_view valeur, std::size_t auPlus) {
    util::ajouteRepli(coupeEntiere(valeur, auPlus), m_textes);
    m_textes += kEntreChamps;
}

bool FiltreTitres::convient(std::size_t rang, const Signes& voulus) const {
    const Signes& signes = m_signes[rang];
    if ((signes.lettres & voulus.lettres) != voulus.lettres) return false;
    for (std::size_t i = 0; i < voulus.paires.size(); ++i)
        if ((signes.paires[i] & voulus.paires[i]) != voulus.paires[i]) return false;
    const std::size_t debut = rang == 0 ? 0 : m_fins[rang - 1];
    const std::string_view texte = std::string_view(m_textes).substr(debut, m_fins[rang] - debut);
    return std::all_of(m_mots.begin(), m_mots.end(),
                       [texte](const std::string& mot) { return estDecisive(mot) || contient(texte, mot); });
}

const LignesVues& FiltreTitres::filtre(const Contexte& c, std::string_view saisie) {
    suisLaListe(c);
    lit(c, m_lignes);
    std::vector<std::string> mots = motsDe(saisie);
    const bool suite = !m_perimees && prolonge(mots, m_mots);
    const LignesVues depart = suite ? std::move(m_vues) : m_limite ? *m_limite : LignesVues::toutes(m_lignes);
    m_perimees = false;
    ++m_version;
    m_mots = std::move(mots);
    Signes voulus;
    for (const std::string& mot : m_mots)
        ajouteSignes(mot, voulus);
    m_vues = LignesVues(m_lignes);
    for (std::uint32_t position = 1; position <= m_lignes; ++position)
        if (depart.contient(position) && convient(position - 1, voulus)) m_vues.ajoute(position);
    return m_vues;
}

void FiltreTitres::limite(const Contexte& c, const std::vector<std::uint32_t>& lignes) {
    suisLaListe(c);
    m_limite = LignesVues(m_lignes);
    m_limites.emplace();
    m_limiteALire = false;
    m_perimees = true;
    if (m_lignes == 0) return;
    dao::Recordset& liste = c.base.liste;
    const dao::PlaceGardee garde(liste);
    for (const std::uint32_t position : lignes) {
        if (position < 1 || position > m_lignes) continue;
        m_limite->ajoute(position);
        liste.MoveFirst();
        liste.Move(static_cast<long>(position) - 1);
        dao::siPresente([&] { m_limites->insert(cleDeLaLigne(liste, m_colonnes[0], m_colonnes[1])); });
    }
}

void FiltreTitres::leveLaLimite() {
    m_limite.reset();
    m_limites.reset();
    m_limiteALire = false;
    m_perimees = true;
}

std::string FiltreTitres::texteDuCompte() const {
    if (!actif()) return {};
    if (m_vues.nombre() == 0) return "Aucun titre ne convient";
    return groupeParMilliers(m_vues.nombre()) + (m_vues.nombre() == 1 ? " titre" : " titres") + " sur " +
           groupeParMilliers(static_cast<long>(m_lignes));
}

std::vector<std::int32_t> FiltreTitres::noeudsVus(const browse::Arbre& arbre) const {
    std::vector<std::int32_t> noeuds;
    const auto ajouteLeFilm = [&](std::int32_t film) {
        if (m_vues.contient(arbre.position(film))) noeuds.push_back(film);
    };
    for (const std::int32_t racine : arbre.enfants(0)) {
        if (!arbre.estGroupe(racine)) {
            ajouteLeFilm(racine);
            continue;
        }
        noeuds.push_back(racine);
        for (const std::int32_t film : arbre.enfants(racine))
            ajouteLeFilm(film);
        if (noeuds.back() == racine) noeuds.pop_back();
    }
    return noeuds;
}

std::vector<FiltreTitres::Plage> FiltreTitres::marques(std::string_view titre) const {
    std::vector<Plage> plages;
    const util::RepliSitue repli = util::repliSitue(titre);
    for (const std::string& mot : m_mots)
        for (std::size_t ou = repli.texte.find(mot); ou != std::string::npos;
             ou = repli.texte.find(mot, ou + mot.size()))
            plages.push_back({repli.debuts[ou], repli.fins[ou + mot.size() - 1]});
    std::sort(plages.begin(), plages.end(), [](const Plage& a, const Plage& b) { return a.debut < b.debut; });
    std::vector<Plage> jointes;
    for (const Plage& plage : plages) {
        if (!jointes.empty() && plage.debut <= jointes.back().fin)
            jointes.back().fin = std::max(jointes.back().fin, plage.fin);
        else
            jointes.push_back(plage);
    }
    return jointes;
}

std::size_t FiltreTitres::octets() const {
    return m_textes.capacity() + m_fins.capacity() * sizeof m_fins[0] + m_signes.capacity() * sizeof m_signes[0];
}

}  // namespace ensemble
