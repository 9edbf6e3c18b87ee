#pragma once

#include "platform/dialogues/Dialogues.h"
#include "ui/Liaison.h"

#include <QPointer>
#include <QWidget>

namespace ui {

// The boxes of the program as Qt's own, in French. Texts are shown plainly, never as rich text; they can be selected, and
// Ctrl+C copies what is selected or, when nothing is, the whole.
class DialoguesQt final : public dialogues::Dialogues {
  public:
    explicit DialoguesQt(Liaison& liaison) : m_liaison(liaison) {}
    void metParent(QWidget* fenetre) { m_fenetre = fenetre; }

    // The program is ended from outside: the box that is open closes and none opens any more. Messages pass unread,
    // questions throw dialogues::SansReponse.
    void refuse();

    int MsgBox(const std::string& texte, int style, const std::string& titre) override;
    void montre(const dialogues::Rapport& rapport) override;
    std::string InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) override;
    std::optional<std::string> demandeMotDePasse(const std::string& invite) override;
    std::string demandeChemin(const dialogues::DemandeChemin& demande) override;
    std::string choisitFichier(const dialogues::DemandeFichier& demande) override;
    std::string choisitDossier(const std::string& titre, const std::string& dossierInitial) override;

  private:
    // Long texts, and those that come by `lignes`, in a list that scrolls.
    int montre(const std::string& texte, const std::vector<std::string>& lignes, int style, const std::string& titre);
    void exigeReponse() const;  // before and after a box whose answer counts
    QWidget* parent();          // the window in use, else the main one; none as long as that is not shown

    Liaison& m_liaison;
    QPointer<QWidget> m_fenetre;
    QPointer<QWidget> m_enUsage;
    bool m_refuse = false;
};

// "Fichiers JPEG|*.jpg" as Qt writes it, with the endings in both cases; "*.*" means every file.
[[nodiscard]] QString filtreQt(const std::string& filtre);

}  // namespace ui
