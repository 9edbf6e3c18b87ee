#include "platform/jet/LecteurJet.h"

#include "platform/jet/Catalogue.h"
#include "platform/jet/Definition.h"
#include "platform/jet/Lignes.h"
#include "platform/jet/Memos.h"
#include "platform/jet/Pages.h"
#include "platform/jet/Textes.h"
#include "platform/jet/Valeurs.h"
#include "util/Texte.h"

#include <algorithm>

namespace jet {

namespace {

using namespace interne;

constexpr std::string_view kEndommagee = "La base est endommagée : ";

// The fields of a row as the receiver gets them.
class Traduction {
  public:
    Traduction(Pages& pages, Reserve& reserve, std::string_view champAffiche)
        : m_jet4(pages.format().jet4), m_memos(pages, reserve), m_champAffiche(champAffiche) {}

    std::optional<std::string> valeur(const Decoupe& ligne, const Colonne& colonne) {
        if (colonne.type == Type::Booleen) return ligne.bit(colonne) ? "-1" : "0";
        const std::optional<Octets> champ = ligne.champ(colonne);
        if (!champ) return std::nullopt;
        switch (colonne.type) {
            case Type::Texte:
                return texte(colonne, *champ);
            case Type::Memo:
                return texte(colonne, m_memos.lit(*champ));
            case Type::Ole: {
                const Octets octets = m_memos.lit(*champ);
                return std::string(octets.begin(), octets.end());
            }
            default:
                return valeurEnTexte(colonne, *champ);
        }
    }

    [[nodiscard]] std::uint32_t affichesAlterees() const { return m_alterees; }

  private:
    std::string texte(const Colonne& colonne, Octets octets) {
        if (m_champAffiche.empty() || !estUneAffiche(octets, m_jet4) ||
            !util::egalSansCasse(colonne.nom, m_champAffiche))
            return enUtf8(octets, m_jet4);
        Affiche affiche = enOctets(octets, m_jet4);
        if (affiche.alteree) ++m_alterees;
        return std::move(affiche.octets);
    }

    bool m_jet4;
    Memos m_memos;
    std::string_view m_champAffiche;
    std::uint32_t m_alterees = 0;
};

}  // namespace

class Lecteur::Interieur {
  public:
    explicit Interieur(const std::string& chemin) : pages(chemin) {
        try {
            tables = litCatalogue(pages);
        } catch (const Dommage& dommage) {
            throw ErreurJet(std::string(kEndommagee) + dommage.what() + ".");
        }
    }

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

Bilan Lecteur::parcourt(const Table& table, const Recepteur& recepteur, std::string_view champAffiche) {
    Bilan bilan;
    std::string endroit = "table \"" + table.nom + "\"";  // what is being read, for the message
    try {
        Pages& pages = m_interieur->pages;
        const Definition definition = litDefinition(pages, table.page);
        Reserve reserve(pages.taille());
        Lignes lignes(pages, definition, reserve);
        Traduction traduction(pages, reserve, champAffiche);
        std::vector<std::optional<std::string>> valeurs(definition.colonnes.size());
        const std::string debut = endroit + ", ligne ";
        for (;; ++bilan.lignesLues) {
            endroit = debut + std::to_string(bilan.lignesLues + 1);
            const auto octets = lignes.suivante();
            if (!octets) break;
            const Decoupe ligne(pages.format(), definition, *octets);
            for (std::size_t i = 0; i < valeurs.size(); ++i) {
                try {
                    valeurs[i] = traduction.valeur(ligne, definition.colonnes[i]);
                } catch (const Dommage&) {
                    endroit += ", champ \"" + definition.colonnes[i].nom + "\"";
                    throw;
                }
            }
            if (!recepteur(valeurs)) {
                ++bilan.lignesLues;
                bilan.interrompu = true;
                break;
            }
        }
        bilan.affichesAlterees = traduction.affichesAlterees();
        bilan.pagesEcartees = lignes.pagesEcartees();
    } catch (const Dommage& dommage) {
        throw ErreurJet(std::string(kEndommagee) + endroit + " : " + dommage.what() + ".");
    }
    return bilan;
}

Avancement Lecteur::avancement() const {
    const interne::Pages& pages = m_interieur->pages;
    return {std::min<std::uint64_t>(pages.lues(), pages.nombre()), pages.nombre()};
}

}  // namespace jet
