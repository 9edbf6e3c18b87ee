#pragma once

#include "app/EtatFonctions.h"
#include "app/Extensions.h"
#include "db/Chemins.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Ecran.h"

#include <cstddef>
#include <optional>
#include <string>

namespace app {

// The page where extensions get their programs. A change goes into the table and into "Extensions.txt" at once, so that
// no end of the program loses it. Rows of an older file are shown and kept as they stand, whatever they hold.
class LogicielsExternes {
  public:
    LogicielsExternes(EtatFonctions& etat, TableExtensions& table, const db::Chemins& chemins,
                      dialogues::Dialogues& dialogues, ecran::Demandes& demandes)
        : m_etat(etat), m_table(table), m_chemins(chemins), m_dialogues(dialogues), m_demandes(demandes) {}

    void montre();                  // the program of the chosen extension, among those that the table names
    void Combo6_Click(int indice);  // 0: another extension is chosen; 1: another program is given to it
    void cmdParcourirLogiciel_Click();
    void cmdAjoutExtension_Click();  // with the default program; a refusal leaves what was typed
    void cmdSupprExtension_Click();

  private:
    [[nodiscard]] std::size_t nombre() const;
    [[nodiscard]] std::array<std::string, 2>* ligneChoisie();  // none without an extension
    [[nodiscard]] std::optional<int> placeDe(const std::string& extension) const;
    [[nodiscard]] std::string refus(const std::string& extension) const;  // why it cannot be added, empty if it can
    void refuse(const std::string& extension, const std::string& raison);
    void donneLogiciel(const std::string& programme);
    void changee();  // the table: shows and keeps it

    EtatFonctions& m_etat;
    TableExtensions& m_table;
    const db::Chemins& m_chemins;
    dialogues::Dialogues& m_dialogues;
    ecran::Demandes& m_demandes;
};

// What was typed for an extension, without the blanks around it nor what "*.avi" and ".avi" put before it.
[[nodiscard]] std::string extensionTapee(const std::string& texte);

}  // namespace app
