#pragma once

#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Avis.h"
#include "platform/systeme/Documents.h"
#include "view/LanceFichier.h"

#include <string>
#include <string_view>

namespace exportation {

// Writes the files that are exported. The notice line tells the whole path of the last one, opens it and shows its
// folder; it also tells of a file that could not be written, where it interrupts nobody.
class DernierExport {
  public:
    DernierExport(ecran::Avis& avis, view::LanceFichier& lanceFichier, systeme::Documents& documents,
                  dialogues::Dialogues& dialogues)
        : m_avis(avis), m_lanceFichier(lanceFichier), m_documents(documents), m_dialogues(dialogues) {}

    // Replaces the file, given by its whole path, by the whole text. False when it cannot be: what stood there still
    // stands.
    bool ecrit(const std::string& fichier, std::string_view octets);
    // The notice of a file that stands at that whole path now.
    void annonce(const std::string& debut, const std::string& chemin);

  private:
    void ouvreDossier(const std::string& fichier);

    ecran::Avis& m_avis;
    view::LanceFichier& m_lanceFichier;
    systeme::Documents& m_documents;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace exportation
