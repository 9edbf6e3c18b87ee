#include "platform/jet/TableEnCours.h"

#include "platform/jet/OctetsEcrits.h"
#include "platform/jet/TextesEcrits.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace jet::interne {

namespace {

constexpr std::uint64_t kMagique = 1625, kMagiqueIndex = 1923;  // what definitions bear at several places
constexpr std::size_t kColonnesParIndex = 10;
constexpr std::uint16_t kAucune = 0xFFFF;

bool aUnTexte(Type type) {
    return type == Type::Texte || type == Type::Memo;
}

std::string nomEcrit(const std::string& nom) {
    const std::string octets = texteJet(enUnites(nom).unites, false);
    return petit(octets.size(), 2) + octets;
}

// The system's are told by their names' order.
std::vector<std::size_t> ordre(const std::vector<ColonneEcrite>& colonnes, Usage usage) {
    std::vector<std::size_t> rangs(colonnes.size());
    std::iota(rangs.begin(), rangs.end(), std::size_t{0});
    const auto nom = [&colonnes](std::size_t rang) -> const std::string& { return colonnes[rang].nom; };
    if (usage == Usage::Systeme) std::ranges::sort(rangs, {}, nom);
    return rangs;
}

}  // namespace

std::size_t tailleFixe(Type type) {
    switch (type) {
        case Type::Octet:
            return 1;
        case Type::Entier16:
            return 2;
        case Type::Entier32:
            return 4;
        case Type::Reel64:
        case Type::Date:
            return 8;
        default:
            return 0;
    }
}

bool estFixe(Type type) {
    return type == Type::Booleen || tailleFixe(type) > 0;
}

bool estLong(Type type) {
    return type == Type::Memo || type == Type::Ole;
}

TableEnCours::TableEnCours(FichierDePages& fichier, std::uint32_t definition, Usage usage,
                           std::vector<ColonneEcrite> colonnes, std::vector<IndexDeTable> index)
    : m_fichier(fichier),
      m_page(definition),
      m_usage(usage),
      m_colonnes(std::move(colonnes)),
      m_descriptions(std::move(index)),
      m_index(m_descriptions.size()),
      m_lignes(fichier, definition) {
    for (std::size_t i = 0; i < m_colonnes.size(); ++i)
        if (estLong(m_colonnes[i].type)) m_longues.emplace(i, ValeursLongues(fichier));
}

void TableEnCours::ligne(std::span<const std::optional<std::string>> valeurs, std::vector<std::string> cles) {
    const Pointeur place = m_lignes.ajoute(assemble(valeurs));
    for (std::size_t i = 0; i < m_index.size(); ++i) {
        if (!m_index[i].tenu) continue;
        m_index[i].arbre.ajoute(std::move(cles[i]), place);
        ++m_index[i].nombre;
    }
}

void TableEnCours::omet(std::size_t index) {
    m_index[index] = {};
    m_index[index].tenu = false;
}

std::string TableEnCours::assemble(std::span<const std::optional<std::string>> valeurs) {
    std::string fixes, variables, masque((m_colonnes.size() + 7) / 8, '\0');
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < m_colonnes.size(); ++i) {
        const Type type = m_colonnes[i].type;
        if (valeurs[i]) masque[i / 8] = static_cast<char>(masque[i / 8] | 1 << i % 8);
        if (estFixe(type)) {
            std::string valeur = valeurs[i].value_or("");
            valeur.resize(tailleFixe(type));
            fixes += valeur;
            continue;
        }
        places.push_back(variables.size());
        if (valeurs[i]) variables += estLong(type) ? m_longues.at(i).champ(*valeurs[i]) : *valeurs[i];
    }
    const std::size_t debut = 2 + fixes.size();
    std::string fin = petit(debut + variables.size(), 2);
    for (std::size_t i = places.size(); i-- > 0;)
        fin += petit(debut + places[i], 2);
    const std::string ligne = petit(m_colonnes.size(), 2) + fixes + variables + fin + petit(places.size(), 2) + masque;
    if (ligne.size() > kLigneMax) throw std::length_error("ligne");
    return ligne;
}

std::string TableEnCours::decritLesColonnes() const {
    constexpr std::size_t kTailleTexte = 510;
    struct Description {
        std::size_t variable, fixe;
    };
    std::vector<Description> places;
    for (std::size_t fixe = 0, variable = 0; const ColonneEcrite& colonne : m_colonnes) {
        places.push_back({variable, fixe});
        estFixe(colonne.type) ? fixe += tailleFixe(colonne.type) : ++variable;
    }
    const auto rangs = ordre(m_colonnes, m_usage);
    std::string colonnes, noms;
    for (const std::size_t i : rangs) {
        const ColonneEcrite& colonne = m_colonnes[i];
        const bool fixe = estFixe(colonne.type), utilisateur = m_usage == Usage::Utilisateur;
        constexpr std::uint64_t kOrdreGeneral = 0x0409;
        const std::size_t taille = colonne.type == Type::Booleen ? 1
                                   : fixe                        ? tailleFixe(colonne.type)
                                   : estLong(colonne.type)       ? 0
                                                                 : kTailleTexte;
        colonnes += petit(static_cast<std::uint8_t>(colonne.type), 1) + petit(kMagique, 4) + petit(i, 2) +
                    petit(places[i].variable, 2) + petit(utilisateur ? i : 0, 2) +
                    petit(!utilisateur || aUnTexte(colonne.type) ? kOrdreGeneral : 0, 4) +
                    petit(colonne.marques | (fixe ? 1U : 0U), 1) + petit(colonne.compression, 1) + petit(0, 4) +
                    petit(fixe && colonne.type != Type::Booleen ? places[i].fixe : 0, 2) + petit(taille, 2);
        noms += nomEcrit(colonne.nom);
    }
    return colonnes + noms;
}

std::string TableEnCours::decritLesIndex(Rangement& cartes) const {
    std::string reels, logiques, noms;
    std::uint64_t numero = 0;
    for (std::size_t i = 0; i < m_index.size(); ++i) {
        if (!m_index[i].tenu) continue;
        const IndexDeTable& index = m_descriptions[i];
        std::string colonnes;
        for (const std::size_t colonne : index.colonnes)
            colonnes += petit(colonne, 2) + petit(1, 1);  // ascending
        while (colonnes.size() < 3 * kColonnesParIndex)
            colonnes += petit(kAucune, 2) + petit(0, 1);
        reels += petit(kMagiqueIndex, 4) + colonnes +
                 enOctets(ecritCarte(m_fichier, cartes, m_index[i].arbre.pages())) + petit(m_index[i].racine, 4) +
                 petit(0, 4) + petit(index.marques, 1) + petit(0, 5);
        const std::uint64_t propage = m_usage == Usage::Systeme ? 0x0404 : 0;
        logiques += petit(kMagique, 4) + petit(numero, 4) + petit(numero, 4) + petit(0, 1) + petit(0xFFFFFFFF, 4) +
                    petit(0, 4) + petit(propage, 2) + petit(index.primaire ? 1 : 0, 1) + petit(0, 4);
        noms += nomEcrit(index.nom);
        ++numero;
    }
    return reels + logiques + noms;
}

std::string TableEnCours::definition(Rangement& cartes) {
    const auto nombreDIndex = static_cast<std::uint64_t>(std::ranges::count_if(m_index, &Index::tenu));
    const auto variables = static_cast<std::uint64_t>(
        std::ranges::count_if(m_colonnes, [](const ColonneEcrite& colonne) { return !estFixe(colonne.type); }));
    const auto& pages = m_lignes.pages();
    std::string octets = petit(kMagique, 4) + petit(m_lignes.lignes(), 4) + petit(0, 4) + petit(1, 4) +
                         std::string(12, '\0') + static_cast<char>(m_usage) + petit(m_colonnes.size(), 2) +
                         petit(variables, 2) + petit(m_colonnes.size(), 2) + petit(nombreDIndex, 4) +
                         petit(nombreDIndex, 4) + enOctets(ecritCarte(m_fichier, cartes, pages));
    octets += enOctets(ecritCarte(m_fichier, cartes, pages.empty() ? pages : std::vector<std::uint32_t>{pages.back()}));
    for (const Index& index : m_index)
        if (index.tenu) octets += petit(0, 4) + petit(index.nombre, 4) + petit(0, 4);
    octets += decritLesColonnes() + decritLesIndex(cartes);
    for (const auto& [colonne, valeurs] : m_longues)
        octets += petit(colonne, 2) + enOctets(ecritCarte(m_fichier, cartes, valeurs.pages())) +
                  enOctets(ecritCarte(m_fichier, cartes, valeurs.pagesLibres()));
    return octets + petit(kAucune, 2);
}

void TableEnCours::acheve() {
    constexpr std::size_t kEntete = 12, kReserve = 8;
    m_lignes.acheve();
    for (auto& longues : m_longues)
        longues.second.acheve();
    for (Index& index : m_index)
        if (index.tenu) index.racine = index.arbre.ecrit(m_fichier, m_page);
    Rangement cartes(m_fichier, 0);
    const std::string octets = definition(cartes);
    cartes.acheve();
    if (kEntete + octets.size() + kReserve > kTaillePage) throw std::length_error("table");
    std::string page(kTaillePage, '\0');
    pose(page, 0, 0x0102, 2);
    pose(page, 2, kTaillePage - kReserve - kEntete - octets.size(), 2);
    pose(page, 8, kEntete + octets.size(), 4);
    pose(page, kEntete, octets);
    m_fichier.ecrit(m_page, page);
}

}  // namespace jet::interne
