#include "platform/systeme/Memoire.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace systeme {

void gardeLesGrandsBlocsAPart() {
#ifdef __GLIBC__
    constexpr int kGrandBloc = 1 << 20;
    mallopt(M_MMAP_THRESHOLD, kGrandBloc);
#endif
}

}  // namespace systeme
