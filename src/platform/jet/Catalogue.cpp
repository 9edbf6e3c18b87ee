#include "platform/jet/Catalogue.h"

#include "platform/jet/Lignes.h"
#include "platform/jet/Textes.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace jet::interne {

namespace {

constexpr std::uint32_t kPageDuCatalogue = 2;
constexpr std::uint16_t kObjetTable = 1;
constexpr std::uint32_t kDuSysteme = 0x80000002;
constexpr std::uint32_t kNumeroDePage = 0x00FFFFFF;
constexpr std::uint32_t kAnonymesMax = 1000;

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

// The table that a row of the list describes; none when it is another object, or the system's.
class Objets {
  public:
    explicit Objets(Pages& pages) : m_pages(pages), m_definition(litDefinition(pages, kPageDuCatalogue)) {}
    Objets(const Objets&) = delete;
    Objets& operator=(const Objets&) = delete;
    ~Objets() = default;

    [[nodiscard]] const Definition& definition() const { return m_definition; }
    [[nodiscard]] std::optional<std::pair<std::string, std::uint32_t>> table(Octets ligne) const {
        const Decoupe decoupe(m_pages.format(), m_definition, ligne);
        const auto id = decoupe.champ(m_id), nom = decoupe.champ(m_nom), type = decoupe.champ(m_type);
        const auto drapeaux = decoupe.champ(m_drapeaux);
        if (!id || !nom || !type || u16(*type, 0) != kObjetTable) return std::nullopt;
        if (drapeaux && (u32(*drapeaux, 0) & kDuSysteme) != 0) return std::nullopt;
        return std::pair(enUtf8(*nom, m_pages.format().jet4), u32(*id, 0) & kNumeroDePage);
    }

  private:
    Pages& m_pages;
    Definition m_definition;
    const Colonne &m_id = colonne(m_definition, "Id"), &m_nom = colonne(m_definition, "Name");
    const Colonne &m_type = colonne(m_definition, "Type"), &m_drapeaux = colonne(m_definition, "Flags");
};

// Adds the tables of the list up to its end. Damage that `tolere` does not pass over ends it.
void ajouteLesNommees(Pages& pages, std::vector<Table>& tables, bool tolere) {
    const Objets objets(pages);
    Reserve reserve(pages);
    Lignes lignes(pages, objets.definition(), reserve, tolere);
    lignes.suitLaCarte();
    std::set<std::uint32_t> connues;
    for (;;) {
        try {
            const auto ligne = lignes.suivante();
            if (!ligne) return;
            auto table = objets.table(*ligne);
            if (table && connues.insert(table->second).second)
                tables.push_back(decrit(pages, std::move(table->first), table->second));
        } catch (const Dommage&) {
            if (!tolere) throw;
        }
    }
}

void ajouteLesAnonymes(Pages& pages, std::vector<Table>& tables) {
    std::set<std::uint32_t> connues;
    for (const Table& table : tables)
        connues.insert(table.page);
    const std::size_t limite = tables.size() + kAnonymesMax;
    for (std::uint32_t page = 1; page < pages.nombre() && tables.size() < limite; ++page) {
        try {
            if (connues.contains(page) || !estUneDefinition(pages.lit(page))) continue;
            if (Table table = decrit(pages, {}, page); !table.champs.empty()) tables.push_back(std::move(table));
        } catch (const Dommage&) {  // the page cannot be read
        }
    }
}

}  // namespace

std::vector<Table> litCatalogue(Pages& pages) {
    std::vector<Table> tables;
    ajouteLesNommees(pages, tables, false);
    return tables;
}

std::vector<Table> chercheLesTables(Pages& pages) {
    std::vector<Table> tables;
    try {
        ajouteLesNommees(pages, tables, true);
    } catch (const Dommage&) {  // those without a name are all there is
    }
    ajouteLesAnonymes(pages, tables);
    return tables;
}

}  // namespace jet::interne
