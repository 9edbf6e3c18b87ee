#include "platform/dao/Connexion.h"

#include "platform/dao/Enregistreur.h"
#include "platform/dao/Erreurs.h"
#include "platform/dao/Fonctions.h"
#include "platform/dao/Jeu.h"
#include "util/Ascii.h"

#include <algorithm>

#include <sqlite3.h>
#include <sys/stat.h>

namespace dao::interne {

namespace {

constexpr const char* kAnnulation = "ROLLBACK";

std::optional<std::pair<dev_t, ino_t>> fichierNomme(const std::string& chemin) {
    struct stat etat {};
    if (stat(chemin.c_str(), &etat) != 0) return std::nullopt;
    return std::pair(etat.st_dev, etat.st_ino);
}

}  // namespace

Regard::Regard(Connexion& connexion) : m_connexion(connexion) {
    m_connexion.acheveLeReste();
    m_ouvert = !connexion.enTransaction();
    if (!m_ouvert) return;
    m_connexion.prepare("BEGIN").execute();
    ++m_connexion.m_regards;
}

// Nothing was written, so nothing can be lost by a failure here: whoever comes next ends it.
Regard::~Regard() {
    if (!m_ouvert) return;
    --m_connexion.m_regards;
    if (!m_connexion.enTransaction()) return;
    try {
        m_connexion.prepare("ROLLBACK").execute();
    } catch (...) {
    }
}

Connexion::Connexion(Poignee base, std::string nom)
    : m_base(std::move(base)), m_nom(std::move(nom)), m_fichier(fichierNomme(m_nom)) {
    inscritFonctions(*this);
    m_versionDuFichier = versionDuFichier();
}

Connexion::~Connexion() {
    m_enregistreur.reset();
    for (Jeu* jeu : m_jeux)
        jeu->perdLaBase();
}

void Connexion::execute(std::string_view sql) {
    exigeTransaction();
    const int code = m_base.essaie(std::string(sql));
    relitLesTables();  // the statements may have changed any of them
    oublieLesLignes();
    if (code != SQLITE_OK) jetteSqlite(brute(), code, Acces::Ecriture);
}

Table& Connexion::table(std::string_view nom) {
    std::string cle(nom);
    std::transform(cle.begin(), cle.end(), cle.begin(), util::enMinuscule<char>);
    auto trouvee = m_tables.find(cle);
    if (trouvee == m_tables.end()) {
        auto lue = litTable(*this, cle);
        if (lue == nullptr)
            jette(kErreurTableIntrouvable, "La table « " + std::string(nom) + " » n'existe pas dans la base.");
        lue->adopteCle(m_cles);
        trouvee = m_tables.emplace(std::move(cle), std::move(lue)).first;
    }
    return *trouvee->second;
}

void Connexion::declareCles(std::vector<Cle> cles) {
    m_cles = std::move(cles);
    for (const auto& [nom, table] : m_tables)
        table->adopteCle(m_cles);
}

bool Connexion::enTransaction() const {
    return sqlite3_get_autocommit(brute()) == 0;
}

void Connexion::commence() {
    if (m_commencee) jette(kErreurTransaction, "Une transaction est déjà ouverte.");
    exigeEnPlace();
    acheveLeReste();
    (void)prepare(kAnnulation);  // at hand where memory lacks
    prepare("BEGIN IMMEDIATE").execute();
    try {
        suitLeFichier();
        if (m_enregistreur) m_enregistreur->commence();
        m_commencee = true;
        exigeTransaction();
    } catch (...) {
        annule();
        throw;
    }
}

// The file engine rolls the whole transaction back where memory or the disk fails it, in a statement that only reads too:
// what came after would be stored row by row.
void Connexion::exigeTransaction() const {
    if (m_commencee && !enTransaction()) jette(kErreurDisque, "Erreur de disque : les modifications ont été annulées.");
}

void Connexion::confirme() {
    if (!m_commencee) jette(kErreurTransaction, "Aucune transaction n'est ouverte.");
    exigeTransaction();
    if (m_enregistreur) m_enregistreur->avantValidation();
    prepare("COMMIT").execute();
    m_commencee = false;
    for (const auto& [nom, table] : m_tables)
        table->suivi.supprimeesEnCours.clear();
}

// What would come after it would be stored with it, which is never.
void Connexion::acheveLeReste() {
    if (m_commencee || m_regards > 0 || !enTransaction()) return;
    prepare(kAnnulation).execute();
    oublieLesLignes();
}

void Connexion::annule() {
    m_commencee = false;
    if (m_enregistreur) m_enregistreur->annule();
    for (const auto& [nom, table] : m_tables) {
        for (const long long ligne : table->suivi.supprimeesEnCours)
            table->suivi.supprimees.erase(ligne);
        table->suivi.supprimeesEnCours.clear();
    }
    oublieLesLignes();
    if (enTransaction()) prepare(kAnnulation).execute();
}

bool Connexion::enregistre(Enregistrement* suite) {
    m_enregistreur = suite == nullptr ? nullptr : std::make_unique<Enregistreur>(*this, *suite);
    return std::exchange(m_dejaEnregistree, true);
}

void Connexion::noteModification() {
    if (m_enregistreur) m_enregistreur->noteModification();
}

void Connexion::soulageLEnregistrement() {
    if (m_enregistreur) m_enregistreur->soulage();
}

void Connexion::relisToutesLesLignes(std::vector<AncienSuivi>& anciens) noexcept {
    auto ancien = anciens.begin();
    for (const auto& [nom, table] : m_tables) {
        if (ancien == anciens.end()) break;
        std::swap(ancien->index, table->suivi.index);
        std::swap(ancien++->ecrites, table->suivi.ecrites);
    }
    nouvelleVersion();
    oublieLesLignes();
}

void Connexion::veille() {
    acheveLeReste();
    if (enTransaction()) return;  // nobody else can write
    exigeEnPlace();
    suitLeFichier();
}

Emplacement Connexion::emplacement() const {
    const auto fichier = fichierNomme(m_nom);
    if (!fichier) return Emplacement::Absente;
    return fichier == m_fichier ? Emplacement::EnPlace : Emplacement::Remplacee;
}

// The engine would go on reading the file it holds, which nobody else sees any more, and call it read-only.
void Connexion::exigeEnPlace() const {
    if (emplacement() != Emplacement::EnPlace) jetteDeplacee(m_nom);
}

void Connexion::suitLeFichier() {
    const long long version = versionDuFichier();
    if (version == m_versionDuFichier) return;
    m_versionDuFichier = version;
    relitLesTables();
    oublieLesLignes();
}

// Recordsets hold ranks of columns: where a table no longer has the same ones, they are lost.
void Connexion::relitLesTables() {
    for (auto position = m_tables.begin(); position != m_tables.end();) {
        const auto nouvelle = litTable(*this, position->first);
        if (nouvelle != nullptr && nouvelle->memeForme(*position->second)) {
            position++->second->aCleEntiere.reset();
            continue;
        }
        for (Jeu* jeu : m_jeux)
            jeu->perdLaBase();
        m_jeux.clear();
        position = m_tables.erase(position);
    }
}

void Connexion::oublieLesLignes() {
    ++m_epoque;
    for (const auto& [nom, table] : m_tables) {
        table->suivi.compte.reset();
        table->suivi.index.oublie();
        table->suivi.ecrites.clear();  // recordsets of an earlier epoch read every value again
    }
}

}  // namespace dao::interne
