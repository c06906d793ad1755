#include "qt/wide_registers.hpp"

namespace kolvar {

#if defined(__x86_64__) && defined(__GNUC__)

namespace {
__attribute__((target("avx"))) void zero_upper_halves() { __builtin_ia32_vzeroupper(); }
}  // namespace

void release_wide_registers() {
    static const bool wide = __builtin_cpu_supports("avx");
    if (wide) zero_upper_halves();
}

#else

void release_wide_registers() {}

#endif

}  // namespace kolvar
