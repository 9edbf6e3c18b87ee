#include "export/LecteurDeFilms.h"

#include "platform/dao/LigneSupprimee.h"

namespace exportation {

LecteurDeFilms::LecteurDeFilms(dao::Recordset& titres)
    : m_titres(titres),
      m_champs{{{titres.colonne("Titre"), &FilmDeLaListe::titre},
                {titres.colonne("realisateur"), &FilmDeLaListe::realisateur},
                {titres.colonne("Duree"), &FilmDeLaListe::duree},
                {titres.colonne("Genre"), &FilmDeLaListe::genre},
                {titres.colonne("Annee"), &FilmDeLaListe::annee},
                {titres.colonne("Origine"), &FilmDeLaListe::origine},
                {titres.colonne("Acteurs"), &FilmDeLaListe::acteurs},
                {titres.colonne("Resume"), &FilmDeLaListe::resume},
                {titres.colonne("Rangement"), &FilmDeLaListe::rangement},
                {titres.colonne("Divers"), &FilmDeLaListe::divers},
                {titres.colonne("Support"), &FilmDeLaListe::support}}} {}

const FilmDeLaListe* LecteurDeFilms::lit() {
    const bool presente = dao::siPresente([this] {
        for (const Champ& champ : m_champs)
            m_film.*champ.valeur = m_titres.vue(champ.colonne);
    });
    return presente ? &m_film : nullptr;
}

}  // namespace exportation
