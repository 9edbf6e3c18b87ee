#include "ProgrammeDEssai.h"

#include <QTextEdit>

namespace {

// A base of someone else's may hold anything: a sheet of megabytes shows like any other, and keeps its place.
TEST(GrandsTextes, ASheetOfMegabytesIsShownInItsPlace) {
    essais::ProgrammeDEssai essai;
    const std::string large(5'000'000, 'x'), moins(500'000, 'y');
    {
        dao::DBEngine::CreateDatabase(essai.dossier.chemin("Films.mdb"), db::schema());
        dao::Database base = dao::DBEngine::OpenDatabase(essai.dossier.chemin("Films.mdb"));
        dao::Recordset films = base.OpenRecordset("Films"), possessions = base.OpenRecordset("Personnel");
        films.AddNew();
        for (const char* champ : {"Annee", "Origine", "Genre", "Duree", "Production"})
            films.assigne(champ, moins);
        for (const char* champ : {"Titre", "Realisateur", "Resume"})
            films.assigne(champ, large);
        films.assigne("Acteurs", std::string(5'000'000, ';'));
        films.Update();
        possessions.AddNew();
        for (const char* champ : {"Titre2", "Realisateur2", "Fichier1"})
            possessions.assigne(champ, large);
        for (const char* champ : {"Rangement", "Pret", "Support", "Divers"})
            possessions.assigne(champ, moins);
        possessions.Update();
    }
    essai.demarre();
    essai.choisit("ChoixTri", 1);
    essai.fenetre().show();
    QTest::mouseClick(essai.arbre().viewport(), Qt::LeftButton, {},
                      essai.arbre().visualRect(essai.arbre().model()->index(0, 0)).center());
    ASSERT_TRUE(essai.trouve("frameFiche").isVisible());
    EXPECT_EQ(essai.texte("Label1_0"), large);
    EXPECT_EQ(essai.trouve<QTextEdit>("Text1").toPlainText().size(), 5'000'000);
    EXPECT_LT(essai.trouve("Label1_0").height(), 150);
    EXPECT_LT(essai.trouve("lblRealisateur").height(), 60);
    EXPECT_LT(essai.trouve("lblInfosActeurs").height(), essai.fenetre().height());
    essai.clique("cmdAutresInfos");
    essai.clique("cmdFichiersFilm");
    EXPECT_EQ(essai.etats().fichiers.presentations, 1);
}

}  // namespace
