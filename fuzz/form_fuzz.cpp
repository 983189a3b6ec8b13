// Fuzzes the reader of form files and their companion files: it rejects a form or reads all of it.
#include "fuzz/finding.h"
#include "tests/unit/forms/form_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    return fuzz::Verdict(forms::testing::FaultWith(fuzz::Input(bytes, size)));
}
