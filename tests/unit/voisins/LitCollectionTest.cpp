#include "doubles/DossierTemporaire.h"
#include "recherche_web/Archives.h"
#include "voisins/LitCollection.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using testing::HasSubstr;

const std::string kJpeg = "\xFF\xD8\xFF\xE0 affiche"s, kPng = "\x89PNG\r\n\x1A\n affiche"s;

// All that a film became, without the fields that are empty; the lines of its summary between bars.
std::string decris(const voisins::FilmVoisin& film) {
    std::string texte = film.titre + " de " + film.realisateur;
    const auto dit = [&](const std::string& quoi, const std::string& valeur) {
        if (!valeur.empty()) texte += "\n" + quoi + "=" + valeur;
    };
    dit("annee", film.annee);
    dit("origine", film.origine);
    dit("genre", film.genre);
    dit("duree", film.duree);
    dit("acteurs", film.acteurs);
    dit("production", film.production);
    dit("note", film.note == 0 ? "" : std::to_string(film.note));
    dit("ajout", film.dateAjout);
    std::string resume = film.resume;
    for (std::size_t i = 0; (i = resume.find("\r\n", i)) != std::string::npos;)
        resume.replace(i, 2, "|");
    dit("resume", resume);
    if (film.possession) {
        const auto& celle = *film.possession;
        dit("exemplaire", celle.support + ";" + celle.rangement + ";" + celle.fichiers[0] + ";" + celle.divers);
        dit("pret", celle.pret + (celle.date.empty() ? "" : " " + celle.date));
    }
    return texte;
}

class LitCollection : public testing::Test {
  protected:
    doubles::DossierTemporaire dossier;

    std::string ecrit(const std::string& nom, const std::string& octets) {
        dossier.ecrit(nom, octets);
        return dossier.chemin(nom);
    }
    static std::string affiche(const voisins::Collection& collection, std::size_t rang) {
        return collection.affiches->lis(collection.films.at(rang).affiche, 1 << 20).octets.value_or("");
    }
    static std::string refus(const std::string& chemin) {
        try {
            static_cast<void>(voisins::litCollection(chemin));
        } catch (const voisins::Refus& refus) {
            return refus.texte;
        }
        return "lue";
    }
};

// Made, opened and saved by that program itself.
TEST_F(LitCollection, ACollectionOfTellicoWithItsPicturesAndLoans) {
    const auto lue = voisins::litCollection(AMBRELIS_SOURCE_DIR "/tests/donnees/voisins/Tellico.tc");
    ASSERT_EQ(lue.films.size(), 4U);
    EXPECT_EQ(
        decris(lue.films[0]),
        "L'Œuvre au noir « été » de André Delvaux\nannee=1988\norigine=Belgique / France\ngenre=Drame / Historique\n"
        "duree=1H50\nacteurs=Gian Maria Volontè;Sami Frey\nproduction=La Nouvelle Imagerie\nnote=8\najout=07/02/2011\n"
        "resume=Zénon, alchimiste.|Il revient à Bruges.||Vu deux fois ; à revoir.||"
        "Classification : PG (USA)|Zone : 2|Format vidéo : PAL|Producteurs : Philippe Dussart|"
        "Scénario : Marguerite Yourcenar|Musique : Frédéric Devreese|Langues : français|Sous-titres : anglais|"
        "Pistes audio : Dolby|Format d'image : 1.66:1|Écran large : oui|Couleur : en couleurs|Acheté le : 03/05/2010|"
        "Cadeau : oui|Prix d'achat : 12 €|Mots-clés : alchimie|Vu au cinéma : oui|Retour prévu le : 15/04/2024|"
        "Note du prêt : Prudence|Titre original : The \"Work\" & <Night>|"
        "Distribution : Gian Maria Volontè (Zénon), Sami Frey (Le prieur)\n"
        "exemplaire=DVD;Salon B2;;\npret=Zoé d'Été 15/03/2024");
    EXPECT_EQ(decris(lue.films[1]),
              "Alien de Ridley Scott\nannee=1979\ngenre=Science-fiction / Horreur\nduree=1H57\n"
              "acteurs=Sigourney Weaver\najout=31/12/2011\nexemplaire=Blu-ray;;;");
    for (const std::size_t rang : {2U, 0U, 1U, 1U})  // in any order
        EXPECT_EQ(affiche(lue, rang).substr(0, 3), rang == 2 ? "\x89PN" : "\xFF\xD8\xFF") << rang;
}

TEST_F(LitCollection, PicturesInTheDocumentOrBesideIt) {
    const std::string entete =
        "<tellico><collection type=\"3\"><entry id=\"1\"><title>A</title><cover>i.jpg</cover></entry>"
        "<entry id=\"2\"><title>B</title><cover>j.png</cover></entry>";
    const auto dedans = voisins::litCollection(
        ecrit("dedans.tc", entete + "<images><image id=\"j.png\">iVBORw0KGgogYWZmaWNoZQ==</image>"
                                    "<image id=\"i.jpg\">/9j/4CBhZmZp\nY2hl</image></images></collection></tellico>"));
    EXPECT_EQ(affiche(dedans, 0), kJpeg);
    EXPECT_EQ(affiche(dedans, 1), kPng);
    dossier.ecrit("a.cote_files/i.jpg", kJpeg);
    dossier.ecrit("a.cote_files/j.png", "no picture");
    const auto aCote = voisins::litCollection(ecrit("a.cote.tc", entete + "</collection></tellico>"));
    EXPECT_EQ(affiche(aCote, 0), kJpeg);
    EXPECT_EQ(affiche(aCote, 1), "") << "what is no picture is no poster";
}

TEST_F(LitCollection, ACollectionOfGCstarInItsArchive) {
    const std::string gcs =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><collection type=\"GCfilms\"><userCollection><fields>"
        "<field value=\"gcsfield1\" label=\"Ciné-club\" type=\"short text\"/></fields></userCollection>"
        "<item id=\"1\" title=\"Cléo de 5 à 7\" original=\"\" date=\"11/04/1962\" time=\"1h 30\" director=\"Agnès "
        "Varda\" "
        "country=\"France, Italy\" image=\"/home/eve/.local/share/gcstar/images/cleo_1.jpg\" "
        "webPage=\"http://x##IMDb\" "
        "seen=\"1\" added=\"07/09/2009\" format=\"DVD\" number=\"2\" place=\"Bureau\" rating=\"9\" ratingpress=\"0\" "
        "age=\"12\" "
        "borrower=\"Léa\" lendDate=\"02/01/2020\" favourite=\"1\" gcsfield1=\"Oui\"><synopsis>Une chanteuse "
        "attend.</synopsis>"
        "<comment>Œuvre "
        "&quot;culte&quot;</comment><genre><line><col>Drama</col></line><line><col>Comédie</col></line></genre>"
        "<actors><line><col>Corinne Marchand</col><col>Cléo</col></line><line><col>Antoine "
        "Bourseiller</col></line></actors>"
        "<audio><line><col>French</col><col>Mono</col></line></audio><tags><line><col>nouvelle "
        "vague</col></line></tags></item>"
        "<item id=\"2\" title=\"Vide\" borrower=\"none\" lendDate=\"\" seen=\"0\"/></collection>";
    const auto lue = voisins::litCollection(
        ecrit("films.gcz", essais::zip({{"collection/collection.gcs", gcs}, {"collection/images/cleo_1.jpg", kJpeg}})));
    ASSERT_EQ(lue.films.size(), 2U);
    EXPECT_EQ(
        decris(lue.films[0]),
        "Cléo de 5 à 7 de Agnès Varda\nannee=1962\norigine=France / Italie\ngenre=Drame / Comédie\nduree=1H30\n"
        "acteurs=Corinne Marchand;Antoine Bourseiller\nnote=9\najout=07/09/2009\n"
        "resume=Une chanteuse attend.||Œuvre \"culte\"||Langues : français – Mono|Mots-clés : nouvelle vague|"
        "Lien : http://x|Vu : oui|Nombre de supports : 2|Public : dès 12 ans|Favori : oui|Ciné-club : Oui|"
        "Distribution : Corinne Marchand (Cléo), Antoine Bourseiller\nexemplaire=DVD;Bureau;;\npret=Léa 02/01/2020");
    EXPECT_EQ(affiche(lue, 0), kJpeg);
    EXPECT_EQ(decris(lue.films[1]), "Vide de Non défini\nexemplaire=;;;");
    EXPECT_THAT(refus(ecrit("livres.gcs", "<collection type=\"GCbooks\"/>")), HasSubstr("pas une collection de films"));
}

// That program writes code page 1252, with signs that no document may hold.
TEST_F(LitCollection, ACatalogueOfAntMovieCatalog) {
    dossier.ecrit("films_7.jpg", kJpeg);
    const auto lue = voisins::litCollection(
        ecrit("films.xml",
              "<?xml version=\"1.0\" encoding=\"windows-1252\"?><AntMovieCatalog Format=\"42\"><Catalog><Properties "
              "Owner=\"E\"/>"
              "<CustomFieldsProperties><CustomField Tag=\"Loue\" Name=\"Lou\xE9\" "
              "Type=\"ftBoolean\"/></CustomFieldsProperties>"
              "<Contents><Movie Number=\"7\" Checked=\"False\" MediaLabel=\"Bo\xEEte 3\" MediaType=\"DVD\" "
              "Date=\"05/06/2011\" "
              "Borrower=\"Zo\xE9\" Rating=\"7,4\" UserRating=\"9\" OriginalTitle=\"L'\x8Cil\x81\x01\" "
              "TranslatedTitle=\"\xC9t\xE9\" "
              "Director=\"A, B\" Country=\"USA\" Category=\"Comedy, Drama\" Year=\"1999\" Length=\"95\" "
              "Actors=\"Ann Day (as Ma (m\xE8re)), Bo Li\" Description=\"R\xE9sum\xE9\" Comments=\"Bien\" "
              "FilePath=\"D:\\Films\\x.avi\" "
              "Languages=\"French\" Disks=\"2\" Size=\"700\" Picture=\"C:\\AMC\\films_7.jpg\"><CustomFields "
              "Loue=\"True\"/></Movie>"
              "<Movie OriginalTitle=\"Seul\" Picture=\"../../absente.jpg\"/></Contents></Catalog></AntMovieCatalog>"));
    ASSERT_EQ(lue.films.size(), 2U);
    EXPECT_EQ(decris(lue.films[0]),
              "Été de A, B\nannee=1999\norigine=États-Unis\ngenre=Comédie / Drame\nduree=1H35\nacteurs=Ann Day;Bo "
              "Li\nnote=9\n"
              "ajout=05/06/2011\nresume=Résumé||Bien||Numéro : 7|Coché : non|Langues : français|Nombre de supports : 2|"
              "Taille : 700 Mo|Loué : oui|Note du site : 7,4/10|Titre original : L'Œil\u0081|"
              "Distribution : Ann Day (Ma (mère)), Bo Li\nexemplaire=DVD;;D:\\Films\\x.avi;Boîte 3\npret=Zoé");
    EXPECT_EQ(affiche(lue, 0), kJpeg);
    EXPECT_TRUE(lue.films[1].affiche.nommee);
    EXPECT_EQ(affiche(lue, 1), "");
    EXPECT_THAT(refus(ecrit("films.amc", " AMC_4.2 Ant Movie Catalog\r\n"s + '\0')),
                HasSubstr("« Exporter », « XML »"));
}

TEST_F(LitCollection, AFolderOfKodiAndAnExportInOneFile) {
    const std::string film =
        "<movie><title>Jour de fête</title><originaltitle>Jour de fête</originaltitle><ratings><rating name=\"imdb\" "
        "max=\"10\" "
        "default=\"true\"><value>7.46</value></rating></ratings><userrating>8</userrating><plot>Le facteur.</plot>"
        "<runtime>86</runtime><mpaa>U</mpaa><playcount>2</playcount><genre>Comedy</genre><country>France</country>"
        "<set><name>Tati</name></set><credits>Henri Marquet</credits><director>Jacques "
        "Tati</director><premiered>1949-05-04"
        "</premiered><studio>Cady Films</studio><dateadded>2021-03-02 "
        "10:11:12</dateadded><fileinfo><streamdetails><video>"
        "<codec>h264</codec><width>1440</width><height>1080</height></video></streamdetails></fileinfo>"
        "<actor><name>Jacques Tati</name><role>François</role></actor></movie>";
    dossier.ecrit("k/Jour de fête (1949)/Jour.mkv", "");
    dossier.ecrit("k/Jour de fête (1949)/Jour.nfo", film + "\nhttps://www.imdb.com/title/tt0040497/\n");
    dossier.ecrit("k/Jour de fête (1949)/poster.jpg", kJpeg);
    dossier.ecrit("k/plusieurs/a.nfo", "<movie><title>A</title></movie>");
    dossier.ecrit("k/plusieurs/a-poster.jpg", kJpeg + "a");
    dossier.ecrit("k/plusieurs/b.nfo", "<movie><title>B</title></movie>");
    dossier.ecrit("k/plusieurs/poster.jpg", kJpeg);
    dossier.ecrit("k/serie/tvshow.nfo", "<tvshow><title>S</title></tvshow>");
    fs::create_directory_symlink(dossier.chemin("k"), dossier.chemin("k/boucle"));
    const auto lue = voisins::litCollection(dossier.chemin("k"));
    ASSERT_EQ(lue.films.size(), 3U);
    const std::string attendu =
        "Jour de fête de Jacques Tati\nannee=1949\norigine=France\ngenre=Comédie\nduree=1H26\nacteurs=Jacques Tati\n"
        "production=Cady Films\nnote=8\najout=02/03/2021\nresume=Le facteur.||Note du public : 7,4/10|Scénario : Henri "
        "Marquet|"
        "Classification : U|Saga : Tati|Vu : oui|Format vidéo : h264 1440 × 1080|Distribution : Jacques Tati "
        "(François)\n";
    EXPECT_EQ(decris(lue.films[0]),
              attendu + "exemplaire=Fichier;;" + dossier.chemin("k/Jour de fête (1949)/Jour.mkv") + ";");
    EXPECT_EQ(affiche(lue, 0), kJpeg);
    EXPECT_EQ(affiche(lue, 1), kJpeg + "a");
    EXPECT_EQ(affiche(lue, 2), "") << "of several films, a poster without a name is nobody's";
    EXPECT_THAT(lue.remarques,
                testing::ElementsAre("1 fiche .nfo n'est pas celle d'un film : elle est laissée de côté."));
    dossier.ecrit("x/movies/Jour de fête_1949-poster.jpg", kJpeg);
    ecrit("x/videodb.xml", "<videodb><version>1</version>" + film + "</videodb>");
    const auto exportee = voisins::litCollection(dossier.chemin("x"));
    EXPECT_EQ(decris(exportee.films.at(0)), attendu + "exemplaire=Fichier;;;");
    EXPECT_EQ(affiche(exportee, 0), kJpeg);
}

TEST_F(LitCollection, CopiesAndRemakesOfOneNameAreKept) {
    const auto lue = voisins::litCollection(
        ecrit("c.gcs",
              "<collection type=\"GCfilms\"><item title=\"L'Homme\" director=\"H\" date=\"1934\" format=\"DVD\"/>"
              "<item title=\"l'homme\" director=\"h\" date=\"1956\" format=\"VHS\"/><item title=\"\" director=\"H\"/>"
              "<item title=\"L'Homme\" director=\"H\" date=\"1934\" format=\"Blu-ray\" place=\"Cave\" "
              "borrower=\"Léo\"/></collection>"));
    ASSERT_EQ(lue.films.size(), 2U);
    EXPECT_EQ(decris(lue.films[0]),
              "L'Homme de H\nannee=1934\nresume=Autre exemplaire : Blu-ray, Cave, prêté à Léo\nexemplaire=DVD;;;");
    EXPECT_EQ(decris(lue.films[1]), "l'homme (1956) de h\nannee=1956\nexemplaire=VHS;;;");
    EXPECT_EQ(lue.remarques.size(), 3U);
}

TEST_F(LitCollection, WhatIsBrokenOrHostileIsRefusedInWords) {
    const std::string secret = ecrit("secret.txt", "SECRET");
    std::string entites = "<!DOCTYPE tellico [<!ENTITY s SYSTEM \"file://" + secret + "\"><!ENTITY a0 \"ha\">";
    for (int i = 1; i < 30; ++i)
        entites +=
            "<!ENTITY a" + std::to_string(i) + " \"&a" + std::to_string(i - 1) + ";&a" + std::to_string(i - 1) + ";\">";
    const std::string piege =
        ecrit("piege.tc", "<?xml version=\"1.0\"?>" + entites +
                              "]><tellico><collection type=\"3\"><entry id=\"1\"><title>T&s;</title>"
                              "<plot>&a29;</plot></entry></collection></tellico>");
    try {  // refused by the library, or carried as it stands
        const auto lue = voisins::litCollection(piege);
        EXPECT_EQ(lue.films.at(0).titre.find("SECRET"), std::string::npos);
        EXPECT_LT(lue.films.at(0).resume.size(), 1000U);
    } catch (const voisins::Refus&) {
    }
    EXPECT_THAT(refus(ecrit("coupe.tc", "<tellico><collection type=\"3\"><entry id=\"1\"><title>A</title></entry>")),
                HasSubstr("est abîmé, coupé ou démesuré (ligne 1).\nRien n'a été importé."));
    const std::string zip = essais::zip({{"tellico.xml", std::string(4000, 'x')}, {"../../etc/passwd", "x"}});
    EXPECT_THAT(refus(ecrit("texte.tc", zip)), HasSubstr("tellico.xml est abîmé"));
    EXPECT_NE(refus(ecrit("demi.tc", zip.substr(0, zip.size() / 2))), "lue");
    // A file that its archive swells a thousandfold is not even passed over.
    constexpr long kMega = 1 << 20, kZeros = 600;
    const std::string document = "<collection type=\"GCfilms\"><item title=\"A\"/></collection>";
    std::string suite = essais::enteteDeTar("collection.gcs", std::ssize(document)) + document;
    suite.resize(4096);
    const std::string mega = essais::gzip(std::string(kMega, '\0'));
    std::string bombe = essais::gzip(essais::enteteDeTar("images/1.jpg", kZeros * kMega));
    for (long i = 0; i < kZeros; ++i)
        bombe += mega;
    EXPECT_THAT(refus(ecrit("bombe.tar.gz", bombe + essais::gzip(suite))), HasSubstr("est abîmée, ou trop grande."));
    EXPECT_EQ(refus(ecrit("saine.tar.gz", essais::gzip(suite))), "lue");
    EXPECT_THAT(refus(ecrit("rien.tc", essais::zip({{"a.txt", "x"}}))), HasSubstr("pas une collection"));
    EXPECT_THAT(refus(ecrit("page.xml", "<html/>")), HasSubstr("pas une collection"));
    EXPECT_THAT(refus(ecrit("vide.tc", "")), HasSubstr("est vide"));
    EXPECT_THAT(refus(ecrit("sans.tc", "<tellico><collection type=\"3\"/></tellico>")), HasSubstr("aucun film"));
    EXPECT_THAT(refus(ecrit("livres.tc", "<tellico><collection type=\"2\"/></tellico>")),
                HasSubstr("pas une collection de films"));
    EXPECT_THAT(refus(dossier.chemin("absent.tc")), HasSubstr("n'existe pas"));
    EXPECT_THAT(refus(ecrit("d/note.txt", "x").substr(0, dossier.chemin("d").size())), HasSubstr("ni collection"));
    // A poster is looked for in the collection's own folders alone, and no link is followed.
    dossier.ecrit("dehors/p.jpg", kJpeg);
    fs::create_directories(dossier.chemin("dedans"));
    fs::create_symlink(dossier.chemin("dehors/p.jpg"), dossier.chemin("dedans/lien.jpg"));
    const auto lue = voisins::litCollection(ecrit(
        "dedans/c.gcs",
        "<collection type=\"GCfilms\"><item title=\"A\" image=\"" + dossier.chemin("dehors/p.jpg") +
            "\"/><item title=\"B\" image=\"../dehors/p.jpg\"/><item title=\"C\" image=\"lien.jpg\"/></collection>"));
    for (std::size_t rang = 0; rang < 3; ++rang)
        EXPECT_EQ(affiche(lue, rang), "") << rang;
}

}  // namespace
