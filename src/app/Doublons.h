#pragma once

#include "app/Contexte.h"
#include "ensemble/Fusion.h"

namespace app {

// What is done with two films that resemble each other.

// Asks, then makes one of the two as the plan says. Films that are not any more what it shows stay as they are, which the
// notice line tells.
void cmdFusionner_Click(const Contexte& c, const ensemble::PlanDeFusion& plan);

// Shows the film's sheet and runs the deletion of the film that is shown, with its question; then comes back to the page.
void supprimeDepuisLaCollection(const Contexte& c, const db::CleFilm& film);

}  // namespace app
