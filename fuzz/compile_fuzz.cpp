// Fuzzes the caption compiler against its literal model.
#include "fuzz/finding.h"
#include "tests/model/caption_comparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    static testing::CaptionComparison comparison;
    return fuzz::Verdict(
        comparison.Difference(testing::CaptionFromBytes(fuzz::Input(bytes, size))));
}
