#include "doubles/DossierTemporaire.h"
#include "doubles/ServeurWeb.h"
#include "rapatrix/Fenetre.h"
#include "recherche_web/Archives.h"
#include "ui/Attente.h"

#include <QTest>
#include <filesystem>

#include <gmock/gmock.h>

namespace {

using doubles::ServeurWeb;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const QByteArray kRecherche = "/multicrit.html?titre=ete";

// The window of the search before a site on this machine. A second of its pauses lasts a millisecond.
class RechercheWeb : public testing::Test {
  protected:
    RechercheWeb() {
        reglages.adresseListe = serveur.adresse(kRecherche).toStdString();
        reglages.adresseBase = serveur.adresse().toStdString();
        reglages.dossierFiches = reglages.dossierTmp = dossier.chemin();
        reglages.rechercheAuDemarrage = true;
        delais.seconde = std::chrono::milliseconds(1);
    }
    // A film on the site, its sheet and its poster.
    void metFilm(const QByteArray& nom, const ServeurWeb::Page& archive) {
        serveur.metPage("/film/" + nom, "<a href=/getzip.html/" + nom + ".zip>Fiche</a>");
        serveur.met("/getzip.html/" + nom + ".zip", archive);
    }
    void metFilm(const QByteArray& nom) { metFilm(nom, archive(nom)); }
    static ServeurWeb::Page archive(const QByteArray& nom) {
        ServeurWeb::Page page;
        page.type = "application/zip";
        page.corps = QByteArray::fromStdString(
            essais::zip({{nom.toStdString() + ".film", nom.toStdString()}, {nom.toStdString() + ".jpg", "affiche"}}));
        return page;
    }
    void metResultats(const QByteArray& noms) {
        QByteArray page;
        for (const QByteArray& nom : noms.split(' '))
            page += "<a href=/film/" + nom + ">Film " + nom + "</a>";
        serveur.metPage(kRecherche, page);
    }
    // Searches; true once films can be chosen, or nothing was found.
    bool cherche() {
        fenetre = std::make_unique<rapatrix::Fenetre>(reglages, delais);
        fenetre->show();
        fenetre->demarre();
        return attendsLeCalme();
    }
    bool attendsLeCalme() {
        return essais::attends([this] { return !bouton("cmdArreter").isVisible(); });
    }
    bool telechargeTout() {
        bouton("cmdTout").click();
        bouton("cmdTelecharger").click();
        return attendsLeCalme();
    }
    QPushButton& bouton(const char* nom) { return *fenetre->findChild<QPushButton*>(QLatin1String(nom)); }
    QAbstractItemModel& films() { return *fenetre->findChild<QTreeView*>()->model(); }
    std::vector<std::string> titres(int colonne = 0) {
        std::vector<std::string> resultat;
        for (int i = 0; i < films().rowCount(); ++i)
            resultat.push_back(films().index(i, colonne).data().toString().toStdString());
        return resultat;
    }
    std::string etat() { return fenetre->findChild<QLabel*>(QStringLiteral("lblEtat"))->text().toStdString(); }
    std::vector<std::string> recus() const { return dossier.noms(); }

    const doubles::DossierTemporaire dossier;
    ServeurWeb serveur;
    rapatrix::Reglages reglages;
    rapatrix::Collecte::Delais delais;
    std::unique_ptr<rapatrix::Fenetre> fenetre;
};

TEST_F(RechercheWeb, FindsOnEveryPageChoosesAndReceives) {
    serveur.metPage(kRecherche, "<a href=/film/A>L'&Eacute;t&eacute;</a><a href=/aide>Aide</a><a href='" + kRecherche +
                                    "&p=2'>2</a>");
    serveur.metPage(kRecherche + "&p=2", "<a href=/film/B>Bleu</a><a href=/film/A>L'&Eacute;t&eacute;</a><a href='" +
                                             kRecherche + "'>1</a>");
    metFilm("A");
    metFilm("B");
    ASSERT_TRUE(cherche());
    EXPECT_THAT(titres(), ElementsAre("L'Été", "Bleu"));
    auto* filtre = fenetre->findChild<QLineEdit*>();
    filtre->setText(QStringLiteral("ETE"));
    EXPECT_THAT(titres(), ElementsAre("L'Été"));
    ASSERT_TRUE(telechargeTout());
    filtre->clear();
    EXPECT_THAT(recus(), UnorderedElementsAre("A.film", "A.jpg"));
    EXPECT_EQ(dossier.lit("A.film"), "A");
    EXPECT_THAT(titres(), ElementsAre("Bleu")) << "what is received leaves the list";
    EXPECT_EQ(etat(), "1 fiche reçue.");
}

TEST_F(RechercheWeb, OneFilmThatFailsDoesNotStopTheOthers) {
    metResultats("portail court html absente grosse B");
    metFilm("B");
    ServeurWeb::Page page;
    page.corps = "<html>Erreur";
    metFilm("html", page);
    page.code = 302;
    page.entetes = "Location: http://portail.test/\r\n";
    metFilm("portail", page);
    page = archive("court");
    page.coupeApres = 20;
    metFilm("court", page);
    page = {};
    page.corps = QByteArray(21 << 20, 'x');
    metFilm("grosse", page);
    ASSERT_TRUE(cherche() && telechargeTout());
    EXPECT_THAT(recus(), UnorderedElementsAre("B.film", "B.jpg"));
    EXPECT_THAT(titres(1), ElementsAre(HasSubstr("portail"), HasSubstr("coupée"), HasSubstr("une page au lieu"),
                                       HasSubstr("n'existe plus"), HasSubstr("anormalement longue")));
    EXPECT_EQ(etat(), "1 fiche reçue. 5 films n'ont pas pu être reçus.");
}

TEST_F(RechercheWeb, WhatBreaksOffIsTakenUpWhereItBroke) {
    metResultats("A");
    const ServeurWeb::Page entiere = archive("A");
    serveur.metPage("/film/A", "<a href=/getzip.html/A.zip>x</a>");
    serveur.met("/getzip.html/A.zip", [&](const QByteArray& demande) {
        ServeurWeb::Page page = entiere;
        const qsizetype suite = demande.toLower().indexOf("range: bytes=");
        if (suite < 0) {
            page.coupeApres = 50;
            return page;
        }
        page.code = 206;
        page.corps = page.corps.mid(demande.mid(suite + 13).split('-').first().toInt());
        return page;
    });
    ASSERT_TRUE(cherche() && telechargeTout());
    EXPECT_EQ(dossier.lit("A.film") + dossier.lit("A.jpg"), "Aaffiche");
}

TEST_F(RechercheWeb, ABusySiteIsLeftInPeaceAndAskedAgain) {
    metResultats("A");
    metFilm("A");
    int refus = 2;
    serveur.met("/film/A", [&](const QByteArray&) {
        ServeurWeb::Page page;
        page.code = refus == 2 ? 429 : 503;
        if (--refus >= 0) return page;
        page.code = 200;
        page.corps = "<a href=/getzip.html/A.zip>x</a>";
        return page;
    });
    ASSERT_TRUE(cherche() && telechargeTout());
    EXPECT_THAT(recus(), UnorderedElementsAre("A.film", "A.jpg"));
    refus = 1000;
    ASSERT_TRUE(cherche() && telechargeTout());
    EXPECT_THAT(titres(1), ElementsAre(HasSubstr("trop occupé")));
}

TEST_F(RechercheWeb, AnnulerEndsOneThatHangsAndKeepsWhatIsWhole) {
    metResultats("A B");
    metFilm("A");
    ServeurWeb::Page muette;
    muette.muette = true;
    metFilm("B", muette);
    ASSERT_TRUE(cherche());
    bouton("cmdTout").click();
    bouton("cmdTelecharger").click();
    ASSERT_TRUE(essais::attends(
        [this] { return !serveur.demandes.empty() && serveur.demandes.back() == "/getzip.html/B.zip"; }));
    bouton("cmdArreter").click();
    EXPECT_FALSE(bouton("cmdArreter").isVisible());
    EXPECT_THAT(recus(), UnorderedElementsAre("A.film", "A.jpg"));
    EXPECT_THAT(etat(), HasSubstr("1 fiche reçue"));
    EXPECT_TRUE(bouton("cmdTelecharger").isEnabled()) << "the other one can be asked for again";
}

TEST_F(RechercheWeb, ASiteThatIsNotThereIsSaidAndCanBeAskedAgain) {
    reglages.adresseListe = reglages.adresseBase = "http://127.0.0.1:1/multicrit.html";
    ASSERT_TRUE(cherche());
    EXPECT_THAT(etat(), HasSubstr("Le site ne répond pas"));
    EXPECT_TRUE(bouton("cmdRechercher").isVisible());
    reglages.adresseListe = reglages.adresseBase = serveur.adresse(kRecherche).toStdString();
    delais.reseau.sansReponse = std::chrono::milliseconds(200);
    ServeurWeb::Page muette;
    muette.muette = true;
    serveur.met(kRecherche, muette);
    ASSERT_TRUE(cherche());
    EXPECT_THAT(etat(), HasSubstr("Le site ne répond pas"));
    serveur.metPage(kRecherche, "<p>Aucun résultat");
    ASSERT_TRUE(cherche());
    EXPECT_EQ(etat(), "Aucun film trouvé pour cette recherche.");
}

TEST_F(RechercheWeb, WithoutAListItTakesAllAndEnds) {
    metResultats("A B C");
    for (const char* nom : {"A", "B", "C"})
        metFilm(nom);
    reglages.afficheResultat = reglages.rechercheAuDemarrage = false;
    reglages.supprimeListe = false;
    fenetre = std::make_unique<rapatrix::Fenetre>(reglages, delais);
    fenetre->show();
    fenetre->demarre();
    ASSERT_TRUE(essais::attends([this] { return !fenetre->isVisible(); }));
    EXPECT_EQ(recus().size(), 7u) << "three sheets, three posters, the list";
    EXPECT_THAT(dossier.lit("Liste.html"), EndsWith("Film C</a>"));
}

TEST_F(RechercheWeb, AFullDiskStopsIt) {
    metResultats("A B");
    metFilm("A");
    metFilm("B");
    reglages.dossierFiches = dossier.chemin("absent");
    ASSERT_TRUE(cherche() && telechargeTout());
    EXPECT_THAT(etat(), HasSubstr("ne peuvent pas être écrites"));
    EXPECT_THAT(serveur.demandes, testing::Not(testing::Contains("/film/B")));
}

}  // namespace
