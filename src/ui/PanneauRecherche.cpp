#include "ui/PanneauRecherche.h"

#include "browse/cmdRecherche_Click.h"
#include "ui/Boutons.h"
#include "ui/Cartes.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"
#include "ui/Sections.h"

#include <QKeyEvent>
#include <QRadioButton>

namespace ui {

namespace {

constexpr int kUneSeuleLigne = 860;

}  // namespace

PanneauRecherche::PanneauRecherche(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    nomme(this, "frameRecherche");
    seLitCommeGroupe(this, tr("Rechercher des films"));
    auto& recherche = atelier.etats().recherche;
    auto* texte = m_texte = nomme(new QLineEdit, "Text2");
    texte->setClearButtonEnabled(true);
    texte->installEventFilter(this);
    texte->setToolTip(tr("Le texte à trouver ; majuscules et minuscules sont confondues"));
    auto* lancer = bouton<BoutonAccent>("cmdRecherche", tr("&Lancer la recherche"),
                                        tr("Montrer les films trouvés dans la liste (Entrée)"));
    atelier.liaison.lie(recherche.Text2, texte);
    atelier.liaison.lie(recherche.cmdRecherche, lancer);
    atelier.auClic(lancer, browse::cmdRecherche_Click);

    auto* boite = section(atelier, Aide::Recherche, 1.25);
    boite->setContentsMargins(kPetit, kMoyen, kGrand, kMoyen);
    auto* ligne = rangee({legende(tr("Te&xte à chercher"), texte), texte, lancer}, kMoyen);
    ligne->setStretch(1, 1);
    boite->addLayout(ligne);
    boite->addWidget(new CoteACote({champs(atelier), portee(atelier)}, kUneSeuleLigne, kSerre));
    boite->addWidget(filetHorizontal());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setLayout(boite);
    // It stands beside the text, where Enter presses it, and is the last that the keys come to.
    setTabOrder(findChild<QWidget*>(QStringLiteral("TypeFilm_2")), lancer);
    litDansLOrdre({lancer});
    atelier.liaison.lie(atelier.etats().panneaux.frameRecherche, this);
}

// Down goes from the text, which has no use for it, into what was found; nothing else must take it.
bool PanneauRecherche::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(evenement)->key() != Qt::Key_Down)
        return QWidget::eventFilter(objet, evenement);
    if (m_atelier.etats().liste.TreeView1.Nodes.Count() > 0)
        m_atelier.commande.execute([this] { m_atelier.etats().demandes.focus = "TreeView1"; });
    return true;
}

// What is typed replaces the last search.
void PanneauRecherche::showEvent(QShowEvent* evenement) {
    QWidget::showEvent(evenement);
    m_texte->selectAll();
}

QWidget* PanneauRecherche::champs(const Atelier& atelier) {
    const QString textes[] = {tr("T&itre"), tr("Réalisate&ur"), tr("A&nnée"), tr("A&cteurs")};
    auto* cases = rangee({legende(tr("Chercher dans"))}, kGrand);
    for (std::size_t i = 0; i < 4; ++i) {
        auto* coche = nomme(new QCheckBox(textes[i]), "ZoneRecherche", i);
        coche->setToolTip(tr("Chercher le texte dans ce champ"));
        atelier.liaison.lie(atelier.etats().recherche.ZoneRecherche[i], coche);
        cases->addWidget(coche);
    }
    cases->addStretch();
    auto* cadre = new QWidget;
    cadre->setLayout(cases);
    return cadre;
}

QWidget* PanneauRecherche::portee(const Atelier& atelier) {
    const QString textes[] = {tr("Tous l&es films"), tr("&Mes films"), tr("Films non possé&dés")};
    auto* groupe = new QWidget;  // option buttons exclude one another within their parent
    auto* options = rangee({legende(tr("Parmi"))}, kGrand);
    for (std::size_t i = 0; i < 3; ++i) {
        auto* option = nomme(new QRadioButton(textes[i]), "TypeFilm", i);
        option->setToolTip(tr("Les films parmi lesquels chercher"));
        atelier.liaison.lie(atelier.etats().recherche.TypeFilm[i], option);
        options->addWidget(option);
    }
    options->addStretch();
    groupe->setLayout(options);
    return groupe;
}

}  // namespace ui
