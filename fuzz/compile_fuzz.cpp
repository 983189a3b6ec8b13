// The caption compiler against its literal model, on whatever the fuzzer finds.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/model/caption_comparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit::testing;
    static CaptionComparison comparison;
    const std::string difference =
        comparison.Difference(CaptionFromBytes({reinterpret_cast<const char*>(bytes), size}));
    if (!difference.empty()) {
        std::fprintf(stderr, "%s\n", difference.c_str());
        std::abort();
    }
    return 0;
}
