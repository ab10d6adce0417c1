#include "gfx/RowOps.h"

namespace {

#ifdef TOBRIK_X86_ROW_OPS
// What the sources of the sets are compiled for (CMakeLists.txt).
bool HasAvx2_()
{
    return __builtin_cpu_supports("avx2");
}

bool HasAvx512_()
{
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl")
        && __builtin_cpu_supports("avx512vbmi");
}
#endif

// Asks the processor once, during static initialisation, and has drawing use the best set.
struct SAvailable_ {
    const SRowOps_* sets[3] { &plainRowOps };
    size_t count = 1;

    SAvailable_()
    {
#ifdef TOBRIK_X86_ROW_OPS
        __builtin_cpu_init();
        if (HasAvx2_())
            sets[count++] = &avx2RowOps;
        if (HasAvx512_())
            sets[count++] = &avx512RowOps;
#endif
        SRowOps_::used = sets[count - 1];
    }
};

const SAvailable_ available;

} // namespace

// Constant-initialised, so that `available` finds it made.
constinit const SRowOps_* SRowOps_::used = &plainRowOps;

std::span<const SRowOps_* const> SRowOps_::Available_()
{
    return { available.sets, available.count };
}
