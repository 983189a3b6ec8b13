// A label, drawn on any settings, against the literal model of its drawing.
#include "fuzz/finding.h"
#include "tests/model/drawing_comparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    static testing::DrawingComparison comparison;
    return fuzz::Verdict(comparison.Difference(testing::SceneFromBytes(fuzz::Input(bytes, size))));
}
