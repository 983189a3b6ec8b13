// Fuzzes sessions of `lumenkit drive`: every request gets an answer, and the session continues.
#include "fuzz/finding.h"
#include "tests/apps/drive/drive_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    return fuzz::Verdict(testing::DriveFault(fuzz::Input(bytes, size)));
}
