#pragma once

namespace app {

struct Etats;

// Greys the controls whose commands this version does not have yet. Each command that arrives deletes its line.
void griseCommandesAVenir(Etats& etats);

}  // namespace app
