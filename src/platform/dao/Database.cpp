#include "platform/dao/Database.h"

#include "platform/dao/Balayage.h"
#include "platform/dao/Connexion.h"
#include "platform/dao/Ecriture.h"
#include "platform/dao/Enonce.h"
#include "platform/dao/Enregistreur.h"
#include "platform/dao/Erreurs.h"
#include "platform/dao/JeuDeCles.h"
#include "platform/dao/JeuVivant.h"
#include "platform/dao/Plan.h"
#include "platform/dao/Resultat.h"
#include "platform/dao/Tranches.h"

#include <algorithm>

namespace dao {

namespace {

interne::Connexion& ouverte(const std::unique_ptr<interne::Connexion>& connexion) {
    if (connexion == nullptr) interne::jetteFerme();
    return *connexion;
}

// A source of one word is a table's name.
bool estUnNom(std::string_view source) {
    return source.find_first_of(" \t\r\n;") == std::string_view::npos;
}

}  // namespace

Database::Database() = default;
Database::Database(std::unique_ptr<interne::Connexion> connexion) : m_connexion(std::move(connexion)) {}
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;
Database::~Database() = default;

Recordset Database::OpenRecordset(std::string_view source, std::span<const std::string_view> portees) {
    interne::Connexion& connexion = ouverte(m_connexion);
    connexion.respire();
    connexion.veille();
    if (estUnNom(source)) return Recordset(std::make_unique<interne::JeuVivant>(connexion, connexion.table(source)));
    interne::Plan plan = interne::planifie(connexion, interne::analyseEnonce(source), portees);
    interne::Resultat resultat = interne::execute(connexion, plan);
    return Recordset(std::make_unique<interne::JeuDeCles>(connexion, std::move(plan), std::move(resultat)));
}

Recordset Database::OpenRecordset(std::string_view source, std::span<const std::string_view> portees,
                                  Recordset& precedent) {
    interne::Connexion& connexion = ouverte(m_connexion);
    connexion.veille();
    if (const auto* jeu = dynamic_cast<interne::JeuDeCles*>(precedent.m_jeu.get());
        jeu != nullptr && !estUnNom(source)) {
        interne::Plan plan = interne::planifie(connexion, interne::analyseEnonce(source), portees);
        if (auto resultat = jeu->reordonne(connexion, plan))
            return Recordset(std::make_unique<interne::JeuDeCles>(connexion, std::move(plan), std::move(*resultat)));
    }
    precedent.allege();
    return OpenRecordset(source, portees);
}

void Database::respireAvec(Souffle souffle) {
    ouverte(m_connexion).respireAvec(std::move(souffle));
}

void Database::respire() {
    ouverte(m_connexion).respire();
}

void Database::parcourt(std::string_view table, std::span<const std::string_view> colonnes, const Recoit& recoit) {
    interne::Connexion& connexion = ouverte(m_connexion);
    connexion.veille();
    interne::parcourt(connexion, connexion.table(table), colonnes, recoit);
}

bool Database::litTranche(std::string_view table, std::span<const std::string_view> colonnes, Parcours& parcours,
                          std::size_t lignes, const Visite& visite) {
    interne::Connexion& connexion = ouverte(m_connexion);
    connexion.veille();
    return interne::litTranche(connexion, connexion.table(table), colonnes, parcours.derniere, lignes, visite);
}

Database::Version Database::version(std::string_view table) const {
    interne::Connexion& connexion = ouverte(m_connexion);
    return {(std::uint64_t{connexion.numero()} << 32) + connexion.epoque(),
            connexion.table(table).suivi.derniereEcriture};
}

void Database::declareCles(std::vector<Cle> cles) {
    ouverte(m_connexion).declareCles(std::move(cles));
}

void Database::prepareLesRecherches(std::string_view table) {
    interne::Connexion& connexion = ouverte(m_connexion);
    connexion.veille();
    interne::prepareIndex(connexion, connexion.table(table));
}

void Database::Execute(std::string_view sql) {
    ouverte(m_connexion).execute(sql);
}
void Database::BeginTrans() {
    ouverte(m_connexion).commence();
}
void Database::CommitTrans() {
    ouverte(m_connexion).confirme();
}

void Database::Rollback() {
    if (!ouverte(m_connexion).estCommencee()) interne::jette(kErreurTransaction, "Aucune transaction n'est ouverte.");
    m_connexion->annule();
}

bool Database::enTransaction() const {
    return ouverte(m_connexion).estCommencee();
}
bool Database::enregistre(Enregistrement* suite) {
    return ouverte(m_connexion).enregistre(suite);
}

Application Database::applique(Enregistrement& changements, Sens sens, const Avance& avance) {
    interne::Connexion& connexion = ouverte(m_connexion);
    connexion.enregistre(nullptr);
    return interne::applique(connexion, changements, sens, avance);
}

void Database::Close() {
    m_connexion.reset();
}
const std::string& Database::nom() const {
    return ouverte(m_connexion).nom();
}
Database::Changements Database::changements() const {
    return m_connexion ? Changements{m_connexion->version(), m_connexion->epoque()} : Changements{};
}

Emplacement Database::emplacement() const {
    return ouverte(m_connexion).emplacement();
}

Transaction::~Transaction() {
    if (!m_ouverte || !m_base.estOuverte()) return;
    try {
        m_base.m_connexion->annule();
    } catch (...) {  // the file engine rolls back what is left when the base is closed or next opened
    }
}

void Transaction::confirme() {
    m_base.CommitTrans();
    m_ouverte = false;
}

}  // namespace dao
