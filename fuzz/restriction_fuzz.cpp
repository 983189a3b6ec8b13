// Fuzzes the restriction engine of the memo against its literal model.
#include "fuzz/finding.h"
#include "tests/model/restriction_comparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    static testing::RestrictionComparison comparison;
    return fuzz::Verdict(
        comparison.Difference(testing::RestrictionFromBytes(fuzz::Input(bytes, size))));
}
