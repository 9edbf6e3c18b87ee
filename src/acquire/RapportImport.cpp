#include "acquire/RapportImport.h"

#include "util/Nombres.h"

#include <string_view>

namespace acquire {
namespace {

// The text in the order of what is written; of the lines the lists come last, lest they hide the others.
class Redaction {
  public:
    void ligne(const std::string& texte) {
        m_texte += (m_texte.empty() ? "" : "\n") + texte;
        m_lignes.push_back(texte);
    }
    // Nothing for 0.
    void compte(long nombre, std::string_view singulier, std::string_view pluriel) {
        if (nombre > 0) ligne(util::phraseCompte(nombre, singulier, pluriel));
    }
    // Nothing for an empty list.
    void liste(const std::string& titre, const std::vector<std::string>& elements) {
        if (elements.empty()) return;
        m_texte += "\n" + titre;
        m_listes.push_back(titre);
        const char* separateur = "\n";
        for (const std::string& element : elements) {
            m_texte += separateur + element;
            separateur = ", ";
        }
        m_listes.insert(m_listes.end(), elements.begin(), elements.end());
    }
    [[nodiscard]] dialogues::Rapport rapport() && {
        m_lignes.insert(m_lignes.end(), m_listes.begin(), m_listes.end());
        return {std::move(m_texte), std::move(m_lignes)};
    }

  private:
    std::string m_texte;
    std::vector<std::string> m_lignes, m_listes;
};

template <typename Element>
long nombre(const std::vector<Element>& elements) {
    return static_cast<long>(elements.size());
}

}  // namespace

dialogues::Rapport RapportImport::texte() const {
    Redaction redaction;
    redaction.ligne(util::phraseCompte(ajoutes, "# film ajouté.", "# films ajoutés."));
    redaction.compte(nombre(titresRefuses), "# film non ajouté car déjà dans la base.",
                     "# films non ajoutés car déjà dans la base.");
    redaction.liste("- Image manquante :", affichesManquantes);
    redaction.liste("- Déjà existant : ", titresRefuses);
    redaction.liste("- Fiche illisible :", fichesIllisibles);
    redaction.compte(affichesAjoutees, "# image ajoutée à un film déjà présent.",
                     "# images ajoutées à des films déjà présents.");
    redaction.compte(nombre(fichesRestantes),
                     "L'import a été interrompu : relancez-le pour ajouter la fiche qui reste.",
                     "L'import a été interrompu : relancez-le pour ajouter les # fiches qui restent.");
    for (const std::string& ligne : rangement)
        redaction.ligne(ligne);
    return std::move(redaction).rapport();
}

}  // namespace acquire
