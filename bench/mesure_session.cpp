// mesure_session listes DOSSIER | import DOSSIER FICHES | ressemblance DOSSIER FICHES | apercu DOSSIER FICHES
// The program without its window, in a program folder: what its listings read of the file, how long an import lasts, and
// its preview.

#include "Mesure.h"
#include "SansFenetre.h"
#include "acquire/ApercuFiches.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "app/ChoixFonction.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"

#include <algorithm>

namespace {

// The most that one listing reads of the file: the first one, at the start, then every zone and sort.
void mesureListes(app::Session& session, double luAuDepart) {
    double luAuPlus = luAuDepart;
    browse::EtatListe& liste = session.etats.liste;
    for (int zone = 0; zone < liste.ChoixZone.ListCount(); ++zone) {
        liste.ChoixTri.selectionne(browse::kTriTitre1);
        liste.ChoixZone.selectionne(zone);
        session.execute(browse::ChoixZone_Click);
        const bool possedes = zone != browse::kZoneTous && zone != browse::kZoneNonPossedes;
        for (int tri = 0; tri < (possedes ? liste.ChoixTri.ListCount() : browse::kTriSupport); ++tri) {
            const double avant = bench::octetsLus();
            liste.ChoixTri.selectionne(tri);
            session.execute(browse::ChoixTri_Click);
            luAuPlus = std::max(luAuPlus, bench::octetsLus() - avant);
        }
    }
    bench::declare("lu_au_plus", luAuPlus / 1e6);
}

void mesureImport(app::Session& session, const bench::Machine& machine, const std::string& fiches) {
    session.execute(app::Command13_Click, 0);
    session.etats.ajout.txtCheminAjoutAuto.Text = fiches;
    const double depart = bench::maintenant();
    session.execute(acquire::cmdAjoutAuto_Click);
    bench::declare("import", machine.dialogues.heureDuRapport() - depart);
    bench::declare("import_liste", bench::maintenant() - depart);
    machine.attend("1000 films ajoutés.");
}

void mesureApercu(app::Session& session, const std::string& fiches) {
    session.etats.ajout.txtCheminAjoutAuto.Text = fiches;
    const double depart = bench::maintenant();
    std::size_t films = 0;
    session.execute([&films](const app::Contexte& c) { films = acquire::apercuDesFiches(c).value().films.size(); });
    bench::declare("apercu", bench::maintenant() - depart);
    bench::declare("apercu_fiches", static_cast<double>(films));
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "";
    if (genre.empty() || (genre != "listes" && nombre < 4))
        throw std::invalid_argument("usage: mesure_session listes|import|ressemblance|apercu DOSSIER [FICHES]");
    bench::Machine machine(genre == "ressemblance");
    app::Session session(machine.pour(mots[2]));
    const double avant = bench::octetsLus();
    session.Form_Load();
    if (genre == "listes")
        mesureListes(session, bench::octetsLus() - avant);
    else if (genre == "apercu")
        mesureApercu(session, mots[3]);
    else
        mesureImport(session, machine, mots[3]);
    session.Form_Unload();
    bench::declare("memoire", bench::memoireDePointe());
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_session: " << e.what() << '\n';
    return 1;
}
