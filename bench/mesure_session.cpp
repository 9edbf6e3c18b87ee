// mesure_session listes DOSSIER | import DOSSIER FICHES | ressemblance DOSSIER FICHES
// The program without its window, in a program folder: what its listings read of the file, how long an import lasts.

#include "Mesure.h"
#include "app/Session.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/EcranMuet.h"
#include "doubles/ImagesSimulees.h"

#include <algorithm>
#include <stdexcept>

namespace {

// The user who accepts everything: owned, on DVD, every resembling film all the same. Errors end the measurement.
class DialoguesDociles final : public dialogues::Dialogues {
  public:
    explicit DialoguesDociles(bool ressemblance) : m_ressemblance(ressemblance) {}

    int MsgBox(const std::string& texte, int style, const std::string&) override {
        if (style == dialogues::kInformation) {
            m_rapport = texte;
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

  private:
    bool m_ressemblance;
    std::string m_rapport;
};

struct Machine {
    explicit Machine(bool ressemblance) : dialogues(ressemblance) {}
    [[nodiscard]] app::Machine pour(const std::string& dossier) {
        return {dialogues, ecran, images, horloge, documents, dossier};
    }
    DialoguesDociles dialogues;
    doubles::EcranMuet ecran;
    doubles::ImagesSimulees images;
    systeme::HorlogeSysteme horloge;
    doubles::DocumentsEnregistres documents;
};

// The most that one listing reads of the file: the first one, at the start, then every zone and sort.
void mesureListes(app::Session& session, double luAuDepart) {
    double luAuPlus = luAuDepart;
    browse::EtatListe& liste = session.etats.liste;
    for (int zone = 0; zone < liste.ChoixZone.ListCount(); ++zone) {
        liste.ChoixTri.selectionne(browse::kTriTitre1);
        liste.ChoixZone.selectionne(zone);
        session.ChoixZone_Click();
        const bool possedes = zone != browse::kZoneTous && zone != browse::kZoneNonPossedes;
        for (int tri = 0; tri < (possedes ? liste.ChoixTri.ListCount() : browse::kTriSupport); ++tri) {
            const double avant = bench::octetsLus();
            liste.ChoixTri.selectionne(tri);
            session.ChoixTri_Click();
            luAuPlus = std::max(luAuPlus, bench::octetsLus() - avant);
        }
    }
    bench::declare("lu_au_plus", luAuPlus / 1e6);
}

void mesureImport(app::Session& session, const Machine& machine, const std::string& fiches) {
    session.Command13_Click(0);
    session.etats.ajout.txtCheminAjoutAuto.Text = fiches;
    const double depart = bench::maintenant();
    session.cmdAjoutAuto_Click();
    bench::declare("import", bench::maintenant() - depart);
    if (machine.dialogues.rapport() != "1000 films ajoutés.") throw std::runtime_error(machine.dialogues.rapport());
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "";
    if (genre.empty() || (genre != "listes" && nombre < 4))
        throw std::invalid_argument("usage: mesure_session listes|import|ressemblance DOSSIER [FICHES]");
    Machine machine(genre == "ressemblance");
    app::Session session(machine.pour(mots[2]));
    const double avant = bench::octetsLus();
    session.Form_Load();
    if (genre == "listes")
        mesureListes(session, bench::octetsLus() - avant);
    else
        mesureImport(session, machine, mots[3]);
    session.Form_Unload();
    bench::declare("memoire", bench::memoireDePointe());
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_session: " << e.what() << '\n';
    return 1;
}
