#include "rapatrix/Collecte.h"

#include "platform/fichiers/Fichiers.h"
#include "rapatrix/ArchiveFiche.h"
#include "util/NomsFichiers.h"

#include <algorithm>
#include <utility>

namespace rapatrix {

namespace {

constexpr qint64 kTailleMaxPage = 4 << 20;
constexpr std::size_t kPagesMax = 50;
constexpr int kEssais = 3;           // where the site asks to wait
constexpr int kAttenteMax = 120;     // seconds
constexpr int kEchecsReseauMax = 3;  // in a row: the network is gone

QString qt(const std::string& texte) {
    return QString::fromStdString(texte);
}

// What to do about it, in a sentence.
QString messageEchec(const Reponse& reponse) {
    switch (reponse.etat) {
        case Reponse::Etat::Injoignable:
            return Collecte::tr("Le site ne répond pas. Vérifiez la connexion à Internet, ou réessayez plus tard.");
        case Reponse::Etat::Refusee:
            return reponse.code == 404 ? Collecte::tr("Cette page n'existe plus sur le site.")
                                       : Collecte::tr("Le site a refusé la demande (erreur %1). Réessayez plus tard.")
                                             .arg(reponse.code);
        case Reponse::Etat::TropDeDemandes:
            return Collecte::tr("Le site est trop occupé. Réessayez dans quelques minutes.");
        case Reponse::Etat::TropGrosse:
            return Collecte::tr("La réponse du site est anormalement longue : elle a été refusée.");
        case Reponse::Etat::AutreSite:
            return Collecte::tr(
                "La demande a été détournée vers un autre site. Si votre réseau demande de se "
                "connecter à un portail, faites-le dans un navigateur, puis réessayez.");
        case Reponse::Etat::Tronquee:
            return Collecte::tr("La connexion a été coupée plusieurs fois. Réessayez plus tard.");
        case Reponse::Etat::Faite:
            break;
    }
    return {};
}

}  // namespace

Collecte::Collecte(const Reglages& reglages, const Delais& delais)
    : m_reglages(reglages),
      m_delais(delais),
      m_reseau(QUrl(qt(reglages.adresseBase.empty() ? reglages.adresseListe : reglages.adresseBase)), delais.reseau) {
    m_minuterie.setInterval(static_cast<int>(delais.seconde.count()));
    connect(&m_minuterie, &QTimer::timeout, this, [this] {
        emit attend(--m_reste, m_pourquoi);
        if (m_reste > 0) return;
        m_minuterie.stop();
        std::exchange(m_apresAttente, nullptr)();
    });
}

void Collecte::arrete() {
    m_reseau.arrete();
    m_minuterie.stop();
    m_apresAttente = nullptr;
    m_pages.clear();
    m_fiches.clear();
    m_enCours = false;
}

// Asks, and asks again after the time that a site too busy wants.
void Collecte::demande(const QUrl& adresse, qint64 limite, const Suite& suite, int essais) {
    m_reseau.demande(adresse, limite, [=, this](const Reponse& reponse) {
        if (reponse.etat != Reponse::Etat::TropDeDemandes || essais <= 1) {
            suite(reponse);
            return;
        }
        const int attente = std::max(static_cast<int>(reponse.attente.count()), m_reglages.dureePause);
        patiente(std::clamp(attente, 1, kAttenteMax), tr("Le site demande d'attendre"),
                 [=, this] { demande(adresse, limite, suite, essais - 1); });
    });
}

void Collecte::patiente(int secondes, const QString& pourquoi, std::function<void()> suite) {
    m_reste = secondes;
    m_pourquoi = pourquoi;
    m_apresAttente = std::move(suite);
    emit attend(m_reste, m_pourquoi);
    m_minuterie.start();
}

void Collecte::finit(void (Collecte::*signal)(const QString&), const QString& probleme) {
    arrete();
    emit(this->*signal)(probleme);
}

// --- the search ---------------------------------------------------------------------------------------------------

void Collecte::cherche() {
    arrete();
    m_enCours = true;
    m_pagesVues = {m_reglages.adresseListe};
    m_fichesVues.clear();
    page(QUrl(qt(m_reglages.adresseListe)));
}

void Collecte::page(const QUrl& adresse) {
    demande(
        adresse, kTailleMaxPage, [this](const Reponse& reponse) { resultat(reponse); }, kEssais);
}

void Collecte::resultat(const Reponse& reponse) {
    if (reponse.etat != Reponse::Etat::Faite) {
        finit(&Collecte::rechercheFinie, messageEchec(reponse));
        return;
    }
    const std::string adresse = reponse.adresse.toEncoded().toStdString();
    const auto liens = liensDeLaPage({reponse.octets.data(), static_cast<std::size_t>(reponse.octets.size())}, adresse,
                                     reponse.codage.toStdString());
    if (!m_reglages.supprimeListe)
        fichiers::remplace(util::avecSeparateur(m_reglages.dossierTmp) + "Liste.html", reponse.octets.toStdString());
    std::vector<Lien> nouvelles = liensDesFiches(liens, m_reglages.signeFiche, m_reglages.adresseBase);
    std::erase_if(nouvelles, [this](const Lien& lien) { return !m_fichesVues.insert(lien.adresse).second; });
    if (!nouvelles.empty()) emit trouvees(nouvelles);
    for (const std::string& suivante : pagesSuivantes(liens, m_reglages.adresseListe))
        if (m_pagesVues.size() < kPagesMax && m_pagesVues.insert(suivante).second) m_pages.push_back(suivante);
    if (m_pages.empty()) {
        finit(&Collecte::rechercheFinie, {});
        return;
    }
    const std::string suivante = std::move(m_pages.front());
    m_pages.pop_front();
    page(QUrl(qt(suivante)));
}

// --- the films ----------------------------------------------------------------------------------------------------

void Collecte::telecharge(const QStringList& fiches) {
    arrete();
    m_enCours = true;
    m_fiches.assign(fiches.begin(), fiches.end());
    m_echecsReseau = 0;
    ficheSuivante();
}

void Collecte::ficheSuivante() {
    if (m_fiches.empty()) {
        finit(&Collecte::telechargementFini, {});
        return;
    }
    if (m_reglages.pause && m_depuisPause >= m_reglages.fichiersAvantPause && m_reglages.dureePause > 0) {
        m_depuisPause = 0;
        patiente(m_reglages.dureePause, tr("Pause entre deux téléchargements"), [this] { ficheSuivante(); });
        return;
    }
    emit ficheCommencee(m_fiches.front());
    demande(
        QUrl(m_fiches.front()), kTailleMaxPage, [this](const Reponse& reponse) { pageFiche(reponse); }, kEssais);
}

void Collecte::pageFiche(const Reponse& reponse) {
    ++m_depuisPause;
    if (reponse.etat != Reponse::Etat::Faite) {
        const bool reseau = reponse.etat == Reponse::Etat::Injoignable;
        m_echecsReseau = reseau ? m_echecsReseau + 1 : 0;
        ficheFaite(Issue::Echouee, messageEchec(reponse));
        return;
    }
    m_echecsReseau = 0;
    const std::string adresse = reponse.adresse.toEncoded().toStdString();
    const auto liens = liensDeLaPage({reponse.octets.data(), static_cast<std::size_t>(reponse.octets.size())}, adresse,
                                     reponse.codage.toStdString());
    const std::string lien = lienArchive(liens, m_reglages.signeArchive, m_reglages.extension, m_reglages.adresseBase);
    if (lien.empty()) {
        ficheFaite(Issue::Echouee, tr("La page de ce film ne propose pas de fiche à télécharger."));
        return;
    }
    demande(
        QUrl(qt(lien)), static_cast<qint64>(kTailleMaxArchive), [this](const Reponse& r) { archive(r); }, kEssais);
}

void Collecte::archive(const Reponse& reponse) {
    if (reponse.etat != Reponse::Etat::Faite)
        ficheFaite(Issue::Echouee, messageEchec(reponse));
    else if (!reponse.octets.startsWith("PK"))
        ficheFaite(Issue::Echouee, tr("Le site a répondu par une page au lieu de la fiche. Réessayez plus tard."));
    else
        range(reponse.octets);
}

void Collecte::range(const QByteArray& octets) {
    if (!m_reglages.decompresse) {
        const std::string nom = fichiers::nomDeFichier(m_fiches.front().toStdString()) + "." + m_reglages.extension;
        deposee(fichiers::remplace(util::avecSeparateur(m_reglages.dossierFiches) + util::nettoieNomFichier(nom),
                                   octets.toStdString()));
        return;
    }
    const auto fiches = ouvreArchive({octets.data(), static_cast<std::size_t>(octets.size())});
    if (!fiches)
        ficheFaite(Issue::Echouee, tr("La fiche reçue est endommagée ou n'en est pas une."));
    else
        deposee(depose(*fiches, m_reglages.dossierFiches) == fiches->size());
}

// A disk that refuses one film refuses the next ones too.
void Collecte::deposee(bool faite) {
    if (faite)
        ficheFaite(Issue::Recue);
    else
        finit(&Collecte::telechargementFini,
              tr("Les fiches ne peuvent pas être écrites dans %1. Le disque est-il plein ?")
                  .arg(qt(m_reglages.dossierFiches)));
}

void Collecte::ficheFaite(Issue issue, const QString& probleme) {
    const QString adresse = m_fiches.front();
    m_fiches.pop_front();
    emit ficheFinie(adresse, issue, probleme);
    if (!m_enCours) return;  // stopped by who was told
    if (m_echecsReseau >= kEchecsReseauMax)
        finit(&Collecte::telechargementFini, probleme);
    else
        ficheSuivante();
}

}  // namespace rapatrix
