#include "tests/fuzz/FuzzTargets.h"

#include <cstddef>
#include <cstdint>

// libFuzzer's way into the target that FUZZ_TARGET names.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FUZZ_TARGET({ reinterpret_cast<const char*>(data), size });
    return 0;
}
