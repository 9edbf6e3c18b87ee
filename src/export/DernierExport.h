#pragma once

#include "export/EtatExport.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/systeme/Documents.h"
#include "view/LanceFichier.h"

#include <string>
#include <string_view>

namespace exportation {

// Writes the files that are exported, and keeps the last one at hand: a line of the window tells its whole path, opens
// it and shows its folder. A file that could not be written is told there too, where it interrupts nobody.
class DernierExport {
  public:
    DernierExport(EtatExport& etat, view::LanceFichier& lanceFichier, systeme::Documents& documents,
                  dialogues::Dialogues& dialogues)
        : m_etat(etat), m_lanceFichier(lanceFichier), m_documents(documents), m_dialogues(dialogues) {}

    // Replaces the file by the whole text. False when it cannot be: what stood there still stands.
    bool ecrit(const std::string& fichier, std::string_view octets);

    void cmdOuvrirExport_Click();
    void cmdDossierExport_Click();
    void cmdFermerExport_Click();

  private:
    EtatExport& m_etat;
    view::LanceFichier& m_lanceFichier;
    systeme::Documents& m_documents;
    dialogues::Dialogues& m_dialogues;
    std::string m_fichier;  // its whole path
};

}  // namespace exportation
