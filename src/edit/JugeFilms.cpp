#include "edit/JugeFilms.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/Complement.h"
#include "edit/TitreDejaExistant.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "platform/dao/Comparaison.h"

namespace edit {

namespace {

std::string cle(const db::CleFilm& film) {
    return dao::cleDeComparaison(film.titre) + '\0' + dao::cleDeComparaison(film.realisateur);
}

}  // namespace

JugeFilms::JugeFilms(const Contexte& c, bool ressemblances) : m_c(c) {
    if (ressemblances) m_lettres = LettresDuCatalogue::de(c);
}

bool JugeFilms::estDuLot(const db::CleFilm& film) const {
    return m_ajoutes.contains(cle(film));
}

SortDuFilm JugeFilms::juge(const db::CleFilm& film) const {
    if (estDuLot(film) || TitreDejaExistant(m_c, film)) return SortDuFilm::DejaLa;
    return m_lettres && m_lettres->aUnProche(film) ? SortDuFilm::Ressemblant : SortDuFilm::Nouveau;
}

FilmExamine JugeFilms::examine(const FilmLu& film, const std::function<SortDeLAffiche()>& affiche) const {
    FilmExamine examen{.film = film, .provenance = {}, .sort = juge(film)};
    if (examen.sort == SortDuFilm::DejaLa) {
        examineLePresent(examen, affiche);
        return examen;
    }
    examen.affiche = affiche();
    if (examen.sort == SortDuFilm::Nouveau) return examen;
    std::vector<FilmProche> proches = m_lettres->proches(film);
    examen.autresProches = proches.size() - 1;
    examen.proche = std::move(proches.front());
    return examen;
}

void JugeFilms::examineLePresent(FilmExamine& examen, const std::function<SortDeLAffiche()>& affiche) const {
    examen.duLot = estDuLot(examen.film);
    if (examen.duLot) return;
    const dao::Recordset present = m_c.base.base.OpenRecordset(db::enonceFilm(examen.film));
    if (present.Eof()) return;
    examen.aCompleter = champsACompleter(present, examen.film);
    if (!present.texte(kChampAffiche).empty()) return;
    examen.affiche = affiche();
    if (examen.affiche == SortDeLAffiche::Absente) examen.affiche = SortDeLAffiche::SansObjet;  // neither has one
    if (examen.affiche == SortDeLAffiche::Prise) examen.aCompleter.emplace_back(kChampAffiche);
}

bool JugeFilms::estRefuse(const db::CleFilm& film, const std::function<void()>& avantQuestion) const {
    return m_lettres && TitreDejaExistant_TestRessemblance(m_c, film, *m_lettres, avantQuestion);
}

void JugeFilms::ajoute(const db::CleFilm& film) {
    m_ajoutes.insert(cle(film));
    if (m_lettres) m_lettres->ajoute(film);
}

}  // namespace edit
