#include "ui/FenetreTableau.h"

#include "platform/fichiers/Fichiers.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/FenetreGuide.h"
#include "ui/FenetreVoisins.h"
#include "util/Nombres.h"
#include "voisins/ImporteCollection.h"

#include <QHeaderView>
#include <QTableWidget>
#include <algorithm>

namespace ui {

namespace {

constexpr QSize kTaille{960, 560};
constexpr int kLignesVues = 10;
constexpr int kLargeurDeColonne = 160;

QString nomDuSeparateur(char separateur) {
    switch (separateur) {
        case '\t':
            return FenetreTableau::tr("tabulation");
        case ',':
            return FenetreTableau::tr("virgule");
        case ';':
            return FenetreTableau::tr("point-virgule");
        default:
            return QString(QLatin1Char(separateur));
    }
}

}  // namespace

FenetreTableau::FenetreTableau(const Atelier& atelier, voisins::Tableau tableau, QWidget* parent)
    : QDialog(parent),
      m_atelier(atelier),
      m_tableau(std::move(tableau)),
      m_texte(nomme((new Etiquette)->avecLignes(4), "lblTableau")),
      m_continuer(bouton<BoutonAccent>("cmdContinuerTableau", tr("&Voir ce qui sera importé…"))) {
    nomme(this, "frmTableau");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Importer un tableau"));
    donneUnePage(atelier, this, "autres.html#tableau");
    auto* fermer = bouton("cmdFermerTableau", tr("Fermer"), tr("Ne rien importer (Échap)"));
    connect(fermer, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(m_continuer, &QAbstractButton::clicked, this, &FenetreTableau::examine);
    m_continuer->setDefault(true);
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kMoyen);
    boite->addWidget(m_texte);
    boite->addWidget(apercu(), 1);
    auto* boutons = rangee({});
    boutons->addStretch();
    boutons->addWidget(fermer);
    boutons->addWidget(m_continuer);
    boite->addLayout(boutons);
    metTaille(this, kTaille);
    suis();
}

// The first row is that of the choices.
QTableWidget* FenetreTableau::apercu() {
    const int colonnes = static_cast<int>(m_tableau.entetes.size());
    const int lignes = std::min(kLignesVues, static_cast<int>(m_tableau.lignes.size()));
    auto* vue = nomme(new QTableWidget(lignes + 1, colonnes), "lstTableau", tr("Les premières lignes du tableau"));
    vue->verticalHeader()->hide();
    vue->setEditTriggers(QAbstractItemView::NoEditTriggers);
    vue->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    vue->horizontalHeader()->setDefaultSectionSize(kLargeurDeColonne);
    vue->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    vue->horizontalHeader()->setHighlightSections(false);
    for (int c = 0; c < colonnes; ++c) {
        const auto colonne = static_cast<std::size_t>(c);
        vue->setHorizontalHeaderItem(c, new QTableWidgetItem(texteDeLigne(m_tableau.entetes[colonne])));
        auto* choix = nomme(new ListeDeroulante, "lstColonne", colonne,
                            tr("Ce que contient la colonne %1").arg(texteDeLigne(m_tableau.entetes[colonne])));
        for (std::size_t i = 0; i < voisins::kColonnes; ++i)
            choix->addItem(QString::fromStdString(voisins::nomDe(static_cast<voisins::Colonne>(i))));
        choix->setCurrentIndex(static_cast<int>(m_tableau.colonnes[colonne]));
        connect(choix, &QComboBox::currentIndexChanged, this, [this, colonne](int rang) {
            m_tableau.colonnes[colonne] = static_cast<voisins::Colonne>(rang);
            suis();
        });
        vue->setCellWidget(0, c, choix);
        m_choix.push_back(choix);
        for (int l = 0; l < lignes; ++l)
            if (const auto& ligne = m_tableau.lignes[static_cast<std::size_t>(l)]; colonne < ligne.size())
                vue->setItem(l + 1, c, new QTableWidgetItem(texteDeLigne(ligne[colonne])));
    }
    if (!m_choix.empty()) vue->setRowHeight(0, m_choix.front()->sizeHint().height() + kSerre);
    return vue;
}

void FenetreTableau::suis() {
    const bool titre = m_tableau.aUnTitre();
    m_texte->setText(QString::fromStdString(util::phraseCompte(std::ssize(m_tableau.lignes), "# ligne", "# lignes")) +
                     tr(" dans %1 (%2, séparateur : %3). ")
                         .arg(texteDeLigne(fichiers::nomDeFichier(m_tableau.chemin)),
                              QString::fromStdString(m_tableau.codage), nomDuSeparateur(m_tableau.separateur)) +
                     (titre ? tr("Vérifiez ce que contient chaque colonne.")
                            : tr("Indiquez la colonne qui contient le titre des films.")));
    m_continuer->setEnabled(titre);
}

void FenetreTableau::examine() {
    const voisins::Tableau tableau = std::move(m_tableau);
    const Atelier atelier = m_atelier;
    QWidget* const fenetre = parentWidget();
    accept();
    std::optional<voisins::Examen> examen;
    atelier.execute([&](const app::Contexte& c) { examen = voisins::examineTableau(c, tableau); });
    if (examen) (new FenetreVoisins(atelier, std::move(*examen), fenetre))->open();
}

}  // namespace ui
