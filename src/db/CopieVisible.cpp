#include "db/CopieVisible.h"

#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Verrou.h"

#include <filesystem>
#include <system_error>

namespace db {

namespace {

constexpr std::int64_t kUnite = 64 << 10;  // of the progress

// A working file, gone unless it is kept.
class FichierDeTravail {
  public:
    explicit FichierDeTravail(const std::string& chemin) : m_chemin(chemin) {}
    FichierDeTravail(const FichierDeTravail&) = delete;
    FichierDeTravail& operator=(const FichierDeTravail&) = delete;
    ~FichierDeTravail() {
        if (m_aEffacer) fichiers::supprime(m_chemin);
    }
    void garde() { m_aEffacer = false; }

  private:
    std::string m_chemin;
    bool m_aEffacer = true;
};

}  // namespace

OctetsVisibles::~OctetsVisibles() {
    if (!m_travail) return;
    m_c.travaux.ProgressBar3.Visible = false;
    m_c.travaux.lblTravail.Caption.clear();
}

dao::DBEngine::IssueDeCopie CopieVisible::copie(const std::string& source, const std::string& travail) {
    if (fichiers::cree(travail, "") != fichiers::Creation::Faite)
        throw dao::ErreurDao(dao::kErreurDisque,
                             "aucun fichier ne peut y être créé (" + fichiers::raisonDeLEchec() + ")");
    FichierDeTravail fichier(travail);
    const fichiers::Verrou enUsage(travail);
    std::error_code ignoree;
    const auto droits = std::filesystem::status(source, ignoree).permissions();
    std::filesystem::permissions(travail, droits & std::filesystem::perms::all, ignoree);
    const auto issue = dao::DBEngine::copieBase(
        source, travail, [this](std::int64_t faits, std::int64_t total) { return m_visible.avance(faits, total); },
        attente(m_c));
    if (issue == dao::DBEngine::IssueDeCopie::Faite) fichier.garde();
    return issue;
}

bool OctetsVisibles::avance(std::int64_t faits, std::int64_t total) {
    if (total < m_enUnMoment) return true;
    ecran::Progression& barre = m_c.travaux.ProgressBar3;
    if (!m_travail) {
        m_travail.emplace(m_c.ecran);
        m_c.travaux.lblTravail.Caption = m_texte;
        barre.Visible = true;
    }
    barre.Max = static_cast<long>(total / kUnite);
    barre.Value = static_cast<long>(faits / kUnite);
    return m_c.ecran.respire();
}

}  // namespace db
