#pragma once

namespace systeme {

// Thrown after its message when the program must end at once, writing no settings; caught at the edge.
struct FinDuProgramme {};

}  // namespace systeme
