#include "platform/dao/Recordset.h"

#include "platform/dao/Erreurs.h"
#include "platform/dao/Jeu.h"

namespace dao {

namespace {

interne::Jeu& ouvert(const std::unique_ptr<interne::Jeu>& jeu) {
    if (jeu == nullptr) interne::jetteFerme();
    return *jeu;
}

}  // namespace

Valeur Champ::Value() const {
    return m_jeu.valeur(m_nom);
}

Champ& Champ::operator=(const Valeur& valeur) {
    m_jeu.assigne(m_nom, valeur);
    return *this;
}

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<interne::Jeu> jeu) : m_jeu(std::move(jeu)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

void Recordset::MoveFirst() {
    ouvert(m_jeu).vaAuDebut();
}
void Recordset::MoveNext() {
    ouvert(m_jeu).deplace(1);
}
void Recordset::Move(long pas) {
    ouvert(m_jeu).deplace(pas);
}
bool Recordset::Eof() const {
    return ouvert(m_jeu).fini();
}
long Recordset::AbsolutePosition() const {
    return ouvert(m_jeu).place();
}
long Recordset::RecordCount() const {
    return ouvert(m_jeu).compte();
}

Valeur Recordset::valeur(std::string_view nom) const {
    interne::Jeu& jeu = ouvert(m_jeu);
    return jeu.valeur(jeu.rang(nom));
}

Colonne Recordset::colonne(std::string_view nom) const {
    const auto rang = ouvert(m_jeu).rangDeParcours(nom);
    return {rang ? static_cast<int>(*rang) : -1};
}
std::string_view Recordset::vue(Colonne colonne) const {
    return ouvert(m_jeu).vue(colonne.rang < 0 ? std::nullopt
                                              : std::optional(static_cast<interne::RangChamp>(colonne.rang)));
}

void Recordset::AddNew() {
    ouvert(m_jeu).nouveau();
}
void Recordset::Edit() {
    ouvert(m_jeu).edite();
}
void Recordset::assigne(std::string_view nom, const Valeur& valeur) {
    ouvert(m_jeu).assigne(nom, valeur);
}
void Recordset::Update() {
    ouvert(m_jeu).ecrit();
}
void Recordset::Delete() {
    ouvert(m_jeu).supprime();
}
void Recordset::allege() {
    if (m_jeu != nullptr) m_jeu->allege();
}
void Recordset::Close() {
    m_jeu.reset();
}

}  // namespace dao
