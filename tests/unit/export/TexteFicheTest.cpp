#include "export/TexteFiche.h"

#include <gtest/gtest.h>

namespace {

browse::EtatFiche fiche(const std::string& acteurs) {
    browse::EtatFiche fiche;
    fiche.Label1[1].Caption = "de Valerio Zurlini";
    fiche.Label1[2].Caption = "  Titanus (1959)";
    fiche.Label1[4].Caption = "Italie";
    fiche.Label1[5].Caption = "1H40";
    fiche.Label1[6].Caption = "Drame";
    fiche.lblInfosActeurs.Caption = acteurs;
    fiche.Text1.Text = "Été 1943.\r\nL'œuvre\nd'un \"maître\".\r";
    return fiche;
}

std::string attendu(const std::string& ligneActeurs, std::size_t filet) {
    const std::string tirets(filet, '-');
    return "L'Été \"violent\"\r\nde Valerio Zurlini\r\nDurée : 1H40\r\n Titanus (1959) - "
           "Italie\r\nDrame\r\n\r\n\r\n\r\n" +
           ligneActeurs + tirets + "\r\nRésumé :\r\n\r\nÉté 1943.\r\nL'œuvre\r\nd'un \"maître\".\r\n\r\n\r\n" + tirets +
           "\r\nSpécifications techniques :\r\n\r\nFormat : ---x---\r\nVidéo Codec : \r\nAudio Codec : \r\n";
}

TEST(TexteFiche, WritesTheSheetToTheLastBlank) {
    const struct {
        const char *etiquette, *ligne;
        std::size_t filet;
    } cas[]{{"", "", 30},
            {"Éléonora", "Avec Éléonora\r\n", 13},
            {"Jean\r\nÈve", "Avec Jean,Ève\r\n", 13},
            {"Jean\r\n Ève  et   Luc", "Avec Jean, Ève,et, Luc\r\n", 22},
            {"\r\n", "Avec ,\r\n", 6}};
    for (const auto& [etiquette, ligne, filet] : cas)
        EXPECT_EQ(exportation::texteFiche("L'Été \"violent\"", fiche(etiquette)), attendu(ligne, filet)) << etiquette;
}

}  // namespace
