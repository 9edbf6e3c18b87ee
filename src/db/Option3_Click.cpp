#include "db/Option3_Click.h"

#include "platform/fichiers/Fichiers.h"

namespace db {

void Option3_Click::operator()() {
    if (m_etat.Text4.Text.empty()) {
        fichiers::creeDossier(m_chemins.dansDossier("Images"));
        m_etat.Text4.Text = m_chemins.dansDossier("Images/");
    }
    const bool dansUnDossier = m_etat.Option3[1].Value;
    m_etat.Text4.Enabled = dansUnDossier;
    m_etat.cmdParcourir.Enabled = dansUnDossier;
}

}  // namespace db
