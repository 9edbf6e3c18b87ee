#include "ui/PanneauFiche.h"

#include "app/Commandes.h"
#include "browse/AfficheVolet.h"
#include "browse/lblRealisateur_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Icones.h"
#include "ui/PanneauPossession.h"
#include "ui/VueAffiche.h"
#include "view/Command1_Click.h"
#include "view/TouchesAffiche.h"

#include <QResizeEvent>
#include <QScrollArea>
#include <QTextEdit>

namespace ui {

namespace {

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
    auto* film = page({faits(), resume()});
    auto* contenu = page({new PanneauPossession(m_atelier)});
    static_cast<QVBoxLayout*>(film->layout())->setStretch(1, 1);
    auto* generalites = defilante(film);
    static_cast<QVBoxLayout*>(contenu->layout())->addStretch(1);
    auto* autres = defilante(contenu);

    auto* pages = new QHBoxLayout;
    pages->setSpacing(kLarge);
    pages->addLayout(colonneAffiche());
    pages->addWidget(generalites, 5);
    pages->addWidget(autres, 4);

    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kPetit, kMoyen, kGrand, kGrand);
    boite->setSpacing(kMoyen);
    boite->addLayout(entete());
    boite->addLayout(pages, 1);
    boite->addWidget(new PanneauActions(m_atelier));
    m_atelier.liaison.lie(m_atelier.etats().panneaux.frameFiche, this);

    // A page takes its room as long as one of its frames is shown.
    const auto suis = [this, generalites, autres, fiche = &m_atelier.etats().fiche] {
        generalites->setVisible(fiche->frameGeneralites[0].Visible || fiche->frameGeneralites[1].Visible);
        autres->setVisible(fiche->frameAutresInfos[0].Visible || fiche->frameAutresInfos[1].Visible);
        dimensionneAffiche();
    };
    suis();
    m_atelier.liaison.apresEcriture(suis);
}

QLayout* PanneauFiche::entete() {
    auto& fiche = m_atelier.etats().fiche;
    auto* titre = nomme((new Etiquette)->avecPolice(1.9, QFont::DemiBold)->avecLignes(2), "Label1", 0);
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
    auto* sousTitre = rangee({realisateur});
    sousTitre->addStretch();
    sousTitre->addLayout(onglets());
    boite->addLayout(sousTitre);
    boite->addWidget(filetHorizontal());
    return boite;
}

QLayout* PanneauFiche::onglets() {
    auto& fiche = m_atelier.etats().fiche;
    auto* generalites = bouton<BoutonOnglet>("cmdGeneralites", tr("&Généralités"), tr("Le film"));
    auto* autres = bouton<BoutonOnglet>("cmdAutresInfos", tr("Autres infor&mations"), tr("Votre exemplaire"));
    m_atelier.liaison.lie(fiche.cmdGeneralites, generalites);
    m_atelier.liaison.lie(fiche.cmdAutresInfos, autres);
    m_atelier.auClic(generalites, browse::cmdGeneralites_Click);
    m_atelier.auClic(autres, browse::cmdAutresInfos_Click);
    return rangee({generalites, autres}, kSerre);
}

QLayout* PanneauFiche::colonneAffiche() {
    auto& fiche = m_atelier.etats().fiche;
    m_affiche = new CadreAffiche(m_atelier.images);
    nomme(m_affiche, "cadreAffiche", tr("Pas d'affiche : en ajouter une"));
    nomme(m_affiche->image(), "Image1", tr("Affiche du film"));
    nomme(m_affiche->statut(), "Label12");
    m_affiche->image()->setToolTip(tr("Voir l'affiche en grand"));
    connect(m_affiche->image(), &VueAffiche::cliquee, &m_atelier.commande, m_atelier.reponse(view::Image1_Click));
    auto* note = nomme((new Etiquette)->avecPolice(1.0, QFont::DemiBold), "lblNote");
    note->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* noter = bouton("cmdModifieNote", tr("&Noter…"), tr("Donner une note de 1 à 10"));
    auto* fichiers = bouton("cmdFichiersFilm", tr("&Fichiers du film…"), tr("Ouvrir un des fichiers attachés au film"));
    m_atelier.liaison.ajoute(m_affiche->image()->lien(fiche.Image1));
    m_atelier.liaison.lie(fiche.Label12, m_affiche->statut());
    m_atelier.liaison.lie(fiche.lblNote, note);
    m_atelier.liaison.lie(fiche.cmdModifieNote, noter);
    m_atelier.liaison.lie(fiche.cmdFichiersFilm, fichiers);
    connect(m_affiche, &CadreAffiche::statutClique, &m_atelier.commande, m_atelier.reponse(app::Label12_Click));
    m_atelier.auClic(noter, edit::cmdModifieNote_Click);
    m_atelier.auClic(fichiers, view::cmdFichiersFilm_Click);

    auto* boite = colonne(kMoyen);
    boite->addWidget(m_affiche);
    auto* ligne = rangee({note}, kSerre);
    ligne->addStretch();
    ligne->addWidget(noter);
    boite->addLayout(ligne);
    boite->addWidget(fichiers);
    boite->addStretch(1);
    return boite;
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
    boite->addLayout(grille, 1);
    boite->addLayout(distribution, 1);
    m_atelier.liaison.lie(fiche.frameGeneralites[0], cadre);
    return cadre;
}

QWidget* PanneauFiche::resume() {
    auto& fiche = m_atelier.etats().fiche;
    auto* cadre = nomme(new QWidget, "frameGeneralites", 1);
    auto* texte = nomme(new QTextEdit, "Text1", tr("Résumé"));
    texte->setReadOnly(true);
    texte->setTabChangesFocus(true);
    texte->setFrameShape(QFrame::NoFrame);
    texte->viewport()->setAutoFillBackground(false);
    texte->document()->setDocumentMargin(0);
    texte->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    texte->setMinimumHeight(80);
    texte->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // it takes what the facts leave
    m_atelier.liaison.lie(fiche.Text1, texte);
    auto* boite = colonne(kSerre);
    boite->addWidget(legende(tr("Résumé")));
    boite->addWidget(texte, 1);
    cadre->setLayout(boite);
    m_atelier.liaison.lie(fiche.frameGeneralites[1], cadre);
    return cadre;
}

void PanneauFiche::resizeEvent(QResizeEvent*) {
    dimensionneAffiche();
}

// Beside both pages the poster leaves them more room.
void PanneauFiche::dimensionneAffiche() {
    constexpr int kAutourDeLAffiche = 240;  // header, rating, actions, margins
    const int part = m_atelier.etats().fiche.cmdGeneralites.Visible ? 32 : 24;
    m_affiche->tiensDans({width() * part / 100, height() - kAutourDeLAffiche});
}

}  // namespace ui
