#pragma once

#include "Attente.h"
#include "db/Schema.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/DossierTemporaire.h"
#include "doubles/HorlogeFixe.h"
#include "doubles/ProgrammesSimules.h"
#include "doubles/VolumesSimules.h"
#include "platform/dao/DBEngine.h"
#include "ui/Programme.h"
#include "ui/VueTitres.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace essais {

// A picture file of that colour.
inline std::string octetsDImage(const QColor& couleur, const QSize& taille = {60, 90}) {
    QImage image(taille, QImage::Format_RGB32);
    image.fill(couleur);
    QByteArray octets;
    QBuffer tampon(&octets);
    image.save(&tampon, "JPG", 95);
    return octets.toStdString();
}

struct Film {
    std::string titre, realisateur, genre;
    std::string affiche;  // bytes of its poster, empty for none
};

// Says yes to every question, or what it is told to, and remembers what was shown: the texts of the boxes are the other rooms' to test.
struct BoitesAccommodantes final : dialogues::Dialogues {
    std::vector<std::string> messages;
    std::string dossier, fichier;
    std::string reponse = "DVD";  // to what is asked for in writing
    int reponseAuxQuestions = dialogues::kOui;

    int MsgBox(const std::string& texte, int style, const std::string&) override {
        messages.push_back(texte);
        return style == dialogues::kQuestion ? reponseAuxQuestions : dialogues::kOk;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return reponse; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return fichier; }
    std::string choisitDossier(const std::string&, const std::string&) override { return dossier; }
};

// The whole program in its window, in a folder of its own.
class ProgrammeDEssai {
  public:
    ProgrammeDEssai() {
        dao::DBEngine::CreateDatabase(dossier.chemin("Modele.dat"), db::schema());
        dossier.ecrit("Extensions.txt", "avi\n/usr/bin/mpv\n");
    }

    void demarre() {
        programme.emplace(dossier.chemin(),
                          ui::Programme::Services{vraiesBoites ? nullptr : &boites, &horloge, &documents,
                                                  vrais ? vrais : &programmes, &volumes, montre});
        ASSERT_TRUE(programme->demarre());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre(), kPatience));
        // The panels behind the first page are built after the first painting.
        ASSERT_TRUE(attends([&] { return fenetre().findChild<QWidget*>("frameFiche") != nullptr; }));
    }

    [[nodiscard]] ui::FenetrePrincipale& fenetre() { return programme->fenetre(); }
    [[nodiscard]] app::Etats& etats() { return programme->session().etats; }
    template <typename Widget = QWidget>
    [[nodiscard]] Widget& trouve(const char* nom) {
        auto* widget = fenetre().findChild<Widget*>(nom);
        if (!widget) throw std::runtime_error(std::string("no control named ") + nom);
        return *widget;
    }
    [[nodiscard]] ui::VueTitres& arbre() { return trouve<ui::VueTitres>("TreeView1"); }
    [[nodiscard]] std::string texte(const char* nom) { return trouve<QLabel>(nom).text().toStdString(); }

    void clique(const char* nom) {
        QTest::mouseClick(&trouve(nom), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);  // what it brought stands in its place
    }
    void choisit(const char* nom, int indice) {
        auto& liste = trouve<QComboBox>(nom);
        liste.setCurrentIndex(indice);
        emit liste.activated(indice);
    }

    void importe(const std::vector<Film>& films) {
        for (std::size_t i = 0; i < films.size(); ++i) {
            const std::string nom = "fiches/" + std::to_string(i);
            const Film& film = films[i];
            dossier.ecrit(nom + ".FILM", film.titre + "\n" + film.realisateur + "\n2001\nFrance\n" + film.genre +
                                             "\n1H40\nUn acteur;Une actrice\nRésumé de " + film.titre + "\nUGC\n");
            if (!film.affiche.empty()) dossier.ecrit(nom + ".jpg", film.affiche);
        }
        boites.dossier = dossier.chemin("fiches");
        clique("cmdAfficherFonctions");
        clique("cmdParcourir2");
        clique("cmdAjoutAuto");
    }

    // The place of a node in the tree; its heading is opened.
    QPoint place(const std::string& titre) {
        ui::VueTitres& vue = arbre();
        const browse::Arbre& noeuds = etats().liste.TreeView1.Nodes;
        for (int i = 1; i <= noeuds.Count(); ++i) {
            if (noeuds.Text(i) != titre) continue;
            const QModelIndex index = vue.modele().indexDuNoeud(i);
            if (index.parent().isValid()) vue.expand(index.parent());
            vue.scrollTo(index);
            QCoreApplication::processEvents();
            return vue.visualRect(index).center();
        }
        throw std::runtime_error("not listed: " + titre);
    }
    void cliqueTitre(const std::string& titre, Qt::MouseButton bouton = Qt::LeftButton) {
        QTest::mouseClick(arbre().viewport(), bouton, {}, place(titre));
    }

    doubles::DossierTemporaire dossier;
    BoitesAccommodantes boites;
    doubles::HorlogeFixe horloge;
    doubles::DocumentsEnregistres documents;
    doubles::ProgrammesSimules programmes;
    systeme::Programmes* vrais = nullptr;  // really start programs, in the place of those
    doubles::VolumesSimules volumes;
    systeme::Montre montre = std::chrono::steady_clock::now;
    bool vraiesBoites = false;  // Qt's, in the place of those
    std::optional<ui::Programme> programme;
};

}  // namespace essais
