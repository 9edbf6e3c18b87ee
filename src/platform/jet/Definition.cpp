#include "platform/jet/Definition.h"

#include "platform/jet/Textes.h"

namespace jet::interne {

namespace {

constexpr std::uint8_t kPageDefinition = 0x02;
constexpr std::size_t kPlaceSuite = 4;  // of the next page's number; 0 on the last
constexpr std::size_t kDebutSuite = 8;  // what follows a page's head goes on where the page before ended
constexpr std::size_t kPagesMax = 64;   // 255 fields with the longest names, and 32 indexes, take less
constexpr std::size_t kColonnesMax = 256;
constexpr std::uint8_t kDrapeauFixe = 0x01;

std::vector<std::uint8_t> rassemble(Pages& pages, std::uint32_t page) {
    std::vector<std::uint8_t> octets;
    for (std::size_t nombre = 0; page != 0; ++nombre) {
        const Octets lue = pages.lit(page);
        if (!estUneDefinition(lue) || nombre == kPagesMax) throw Dommage("sa définition est illisible");
        const Octets utile = lue.subspan(nombre == 0 ? 0 : kDebutSuite);
        octets.insert(octets.end(), utile.begin(), utile.end());
        page = u32(lue, kPlaceSuite);
    }
    return octets;
}

Colonne litColonne(const Format& format, Octets octets) {
    const auto& places = format.colonne;
    Colonne colonne;
    colonne.type = static_cast<Type>(u8(octets, 0));
    colonne.fixe = (u8(octets, places.drapeaux) & kDrapeauFixe) != 0;
    colonne.numero = u16(octets, places.numero);
    colonne.variable = u16(octets, places.variable);
    colonne.placeFixe = u16(octets, places.fixe);
    colonne.taille = u16(octets, places.taille);
    colonne.echelle = u8(octets, places.echelle);
    return colonne;
}

}  // namespace

bool estUneDefinition(Octets page) {
    return page[0] == kPageDefinition;
}

Definition litDefinition(Pages& pages, std::uint32_t page) {
    const Format& format = pages.format();
    const auto& places = format.table;
    const std::vector<std::uint8_t> octets = rassemble(pages, page);
    Definition definition;
    definition.page = page;
    definition.lignes = u32(octets, places.lignes);
    definition.carte = litPointeur(octets, places.carte);
    definition.colonnesMax = u16(octets, places.variables - 2);
    definition.aDesVariables = u16(octets, places.variables) > 0;

    const std::size_t nombre = u16(octets, places.colonnes);
    if (nombre == 0 || nombre > kColonnesMax)
        throw Dommage("sa définition annonce " + std::to_string(nombre) + " champs");
    std::size_t place = places.debutColonnes + std::size_t{u32(octets, places.index)} * places.tailleIndex;
    for (std::size_t i = 0; i < nombre; ++i, place += places.tailleColonne)
        definition.colonnes.push_back(litColonne(format, morceau(octets, place, places.tailleColonne)));

    const std::size_t tailleLongueur = format.jet4 ? 2 : 1;  // of a name's length, which stands before it
    for (Colonne& colonne : definition.colonnes) {
        const std::size_t longueur = entier(octets, place, tailleLongueur);
        colonne.nom = enUtf8(morceau(octets, place + tailleLongueur, longueur), format.jet4);
        place += tailleLongueur + longueur;
    }
    return definition;
}

}  // namespace jet::interne
