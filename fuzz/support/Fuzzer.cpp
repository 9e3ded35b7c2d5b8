// The entry point of libFuzzer, for the target that the build names.
#include "support/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Run(fuzz::FUZZ_TARGET, data, size);
    return 0;
}
