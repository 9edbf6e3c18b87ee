#include "ui/PanneauFiche.h"

#include "app/Commandes.h"
#include "browse/AfficheVolet.h"
#include "browse/Puces.h"
#include "browse/lblRealisateur_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "ui/BoutonPuce.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/EtoilesNote.h"
#include "ui/Lecteur.h"
#include "ui/PanneauPossession.h"
#include "ui/VueAffiche.h"
#include "ui/VueTitres.h"
#include "view/Command1_Click.h"
#include "view/TouchesAffiche.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <utility>

namespace ui {

namespace {

constexpr double kGrandTitre = 1.9, kPetitTitre = 1.5, kGrandResume = 1.15;
constexpr qsizetype kFaitsLus = 2000;                                // characters
constexpr int kPlaceDuGrandTitre = 640, kPlaceDuGrandResume = 1300;  // logical pixels of the sheet

QWidget* page(std::initializer_list<QWidget*> cadres) {
    auto* boite = colonne(kMoyen);
    for (QWidget* cadre : cadres)
        boite->addWidget(cadre);
    auto* resultat = new QWidget;
    resultat->setLayout(boite);
    return resultat;
}

// Never narrower than its page and the bar beside it, whatever the font.
class ZoneDefilante final : public QScrollArea {
  public:
    [[nodiscard]] QSize minimumSizeHint() const override {
        const int barre = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        return {widget()->minimumSizeHint().width() + barre, QScrollArea::minimumSizeHint().height()};
    }
};

// As high as its text, so that the page around it is what scrolls: one bar, not one within the other. A text that nobody
// reads to its end keeps a bar of its own.
class TexteEntier final : public QTextEdit {
  public:
    TexteEntier() {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
                [this](const QSizeF& taille) { tiens(taille.height()); });
        connect(this, &QTextEdit::textChanged, this,
                [this] { defile([](QScrollArea& zone) { zone.verticalScrollBar()->setValue(0); }); });
        connect(this, &QTextEdit::cursorPositionChanged, this, [this] {
            if (hasFocus())
                defile([this](QScrollArea& zone) {
                    const QPoint ici = viewport()->mapTo(zone.widget(), cursorRect().center());
                    zone.ensureVisible(ici.x(), ici.y(), 0, cursorRect().height());
                });
        });
    }

  protected:
    // Whole screens of it are the page's.
    void keyPressEvent(QKeyEvent* evenement) override {
        const bool ecran = evenement->key() == Qt::Key_PageUp || evenement->key() == Qt::Key_PageDown;
        ecran&& verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff ? evenement->ignore()
                                                                    : QTextEdit::keyPressEvent(evenement);
    }

  private:
    static constexpr double kPlusBas = 48, kPlusHaut = 20000;  // logical pixels

    void tiens(double hauteur) {
        setVerticalScrollBarPolicy(hauteur > kPlusHaut ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
        setMinimumHeight(static_cast<int>(std::ceil(std::clamp(hauteur, kPlusBas, kPlusHaut))));
    }
    template <typename Geste>
    void defile(Geste geste) {
        for (QWidget* autour = parentWidget(); autour; autour = autour->parentWidget())
            if (auto* zone = qobject_cast<QScrollArea*>(autour)) return geste(*zone);
    }
};

// Where the window is low the page scrolls rather than being squeezed.
QScrollArea* defilante(QWidget* page) {
    auto* zone = new ZoneDefilante;
    zone->setWidget(page);
    zone->setWidgetResizable(true);
    zone->setFrameShape(QFrame::NoFrame);
    zone->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    zone->setFocusPolicy(Qt::NoFocus);
    zone->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    return zone;
}

}  // namespace

PanneauFiche::PanneauFiche(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    nomme(this, "frameFiche");
    seLit(this, {.role = QAccessible::Grouping, .nom = [titre = &m_atelier.etats().fiche.Label1[0].Caption] {
                     return tr("Fiche de « %1 »").arg(QString::fromStdString(*titre));
                 }});
    auto* boite = new QHBoxLayout(this);
    boite->setContentsMargins(kPetit, kMoyen, kGrand, kGrand);
    boite->setSpacing(kLarge);
    boite->addLayout(colonneAffiche());
    auto* film = page({faits(), resume()});
    static_cast<QVBoxLayout*>(film->layout())->setStretch(1, 1);
    auto* generalites = defilante(film);
    auto* autres = new PanneauPossession(m_atelier);
    boite->addWidget(colonneFilm(generalites, autres), 1);
    m_atelier.liaison.lie(m_atelier.etats().panneaux.frameFiche, this);

    // A page takes its room as long as one of its frames is shown.
    const auto suis = [this, generalites, fiche = &m_atelier.etats().fiche] {
        generalites->setVisible(fiche->frameGeneralites[0].Visible || fiche->frameGeneralites[1].Visible);
        m_affiche->metNoms(QString::fromStdString(fiche->Label1[0].Caption),
                           QString::fromStdString(fiche->lblRealisateur.Caption));
        dimensionneAffiche();
    };
    suis();
    m_atelier.liaison.apresEcriture(suis);
    m_atelier.liaison.apresEcriture([this] { suisLeFilm(); });
}

// Another film is told, but where the row of the list that has the focus tells it; what stands of it in labels, which no
// key comes to, is told with the summary.
void PanneauFiche::suisLeFilm() {
    const browse::EtatFiche& fiche = m_atelier.etats().fiche;
    if (!m_atelier.etats().panneaux.frameFiche.Visible) return m_film.clear();
    const QString film = QString::fromStdString(fiche.Label1[0].Caption) + QStringLiteral(", ") +
                         QString::fromStdString(fiche.lblRealisateur.Caption);
    if (std::exchange(m_film, film) == film) return;
    QTimer::singleShot(0, this, [this] {
        if (!qobject_cast<VueTitres*>(QApplication::focusWidget())) annonce(window(), m_film);
    });
}

QWidget* PanneauFiche::colonneFilm(QWidget* generalites, QWidget* autres) {
    auto* pages = new QHBoxLayout;
    pages->setSpacing(kLarge);
    pages->addWidget(generalites, 5);
    pages->addWidget(autres, 4);
    auto* boite = colonne(kMoyen);
    boite->addLayout(entete());
    boite->addLayout(pages, 1);
    boite->addWidget(new PanneauActions(m_atelier));
    auto* resultat = new QWidget;
    resultat->setLayout(boite);
    return resultat;
}

QLayout* PanneauFiche::entete() {
    auto& fiche = m_atelier.etats().fiche;
    auto* titre = m_titre =
        nomme((new Etiquette)->avecPolice(kGrandTitre, QFont::DemiBold)->avecLignes(2), "Label1", 0);
    auto* realisateur = nomme(new BoutonLien, "lblRealisateur");
    realisateur->setFont(policeRelative(1.15));
    realisateur->setToolTip(tr("Chercher les films de cette personne"));
    // The director line stands twice in the state; the link shows it.
    auto* ligne = nomme(new Etiquette({}, this), "Label1", 1);
    ligne->hide();
    m_atelier.liaison.lie(fiche.Label1[0], titre);
    m_atelier.liaison.lie(fiche.Label1[1], ligne);
    m_atelier.liaison.lie(fiche.lblRealisateur, realisateur);
    m_atelier.auClic(realisateur, browse::lblRealisateur_Click);

    auto* boite = colonne(2);
    boite->addWidget(titre);
    boite->addWidget(realisateur);
    boite->addSpacing(kSerre);
    boite->addLayout(puces());
    boite->addSpacing(kSerre);
    boite->addWidget(onglets());
    boite->addWidget(filetHorizontal());
    return boite;
}

QLayout* PanneauFiche::puces() {
    using Genre = BoutonPuce::Genre;
    auto& fiche = m_atelier.etats().fiche;
    const std::pair<Genre, QString> lesquelles[] = {{Genre::Etat, tr("Voir votre exemplaire")},
                                                    {Genre::Appel, tr("Voir le prêt")},
                                                    {Genre::Annonce, tr("Voir la réservation")}};
    auto* ligne = rangee({});
    for (std::size_t i = 0; i < std::size(lesquelles); ++i) {
        auto* puce = nomme(new BoutonPuce(lesquelles[i].first), "cmdPuce", i);
        puce->setToolTip(lesquelles[i].second);
        m_atelier.liaison.lie(fiche.cmdPuce[i], puce);
        m_atelier.auClic(puce, browse::cmdPuce_Click, static_cast<int>(i));
        ligne->addWidget(puce);
    }
    ligne->addStretch();
    return ligne;
}

// Where both pages are shown the row of their buttons takes no room.
QWidget* PanneauFiche::onglets() {
    auto& fiche = m_atelier.etats().fiche;
    auto* generalites = bouton<BoutonOnglet>("cmdGeneralites", tr("&Généralités"), tr("Le film"));
    auto* autres = bouton<BoutonOnglet>("cmdAutresInfos", tr("Autres infor&mations"), tr("Votre exemplaire"));
    m_atelier.liaison.lie(fiche.cmdGeneralites, generalites);
    m_atelier.liaison.lie(fiche.cmdAutresInfos, autres);
    m_atelier.auClic(generalites, browse::cmdGeneralites_Click);
    m_atelier.auClic(autres, browse::cmdAutresInfos_Click);
    auto* ligne = rangee({generalites, autres}, kSerre);
    ligne->addStretch();
    QWidget* resultat = listeDOnglets(ligne, tr("Pages de la fiche"));
    m_atelier.liaison.apresEcriture([resultat, &fiche] { resultat->setVisible(fiche.cmdGeneralites.Visible); });
    return resultat;
}

QLayout* PanneauFiche::colonneAffiche() {
    auto& fiche = m_atelier.etats().fiche;
    m_affiche = new CadreAffiche(m_atelier.images);
    nomme(m_affiche, "cadreAffiche");
    nomme(m_affiche->image(), "Image1");
    nomme(m_affiche->statut(), "Label12");
    nomme(m_affiche->ajouter(), "cmdAjouterAffiche");
    m_affiche->image()->setToolTip(tr("Voir l'affiche en grand"));
    connect(m_affiche->image(), &VueAffiche::cliquee, &m_atelier.commande, m_atelier.reponse(view::Image1_Click));
    connect(m_affiche, &CadreAffiche::statutClique, &m_atelier.commande, m_atelier.reponse(app::Label12_Click));
    m_atelier.liaison.ajoute(m_affiche->image()->lien(fiche.Image1));
    m_atelier.liaison.lie(fiche.Label12, m_affiche->statut());
    m_atelier.liaison.lie(fiche.cmdAjouterAffiche, m_affiche->ajouter());
    m_sousAffiche = sousAffiche();
    auto* boite = colonne(kPetit);
    boite->addWidget(m_affiche);
    boite->addWidget(m_sousAffiche);
    boite->addStretch(1);
    return boite;
}

// The rating twice, as stars and in words, and the attached files; their room is kept while there are none, so that the
// poster above is as large for every film.
QWidget* PanneauFiche::sousAffiche() {
    auto& fiche = m_atelier.etats().fiche;
    auto* etoiles = nomme(new EtoilesNote, "etoilesNote", tr("Note du film"));
    auto* note = nomme((new Etiquette)->avecPolice(1.0, QFont::DemiBold), "lblNote");
    note->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* noter = bouton("cmdModifieNote", tr("&Noter…"), tr("Donner une note de 1 à 10"));
    auto* fichiers = bouton("cmdFichiersFilm", tr("&Fichiers du film…"), tr("Ouvrir un des fichiers attachés au film"));
    QSizePolicy place = fichiers->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    fichiers->setSizePolicy(place);
    m_atelier.liaison.ajoute(etoiles->lien(fiche.note));
    m_atelier.liaison.lie(fiche.lblNote, note);
    m_atelier.liaison.lie(fiche.cmdModifieNote, noter);
    m_atelier.liaison.lie(fiche.cmdFichiersFilm, fichiers);
    connect(etoiles, &EtoilesNote::etoileCliquee, &m_atelier.commande,
            [a = m_atelier](int etoile) { a.execute(edit::etoilesNote_Click, etoile); });
    connect(etoiles, &EtoilesNote::noteChoisie, &m_atelier.commande,
            [a = m_atelier](int voulue) { a.execute(edit::etoilesNote_Change, voulue); });
    m_atelier.auClic(noter, edit::cmdModifieNote_Click);
    m_atelier.auClic(fichiers, view::cmdFichiersFilm_Click);

    auto* boite = colonne(kSerre);
    boite->addWidget(etoiles);
    auto* ligne = rangee({note}, kSerre);
    ligne->addStretch();
    ligne->addWidget(noter);
    boite->addLayout(ligne);
    boite->addSpacing(kSerre);
    boite->addWidget(fichiers);
    auto* resultat = new QWidget;
    resultat->setLayout(boite);
    return resultat;
}

QWidget* PanneauFiche::faits() {
    auto& fiche = m_atelier.etats().fiche;
    auto* cadre = nomme(new QWidget, "frameGeneralites", 0);
    auto* grille = colonne(kPetit);
    const std::pair<std::size_t, QString> lignes[] = {
        {2, tr("Production et année")}, {4, tr("Origine")}, {5, tr("Durée")}, {6, tr("Genre")}};
    for (const auto& [indice, intitule] : lignes) {
        auto* valeur = nomme((new Etiquette)->avecLignes(2), "Label1", indice);
        valeur->setAccessibleDescription(intitule);
        m_atelier.liaison.lie(fiche.Label1[indice], valeur);
        auto* fait = colonne(1);
        fait->addWidget(legende(intitule));
        fait->addWidget(valeur);
        grille->addLayout(fait);
    }
    auto* inutilise = nomme(new Etiquette({}, this), "Label1", 3);
    inutilise->hide();
    m_atelier.liaison.lie(fiche.Label1[3], inutilise);
    grille->addStretch();

    auto* acteurs = nomme((new Etiquette)->avecLignes(18), "lblInfosActeurs");
    acteurs->setAccessibleDescription(tr("Acteurs"));
    m_atelier.liaison.lie(fiche.lblInfosActeurs, acteurs);
    auto* distribution = colonne(1);
    distribution->addWidget(legende(tr("Acteurs")));
    distribution->addWidget(acteurs);
    distribution->addStretch();

    auto* boite = new QHBoxLayout(cadre);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->setSpacing(kLarge);
    m_atelier.liaison.apresEcriture([this, &fiche] {
        QStringList faits;
        for (const auto& [intitule, texte] :
             {std::pair(tr("Production et année"), &fiche.Label1[2].Caption),
              std::pair(tr("Origine"), &fiche.Label1[4].Caption), std::pair(tr("Durée"), &fiche.Label1[5].Caption),
              std::pair(tr("Genre"), &fiche.Label1[6].Caption),
              std::pair(tr("Acteurs"), &fiche.lblInfosActeurs.Caption)})
            if (!texte->empty())
                faits << intitule + QStringLiteral(" : ") +
                             QString::fromStdString(*texte).replace(u'\n', QStringLiteral(", "));
        const QString tous = faits.join(QStringLiteral(". ")).left(kFaitsLus);
        if (tous != m_resume->accessibleDescription()) m_resume->setAccessibleDescription(tous);
    });
    boite->addLayout(grille, 1);
    boite->addLayout(distribution, 1);
    m_atelier.liaison.lie(fiche.frameGeneralites[0], cadre);
    return cadre;
}

QWidget* PanneauFiche::resume() {
    auto& fiche = m_atelier.etats().fiche;
    auto* cadre = nomme(new QWidget, "frameGeneralites", 1);
    auto* texte = nomme(new TexteEntier, "Text1", tr("Résumé"));
    m_resume = texte;
    texte->setReadOnly(true);
    texte->setTabChangesFocus(true);
    texte->setFrameShape(QFrame::NoFrame);
    texte->viewport()->setAutoFillBackground(false);
    texte->document()->setDocumentMargin(0);
    texte->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_atelier.liaison.lie(fiche.Text1, static_cast<QTextEdit*>(texte));
    auto* boite = colonne(kSerre);
    boite->addWidget(legende(tr("Résumé")));
    boite->addWidget(texte, 1);
    cadre->setLayout(boite);
    m_atelier.liaison.lie(fiche.frameGeneralites[1], cadre);
    return cadre;
}

void PanneauFiche::resizeEvent(QResizeEvent*) {
    m_titre->avecPolice(width() < kPlaceDuGrandTitre ? kPetitTitre : kGrandTitre, QFont::DemiBold);
    m_resume->setFont(policeRelative(width() < kPlaceDuGrandResume ? 1 : kGrandResume));
    dimensionneAffiche();
}

// Beside both pages the poster leaves them more room. It is as high as the window lets it be with the line of the notices,
// so that it stays as it is when that line comes and goes.
void PanneauFiche::dimensionneAffiche() {
    constexpr int kLigneDesAvis = 40, kMarges = kMoyen + kGrand + kPetit;
    const int enBas = window()->height() - mapTo(window(), QPoint()).y() - kLigneDesAvis;
    const int hauteur = std::min(enBas, height()) - kMarges - m_sousAffiche->sizeHint().height();
    const int part = m_atelier.etats().fiche.cmdGeneralites.Visible ? 34 : 26;
    m_affiche->tiensDans({width() * part / 100, hauteur});
}

}  // namespace ui
