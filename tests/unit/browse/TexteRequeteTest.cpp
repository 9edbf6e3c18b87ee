#include "browse/TexteRequete.h"

#include <gtest/gtest.h>

namespace {

struct Zone {
    const char* debut;    // up to " ORDER BY "
    const char* liaison;  // before the condition of a search
    const char* fin;
};

const Zone kZones[]{
    {"SELECT * FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 AND "
     "Films.realisateur=Personnel.realisateur2",
     " WHERE ", ", Titre2 ASC"},
    {"SELECT * FROM Films", " WHERE ", ""},
    {R"(SELECT * FROM Films INNER JOIN Personnel ON (Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2) WHERE Pret="")",
     " AND ", ", Titre2 ASC"},
    {R"(SELECT * FROM Films INNER JOIN Personnel ON (Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2) WHERE Pret<>"")",
     " AND ", ", Titre2 ASC"},
    {R"(SELECT * FROM Films INNER JOIN Personnel ON (Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2) WHERE Reserve<>"")",
     " AND ", ", Titre2 ASC"},
    {"SELECT DISTINCTROW * FROM Films LEFT JOIN Personnel ON (Films.Realisateur = Personnel.Realisateur2) AND "
     "(Films.Titre = Personnel.Titre2) WHERE ((Personnel.Titre2) Is Null)",
     " AND ", ", Titre2 ASC"},
    {"SELECT * ", " WHERE ", ""},  // no such zone: no table
};

TEST(TexteRequeteTest, EveryZoneUnderEverySort) {
    const char* cles[]{"Titre", "Titre", "Annee", "Realisateur", "Genre", "Origine", "Duree", "Note", "Support"};
    for (int zone = 0; zone < 7; ++zone)
        for (int tri = 0; tri < 9; ++tri) {
            const std::string fin = std::string(" ORDER BY ") + cles[tri] + " ASC" + kZones[zone].fin;
            EXPECT_EQ(browse::construitRequete(zone, tri, ""), kZones[zone].debut + fin);
            EXPECT_EQ(browse::construitRequete(zone, tri, "C"),
                      kZones[zone].debut + (kZones[zone].liaison + ("C" + fin)));
        }
}

TEST(TexteRequeteTest, TheSearchAddsThePositionsOfItsTextInEachField) {
    EXPECT_EQ(browse::construitConditionRecherche("Bleu", {true, false, false, true}),
              R"(INSTR(Titre, "Bleu")+INSTR(Acteurs, "Bleu")>0)");
    EXPECT_EQ(browse::construitConditionRecherche("l'\"été\"", {false, true, true, false}),
              R"(INSTR(Realisateur, "l'""été""")+INSTR(Annee, "l'""été""")>0)");
}

}  // namespace
