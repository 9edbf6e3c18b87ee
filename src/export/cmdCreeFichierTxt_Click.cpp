#include "export/cmdCreeFichierTxt_Click.h"

#include "db/CheminAEcrire.h"
#include "export/TexteFiche.h"

namespace exportation {

void cmdCreeFichierTxt_Click::operator()() {
    static constexpr const char* kTitre = "Créer un fichier texte";
    if (!m_film.estUnFilm()) return;
    const std::string fichier = db::demandeCheminAEcrire(m_dialogues,
                                                         {.invite = "Entrez le chemin de destination du fichier texte.",
                                                          .titre = kTitre,
                                                          .defaut = m_film.titre + ".txt",
                                                          .extension = ".txt"},
                                                         m_chemins);
    if (fichier.empty() || !m_dernierExport.ecrit(fichier, texteFiche(m_film.titre, m_fiche))) return;
    m_dialogues.MsgBox("Fichier créé !", dialogues::kInformation, kTitre);
}

}  // namespace exportation
