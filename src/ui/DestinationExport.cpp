#include "ui/DestinationExport.h"

#include "export/Exporter.h"
#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "ui/Composition.h"
#include "ui/Interface.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <QDir>
#include <QStandardPaths>

namespace ui {

namespace {

const QString kCleDossier = QStringLiteral("Export/dossier");

bool estUnDossier(Sortie sortie) {
    return description(sortie).forme == SortieExport::Forme::Dossier;
}

Interface interfaceDe(const Atelier& atelier) {
    return Interface(atelier.session.regarde([](const app::Contexte& c) { return c.chemins.dossier; }));
}

}  // namespace

DestinationExport::DestinationExport(const Atelier& atelier)
    : m_atelier(atelier), m_chemin(nomme(new QLineEdit, "txtCheminExport")) {
    auto* parcourir = bouton("cmdParcourirExport", tr("Pa&rcourir…"), tr("Choisir où écrire"));
    connect(parcourir, &QAbstractButton::clicked, this, &DestinationExport::parcourt);
    connect(m_chemin, &QLineEdit::textEdited, this, [this] { m_remplacable.clear(); });
    auto* boite = colonne(kSerre);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->addWidget(legende(tr("&Où ?"), m_chemin));
    boite->addLayout(rangee({m_chemin, parcourir}));
    setLayout(boite);
    choisisLeDossier();
}

void DestinationExport::choisisLeDossier() {
    for (const QString& dossier :
         {interfaceDe(m_atelier).texte(kCleDossier),
          QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), QDir::homePath()}) {
        m_dossier = dossier;
        if (!dossier.isEmpty() && QDir(dossier).exists()) return;
    }
}

void DestinationExport::retiens(const std::string& chemin) {
    m_dossier = QFileInfo(QString::fromStdString(chemin)).absolutePath();
    interfaceDe(m_atelier).note(kCleDossier, m_dossier);
}

void DestinationExport::oublieLaSaisie() {
    m_chemin->setModified(false);
}

void DestinationExport::propose(Sortie sortie, const QString& nom) {
    m_sortie = sortie;
    m_remplacable.clear();
    const QString extension = QString::fromLatin1(description(sortie).extension);
    if (!m_chemin->isModified()) {
        m_chemin->setText(m_dossier + QLatin1Char('/') + nom + extension);
    } else if (!extension.isEmpty()) {
        const std::string sans = fichiers::sansExtension(m_chemin->text().toStdString());
        m_chemin->setText(QString::fromStdString(sans) + extension);
        m_chemin->setModified(true);
    }
}

void DestinationExport::parcourt() {
    const std::string ici = cheminVoulu(), extension = description(m_sortie).extension;
    std::string choisi;
    m_atelier.execute([&](const app::Contexte& c) {
        const std::string dossier = fichiers::dossierDe(ici), nom = fichiers::nomDeFichier(ici);
        if (estUnDossier(m_sortie)) {
            choisi = c.dialogues.choisitDossier(tr("Où faire le nouveau dossier de fiches").toStdString(), dossier);
            if (!choisi.empty()) choisi = util::avecSeparateur(choisi) + nom;
            return;
        }
        choisi = c.dialogues.choisitFichier(
            {.titre = tr("Exporter").toStdString(),
             .filtre = "Fichiers " + util::majuscules(extension.substr(1)) + "|*" + extension,
             .dossier = dossier,
             .peutCreer = true,
             .nom = nom});
        m_remplacable = choisi;  // the box asked
    });
    if (choisi.empty()) return;
    m_chemin->setText(QString::fromStdString(choisi));
    m_chemin->setModified(true);
    m_dossier = QFileInfo(m_chemin->text()).absolutePath();
}

std::string DestinationExport::cheminVoulu() const {
    std::string chemin =
        fichiers::cheminTape(m_chemin->text().trimmed().toStdString(), util::avecSeparateur(m_dossier.toStdString()));
    const std::string extension = description(m_sortie).extension;
    const bool nomme = !chemin.empty() && !chemin.ends_with('/') && !fichiers::estCheminWindows(chemin);
    if (nomme && !util::finitPar(util::minuscules(chemin), extension)) chemin += extension;
    return chemin;
}

// "" where it can be written.
std::string DestinationExport::refus(const std::string& chemin) const {
    const bool dossier = estUnDossier(m_sortie);
    if (chemin.empty() || (chemin.ends_with('/') && !dossier)) return "Donnez un nom à ce que vous exportez.";
    if (fichiers::estCheminWindows(chemin))
        return "« " + chemin + " » est un chemin de Windows : choisissez une place sur cet ordinateur.";
    if (dossier) return exportation::refusDossierFiches(chemin).value_or("");
    return fichiers::dossierExiste(chemin) ? chemin + " est un dossier : donnez le nom d'un fichier." : "";
}

// The questions before anything is written; never over a file that nobody agreed to replace.
std::optional<std::string> DestinationExport::cheminAccorde() {
    const std::string chemin = cheminVoulu(), raison = refus(chemin);
    bool accord = raison.empty();
    m_atelier.execute([&](const app::Contexte& c) {
        if (!accord) {
            c.dialogues.MsgBox(raison, dialogues::kExclamation);
        } else if (!estUnDossier(m_sortie) && chemin != m_remplacable && fichiers::existe(chemin)) {
            accord = c.dialogues.MsgBox("Le fichier " + chemin + " existe déjà. Voulez-vous le remplacer ?",
                                        dialogues::kQuestion) == dialogues::kOui;
        }
    });
    return accord ? std::optional(chemin) : std::nullopt;
}

}  // namespace ui
