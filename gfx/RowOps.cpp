#include "gfx/RowOps.h"

namespace {

#ifdef TOBRIK_X86_ROW_OPS
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

// Until the processor has been asked, should another static initialiser draw.
constinit const SRowOps_* SRowOps_::used = &plainRowOps;

std::span<const SRowOps_* const> SRowOps_::Available_()
{
    return { available.sets, available.count };
}
