#include "ui/FenetreExamen.h"

#include "browse/PageDuGroupe.h"
#include "ensemble/FicheComparee.h"
#include "ui/Boutons.h"
#include "ui/Comparaison.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/FenetreGuide.h"
#include "ui/ModeleExamen.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <QTreeView>
#include <algorithm>

namespace ui {

namespace {

using edit::GenreDExamen;

constexpr QSize kTaille{980, 560}, kTailleDeLaFiche{760, 520};
constexpr int kLargeurs[] = {0, 150, 60, 0, 90, 110};  // of the columns; 0: what is left

QByteArray octets(const std::optional<std::string>& affiche) {
    return affiche ? QByteArray::fromStdString(*affiche) : QByteArray();
}

bool valide(const QKeyEvent& evenement) {
    return evenement.key() == Qt::Key_Return || evenement.key() == Qt::Key_Enter;
}

// A film that is read, alone or beside the one that it resembles.
void ouvreLaFiche(const Atelier& atelier, QWidget* parent, const QString& titre,
                  const std::optional<FenetreExamen::Vue>& presente, const FenetreExamen::Vue& lue) {
    auto* fenetre = nomme(new QDialog(parent), "frmFicheLue");
    fenetre->setAttribute(Qt::WA_DeleteOnClose);
    fenetre->setWindowTitle(titre);
    donneUnePage(atelier, fenetre, "apercu.html");
    auto* comparaison = new Comparaison;
    comparaison->metEnLecture(presente ? FenetreExamen::tr("Le film présent") : QString(),
                              FenetreExamen::tr("Ce qui est lu"));
    comparaison->montre(ensemble::compare(presente ? presente->film : lue.film, lue.film),
                        {presente ? octets(presente->affiche) : QByteArray(), octets(lue.affiche)});
    auto* fermer =
        bouton("cmdFermerFicheLue", FenetreExamen::tr("Fermer"), FenetreExamen::tr("Revenir à la liste (Échap)"));
    QObject::connect(fermer, &QAbstractButton::clicked, fenetre, &QDialog::reject);
    auto* boutons = rangee({});
    boutons->addStretch();
    boutons->addWidget(fermer);
    auto* boite = new QVBoxLayout(fenetre);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kMoyen);
    boite->addWidget(comparaison, 1);
    boite->addLayout(boutons);
    metTaille(fenetre, kTailleDeLaFiche);
    fenetre->open();
}

}  // namespace

FenetreExamen::FenetreExamen(const Atelier& atelier, Sujet sujet, QWidget* parent)
    : QDialog(parent),
      m_atelier(atelier),
      m_sujet(std::move(sujet)),
      m_modele(new ModeleExamen(m_sujet.films, m_sujet.provenance)),
      m_trie(new ExamenTrie(m_modele, nullptr)),
      m_liste(liste()),
      m_texte(nomme((new Etiquette)->avecLignes(3), "lblExamen")) {
    nomme(this, "frmExamen");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(m_sujet.titre);
    donneUnePage(atelier, this, "apercu.html");
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kMoyen);
    boite->addWidget(m_texte);
    boite->addLayout(choixDuGenre());
    boite->addWidget(m_liste, 1);
    boite->addLayout(boutons());
    connect(m_modele, &QAbstractItemModel::dataChanged, this, &FenetreExamen::suisLesCoches);
    metTaille(this, kTaille);
    suisLesCoches();
    m_liste->setCurrentIndex(m_trie->index(0, 0));
    m_liste->setFocus(Qt::OtherFocusReason);
}

QTreeView* FenetreExamen::liste() {
    QTreeView* vue = vueDeLignes("lstExamen", tr("Les films lus, et ce que l'import ferait de chacun"), m_trie);
    vue->setUniformRowHeights(true);
    vue->setSelectionMode(QAbstractItemView::ExtendedSelection);
    vue->setContextMenuPolicy(Qt::ActionsContextMenu);
    QHeaderView& entete = *vue->header();
    entete.setStretchLastSection(false);
    entete.setSortIndicatorClearable(true);  // back to the order of the import
    entete.setSortIndicator(-1, Qt::AscendingOrder);
    vue->setSortingEnabled(true);
    for (int colonne = 0; colonne < m_modele->columnCount(); ++colonne) {
        const int largeur = kLargeurs[colonne];
        if (largeur == 0)
            entete.setSectionResizeMode(colonne, QHeaderView::Stretch);
        else
            entete.resizeSection(colonne, largeur);
        const QString titre = m_modele->headerData(colonne, Qt::Horizontal, Qt::DisplayRole).toString();
        auto* action = new QAction(tr("Ranger par « %1 »").arg(titre), vue);
        connect(action, &QAction::triggered, vue, [&entete, colonne] {
            const bool deja =
                entete.sortIndicatorSection() == colonne && entete.sortIndicatorOrder() == Qt::AscendingOrder;
            entete.setSortIndicator(colonne, deja ? Qt::DescendingOrder : Qt::AscendingOrder);
        });
        vue->addAction(action);
    }
    auto* espace = new QShortcut(Qt::Key_Space, vue, nullptr, nullptr, Qt::WidgetShortcut);
    connect(espace, &QShortcut::activated, this, &FenetreExamen::bascule);
    connect(vue, &QAbstractItemView::activated, this, &FenetreExamen::voit);
    return vue;
}

QLayout* FenetreExamen::choixDuGenre() {
    const std::pair<GenreDExamen, QString> genres[] = {{GenreDExamen::Tous, tr("Tous")},
                                                       {GenreDExamen::Nouveaux, tr("Nouveaux")},
                                                       {GenreDExamen::DejaLa, tr("Déjà là")},
                                                       {GenreDExamen::Ressemblants, tr("Ressemblants")},
                                                       {GenreDExamen::AProbleme, tr("À problème")}};
    m_genre = nomme(new ListeDeroulante, "lstGenreExamen");
    m_genre->setToolTip(tr("Les films que montre la liste"));
    for (const auto& [genre, nom] : genres) {
        const auto nombre = std::ranges::count_if(m_modele->films(), [genre = genre](const edit::FilmExamine& film) {
            return edit::estDuGenre(film, genre);
        });
        m_genre->addItem(tr("%1 (%2)").arg(nom).arg(nombre), static_cast<int>(genre));
    }
    m_genre->setMinimumWidth(m_genre->sizeHint().width() + kLarge);  // the style's frame is no part of it
    connect(m_genre, &QComboBox::currentIndexChanged, this, [this] {
        m_trie->montreLeGenre(static_cast<GenreDExamen>(m_genre->currentData().toInt()));
        if (!m_liste->currentIndex().isValid()) m_liste->setCurrentIndex(m_trie->index(0, 0));
    });
    auto* ligne = rangee({legende(tr("&Montrer"), m_genre), m_genre});
    ligne->addStretch();
    for (const bool coche : {true, false}) {
        auto* tout =
            bouton(coche ? "cmdToutCocher" : "cmdToutDecocher", coche ? tr("&Tout cocher") : tr("T&out décocher"),
                   tr("Les films que montre la liste (Espace : le film choisi)"));
        connect(tout, &QAbstractButton::clicked, this, [this, coche] { m_modele->coche(montrees(), coche); });
        ligne->addWidget(tout);
    }
    return ligne;
}

QLayout* FenetreExamen::boutons() {
    m_voir = bouton("cmdVoirExamen", tr("&Voir…"),
                    tr("Montrer tout ce qui est lu de ce film, à côté de celui qui lui ressemble (Entrée)"));
    auto* fermer = bouton("cmdFermerExamen", tr("Fermer"), tr("Ne rien ajouter (Échap)"));
    m_completer = bouton("cmdCompleterExamen", QString(),
                         tr("Remplir ce qui est vide dans les films cochés qui sont déjà là ; rien d'autre ne change"));
    m_ajouter = bouton<BoutonAccent>("cmdAjouterExamen", QString(), tr("Ajouter à la base les films cochés"));
    connect(m_voir, &QAbstractButton::clicked, this, &FenetreExamen::voit);
    connect(fermer, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(m_completer, &QAbstractButton::clicked, this, &FenetreExamen::complete);
    connect(m_ajouter, &QAbstractButton::clicked, this, &FenetreExamen::ajoute);
    m_completer->setVisible(m_sujet.complete != nullptr);
    m_ajouter->setDefault(true);
    auto* ligne = rangee({m_voir});
    ligne->addStretch();
    for (QPushButton* celui : {fermer, m_completer, m_ajouter})
        ligne->addWidget(celui);
    return ligne;
}

void FenetreExamen::suisLesCoches() {
    const auto aAjouter = static_cast<int>(m_modele->aAjouter().size());
    const auto aCompleter = static_cast<int>(m_modele->aCompleter().size());
    const auto texte = [](const QString& geste, int nombre) {
        if (nombre == 0) return geste + QStringLiteral("…");
        return (nombre == 1 ? tr("%1 %2 film…") : tr("%1 %2 films…")).arg(geste).arg(nombre);
    };
    m_ajouter->setText(texte(tr("Ajouter"), aAjouter));
    m_completer->setText(texte(tr("Compléter"), aCompleter));
    m_ajouter->setEnabled(aAjouter > 0);
    m_completer->setEnabled(aCompleter > 0);
    const QString arret = m_sujet.complet ? QString() : tr("La lecture a été arrêtée avant la fin. ");
    m_texte->setText(arret + QString::fromStdString(edit::bilan(m_modele->films())) +
                     tr(" Rien n'est écrit sans vous."));
}

std::vector<int> FenetreExamen::choisies() const {
    std::vector<int> rangs;
    for (const QModelIndex& index : m_liste->selectionModel()->selectedRows())
        rangs.push_back(m_trie->mapToSource(index).row());
    return rangs;
}

std::vector<int> FenetreExamen::montrees() const {
    std::vector<int> rangs;
    for (int rang = 0; rang < m_trie->rowCount(); ++rang)
        rangs.push_back(m_trie->mapToSource(m_trie->index(rang, 0)).row());
    return rangs;
}

// All that is chosen becomes what the current one was not.
void FenetreExamen::bascule() {
    const QModelIndex courant = m_trie->mapToSource(m_liste->currentIndex());
    if (courant.isValid()) m_modele->coche(choisies(), !m_modele->estCochee(courant.row()));
}

void FenetreExamen::voit() {
    const QModelIndex courant = m_trie->mapToSource(m_liste->currentIndex());
    if (!courant.isValid()) return;
    const edit::FilmExamine& film = m_modele->film(courant.row());
    const auto lue = m_sujet.vue(static_cast<std::size_t>(courant.row()));
    if (!lue) return m_texte->setText(tr("« %1 » ne peut pas être lu.").arg(texteDeLigne(film.provenance)));
    ouvreLaFiche(m_atelier, this, texteDeLigne(edit::texteDuSort(film)), autre(film), *lue);
}

// The film of the base, or the one that comes earlier in the same import.
std::optional<FenetreExamen::Vue> FenetreExamen::autre(const edit::FilmExamine& film) {
    if (film.sort != edit::SortDuFilm::DejaLa && !film.proche) return std::nullopt;
    const db::CleFilm cle = film.proche ? film.proche->film : film.film;
    std::optional<Vue> trouve;
    m_atelier.execute([&](const app::Contexte& c) {
        if (const auto present = ensemble::filmDeLaBase(c, cle)) trouve = {*present, browse::afficheDuFilm(c, cle)};
    });
    if (trouve) return trouve;
    const auto& films = m_modele->films();
    const auto place = std::ranges::find_if(films, [&](const edit::FilmExamine& celui) {
        return edit::peutEtreAjoute(celui) && db::memeFilm(celui.film, cle);
    });
    return place == films.end() ? std::nullopt : m_sujet.vue(static_cast<std::size_t>(place - films.begin()));
}

// The window makes room for the import's own questions.
void FenetreExamen::ajoute() {
    const auto geste = m_sujet.ajoute;
    const Rangs rangs = m_modele->aAjouter();
    accept();
    geste(rangs);
}

void FenetreExamen::complete() {
    const QPoint place = pos();
    hide();
    const QPointer<FenetreExamen> encoreLa = this;
    const Rangs faits = m_sujet.complete(m_modele->aCompleter());
    if (!encoreLa || m_atelier.commande.finie()) return;
    m_modele->completees(faits);
    open();
    move(place);
    m_liste->setFocus(Qt::OtherFocusReason);
}

// In the list Enter shows the film, and presses no button.
void FenetreExamen::keyPressEvent(QKeyEvent* evenement) {
    if (!valide(*evenement) || !m_liste->hasFocus()) QDialog::keyPressEvent(evenement);
}

}  // namespace ui
