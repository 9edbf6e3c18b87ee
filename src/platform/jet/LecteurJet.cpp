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

// One reading of a table, sound or not.
class Lecture {
  public:
    Lecture(Pages& pages, const Table& table, const RecepteurPartiel& recepteur, std::string_view champAffiche,
            bool acharnee)
        : m_pages(pages),
          m_table(table),
          m_recepteur(recepteur),
          m_definition(litDefinition(pages, table.page)),
          m_reserve(pages),
          m_lignes(pages, m_definition, m_reserve, acharnee),
          m_traduction(pages, m_reserve, champAffiche),
          m_valeurs(m_definition.colonnes.size()),
          m_acharnee(acharnee) {
        if (m_valeurs.size() != table.champs.size()) throw Dommage("sa définition a changé pendant sa lecture");
    }

    Bilan execute() {
        try {
            m_lignes.suitLaCarte();
        } catch (const Dommage& dommage) {
            perd({Perte::Quoi::LaTable, 0, 0, dommage.what()});
        }
        litJusquAuBout();
        const std::uint32_t connues = m_bilan.lignesLues;
        if (m_acharnee && !m_bilan.interrompu && (m_carteManque || connues < m_table.lignesDeclarees)) {
            m_lignes.chercheAilleurs();
            litJusquAuBout();
        }
        m_bilan.lignesRetrouvees = m_bilan.lignesLues - connues;
        m_bilan.affichesAlterees = m_traduction.affichesAlterees();
        m_bilan.pagesEcartees = m_lignes.pagesEcartees();
        return m_bilan;
    }

  private:
    void litJusquAuBout() {
        while (!m_bilan.interrompu && litUne()) {
        }
    }

    // False after the last row.
    bool litUne() {
        const std::uint32_t numero = m_ligne + 1;
        try {
            const auto octets = m_lignes.suivante();
            if (!octets) return false;
            m_ligne = numero;
            rend(Decoupe(m_pages.format(), m_definition, *octets));
        } catch (const DommagePage& dommage) {
            perd({Perte::Quoi::UnePage, 0, 0, dommage.what()});
        } catch (const Dommage& dommage) {
            m_ligne = numero;
            perd({Perte::Quoi::UneLigne, m_ligne, 0, dommage.what()});
        }
        return true;
    }

    void rend(const Decoupe& ligne) {
        m_pertes.clear();
        for (std::size_t i = 0; i < m_valeurs.size(); ++i) {
            m_valeurs[i].reset();
            try {
                m_valeurs[i] = m_traduction.valeur(ligne, m_definition.colonnes[i]);
            } catch (const Dommage& dommage) {
                m_pertes.push_back({Perte::Quoi::UnChamp, m_ligne, i, dommage.what()});
            }
        }
        m_bilan.interrompu = !m_recepteur(m_valeurs, m_pertes);
        ++m_bilan.lignesLues;
    }

    void perd(const Perte& perte) {
        m_carteManque |= perte.quoi == Perte::Quoi::LaTable;
        m_bilan.interrompu = !m_recepteur({}, {&perte, 1});
    }

    Pages& m_pages;
    const Table& m_table;
    const RecepteurPartiel& m_recepteur;
    Definition m_definition;
    Reserve m_reserve;
    Lignes m_lignes;
    Traduction m_traduction;
    std::vector<std::optional<std::string>> m_valeurs;
    std::vector<Perte> m_pertes;
    Bilan m_bilan;
    std::uint32_t m_ligne = 0;
    bool m_acharnee, m_carteManque = false;
};

// Where that is, for the message.
std::string endroit(const Table& table, const Perte& perte) {
    std::string texte = "table \"" + table.nom + "\"";
    if (perte.ligne > 0) texte += ", ligne " + std::to_string(perte.ligne);
    if (perte.quoi == Perte::Quoi::UnChamp) texte += ", champ \"" + table.champs[perte.champ].nom + "\"";
    return texte;
}

}  // namespace

class Lecteur::Interieur {
  public:
    Interieur(const std::string& chemin, const Ouverture& ouverture) : pages(chemin, ouverture.motDePasse) {
        try {
            tables = ouverture.abimee ? chercheLesTables(pages) : litCatalogue(pages);
            luesAvant = pages.lues();
        } catch (const Dommage& dommage) {
            throw BaseEndommagee(std::string(kEndommagee) + dommage.what() + ".");
        }
    }

    interne::Pages pages;
    std::vector<Table> tables;
    std::uint64_t luesAvant = 0;
};

bool accepteMotDePasse(const std::string& chemin, std::string_view motDePasse) {
    try {
        const interne::Pages pages(chemin, motDePasse);
    } catch (const MotDePasseRefuse&) {
        return false;
    } catch (const ErreurJet&) {
    }
    return true;
}

Lecteur::Lecteur(const std::string& chemin, const Ouverture& ouverture)
    : m_interieur(std::make_unique<Interieur>(chemin, ouverture)) {}
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
    const auto refuse = [&table](const Perte& perte) {
        throw BaseEndommagee(std::string(kEndommagee) + endroit(table, perte) + " : " + perte.raison + ".");
    };
    const RecepteurPartiel sansPerte = [&](Ligne ligne, std::span<const Perte> pertes) {
        if (!pertes.empty()) refuse(pertes.front());
        return recepteur(ligne);
    };
    try {
        return Lecture(m_interieur->pages, table, sansPerte, champAffiche, false).execute();
    } catch (const Dommage& dommage) {
        refuse({Perte::Quoi::LaTable, 0, 0, dommage.what()});
        throw;
    }
}

Bilan Lecteur::parcourtCeQuiEstLisible(const Table& table, const RecepteurPartiel& recepteur,
                                       std::string_view champAffiche) {
    try {
        return Lecture(m_interieur->pages, table, recepteur, champAffiche, true).execute();
    } catch (const Dommage& dommage) {
        const Perte perte{Perte::Quoi::LaTable, 0, 0, dommage.what()};
        return {.interrompu = !recepteur({}, {&perte, 1})};
    }
}

Avancement Lecteur::avancement() const {
    const interne::Pages& pages = m_interieur->pages;
    return {std::min<std::uint64_t>(pages.lues() - m_interieur->luesAvant, pages.nombre()), pages.nombre()};
}

}  // namespace jet
