#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumenkit::testing {

/// Returns the fault in the handling of a stream; empty if there is none. The stream must be
/// refused, or must be the same after it is written and read again, and every control must start
/// from it and save.
std::string StreamFault(const std::vector<std::uint8_t>& stream);

/// Converts a fuzzer's input to a stream: the input itself, or records with a valid header and
/// checksum.
std::vector<std::uint8_t> StreamFromBytes(std::string_view bytes);

}  // namespace lumenkit::testing
