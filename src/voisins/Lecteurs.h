#pragma once

#include "platform/xml/Lecture.h"
#include "voisins/Affiches.h"
#include "voisins/FicheBrute.h"

#include <functional>
#include <memory>
#include <string>

// The readers, one for each program. What they read only becomes films once the whole of it was read. Throw Refus where
// a collection cannot be read, LectureArretee where the user stopped it.
namespace voisins {

struct LectureArretee {};

// Told of each film that is read; false stops the reading.
using Suivi = std::function<bool(long films)>;

// What a document belongs to, by its first element; nothing where it is of no program that is known here. Throws
// xml::Illisible, and Refus where it is a collection of something else than films.
[[nodiscard]] std::optional<Programme> programmeDuDocument(xml::Lecture& document);

// Reads the document of that program's collection, from its beginning.
void litDocument(Programme programme, xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films);

// Of the documents, from their beginning. `affiches` knows where the pictures are.
void litTellico(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films);
void litGcstar(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films);
void litAnt(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films);
// Of an export in one file, or of one film's sheet.
void litVideodb(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films);
// Of a folder and those below it. Answers how many sheets were of no film.
long litDossierKodi(const std::string& dossier, const Suivi& suivi, Films& films);
[[nodiscard]] bool aDesFichesKodi(const std::string& dossier);

void avance(const Suivi& suivi, const Films& films);  // throws LectureArretee

// The texts of the pieces that a list has; of a text that lists them between signs, its pieces.
[[nodiscard]] std::vector<std::string> listeDe(std::string_view texte);
// "A (rôle), B": split where no parenthesis is open.
[[nodiscard]] std::vector<FicheBrute::Acteur> acteursDuTexte(std::string_view texte);
// Without the few tags that paragraphs are written with.
[[nodiscard]] std::string sansBalises(std::string_view texte);

}  // namespace voisins
