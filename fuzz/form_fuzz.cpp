// Reads whatever the fuzzer finds as a form with its companion: it is refused or comes back whole.
#include "fuzz/finding.h"
#include "tests/unit/forms/form_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    return fuzz::Verdict(forms::testing::FaultWith(fuzz::Input(bytes, size)));
}
