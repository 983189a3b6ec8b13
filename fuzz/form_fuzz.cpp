// Reads whatever the fuzzer finds as a form with its companion: it is refused or comes back whole.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/unit/forms/form_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string fault = lumenkit::forms::testing::FaultWith(
        std::string_view(reinterpret_cast<const char*>(bytes), size));
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
