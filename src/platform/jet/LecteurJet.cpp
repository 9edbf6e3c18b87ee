#include "platform/jet/LecteurJet.h"

#include "platform/jet/Pages.h"
#include "util/Texte.h"

#include <algorithm>

namespace jet {

class Lecteur::Interieur {
  public:
    explicit Interieur(const std::string& chemin) : pages(chemin) {}

    interne::Pages pages;
    std::vector<Table> tables;
};

Lecteur::Lecteur(const std::string& chemin) : m_interieur(std::make_unique<Interieur>(chemin)) {}
Lecteur::Lecteur(Lecteur&&) noexcept = default;
Lecteur& Lecteur::operator=(Lecteur&&) noexcept = default;
Lecteur::~Lecteur() = default;

const std::vector<Table>& Lecteur::tables() const {
    return m_interieur->tables;
}

const Table* Lecteur::table(std::string_view nom) const {
    const auto trouvee = std::ranges::find_if(
        m_interieur->tables, [nom](const Table& table) { return util::egalSansCasse(table.nom, nom); });
    return trouvee == m_interieur->tables.end() ? nullptr : &*trouvee;
}

Bilan Lecteur::parcourt(const Table& table, const Recepteur&, std::string_view) {
    throw ErreurJet("La table \"" + table.nom + "\" ne peut pas être lue.");
}

Avancement Lecteur::avancement() const {
    const interne::Pages& pages = m_interieur->pages;
    return {std::min<std::uint64_t>(pages.lues(), pages.nombre()), pages.nombre()};
}

}  // namespace jet
