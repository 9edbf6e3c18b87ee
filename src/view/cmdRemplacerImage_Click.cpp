#include "view/cmdRemplacerImage_Click.h"

#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "platform/fichiers/Fichiers.h"

namespace view {

namespace {

constexpr std::int64_t kTailleMaxFichier = 64 << 20;  // bytes; beyond, a picture is not shown either

}  // namespace

void cmdRemplacerImage_Click::operator()() {
    const std::string choisi =
        m_dialogues.choisitFichier({"Choix de l'image associée au film", "Fichiers JPEG|*.jpg", m_chemins.dossier});
    if (choisi.empty()) return;
    if (const auto octets = octetsAdmis(choisi)) remplace(*octets);
}

std::optional<std::string> cmdRemplacerImage_Click::octetsAdmis(const std::string& chemin) {
    std::optional<std::string> octets;
    if (!fichiers::existe(chemin)) {
        avertit("Image inexistante !");
    } else if (m_stockage.dansLaBase() && fichiers::longueur(chemin) > db::kTailleMaxAffiche) {
        avertit("Image trop grande pour tenir en base !");
    } else if (octets = fichiers::lit(chemin, kTailleMaxFichier); !octets || octets->empty() || !estUneImage(chemin)) {
        octets.reset();
        avertit("Cette image est illisible ou trop grande (" + chemin + ") !");
    }
    return octets;
}

// Trying the picture takes the place of the one shown, which comes back at once.
bool cmdRemplacerImage_Click::estUneImage(const std::string& chemin) {
    const bool lisible = m_images.charge(chemin).has_value();
    m_chargeAffiche();
    return lisible;
}

void cmdRemplacerImage_Click::remplace(const std::string& octets) {
    dao::Recordset film = db::ouvreRequete(m_base.base, db::enonceFilm(m_film.titre, m_film.realisateur),
                                           db::NumeroErreur::cmdRemplacerImage, m_dialogues);
    if (!m_film.estUnFilm() || film.Eof()) return avertit("Film non trouvé !");
    const auto valeur = range(octets);  // a file stands whole on the disk before the row names it
    if (!valeur) return;
    film.Edit();
    film.assigne("Affiche", *valeur);
    film.Update();
    m_film.affiche = m_stockage.dansLaBase() ? "STO" : valeur->texte();
    fichiers::supprime(m_chemins.afficheTmp);
    fichiers::ecrit(m_chemins.afficheTmp, octets);
    m_chargeAffiche();
}

// What the column will hold; nothing when the file could not be written. Replaced posters are filed under their director.
std::optional<dao::Valeur> cmdRemplacerImage_Click::range(const std::string& octets) {
    if (m_stockage.dansLaBase()) return db::valeurAfficheDansLaBase(octets);
    const std::string nom = db::nomFichierAffiche(m_film.realisateur, m_film.titre);
    const std::string dossier = db::dossierImages(m_stockage, m_chemins);
    if (fichiers::creeDossier(dossier) && fichiers::remplace(dossier + nom, octets))
        return db::valeurAfficheFichier(nom);
    avertit("L'image n'a pas pu être enregistrée (" + dossier + nom + ") !");
    return std::nullopt;
}

}  // namespace view
