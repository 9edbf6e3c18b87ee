#pragma once

#include "platform/dialogues/Dialogues.h"

#include <deque>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace doubles {

// Stops the command under test. It derives from nothing, so that no handler of the program takes it for an error.
struct BoiteInattendue {};

// Answers the program's boxes from a script: the test queues each box it expects, in order, with its exact text, style
// and title, and the answer. A box nobody expected, or another than the next one, fails the test and throws
// BoiteInattendue; boxes still queued when the script ends fail it too.
class DialoguesScript final : public dialogues::Dialogues {
  public:
    DialoguesScript() = default;
    DialoguesScript(const DialoguesScript&) = delete;
    DialoguesScript& operator=(const DialoguesScript&) = delete;
    ~DialoguesScript() override { verifie(); }

    void attendMsgBox(const std::string& texte, int style = dialogues::kSimple, int reponse = dialogues::kOk,
                      const std::string& titre = dialogues::kTitre) {
        m_attendues.push_back({decritMessage(texte, style, titre), "", reponse});
    }
    void attendInputBox(const std::string& invite, const std::string& reponse,
                        const std::string& titre = dialogues::kTitre, const std::string& defaut = "") {
        m_attendues.push_back({decritSaisie(invite, titre, defaut), reponse});
    }
    void attendFichier(const dialogues::DemandeFichier& demande, const std::string& reponse) {
        m_attendues.push_back({decritFichier(demande), reponse});
    }
    void attendDossier(const std::string& titre, const std::string& dossierInitial, const std::string& reponse) {
        m_attendues.push_back({decritDossier(titre, dossierInitial), reponse});
    }

    [[nodiscard]] std::size_t restantes() const { return m_attendues.size(); }

    // Fails for each box that has not been shown, and forgets them.
    void verifie() {
        for (const Boite& boite : std::exchange(m_attendues, {}))
            ADD_FAILURE() << "This box was expected and never came:\n" << boite.description;
    }

    int MsgBox(const std::string& texte, int style, const std::string& titre) override {
        return prends(decritMessage(texte, style, titre)).bouton;
    }
    std::string InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) override {
        return prends(decritSaisie(invite, titre, defaut)).reponse;
    }
    std::string choisitFichier(const dialogues::DemandeFichier& demande) override {
        return prends(decritFichier(demande)).reponse;
    }
    std::string choisitDossier(const std::string& titre, const std::string& dossierInitial) override {
        return prends(decritDossier(titre, dossierInitial)).reponse;
    }

  private:
    struct Boite {
        std::string description;  // all that the test compares, one line a property
        std::string reponse;
        int bouton = dialogues::kOk;
    };

    static std::string decritMessage(const std::string& texte, int style, const std::string& titre) {
        return "message, style " + std::to_string(style) + "\n  title: [" + titre + "]\n  text: [" + texte + "]";
    }
    static std::string decritSaisie(const std::string& invite, const std::string& titre, const std::string& defaut) {
        return "input\n  title: [" + titre + "]\n  prompt: [" + invite + "]\n  default: [" + defaut + "]";
    }
    static std::string decritFichier(const dialogues::DemandeFichier& demande) {
        return "file\n  title: [" + demande.titre + "]\n  filter: [" + demande.filtre + "]\n  folder: [" +
               demande.dossier + "]\n  " + (demande.peutCreer ? "may be new" : "must exist") +
               (demande.nom.empty() ? "" : "\n  saved as: [" + demande.nom + "]");
    }
    static std::string decritDossier(const std::string& titre, const std::string& dossier) {
        return "folder\n  title: [" + titre + "]\n  opens in: [" + dossier + "]";
    }

    Boite prends(const std::string& description) {
        if (m_attendues.empty()) {
            ADD_FAILURE() << "No box was expected here, and this one came:\n" << description;
            throw BoiteInattendue{};
        }
        if (m_attendues.front().description != description) {
            ADD_FAILURE() << "Another box was expected:\n"
                          << m_attendues.front().description << "\nand this one came:\n"
                          << description;
            m_attendues.clear();  // one failure tells it all
            throw BoiteInattendue{};
        }
        Boite boite = std::move(m_attendues.front());
        m_attendues.pop_front();
        return boite;
    }

    std::deque<Boite> m_attendues;
};

}  // namespace doubles
