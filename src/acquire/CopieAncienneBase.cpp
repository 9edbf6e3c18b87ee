#include "acquire/CopieAncienneBase.h"

#include "db/ConversionJet.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"

#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

namespace acquire {

namespace {

constexpr long kPourCent = 100;

// What a program that was killed leaves beside its base, and the base is not whole without.
constexpr std::array<const char*, 2> kSuites{"-journal", "-wal"};

std::filesystem::file_time_type dateDe(const std::string& chemin) {
    std::error_code ignoree;
    return std::filesystem::last_write_time(chemin, ignoree);
}

}  // namespace

CopieAncienneBase::CopieAncienneBase(const Contexte& c) : m_c(c) {
    efface();
}

CopieAncienneBase::~CopieAncienneBase() {
    m_base.Close();
    efface();
}

void CopieAncienneBase::efface() {
    fichiers::supprime(m_copie);
    for (const char* suite : {"-journal", "-wal", "-shm"})
        fichiers::supprime(m_copie + suite);
}

CopieAncienneBase::Issue CopieAncienneBase::ouvre(const std::string& original, const jet::Ouverture& ouverture) {
    const Issue issue = jet::estBaseJet(original) ? convertit(original, ouverture) : copie(original);
    if (issue != Issue::Ouverte) return issue;
    try {
        m_base = dao::DBEngine::OpenDatabase(m_copie, true);
        return Issue::Ouverte;
    } catch (const dao::ErreurDao& erreur) {
        return echoue(erreur.numero == dao::kErreurFormat ? "Ce fichier n'est pas une base, ou il est endommagé."
                                                          : erreur.description);
    }
}

CopieAncienneBase::Issue CopieAncienneBase::convertit(const std::string& original, const jet::Ouverture& ouverture) {
    const db::IssueJet issue = db::ConversionJet(m_c.ajout.ProgressBar1, m_c.ecran)(original, m_copie, ouverture);
    m_abimee = issue.abimee;
    m_rapport = issue.rapport;
    if (issue.echec) return echoue(*issue.echec);
    return issue.interrompu ? Issue::Interrompue : Issue::Ouverte;
}

CopieAncienneBase::Issue CopieAncienneBase::copie(const std::string& original) {
    const auto avant = dateDe(original);
    bool faite = copieFichier(original, m_copie);
    for (const char* suite : kSuites)
        if (faite && fichiers::longueur(original + suite) >= 0) faite = copieFichier(original + suite, m_copie + suite);
    if (m_interrompue) return Issue::Interrompue;
    if (!faite) return echoue("Le fichier n'a pas pu être copié (Disque plein/Accès refusé ?)");
    if (dateDe(original) != avant) return echoue("Un autre programme a modifié la base pendant sa lecture.");
    return Issue::Ouverte;
}

bool CopieAncienneBase::copieFichier(const std::string& de, const std::string& vers) {
    const std::int64_t total = std::max<std::int64_t>(fichiers::longueur(de), 1);
    ecran::Progression& barre = m_c.ajout.ProgressBar1;
    barre.Max = kPourCent;
    barre.Value = 0;
    return fichiers::copie(de, vers, [&](std::int64_t octets) {
        barre.Value = std::min(static_cast<long>(octets * kPourCent / total), kPourCent);
        m_interrompue = !m_c.ecran.respire();
        return !m_interrompue;
    });
}

CopieAncienneBase::Issue CopieAncienneBase::echoue(std::string raison) {
    m_echec = std::move(raison);
    return Issue::Echouee;
}

}  // namespace acquire
