// Fuzzes an option list, with any contents and any calls, against its literal model.
#include "fuzz/finding.h"
#include "tests/model/option_list_twins.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    static testing::ListFeatures features{};
    return fuzz::Verdict(
        testing::DifferenceAfter(testing::StepsFromBytes(fuzz::Input(bytes, size)), features));
}
