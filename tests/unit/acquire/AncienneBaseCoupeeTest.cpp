#include "acquire/LotImport.h"
#include "doubles/Mort.h"
#include "unit/acquire/AncienneBase.h"

#include <gmock/gmock.h>

namespace {

using testing::IsEmpty;

TEST_F(AncienneBase, StoppedKeepsWhatWasAddedAndGoesOnNextTime) {
    nombreuxFilms(40);
    const std::string suite = "\nL'import a été interrompu : relancez-le pour ajouter le reste.";
    ecranMuet.arretApres = 1;
    importe("0 film ajouté." + suite);  // while the base is being read
    EXPECT_THAT(rafraichissement.appels, IsEmpty());
    ecranMuet.souffles = 0;
    ecranMuet.arretApres = 1000;
    ecranMuet.pendantSouffle = [&] {
        EXPECT_TRUE(ajout.ProgressBar1.Visible);
        if (ajout.lblProgression.Caption == "Film 9") ecranMuet.arretApres = ecranMuet.souffles;
    };
    importe("10 films ajoutés, dont 10 possédés." + suite);
    ecranMuet.arretApres = 0;
    ecranMuet.pendantSouffle = nullptr;
    importe("30 films ajoutés, dont 30 possédés.\n10 films déjà présents.");
    EXPECT_THAT(photo().depuis(parcours::Photo(ancienne.chemin("Films.mdb"))), IsEmpty());
}

TEST_F(AncienneBase, AFailureLeavesWholeLotsAndNoFileOfTheLotThatFailed) {
    const int lot = acquire::LotImport::kFiches;
    nombreuxFilms(lot + 20);
    ecran::choisit(stockage.Option3, 1);
    ecranMuet.pendantSouffle = [&] {  // the second lot meets a folder that is gone
        if (ajout.ProgressBar1.Value == lot + 10) std::filesystem::remove_all(dossier.chemin("Images"));
    };
    attendChoix(ancienne.chemin());
    attendAccord();
    const std::string chemin = dossier.chemin("Images/Film " + std::to_string(lot + 10) + " - R.jpg");
    dialogues.attendMsgBox("Le fichier image " + chemin + " n'a pas pu être écrit (Disque plein/Lecture seule ?)",
                           dialogues::kCritique);
    dialogues.attendMsgBox(std::to_string(lot) + " films ajoutés, dont " + std::to_string(lot) +
                               " possédés.\nL'import a été interrompu : relancez-le pour ajouter le reste.\n" +
                               origine(),
                           dialogues::kInformation);
    proposeImportAncienneBase(c);
    EXPECT_EQ(base.films.RecordCount(), lot);
    EXPECT_EQ(base.personnel.RecordCount(), lot);
    EXPECT_FALSE(dossier.existe("Images"));
}

// Each film that was stored has its holding and its poster; the next import adds the others.
TEST_F(AncienneBase, KilledAnywhereItLosesNothing) {
    const int lot = acquire::LotImport::kFiches;
    nombreuxFilms(lot + 30);
    ecran::choisit(stockage.Option3, 1);
    for (const int mort : {20, lot + 10}) {
        base.ferme();
        EXPECT_TRUE(doubles::meurtEnRoute([&] {
            ouvre();
            ecranMuet.pendantSouffle = [&] {
                if (ajout.ProgressBar1.Value == mort) doubles::meurs();
            };
            attendChoix(ancienne.chemin());
            attendAccord();
            proposeImportAncienneBase(c);
        }));
        ouvre();
        EXPECT_EQ(base.films.RecordCount(), mort > lot ? lot : 0);
        EXPECT_EQ(base.personnel.RecordCount(), base.films.RecordCount());
    }
    importe("30 films ajoutés, dont 30 possédés.\n" + std::to_string(lot) + " films déjà présents.");
    for (const std::string& affiche : colonne("Films", "Affiche")) {
        const std::string nom = affiche.substr(3);
        EXPECT_EQ("Film " + image(nom) + " - R.jpg", nom);
    }
}

}  // namespace
