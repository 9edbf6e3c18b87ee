#include "ui/ChampFiltre.h"

#include "app/Filtre.h"
#include "ui/BoutonPuce.h"
#include "ui/Composition.h"
#include "ui/FenetreGuide.h"
#include "ui/Icones.h"
#include "ui/Lecteur.h"
#include "ui/UneSeuleLigne.h"
#include "ui/VueTitres.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

namespace ui {

namespace {

// What a filter needs is read while nothing else is done: a while after the list was shown, a little at a time.
constexpr int kRepos = 250, kPendantUneCommande = 50;  // milliseconds
constexpr std::chrono::milliseconds kTranche{4}, kTrancheAttendue{30};
constexpr int kLettresAuPlus = 200;
constexpr int kAvantLAnnonce = 700;  // milliseconds after the last letter

}  // namespace

ChampFiltre::ChampFiltre(const Atelier& atelier, VueTitres& titres, QWidget* parent)
    : QWidget(parent),
      m_atelier(atelier),
      m_titres(titres),
      m_champ(nomme(new QLineEdit, "Filtre", tr("Filtrer les titres"))),
      m_limite(nomme(new BoutonPuce(BoutonPuce::Genre::Annonce), "cmdLeverLimite")),
      m_compte(nomme((new Etiquette)->avecPolice(1.08, QFont::DemiBold), "lblCompteFiltre")) {
    m_champ->setPlaceholderText(tr("Filtrer les titres…"));
    m_champ->setToolTip(
        tr("Ne montrer que les films où se trouvent ces mots : titre, réalisateur,\n"
           "année, genre ou acteurs, dans n’importe quel ordre (Ctrl+K)"));
    m_champ->setClearButtonEnabled(true);
    donneUnePage(m_champ, "filtrer.html");
    m_champ->setMaxLength(kLettresAuPlus);
    m_champ->addAction(icone(Pictogramme::Loupe), QLineEdit::LeadingPosition);
    m_champ->setMinimumWidth(m_champ->fontMetrics().averageCharWidth() * 14);
    new UneSeuleLigne(m_champ);
    m_limite->hide();
    m_compte->hide();
    auto* ligne = rangee({m_champ, m_limite}, kPetit);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setStretch(0, 1);
    setLayout(ligne);
    setFocusProxy(m_champ);

    m_champ->installEventFilter(this);
    connect(m_champ, &QLineEdit::textChanged, this, &ChampFiltre::suisLaSaisie);
    atelier.auClic(m_limite, app::leveLaLimite);
    const auto viens = [this] {
        m_champ->setFocus(Qt::ShortcutFocusReason);
        m_champ->selectAll();
    };
    connect(new QShortcut(Qt::CTRL | Qt::Key_K, this), &QShortcut::activated, this, viens);
    connect(&titres, &VueTitres::filtreVoulu, this, viens);
    titres.filtrePar([this] { return m_atelier.session.regarde(app::noeudsFiltres); });
    titres.modele().marquePar([this](const QString& titre) {
        const QByteArray octets = titre.toUtf8();
        ModeleArbre::Plages plages;
        for (const auto& [debut, fin] :
             m_atelier.etats().filtre.titres.marques({octets.data(), std::size_t(octets.size())})) {
            const auto avant = QString::fromUtf8(octets.first(static_cast<qsizetype>(debut))).size();
            plages.append({avant, QString::fromUtf8(octets.first(static_cast<qsizetype>(fin))).size() - avant});
        }
        return plages;
    });

    for (QTimer* minuterie : {&m_preparation, &m_annonce})
        minuterie->setSingleShot(true);
    connect(&m_preparation, &QTimer::timeout, this, &ChampFiltre::prepare);
    connect(&m_annonce, &QTimer::timeout, this, [this] { annonce(m_compte); });
    connect(&titres, &VueTitres::peinte, this, [this] {
        m_peinte = true;
        if (!grandeListe()) m_preparation.start(kRepos);
    });
    atelier.liaison.apresEcriture([this] { suisLEtat(); });
    connect(&atelier.commande, &Commande::terminee, this, [this] {
        const ensemble::FiltreTitres& filtre = m_atelier.etats().filtre.titres;
        const bool suivi = filtre.actif() || m_titres.modele().estFiltre();
        if (m_enAttente || (suivi && filtre.estPerime())) applique();
    });
}

void ChampFiltre::montreTout() {
    m_champ->clear();
    if (m_atelier.etats().filtre.titres.estLimite()) m_atelier.execute(app::leveLaLimite);
}

void ChampFiltre::suisLaSaisie() {
    m_atelier.etats().filtre.saisie = m_champ->text().toStdString();
    applique();
}

// The base is a running command's own. A large listing is read in slices first, which are no longer those of idle time.
void ChampFiltre::applique() {
    const bool lecture = m_atelier.session.regarde(app::filtreTarderait);
    m_enAttente = lecture || m_atelier.commande.enCours();
    if (lecture) {
        m_compte->setText(tr("Lecture de la liste…"));
        m_compte->show();
        m_preparation.start(0);
    }
    if (m_enAttente) return;
    m_titres.filtreANouveau();
    m_atelier.liaison.ecrit();
    if (m_compte->isVisible()) m_annonce.start(kAvantLAnnonce);
}

void ChampFiltre::suisLEtat() {
    const app::Etats& etats = m_atelier.etats();
    const ensemble::EtatFiltre& filtre = etats.filtre;
    const std::string avant = std::exchange(m_base, etats.fonctions.lblCheminBase.Caption);
    if (!avant.empty() && avant != m_base) m_champ->clear();                    // another collection begins whole
    if (filtre.saisie.empty() && !m_champ->text().isEmpty()) m_champ->clear();  // a search ended it

    m_limite->setVisible(filtre.titres.estLimite());
    const QString libelle = QString::fromStdString(filtre.libelle);
    m_limite->setText(QString(libelle + QStringLiteral(" ✕")).replace(QLatin1Char('&'), QLatin1String("&&")));
    m_limite->setAccessibleName(tr("Ne plus montrer que : %1").arg(libelle));
    m_limite->setToolTip(tr("Seuls ces films sont montrés : un clic montre de nouveau les autres"));

    const std::string compte =
        filtre.echec.empty() ? filtre.titres.texteDuCompte() : "Filtre impossible : " + filtre.echec;
    m_compte->setText(QString::fromStdString(compte));
    m_compte->setVisible(!filtre.echec.empty() || m_titres.modele().estFiltre());

    if (std::exchange(m_remplissage, etats.liste.TreeView1.Nodes.remplissages()) != m_remplissage && m_peinte &&
        (m_champ->hasFocus() || !grandeListe()))
        m_preparation.start(m_champ->hasFocus() ? 0 : kRepos);
}

void ChampFiltre::prepare() {
    if (m_atelier.commande.enCours()) return m_preparation.start(kPendantUneCommande);
    const bool pret = m_atelier.session.regarde(app::prepareLeFiltre, m_enAttente ? kTrancheAttendue : kTranche);
    if (!pret) return m_preparation.start(0);
    if (m_enAttente) applique();
}

bool ChampFiltre::grandeListe() const {
    return m_atelier.etats().liste.TreeView1.Nodes.Count() > ensemble::FiltreTitres::kGrandeListe;
}

bool ChampFiltre::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::FocusIn) m_preparation.start(0);
    if (evenement->type() == QEvent::KeyPress && prends(*static_cast<QKeyEvent*>(evenement))) return true;
    return QWidget::eventFilter(objet, evenement);
}

// Enter opens the first title and stays, so that typing goes on; the arrow goes there.
bool ChampFiltre::prends(const QKeyEvent& evenement) {
    if (evenement.modifiers() & ~Qt::KeypadModifier) return false;
    const bool filtree = m_titres.modele().estFiltre();
    switch (evenement.key()) {
        case Qt::Key_Escape:
            m_champ->clear();
            m_titres.setFocus(Qt::OtherFocusReason);
            return true;
        case Qt::Key_Down:
            if (filtree && m_titres.modele().premierFilm() == 0) return true;
            m_titres.setFocus(Qt::OtherFocusReason);
            if (filtree) m_titres.choisitPremierFilm();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (filtree) m_titres.choisitPremierFilm();
            return true;
        default:
            return false;
    }
}

}  // namespace ui
