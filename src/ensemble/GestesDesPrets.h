#pragma once

#include "ensemble/Prets.h"

// What the loan desk does, told in the notice line.
namespace ensemble {

// Takes the films back. Where somebody waits for some of them, the notice offers to hand them on.
void cmdRendu_Click(const Contexte& c, const std::vector<db::CleFilm>& films);
// Lends the films chosen in the tree to that person, as typed.
void cmdPreter_Click(const Contexte& c, const FiltreTitres& filtre, const std::string& saisie);
// Lends these films to who waits for them.
void cmdPreterAQuiAttend_Click(const Contexte& c, const std::vector<db::CleFilm>& films);

}  // namespace ensemble
