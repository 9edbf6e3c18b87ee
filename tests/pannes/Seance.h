#pragma once

#include "app/Session.h"
#include "browse/Arbre.h"
#include "browse/ChoixZone.h"
#include "db/Requete.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/EcranMuet.h"
#include "doubles/HorlogeFixe.h"
#include "doubles/ImagesSimulees.h"
#include "doubles/ProgrammesSimules.h"
#include "doubles/VolumesSimules.h"
#include "platform/dao/ErreurDao.h"
#include "platform/systeme/FinDuProgramme.h"

#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

namespace pannes {

// Says yes, gives the answers that the scenario has left, each file and folder once, and keeps all that was told.
class DialoguesNotes final : public dialogues::Dialogues {
  public:
    std::string saisie, fichier, dossier;
    std::string dits;

    DialoguesNotes() { dits.reserve(1 << 16); }  // noted where memory lacks, too

    int MsgBox(const std::string& texte, int style, const std::string&) override {
        dits.append("[").append(texte).append("]\n");
        return style == dialogues::kQuestion ? dialogues::kOui : dialogues::kOk;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return saisie; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return std::exchange(fichier, ""); }
    std::string choisitDossier(const std::string&, const std::string&) override { return std::exchange(dossier, ""); }
};

// One run of the program without its window, its commands wrapped as the window's are.
class Seance {
  public:
    explicit Seance(const std::string& dossier)
        : session({boites, m_ecran, m_images, horloge, m_documents, m_programmes, m_volumes, dossier}) {}

    DialoguesNotes boites;
    doubles::HorlogeFixe horloge;
    app::Session session;
    app::Etats& etats = session.etats;
    bool finie = false;
    std::function<void()> suit;  // told after each command

    // Whether it came to its end.
    template <typename Geste>
    bool fais(Geste geste) {
        const int avis = etats.avis.numero;
        try {
            session.vaCommencer();
            geste();
            return note(avis);
        } catch (const systeme::FinDuProgramme&) {
            finie = true;
        } catch (const db::RequeteEchouee& echec) {
            session.expliqueEchec(echec.raison);
        } catch (const dao::ErreurDao& erreur) {
            boites.MsgBox(erreur.texte(), dialogues::kSimple, "");
        } catch (const std::bad_alloc&) {
            boites.MsgBox("La mémoire manque pour terminer cette commande.", dialogues::kSimple, "");
        } catch (const std::exception& erreur) {
            boites.MsgBox(std::string("ANGLAIS : ") + erreur.what(), dialogues::kSimple, "");
        }
        note(avis);
        return false;
    }
    template <typename... Arguments>
    void commande(Arguments... arguments) {
        fais([&] { session.execute(arguments...); });
        if (suit) suit();
    }
    void demarre() {
        finie = !fais([this] { session.Form_Load(); }) || finie;
        if (!finie) fais([this] { session.Form_Activate(); });
    }
    void zone(int indice) {
        etats.liste.ChoixZone.selectionne(indice);
        commande(browse::ChoixZone_Click);
    }
    // Throws when the tree has no such node.
    [[nodiscard]] int noeud(std::string_view texte) const {
        const browse::Arbre& noeuds = etats.liste.TreeView1.Nodes;
        for (int i = 1; i <= noeuds.Count(); ++i)
            if (noeuds.Text(i) == texte) return i;
        throw std::runtime_error("no node reads " + std::string(texte));
    }

  private:
    // What the line says, when it says something new.
    bool note(int avis) {
        if (etats.avis.numero != avis) boites.dits.append("(").append(etats.avis.lblAvis.Caption).append(")\n");
        return true;
    }

    doubles::EcranMuet m_ecran;
    doubles::ImagesSimulees m_images;
    doubles::DocumentsEnregistres m_documents;
    doubles::ProgrammesSimules m_programmes;
    doubles::VolumesSimules m_volumes;
};

}  // namespace pannes
