// Fuzzes the drawing of a label, with any settings, against its literal model.
#include "fuzz/finding.h"
#include "tests/model/drawing_comparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    static testing::DrawingComparison comparison;
    return fuzz::Verdict(comparison.Difference(testing::SceneFromBytes(fuzz::Input(bytes, size))));
}
