#pragma once

#include "Mesure.h"
#include "app/Session.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/EcranMuet.h"
#include "doubles/ImagesSimulees.h"
#include "doubles/ProgrammesSimules.h"
#include "doubles/VolumesSimules.h"

#include <stdexcept>
#include <string>

namespace bench {

// The user who accepts everything: owned, on DVD, every resembling film all the same, and who chooses no file. Errors end
// the measurement.
class DialoguesDociles final : public dialogues::Dialogues {
  public:
    explicit DialoguesDociles(bool ressemblance) : m_ressemblance(ressemblance) {}

    int MsgBox(const std::string& texte, int style, const std::string&) override {
        if (style == dialogues::kInformation) {
            m_rapport = texte;
            m_heureDuRapport = maintenant();
            return dialogues::kOk;
        }
        if (style != dialogues::kQuestion) throw std::runtime_error(texte);
        const bool surLaRessemblance = texte.find("le logiciel vérifie") != std::string::npos;
        return surLaRessemblance && !m_ressemblance ? dialogues::kNon : dialogues::kOui;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return "DVD"; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return ""; }
    std::string choisitDossier(const std::string&, const std::string&) override { return ""; }

    [[nodiscard]] const std::string& rapport() const { return m_rapport; }
    [[nodiscard]] double heureDuRapport() const { return m_heureDuRapport; }

  private:
    bool m_ressemblance;
    std::string m_rapport;  // the last message that only informed
    double m_heureDuRapport = 0;
};

// What a session needs around it when there is no window.
struct Machine {
    explicit Machine(bool ressemblance = false) : dialogues(ressemblance) {}
    [[nodiscard]] app::Machine pour(const std::string& dossier) {
        return {dialogues, ecran, images, horloge, documents, programmes, volumes, dossier};
    }
    void attend(const std::string& debut) const {  // the last report, or what the program did is not what is measured
        if (!dialogues.rapport().starts_with(debut)) throw std::runtime_error("reported: " + dialogues.rapport());
    }
    DialoguesDociles dialogues;
    doubles::EcranMuet ecran;
    doubles::ImagesSimulees images;
    systeme::HorlogeSysteme horloge;
    doubles::DocumentsEnregistres documents;
    doubles::ProgrammesSimules programmes;
    doubles::VolumesSimules volumes;
};

}  // namespace bench
