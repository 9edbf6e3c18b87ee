#include "platform/jet/Catalogue.h"

#include "platform/jet/Lignes.h"
#include "platform/jet/Textes.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace jet::interne {

namespace {

constexpr std::uint32_t kPageDuCatalogue = 2;
constexpr std::uint16_t kObjetTable = 1;
constexpr std::uint32_t kDuSysteme = 0x80000002;
constexpr std::uint32_t kNumeroDePage = 0x00FFFFFF;

const Colonne& colonne(const Definition& definition, std::string_view nom) {
    const auto trouvee = std::ranges::find(definition.colonnes, nom, &Colonne::nom);
    if (trouvee == definition.colonnes.end()) throw Dommage("la liste de ses tables est illisible");
    return *trouvee;
}

Nature natureDe(Type type) {
    switch (type) {
        case Type::Booleen:
            return Nature::Booleen;
        case Type::Octet:
        case Type::Entier16:
        case Type::Entier32:
        case Type::Monetaire:
        case Type::Reel32:
        case Type::Reel64:
        case Type::Decimal:
            return Nature::Nombre;
        case Type::Date:
            return Nature::Date;
        case Type::Texte:
        case Type::Identifiant:
            return Nature::Texte;
        case Type::Memo:
            return Nature::Memo;
        case Type::Binaire:
        case Type::Ole:
            break;
    }
    return Nature::Octets;
}

Table decrit(Pages& pages, std::string nom, std::uint32_t page) {
    Table table{std::move(nom), {}, 0, page};
    try {
        const Definition definition = litDefinition(pages, page);
        for (const Colonne& champ : definition.colonnes)
            table.champs.push_back({champ.nom, natureDe(champ.type)});
        table.lignesDeclarees = definition.lignes;
    } catch (const Dommage&) {
        table.champs.clear();  // told when the table is read: the others are sound
    }
    return table;
}

}  // namespace

std::vector<Table> litCatalogue(Pages& pages) {
    const Definition definition = litDefinition(pages, kPageDuCatalogue);
    const Colonne &id = colonne(definition, "Id"), &nom = colonne(definition, "Name");
    const Colonne &type = colonne(definition, "Type"), &drapeaux = colonne(definition, "Flags");
    Reserve reserve(pages.taille());
    Lignes lignes(pages, definition, reserve);
    std::vector<Table> tables;
    std::set<std::uint32_t> connues;
    while (const auto ligne = lignes.suivante()) {
        const Decoupe decoupe(pages.format(), definition, *ligne);
        const auto champId = decoupe.champ(id), champNom = decoupe.champ(nom), champType = decoupe.champ(type);
        const auto champDrapeaux = decoupe.champ(drapeaux);
        if (!champId || !champNom || !champType || u16(*champType, 0) != kObjetTable) continue;
        if (champDrapeaux && (u32(*champDrapeaux, 0) & kDuSysteme) != 0) continue;
        const std::uint32_t page = u32(*champId, 0) & kNumeroDePage;
        if (connues.insert(page).second) tables.push_back(decrit(pages, enUtf8(*champNom, pages.format().jet4), page));
    }
    return tables;
}

}  // namespace jet::interne
