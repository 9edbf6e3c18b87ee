#pragma once

namespace dao::interne {

// Gives the wide halves of the processor's vector registers back. Libraries leave them in use behind them; until they are
// given back each of our instructions on the narrow halves must keep them, and a listing lasts half as long again.
#if defined(__x86_64__) && defined(__GNUC__)
[[gnu::noinline, gnu::target("avx")]] inline void videRegistresLarges() {
    __builtin_ia32_vzeroupper();
}
inline void rendsRegistresLarges() {
    if (__builtin_cpu_supports("avx")) videRegistresLarges();
}
#else
inline void rendsRegistresLarges() {}
#endif

}  // namespace dao::interne
