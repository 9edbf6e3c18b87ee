#pragma once

namespace systeme {

// From now on memory blocks of a megabyte and more are the system's own: they grow without being copied and go back to it at
// once. The allocator would give that up for all blocks as large as one that was freed, and what listings leave
// behind would lie in pieces between what stays: a quarter of the peak with a million films. To be called at the start.
void gardeLesGrandsBlocsAPart();

}  // namespace systeme
