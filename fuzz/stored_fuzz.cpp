// Fuzzes the reader of settings in streams: it rejects or reads them, and controls start with the
// settings it has read.
#include "fuzz/finding.h"
#include "tests/unit/ole/stored/stream_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace lumenkit;
    return fuzz::Verdict(testing::StreamFault(testing::StreamFromBytes(fuzz::Input(bytes, size))));
}
